"""Werkstatt für Geräusche: Körper anschlagen, Saiten zupfen, Rauschen formen, Räume dazugeben.

Ein Signal ist ein Feld von Abtastwerten: mono (n) oder stereo (n, 2). Zeiten in
Sekunden, Frequenzen in Hertz, Pegel in Dezibel unter Vollaussteuerung. Zufall kommt nur
aus `rauschen` und `würfel` mit fester Saat, so wird jede Welle auf das Byte genau wieder.
"""
import wave

import numpy as np

import messen

RATE = 44100

# Eigenschwingungen: (Verhältnis zum Grundton, Stärke, Abklingzeit im Verhältnis).
MARIMBA = ((1, 1, 1), (3.98, .32, .28), (10.65, .10, .10))
GLOCKENSPIEL = ((1, 1, 1), (2.756, .55, .55), (5.404, .30, .30), (8.933, .12, .15))
HOLZBLOCK = ((1, 1, 1), (2.42, .55, .7), (3.11, .3, .5), (5.2, .18, .35), (7.4, .08, .2))
BRETT = ((1, 1, 1), (1.52, .7, .8), (2.31, .5, .6), (3.4, .35, .4), (5.1, .2, .3))
GLOCKE = ((1, 1, 1), (1.006, .6, .95), (2.01, .45, .6), (2.74, .5, .5), (4.07, .35, .35), (5.62, .2, .25))
FELL = ((1, 1, 1), (1.594, .6, .7), (2.136, .45, .6), (2.296, .3, .5), (2.653, .3, .4), (3.6, .15, .3))
GLAS = ((1, 1, 1), (2.32, .7, .8), (4.25, .55, .6), (6.63, .35, .4), (9.38, .2, .3))
BLECH = ((1, 1, 1), (1.83, .8, .9), (2.9, .7, .8), (4.6, .5, .6), (6.9, .35, .5))


def anzahl(dauer):
    return int(round(dauer * RATE))


def zeit(dauer):
    return np.arange(anzahl(dauer)) / RATE


def würfel(saat):
    return np.random.RandomState(saat)


def rauschen(dauer, saat):
    return würfel(saat).standard_normal(anzahl(dauer))


def verlauf(dauer, *punkte):
    """Geknickte Linie durch (Zeit, Wert): Hüllkurve, Tonhöhe, Filterlage."""
    t, w = zip(*punkte)
    return np.interp(zeit(dauer), t, w)


def bogen(dauer, ein, aus):
    """Hüllkurve eins mit weichen Flanken."""
    h = np.ones(anzahl(dauer))
    e, a = min(anzahl(ein), len(h)), min(anzahl(aus), len(h))
    h[:e] *= .5 - .5 * np.cos(np.pi * np.arange(e) / max(e, 1))
    h[len(h) - a:] *= (.5 + .5 * np.cos(np.pi * np.arange(a) / max(a, 1)))
    return h


def falten(x, antwort):
    """Jede Spalte von x durch die Impulsantwort schicken."""
    n = len(x) + len(antwort) - 1
    g = 1 << (n - 1).bit_length()
    if x.ndim == 1 and antwort.ndim == 2:
        x = np.stack((x, x), 1)
    if x.ndim == 2 and antwort.ndim == 1:
        antwort = np.stack((antwort, antwort), 1)
    return np.fft.irfft(np.fft.rfft(x, g, axis=0) * np.fft.rfft(antwort, g, axis=0), g, axis=0)[:n]


# Körper

def eigenton(dauer, grund, moden, abkling):
    """Impulsantwort eines Körpers; `abkling` ist die Abklingzeit des Grundtons."""
    t = zeit(dauer)
    y = np.zeros(len(t))
    for verhältnis, stärke, dämpfung in moden:
        if grund * verhältnis < .45 * RATE:
            y += stärke * np.exp(-t / (abkling * dämpfung)) * np.sin(2 * np.pi * grund * verhältnis * t)
    return y


