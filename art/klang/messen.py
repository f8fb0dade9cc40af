"""Messen, was in sound/ liegt: Pegel, Lautheit nach EBU R 128, Längen, Klangfarbe.

Ein Signal ist ein Feld (n, Spuren), eins ist Vollaussteuerung. Lautheit in LUFS, Zeiten in Sekunden.
"""
import struct
import subprocess
import wave

import numpy as np

KLANGSATZ = "/usr/share/sounds/sf2/TimGM6mb.sf2"
VERSTÄRKUNG = "0.75"  # fluidsynth im Spiel: Musikstärke 5/8 mal 1,2


def lesen(pfad):
    with wave.open(str(pfad)) as w:
        x = np.frombuffer(w.readframes(w.getnframes()), "<i2").reshape(-1, w.getnchannels()) / 32768
        return x, w.getframerate()


def spielen(stück, ziel):
    """Eine MIDI-Datei so in eine Welle spielen, wie sie im Spiel klingt."""
    subprocess.run(["fluidsynth", "-niq", "-g", VERSTÄRKUNG, "-r", "44100", "-F", ziel, KLANGSATZ, stück],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return lesen(ziel)


def db(wert):
    return 20 * np.log10(max(wert, 1e-6))


# Lautheit

def _antwort(b, a, z):
    return (b[0] + b[1] * z + b[2] * z * z) / (a[0] + a[1] * z + a[2] * z * z)


def gehörig(x, rate):
    """Die K-Bewertung: Anhebung über 1,7 kHz, Hochpass bei 38 Hz."""
    n = 1 << (len(x) + 8192 - 1).bit_length()
    z = np.exp(-2j * np.pi * np.arange(n // 2 + 1) / n)
    k = np.tan(np.pi * 1681.974450955533 / rate)
    hoch, band, güte = 10 ** (3.999843853973347 / 20), 10 ** (3.999843853973347 / 20 * .4996667741545416), .7071752369554196
    h = _antwort((hoch + band * k / güte + k * k, 2 * (k * k - hoch), hoch - band * k / güte + k * k),
                 (1 + k / güte + k * k, 2 * (k * k - 1), 1 - k / güte + k * k), z)
    k, güte = np.tan(np.pi * 38.13547087602444 / rate), .5003270373238773
    h *= _antwort((1, -2, 1), (1 + k / güte + k * k, 2 * (k * k - 1), 1 - k / güte + k * k), z)
    return np.fft.irfft(np.fft.rfft(x, n, axis=0) * h[:, None], n, axis=0)[:len(x)]


def lufs(leistung):
    return -.691 + 10 * np.log10(np.maximum(leistung, 1e-12))


def leistungen(x, rate, fenster, schritt=.1):
    """Mittlere Leistung in Fenstern der Länge `fenster`; ein kurzes Geräusch steht in Stille."""
    if x.shape[1] == 1:
        x = np.repeat(x, 2, axis=1)  # mono kommt aus beiden Lautsprechern
    rand = np.zeros((int(fenster * rate), 2))
    summe = np.concatenate(([0], np.cumsum((gehörig(np.concatenate((rand, x, rand)), rate) ** 2).sum(axis=1))))
    breite = int(fenster * rate)
    anfänge = np.arange(0, len(summe) - breite, int(schritt * rate))
    return (summe[anfänge + breite] - summe[anfänge]) / breite


def lautheit(x, rate):
    """Über alles, mit den beiden Schwellen der Norm."""
    p = leistungen(x, rate, .4)
    p = p[lufs(p) > -70]
    return lufs(p[lufs(p) > lufs(p.mean()) - 10].mean())


def gipfel(x, rate):
    """Der lauteste Augenblick (0,4 s)."""
    return lufs(leistungen(x, rate, .4, .01).max())


def verlauf(x, rate):
    """Lautheit über je 3 s, ohne Anfang und Ende, wo das Fenster übersteht."""
    return lufs(leistungen(x, rate, 3))[30:-30]


# Länge

def hörbares_ende(x, rate):
    return np.flatnonzero(np.abs(x).max(axis=1) > 10 ** (-60 / 20))[-1] / rate


def längste_stille(x, rate):
    return np.diff(np.flatnonzero(np.abs(x).max(axis=1) > 10 ** (-60 / 20))).max() / rate


def ende_der_datei(pfad):
    """Wo ein MIDI-Stück zu Ende ist, also `Position` gleich `Length`."""
    daten = pfad.read_bytes()
    viertel = struct.unpack(">H", daten[12:14])[0]
    ende, tempi, ort = 0, [], 14
    while ort < len(daten):
        länge = struct.unpack(">I", daten[ort + 4:ort + 8])[0]
        zeit = _spurende(daten[ort + 8:ort + 8 + länge], tempi)
        ende, ort = max(ende, zeit), ort + 8 + länge
    tempi.append((ende, 0))
    return sum((min(b, ende) - a) * t for (a, t), (b, _) in zip(tempi, tempi[1:])) / viertel / 1e6


def _spurende(spur, tempi):
    ort = zeit = 0

    def zahl():
        nonlocal ort
        wert = 0
        while True:
            ort += 1
            wert = wert << 7 | spur[ort - 1] & 127
            if spur[ort - 1] < 128:
                return wert

    while ort < len(spur):
        zeit += zahl()
        art, ort = spur[ort], ort + 1
        if art == 255:
            nummer, ort = spur[ort], ort + 1
            länge = zahl()
            if nummer == 81:
                tempi.append((zeit, int.from_bytes(spur[ort:ort + länge], "big")))
            ort += länge
        else:
            ort += 1 if art >> 4 in (12, 13) else 2
    return zeit


# Klangfarbe

def anteil(x, rate, von, bis):
    """Teil der Leistung zwischen zwei Frequenzen."""
    p = (np.abs(np.fft.rfft(x, axis=0)) ** 2).sum(axis=1)
    f = np.fft.rfftfreq(len(x), 1 / rate)
    return p[(f >= von) & (f < bis)].sum() / p.sum()


def terzen(x, rate):
    """So viele Terzbänder tragen neun Zehntel der Leistung."""
    grenzen = 50 * 2 ** (np.arange(28) / 3)
    teile = np.sort([anteil(x, rate, a, b) for a, b in zip(grenzen, grenzen[1:])])[::-1]
    return int((np.cumsum(teile) < .9 * teile.sum()).sum()) + 1


def abklingen(x, rate, von, bis):
    """Sekunden, in denen das Band von seinem Gipfel um 20 dB fällt (Hüllkurve über 20 ms)."""
    f = np.fft.rfftfreq(len(x), 1 / rate)
    y = np.fft.irfft(np.fft.rfft(x.sum(axis=1)) * ((f >= von) & (f < bis)), len(x))
    breite = int(.02 * rate)
    hülle = np.sqrt(np.convolve(y * y, np.ones(breite) / breite, "same"))
    return (np.flatnonzero(hülle > .1 * hülle.max())[-1] - hülle.argmax()) / rate


def wucht(x, rate):
    """Wann der stärkste Stoß kommt: größter Zuwachs der Leistung unter 600 Hz in 10 ms."""
    f = np.fft.rfftfreq(len(x), 1 / rate)
    y = np.fft.irfft(np.fft.rfft(x.sum(axis=1)) * (f < 600), len(x))
    stücke = (y[:len(y) // 441 * 441] ** 2).reshape(-1, 441).mean(axis=1)
    return (np.diff(stücke).argmax() + 1) * 441 / rate


def zusammen(x, y):
    """Größter Ausschlag, wenn zwei Signale im ungünstigsten Versatz zusammentreffen."""
    x, y = (np.repeat(s, 2, axis=1) if s.shape[1] == 1 else s for s in (x, y))
    return max((x.max(axis=0) + y.max(axis=0)).max(), -(x.min(axis=0) + y.min(axis=0)).min())
