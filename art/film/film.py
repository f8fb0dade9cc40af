#!/usr/bin/python3
"""Setzt den Vorspann zusammen: Flug über die Modellinsel, der Name, ein Wagen fährt vor.

art/film/film.py TEILE [--ziel ani.hvi] [--bogen bogen.png | --bild SEKUNDE datei.png]

TEILE ist der Ordner, in den teile.py gezeichnet hat; Brett, Hotels und kleine Wagen kommen aus bilder/.
Die Zeiten folgen der Musik in sound/intro.wav.
"""
import argparse
import io
import math
import os
import random
import re
import subprocess

import numpy as np
from PIL import Image, ImageChops, ImageFilter

WURZEL = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
BILDER = os.path.join(WURZEL, "bilder")
B, H = 903, 573                  # gerechnet wird in Dritteln eines Entwurfspunkts (3612 x 2292 Twips)
AUSGABE = (752, 477)             # Bildpunkte des Films
TAKT, DAUER = 25, 9.4            # Bilder je s, s
NAME_DA, WAGEN_AB, HUPE, BREMSE, STEHT, SCHLUSS = 5.0, 6.75, (7.5, 7.81), 8.2, 8.56, 8.75
BELICHTUNGEN, VERSCHLUSS = 4, .6  # je Bild; Anteil der Bildzeit
FEIN = 4                         # Bildpunkte je Entwurfspunkt der Bilder
GÜTE, GÜTE_MIN, BYTES_JE_BILD = 82, 42, 31500


# ---------------------------------------------------------------- Hilfen

def sanft(t, a, e):
    """0 vor a, 1 nach e, dazwischen weich."""
    x = min(1.0, max(0.0, (t - a) / (e - a)))
    return x * x * (3 - 2 * x)


def lade(*teile):
    return Image.open(os.path.join(*teile)).convert("RGBA")


def blass(bild, anteil):
    if anteil < 1:
        bild.putalpha(bild.getchannel("A").point(lambda a: int(a * anteil)))
    return bild


def setze(grund, teil, x, y, mass=1.0, mitte=(.5, .5), drehung=0.0, deckung=1.0, streckung=1.0):
    """Legt das Teil mit seinem Punkt `mitte` (Anteile) auf (x, y), auf Bruchteile eines Punktes genau."""
    if deckung <= 0.01:
        return
    while mass < .5 and min(teil.size) > 8:
        teil, mass = teil.reduce(2), mass * 2
    w, h = teil.size
    mx, my = w * mitte[0], h * mitte[1]
    c, s = math.cos(drehung), math.sin(drehung)
    sx, sy = mass, mass * streckung
    ecken = [(c * sx * (ex - mx) - s * sy * (ey - my), s * sx * (ex - mx) + c * sy * (ey - my))
             for ex in (0, w) for ey in (0, h)]
    links, oben = math.floor(x + min(e[0] for e in ecken)), math.floor(y + min(e[1] for e in ecken))
    rechts, unten = math.ceil(x + max(e[0] for e in ecken)), math.ceil(y + max(e[1] for e in ecken))
    l, o, r, u = max(links, 0), max(oben, 0), min(rechts, grund.width), min(unten, grund.height)
    if l >= r or o >= u:
        return
    dx, dy = l - x, o - y            # Bildpunkt -> Punkt des Teils
    matte = (c / sx, s / sx, (c * dx + s * dy) / sx + mx, -s / sy, c / sy, (-s * dx + c * dy) / sy + my)
    stück = teil.transform((r - l, u - o), Image.Transform.AFFINE, matte, Image.Resampling.BICUBIC)
    grund.alpha_composite(blass(stück, deckung), (l, o))


def linie(punkte, t):
    """Weiche Bahn (Catmull-Rom) durch (zeit, werte ...)."""
    i = max(k for k in range(len(punkte)) if punkte[k][0] <= max(t, punkte[0][0]))
    if i >= len(punkte) - 1:
        return punkte[-1][1:]
    p = [np.array(punkte[min(max(k, 0), len(punkte) - 1)]) for k in range(i - 1, i + 3)]
    dt = p[2][0] - p[1][0]
    f = (t - p[1][0]) / dt
    m1 = (p[2] - p[0]) / max(p[2][0] - p[0][0], 1e-6) * dt
    m2 = (p[3] - p[1]) / max(p[3][0] - p[1][0], 1e-6) * dt
    f2, f3 = f * f, f * f * f
    return tuple(((2 * f3 - 3 * f2 + 1) * p[1] + (f3 - 2 * f2 + f) * m1 + (3 * f2 - 2 * f3) * p[2] + (f3 - f2) * m2)[1:])