def schlag(dauer, grund, moden, abkling, kontakt=.001):
    """Körper mit einem Schlägel getroffen: je länger der Kontakt, desto weicher (Filz 4 ms, Holz 0,5 ms)."""
    n = max(2, anzahl(kontakt))
    stoß = .5 - .5 * np.cos(2 * np.pi * (np.arange(n) + .5) / n)
    return falten(eigenton(dauer, grund, moden, abkling), stoß / stoß.sum())[:anzahl(dauer)]


def saite(dauer, grund, abkling, ort=.18, steif=.0002, helle=1.2):
    """Gezupfte Saite: `ort` ist die Zupfstelle als Teil der Länge, `helle` dämpft hohe Teiltöne."""
    t = zeit(dauer)
    y = np.zeros(len(t))
    for k in range(1, 30):
        f = k * grund * np.sqrt(1 + steif * k * k)
        if f > .4 * RATE:
            break
        y += (np.sin(np.pi * k * ort) / k ** helle * np.exp(-t * (1 + .35 * (k - 1)) / abkling)
              * np.sin(2 * np.pi * f * t))
    return y * bogen(dauer, .002, .02)


def impulse(dauer, kurve, saat=0, streuung=0., stärkestreuung=0.):
    """Impulsfolge mit der Wiederholrate `kurve` (je Abtastwert in Hertz): Motor, Ratsche, Stimmlippen."""
    w = würfel(saat)
    y = np.zeros(anzahl(dauer) + 2)
    phase = np.cumsum(kurve) / RATE
    for k in range(1, int(phase[-1]) + 1):
        ort = np.searchsorted(phase, k) + streuung * w.standard_normal() * RATE / kurve[0]
        ort = min(max(ort, 0.), len(y) - 2.)
        stärke = max(0., 1 + stärkestreuung * w.standard_normal())
        i = int(ort)
        y[i] += stärke * (1 - (ort - i))
        y[i + 1] += stärke * (ort - i)
    return y[:anzahl(dauer)]


# Filter zweiter Ordnung, im Frequenzbild angewandt

def _glied(art, f, güte):
    w = 2 * np.pi * f / RATE
    a = np.sin(w) / (2 * güte)
    c = np.cos(w)
    b = {"tief": ((1 - c) / 2, 1 - c, (1 - c) / 2),
         "hoch": ((1 + c) / 2, -(1 + c), (1 + c) / 2),
         "band": (a, 0, -a)}[art]
    return b, (1 + a, -2 * c, 1 - a)


