"""Die Insel des Vorspanns: das Brett mit allen Hotels, die Kamera darüber, und das Zusammensetzen der Bilder."""
import math

from befehl import FEIN, brauche, vorhanden
from tafeln import FELDER, STUFEN, mitte, punkte

brauche("python3-numpy", "python3-pil")

import numpy as np
from PIL import Image, ImageChops, ImageFilter, ImageOps      # noqa: F401

B, H = 903, 573                  # gerechnet wird in Dritteln eines Entwurfspunkts (3612 x 2292 Twips)
AUSGABE = (1504, 954)            # Bildpunkte des Films
FEINER = AUSGABE[0] / B


def sanft(t, a, e):
    """0 vor a, 1 nach e, dazwischen weich."""
    x = min(1.0, max(0.0, (t - a) / (e - a)))
    return x * x * (3 - 2 * x)


def lade(datei):
    return Image.open(datei).convert("RGBA")


def blass(bild, anteil):
    if anteil < 1:
        bild.putalpha(bild.getchannel("A").point(lambda a: int(a * anteil)))
    return bild


def setze(grund, teil, x, y, maß=1.0, mitte=(.5, .5), drehung=0.0, deckung=1.0, streckung=1.0):
    """Legt das Teil mit seinem Punkt `mitte` (Anteile) auf (x, y), auf Bruchteile eines Punktes genau."""
    if deckung <= 0.01:
        return
    x, y, maß = x * FEINER, y * FEINER, maß * FEINER
    while maß < .5 and min(teil.size) > 8:
        teil, maß = teil.reduce(2), maß * 2
    w, h = teil.size
    mx, my = w * mitte[0], h * mitte[1]
    c, s = math.cos(drehung), math.sin(drehung)
    sx, sy = maß, maß * streckung
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
    return tuple(((2 * f3 - 3 * f2 + 1) * p[1] + (f3 - 2 * f2 + f) * m1 + (3 * f2 - 2 * f3) * p[2]
                  + (f3 - f2) * m2)[1:])


class Insel:
    """Das Brett mit allen Hotels, in mehreren Feinheiten, und die Bahn der Wagen."""

    def __init__(self):
        bild = lade(vorhanden("bilder/formen/form1/picture1.jpg"))
        self.häuser = Image.new("L", bild.size)
        for name, stufe in STUFEN.items():
            l, o, b, h = (round(w * FEIN) for w in punkte(stufe["schatten"]))
            schatten = lade(vorhanden(f"bilder/formen/form1/{name}schatten.png"))
            bild.alpha_composite(schatten.resize((b, h), Image.Resampling.BICUBIC), (l, o))
        for name, stufe in sorted(STUFEN.items(), key=lambda s: s[1]["ort"][1] + s[1]["ort"][3]):
            l, o, b, h = (round(w * FEIN) for w in punkte(stufe["ort"]))
            haus = lade(vorhanden(f"bilder/formen/form1/{name}.png")).resize((b, h), Image.Resampling.LANCZOS)
            ganz = Image.new("RGBA", bild.size)
            ganz.paste(haus, (l, o))
            bild.alpha_composite(ganz)
            self.häuser = ImageChops.lighter(self.häuser, ganz.getchannel("A"))
        self.breite, self.höhe = bild.size
        bild = bild.convert("RGB")
        self.fein = [(m, bild if m == 1 else bild.resize((round(self.breite * m), round(self.höhe * m)),
                                                         Image.Resampling.LANCZOS))
                     for m in (1, .72, .52, .38)]
        self.felder = [tuple(w * FEIN for w in mitte(nummer)) for nummer in FELDER]
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
        maß, bild = next(((m, b) for m, b in reversed(self.fein) if m >= .9 * AUSGABE[0] / kamera.weite),
                         self.fein[0])
        return bild.transform(AUSGABE, Image.Transform.PERSPECTIVE, kamera.zum_brett(maß),
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

    def zum_brett(self, maß):
        k = np.diag([maß, maß, 1]) @ self.hin @ np.diag([1 / FEINER, 1 / FEINER, 1])
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