# ---------------------------------------------------------------- Die Insel

def tafel(datei, muster):
    with open(os.path.join(WURZEL, datei), encoding="utf-8") as f:
        return re.findall(muster, f.read())


class Insel:
    """Das Brett mit allen Hotels, in mehreren Feinheiten, und die Bahn der Wagen."""

    def __init__(self):
        bild = lade(BILDER, "formen/form1/picture1.jpg")
        self.häuser = Image.new("L", bild.size)
        stufen = tafel("model/Hoteltafel.h", r'"(\w+)",\s*\{(-?\d+), (-?\d+), (\d+), (\d+)\}')
        for name, *maß in sorted(stufen, key=lambda z: int(z[2]) + int(z[4])):
            datei = os.path.join(BILDER, "formen/form1", name.lower() + ".png")
            if not os.path.exists(datei):
                continue
            l, o, b, h = (round(int(m) * FEIN / 12) for m in maß)
            haus = lade(datei).resize((b, h), Image.Resampling.LANCZOS)
            ganz = Image.new("RGBA", bild.size)
            ganz.paste(haus, (l, o))
            bild.alpha_composite(ganz)
            self.häuser = ImageChops.lighter(self.häuser, ganz.getchannel("A"))
        self.breite, self.höhe = bild.size
        bild = bild.convert("RGB")
        self.fein = [(m, bild if m == 1 else bild.resize((round(self.breite * m), round(self.höhe * m)), Image.Resampling.LANCZOS))
                     for m in (1, .72, .52, .38)]
        felder = tafel("model/Feldtabelle.h", r"\{ *(\d+), *(\d+)\}, *\{ *\d+, *\d+\}")
        self.felder = [((int(x) + 240) * FEIN / 12, (int(y) + 180) * FEIN / 12) for x, y in felder]
        self.meer = self._meer(bild)

    def _meer(self, bild):
        """Orte auf dem Wasser: blau, weder Haus noch Feld."""
        grob = 8
        größe = (bild.width // grob, bild.height // grob)
        a = np.asarray(bild.resize(größe)).astype(int)
        ja = (a[..., 2] > a[..., 0] + 70) & (a[..., 2] > 130) & (a[..., 1] > 90)
        ja &= np.asarray(self.häuser.resize(größe)) == 0
        y, x = np.nonzero(ja)
        orte = [((px + .5) * grob, (py + .5) * grob) for px, py in zip(x, y)]
        return [o for o in orte if all(math.dist(o, f) > 130 for f in self.felder)]

    def zeichne(self, kamera):
        mass, bild = next(((m, b) for m, b in reversed(self.fein) if m >= .9 * B / kamera.weite), self.fein[0])
        return bild.transform((B, H), Image.Transform.PERSPECTIVE, kamera.zum_brett(mass),
                              Image.Resampling.BICUBIC).convert("RGBA")


class Kamera:
    """Blick auf das Brett: Mitte, sichtbare Weite in Brettpunkten, Drehung, Neigung."""

    def __init__(self, x, y, weite, drehung, neigung, stoß=0.0):
        self.x, self.y, self.weite = x, y, weite
        c, s, m = math.cos(drehung), math.sin(drehung), weite / B
        n = neigung / H
        a = np.array([[1, 0, -B / 2], [0, 1, -H / 2 + stoß], [0, n, 1 - n * H / 2]])
        self.hin = np.array([[c * m, -s * m, x], [s * m, c * m, y], [0, 0, 1]]) @ a
        self.her = np.linalg.inv(self.hin)

    def zum_brett(self, mass):
        k = np.diag([mass, mass, 1]) @ self.hin
        return tuple((k / k[2, 2]).ravel()[:8])

    def punkt(self, x, y):
        """Brettpunkt -> Ort im Bild und Maßstab dort."""
        u, v, w = self.her @ (x, y, 1)
        w0 = (self.her @ (self.x, self.y, 1))[2]
        return u / w, v / w, B / self.weite * w0 / w

    def prüfe(self, insel):
        for u, v in ((0, 0), (B, 0), (0, H), (B, H)):
            x, y, w = self.hin @ (u, v, 1)
            if not (0 <= x / w <= insel.breite and 0 <= y / w <= insel.höhe):
                raise SystemExit("Die Kamera blickt über den Rand des Brettes: %d, %d" % (x / w, y / w))


#       s    x     y    Weite Drehung Neigung
FLUG = [(-.4, 690, 560, 1300, -.02, .08),
        (.0, 700, 565, 1290, -.02, .10),
        (1.3, 840, 600, 1030, -.035, .24),
        (2.5, 1420, 640, 1000, .01, .26),
        (3.4, 2010, 730, 1060, .035, .24),
        (4.1, 1980, 800, 1480, .02, .15),
        (4.75, 1500, 858, 2520, .0, .03),
        (5.1, 1482, 862, 2600, .0, .02),
        (9.4, 1482, 862, 2470, .0, .02)]


def kamera(t):
    x, y, weite, drehung, neigung = linie(FLUG, t)
    stoß = 0.0
    for nach, stark in ((t - NAME_DA, 5), (t - STEHT, 2)):
        if 0 <= nach < .5:
            stoß += stark * math.exp(-nach * 9) * math.cos(nach * 45)
    return Kamera(x, y, min(weite, 2600), drehung, neigung, stoß)


# ---------------------------------------------------------------- Wolken, Glitzern, kleine Wagen

#          x     y    Höhe  Maß Bild   (Brettpunkte)
WOLKEN = [(200, 980, 420, 1.0, 0), (1230, 330, 420, .7, 1), (2500, 330, 440, 1.0, 0), (2800, 1250, 420, 1.0, 1),
          (330, 180, 430, .8, 2), (60, 1500, 420, 1.1, 2)]
# Durch diese stößt die Kamera zu Beginn: Ort im Bild von der Mitte, Maß
SCHLEIER = [(-.44, -.32, 1.1), (.42, -.34, 1.2), (-.46, .30, 1.2), (.44, .36, 1.2), (.02, -.46, .9), (-.08, .50, 1.0),
            (.16, .05, .55)]


def wolken(bild, t, k, teile):
    for x, y, hoch, mass, nr in WOLKEN:
        x = x + 26 * t
        m = 1 / (1 - hoch / (1.25 * k.weite))
        sx, sy, s = k.punkt(x + .3 * hoch, y + .2 * hoch)
        setze(bild, teile.schatten[nr], sx, sy, s * mass * .95, deckung=.30)
        u, v, s = k.punkt(x, y)
        u, v = B / 2 + (u - B / 2) * m, H / 2 + (v - H / 2) * m - .12 * hoch * s
        rand = sanft(k.weite, 1150, 2300)          # im Überblick bleibt die Mitte frei
        frei = max(abs(u / B - .5), abs(v / H - .5)) * 2
        setze(bild, teile.wolken[nr], u, v, s * mass * m, deckung=.93 * (1 - rand * (1 - sanft(frei, .55, .8))))


def schleier(bild, t, teile):
    if t > 1.6:
        return
    weit = math.exp(1.3 * t + 1.1 * t * t)
    for i, (x, y, mass) in enumerate(SCHLEIER):
        setze(bild, teile.wolken[i % 3], B * (.5 + x * weit), H * (.5 + y * weit), mass * weit, drehung=.1 * (i - 3),
              deckung=1 - sanft(t, .35, 1.15))


def glitzern(bild, t, k, insel, stern):
    zufall = random.Random(7)
    for _ in range(900):
        x, y = zufall.choice(insel.meer)
        takt, phase, stark = zufall.uniform(.7, 1.6), zufall.random(), zufall.uniform(.4, 1)
        hell = max(0.0, math.sin(math.pi * ((t / takt + phase) % 1)) - .55) / .45
        u, v, s = k.punkt(x + 3 * t, y)
        if hell and -9 < u < B + 9 and -9 < v < H + 9:
            setze(bild, stern, u, v, (.10 + .16 * stark) * (.5 + .5 * s), deckung=hell * .85)


WAGENREIHE = ((125, 14.2, 2.1), (129, 19.0, 1.7), (133, 24.3, 1.9), (137, 4.5, 1.8))   # Bild, Feld bei 0 s, Felder je s


def kleine_wagen(bild, t, k, insel, bilder):
    for erste, feld, tempo in WAGENREIHE:
        ort = feld + tempo * t
        n = len(insel.felder)
        i, f = int(ort), ort % 1
        p = [np.array(insel.felder[(i + j - 1) % n]) for j in range(-1, 3)]
        x, y = linie([(j, *q) for j, q in enumerate(p)], 1 + f)
        weg = p[2] - p[1]
        blick = (3 if weg[0] > 0 else 1) if abs(weg[0]) > abs(weg[1]) else (0 if weg[1] > 0 else 2)
        wagen = bilder[erste + blick].copy()
        l, o = round(x - wagen.width / 2), round(y - wagen.height / 2)
        davor = insel.häuser.crop((l, o, l + wagen.width, o + wagen.height))
        wagen.putalpha(ImageChops.multiply(wagen.getchannel("A"), ImageChops.invert(davor)))
        u, v, s = k.punkt(x, y)
        setze(bild, wagen, u, v, s)


# ---------------------------------------------------------------- Der Name und der Wagen

BUCHSTABEN = "VELMO"
MITTEN = (149, 297, 430, 592, 772)           # im Bild, Bildpunkte
FUSS, GRÖSSE = 346, .66                      # Bildpunkte; Maß der Teile
WOHIN = (45 / 130, 78 / 90)                  # Fuß eines Buchstabens in seinem Teil


def fall(t, da):
    """Höhe über dem Boden und Streckung eines Buchstabens, der zur Zeit `da` aufschlägt und federt."""
    if t < da:
        return ((da - t) / .42) ** 2 * 430, 1 + .10 * min(1, (da - t) / .2)
    nach, höhe = t - da, 0.0
    for beginn, dauer, hoch in ((.0, .26, 46), (.26, .16, 13)):
        f = (nach - beginn) / dauer
        if 0 <= f < 1:
            höhe = hoch * 4 * f * (1 - f)
    return höhe, 1 - .16 * math.exp(-nach * 14) * math.cos(nach * 40)


def name(bild, t, teile):
    stellen = []
    for nr, (zeichen, x) in enumerate(zip(BUCHSTABEN, MITTEN)):
        da = NAME_DA + .075 * nr
        if t >= da - .42:
            stellen.append((zeichen, x, t - da, *fall(t, da)))
    for zeichen, x, nach, hoch, _ in stellen:
        setze(bild, teile.buchstaben[zeichen + "_s"], x + .5 * hoch, FUSS - .2 * hoch, GRÖSSE, WOHIN,
              deckung=.85 * max(.15, 1 - hoch / 300))
        staub(bild, teile, x, FUSS - 6, nach, .55)
    for zeichen, x, nach, hoch, streckung in stellen:
        teil = glanz(teile.buchstaben[zeichen], x, t)
        setze(bild, teil, x, FUSS - hoch, GRÖSSE, WOHIN, streckung=streckung)


def glanz(teil, x, t):
    """Ein Lichtstreif zieht über den Namen, wenn er steht und zum Schlussklang."""
    for beginn, dauer in ((5.75, .8), (SCHLUSS - .02, .55)):
        f = (t - beginn) / dauer
        if 0 < f < 1:
            ort = (-.15 + 1.3 * f) * B
            a = np.asarray(teil).astype(np.float32)
            spalte = (np.arange(teil.width) - WOHIN[0] * teil.width) * GRÖSSE + x
            zeile = (np.arange(teil.height) - WOHIN[1] * teil.height) * GRÖSSE
            streif = np.exp(-((spalte[None, :] + .45 * zeile[:, None] - ort) / 26) ** 2)[..., None]
            a[..., :3] += (255 - a[..., :3]) * streif * .62
            teil = Image.fromarray(a.astype(np.uint8), "RGBA")
    return teil


def staub(bild, teile, x, y, nach, mass):
    if not 0 <= nach < .55:
        return
    f = nach / .55
    for seite in (-1, 1):
        for j in range(2):
            setze(bild, teile.staub, x + seite * (26 + (30 + 22 * j) * math.sqrt(f)), y - 9 * f - 7 * j,
                  mass * (.10 + .12 * math.sqrt(f)), deckung=.75 * (1 - f) ** 1.4)


def wagenort(t):
    """Weg von links: gleichmäßig, dann gebremst bis zum Stand."""
    ziel, her = .640 * B, -.16 * B
    brems = STEHT - BREMSE + .12
    tempo = (ziel - her) / (STEHT - brems - WAGEN_AB + brems / 2)
    if t < STEHT - brems:
        return her + tempo * (t - WAGEN_AB)
    rest = max(0.0, STEHT - t)
    return ziel - tempo * rest * rest / brems / 2


def wagen(bild, t, teile):
    if t < WAGEN_AB - .1:
        return
    x, y, mass = wagenort(t), 474.0, .78
    grad = 90 - 40 * sanft(t, BREMSE - .25, STEHT + .02)
    unten = max(g for g in teile.wagen if g <= grad)
    y += 12 * sanft(t, BREMSE - .25, STEHT)
    nicken = .045 * sanft(t, BREMSE - .05, BREMSE + .12)
    if t > STEHT - .04:                        # setzt sich und wippt nach
        nach = t - STEHT + .04
        nicken = .045 * math.exp(-nach * 7) * math.cos(nach * 21)
    hoch = 1.1 * abs(math.sin(t * 31)) * (1 - sanft(t, BREMSE, STEHT))
    hupt = max((max(0.0, 1 - abs(t - h - .07) / .12) for h in HUPE), default=0)
    hoch += 7 * hupt
    mitte = (.5, 44 / 76)
    setze(bild, teile.wagen[unten][1], x, y, mass, mitte, deckung=.9)
    for j in range(4):                         # Reifenstaub
        ab = BREMSE + .07 * j
        f = (t - ab) / .5
        if 0 <= f < 1:
            setze(bild, teile.staub, wagenort(ab) - 92 - 20 * f, y + 14 - 12 * f, .10 + .14 * f, deckung=.8 * (1 - f))
    setze(bild, teile.wagen[unten][0], x, y - hoch, mass, mitte, drehung=nicken, streckung=1 + .05 * hupt)
    if hupt:
        setze(bild, teile.stern, x + 104, y - 6 - hoch, 1.3, deckung=hupt)


# ---------------------------------------------------------------- Teile, Bild, Film

def stern(größe=96):
    m = (np.arange(größe) - größe / 2 + .5) / (größe / 2)
    x, y = np.meshgrid(m, m)
    r = np.hypot(x, y)
    hell = np.clip(np.exp(-(r / .16) ** 2) + .9 * np.exp(-np.abs(x) * 22) * np.clip(1 - np.abs(y), 0, 1) ** 2
                   + .9 * np.exp(-np.abs(y) * 22) * np.clip(1 - np.abs(x), 0, 1) ** 2, 0, 1)
    a = np.full((größe, größe, 4), 255, np.uint8)
    a[..., 2] = 236
    a[..., 3] = (hell * 255).astype(np.uint8)
    return Image.fromarray(a, "RGBA")


class Teile:
    def __init__(self, ordner):
        def teil(name_):
            return lade(ordner, name_ + ".png")
        self.wolken = [weichzeichnen(teil("wolke%d" % i), 1.6) for i in (1, 2, 3)]
        self.schatten = [schwarz(w, 16) for w in self.wolken]
        self.staub = weichzeichnen(teil("wolke2"), 12)
        self.buchstaben = {z + s: teil(z + s) for z in BUCHSTABEN for s in ("", "_s")}
        winkel = sorted(int(d[5:7]) for d in os.listdir(ordner) if re.fullmatch(r"wagen\d\d\.png", d))
        self.wagen = {g: (teil("wagen%02d" % g), teil("wagen%02d_s" % g)) for g in winkel}
        self.stern = stern()
        self.kleine = {n: lade(BILDER, "auto", "%d.png" % n) for n in range(125, 141)}


def weichzeichnen(bild, r):
    return bild.convert("RGBa").filter(ImageFilter.GaussianBlur(r)).convert("RGBA")


def schwarz(bild, r):
    leer = Image.new("RGBA", bild.size, (8, 20, 40, 0))
    leer.putalpha(bild.getchannel("A").filter(ImageFilter.GaussianBlur(r)))
    return leer


def rahmen():
    """Zum Rand hin dunkler."""
    x, y = np.meshgrid(np.linspace(-1, 1, B), np.linspace(-1, 1, H))
    a = np.zeros((H, B, 4), np.uint8)
    a[..., :3] = (6, 22, 46)
    a[..., 3] = np.clip((np.hypot(x * .9, y) - .62) * 100, 0, 70).astype(np.uint8)
    return Image.fromarray(a, "RGBA")


def einzelbild(t, insel, teile, rand):
    k = kamera(t)
    k.prüfe(insel)
    bild = insel.zeichne(k)
    for i in range(1, BELICHTUNGEN):                   # im Flug verwischt, was sich bewegt
        spät = kamera(t + VERSCHLUSS * i / BELICHTUNGEN / TAKT)
        bild = Image.blend(bild, insel.zeichne(spät), 1 / (i + 1))
    kleine_wagen(bild, t, k, insel, teile.kleine)
    glitzern(bild, t, k, insel, teile.stern)
    wolken(bild, t, k, teile)
    schleier(bild, t, teile)
    ruhe = sanft(t, NAME_DA - .25, NAME_DA + .35)      # der Name steht vor unscharfem Grund
    if ruhe:
        bild = bild.filter(ImageFilter.GaussianBlur(2.1 * ruhe))
        bild.alpha_composite(Image.new("RGBA", (B, H), (10, 34, 62, int(20 * ruhe))))
    setze(bild, rand, B / 2, H / 2, deckung=.5 + .5 * ruhe)
    name(bild, t, teile)
    wagen(bild, t, teile)
    return bild.convert("RGB").resize(AUSGABE, Image.Resampling.LANCZOS)


def jpeg(bild):
    """So gut, wie es die Bytes je Bild erlauben."""
    for güte in range(GÜTE, GÜTE_MIN - 1, -3):
        aus = io.BytesIO()
        bild.save(aus, "JPEG", quality=güte, subsampling=2, optimize=True)
        if aus.tell() <= BYTES_JE_BILD:
            break
    return aus.getvalue()


def main():
    lese = argparse.ArgumentParser()
    lese.add_argument("teile")
    lese.add_argument("--ziel", default=os.path.join(WURZEL, "ani.hvi"))
    lese.add_argument("--bogen")
    lese.add_argument("--bild", nargs=2)
    args = lese.parse_args()
    insel, teile, rand = Insel(), Teile(args.teile), rahmen()
    if args.bild:
        einzelbild(float(args.bild[0]), insel, teile, rand).save(args.bild[1])
        return
    if args.bogen:
        zeiten = [.0, .4, .8, 1.2, 1.6, 2.1, 2.6, 3.1, 3.6, 4.0, 4.3, 4.6, 4.8, 4.9, 5.0, 5.12, 5.24, 5.4, 6.0, 6.9, 7.2,
                  7.57, 8.0, 8.25, 8.4, 8.6, 8.9, 9.36]
        bogen = Image.new("RGB", (4 * 452, (len(zeiten) + 3) // 4 * 287))
        for i, t in enumerate(zeiten):
            bogen.paste(einzelbild(t, insel, teile, rand).resize((450, 285)), (i % 4 * 452, i // 4 * 287))
        bogen.save(args.bogen)
        return
    packen = subprocess.Popen(["ffmpeg", "-v", "error", "-y", "-f", "image2pipe", "-c:v", "mjpeg", "-framerate", str(TAKT),
                               "-i", "-", "-c", "copy", "-fflags", "+bitexact", "-f", "avi", args.ziel],
                              stdin=subprocess.PIPE)
    for nr in range(round(DAUER * TAKT)):
        packen.stdin.write(jpeg(einzelbild(nr / TAKT, insel, teile, rand)))
    packen.stdin.close()
    packen.wait()


if __name__ == "__main__":
    main()