def filtern(x, *glieder):
    """Glieder sind (Art, Frequenz, Güte), nacheinander durchlaufen."""
    n = x.shape[0]
    g = 1 << (n + 4096 - 1).bit_length()
    z = np.exp(-2j * np.pi * np.arange(g // 2 + 1) / g)
    h = np.ones(len(z), complex)
    for art, f, güte in glieder:
        b, a = _glied(art, f, güte)
        h *= (b[0] + b[1] * z + b[2] * z * z) / (a[0] + a[1] * z + a[2] * z * z)
    if x.ndim == 2:
        h = h[:, None]
    return np.fft.irfft(np.fft.rfft(x, g, axis=0) * h, g, axis=0)[:n]


def gleitband(x, kurve, güte):
    """Bandpass, dessen Mitte der Kurve folgt: überlappende Stücke von 23 ms."""
    n, block = len(x), 1024
    y = np.zeros(n + 2 * block)
    fenster = .5 - .5 * np.cos(2 * np.pi * np.arange(block) / block)
    x = np.concatenate((np.zeros(block // 2), x, np.zeros(block)))
    for start in range(0, n, block // 2):
        mitte = kurve[min(start, n - 1)]
        stück = filtern(x[start:start + block] * fenster[:len(x[start:start + block])], ("band", mitte, güte))
        y[start:start + len(stück)] += stück
    return y[block // 2:block // 2 + n]


def formanten(x, *stellen):
    """Mundraum: parallele Resonanzen (Frequenz, Bandbreite, Stärke), im Wechsel gegenphasig, damit dazwischen nichts auslöscht."""
    return sum((-1) ** k * s * filtern(x, ("band", f, f / b)) for k, (f, b, s) in enumerate(stellen))


# Bühne

def orten(x, seite):
    """Mono nach stereo, `seite` von -1 (links) bis 1 (rechts), fest oder als Verlauf."""
    w = (seite + 1) * np.pi / 4
    return np.stack((x * np.cos(w), x * np.sin(w)), 1)


def legen(leinwand, wann, x, stärke=1., seite=0.):
    """x zur Zeit `wann` auf die Leinwand legen; was übersteht, fällt weg."""
    if leinwand.ndim == 2 and x.ndim == 1:
        x = orten(x, seite)
    i = anzahl(wann)
    n = min(len(x), len(leinwand) - i)
    if n > 0:
        leinwand[i:i + n] += stärke * x[:n]


def leinwand(dauer, spuren=1):
    return np.zeros(anzahl(dauer)) if spuren == 1 else np.zeros((anzahl(dauer), spuren))


def raum(x, nachhall, anteil, saat=5, dumpf=4500):
    """Kleiner Raum: sechs frühe Rückwürfe je Seite und ein kurzer, dunkler Nachhall; macht stereo."""
    w = würfel(saat)
    n = anzahl(nachhall * 1.6)
    antwort = np.zeros((n, 2))
    for seite in (0, 1):
        for k in range(6):
            antwort[min(n - 1, int((.004 + .024 * w.random_sample()) * RATE)), seite] += (.7 ** k) * .5
        schwanz = w.standard_normal(n) * np.exp(-6.9 * np.arange(n) / RATE / nachhall)
        schwanz[:anzahl(.012)] = 0
        antwort[:, seite] += .05 * schwanz
    antwort = filtern(antwort, ("tief", dumpf, .6), ("hoch", 150, .7))
    if x.ndim == 1:
        x = orten(x, 0)
    nass = falten(x, antwort)[:len(x)]
    return x + anteil * nass


def halbton(grund, schritte):
    return grund * 2 ** (schritte / 12)


def note(nummer):
    """Frequenz einer MIDI-Note."""
    return halbton(440, nummer - 69)


def begrenzen(x, grenze):
    """Nimmt Spitzen über der Grenze weich zurück, 2 ms im Voraus."""
    weite = anzahl(.002)
    hülle = np.pad(np.abs(x).max(axis=1), weite)
    schritt = 1
    while schritt <= weite:  # das Größte der nächsten und letzten 2 ms
        hülle = np.maximum(hülle, np.maximum(np.roll(hülle, schritt), np.roll(hülle, -schritt)))
        schritt *= 2
    glatt = np.hanning(weite + 2)[1:-1]
    return x * np.convolve(np.minimum(1, grenze / np.maximum(hülle, 1e-9)), glatt / glatt.sum(), "same")[weite:-weite, None]


def schreiben(pfad, x, laut, grenze, ein=.0008, aus=.02):
    """Gleichanteil weg, Ränder auf null, auf die Lautheit bringen (lauteste 0,4 s in LUFS, Spitzen bis `grenze` dB), 16 Bit schreiben."""
    x = filtern(x, ("hoch", 30, .7))
    x = x[:, None] if x.ndim == 1 else x
    rand = bogen(len(x) / RATE, ein, aus)[:len(x), None]
    x = x * rand
    x = x - x.mean(axis=0) * rand / rand.mean()
    for _ in range(4):
        x = begrenzen(x * 10 ** ((laut - messen.gipfel(x, RATE)) / 20), 10 ** (grenze / 20))
    x[0] = x[-1] = 0
    with wave.open(str(pfad), "wb") as w:
        w.setnchannels(x.shape[1])
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(np.round(x * 32767).astype("<i2").tobytes())
