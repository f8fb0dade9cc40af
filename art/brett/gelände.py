"""Meer und Land der Insel: ein Höhenfeld mit Farben je Punkt, das Wasser darum."""
import numpy as np

from kasten import *

# Küste im Uhrzeigersinn, Entwurfspunkte
KÜSTE = [(56, 104), (72, 78), (98, 52), (126, 30), (168, 12), (215, 3), (255, 10), (282, 22), (304, 10), (330, -14),
         (405, -16), (432, -2), (462, 8), (505, -2), (538, 12), (566, 8), (590, -12), (668, -10), (702, 16), (708, 52),
         (718, 88), (732, 122), (724, 160), (716, 192), (722, 226), (716, 252), (730, 276), (752, 300), (764, 360),
         (758, 430), (690, 436), (610, 424), (560, 412), (525, 421), (470, 430), (412, 424), (376, 404), (338, 404),
         (312, 424), (240, 440), (120, 450), (-10, 446), (-24, 380), (2, 336), (36, 306), (56, 268), (66, 232),
         (54, 200), (62, 168), (50, 136)]
SPIEGEL = -2.2              # Höhe des Wassers unter dem Land

ERDE, SAND, SAVANNE, MOOS = "#b4613a", "#ead09a", "#cfb163", "#7c9a42"
# Grund der Hotels, die auf Naturboden stehen: Farbe, weicher Rand, Umriss
GRÜNDE = {
    "Boomerang": (ERDE, 5, [(528, 366), (585, 362), (640, 363), (672, 338), (702, 312), (745, 300), (760, 420),
                            (640, 424), (545, 408)]),
    "Waikiki": (SAND, 6, [(52, 112), (76, 72), (120, 26), (170, 8), (262, 4), (276, 40), (268, 72), (232, 78),
                          (170, 76), (118, 84), (84, 112)]),
    "Safari": (SAVANNE, 7, [(571, 16), (600, -16), (676, -12), (704, 22), (704, 66), (700, 98), (600, 103), (574, 96)]),
    "Fujijama": (MOOS, 7, [(455, 150), (500, 128), (536, 165), (572, 186), (634, 208), (632, 238), (620, 268),
                           (575, 290), (520, 276), (478, 268), (455, 215)]),
}


def weich(punkte, stufen=6):
    return glätten([tuple(welt(x, y).xy) for x, y in punkte], stufen)


def abstand(x, y, linie):
    """Vorzeichenbehafteter Abstand der Punkte vom Umriss, innen positiv."""
    p = np.array([q[:2] for q in linie])
    a, e = p, np.roll(p, -1, axis=0)
    d = np.full(x.shape, 1e9)
    innen = np.zeros(x.shape, bool)
    for (ax, ay), (ex, ey) in zip(a, e):
        t = np.clip(((x - ax) * (ex - ax) + (y - ay) * (ey - ay)) / max(1e-9, (ex - ax) ** 2 + (ey - ay) ** 2), 0, 1)
        d = np.minimum(d, np.hypot(x - ax - t * (ex - ax), y - ay - t * (ey - ay)))
        if ay != ey:
            innen ^= ((ay > y) != (ey > y)) & (x < (ex - ax) * (y - ay) / (ey - ay) + ax)
    return np.where(innen, d, -d)


def rauschfeld(x, y, maß, saat):
    """Weiches Zufallsfeld zwischen -1 und 1."""
    zufall = np.random.default_rng(saat)
    feld = np.zeros(x.shape)
    for stufe in range(4):
        g = zufall.uniform(-1, 1, (160, 160))
        u, v = (x / maß * 2 ** stufe) % 159, (y / maß * 2 ** stufe) % 159
        i, j = u.astype(int), v.astype(int)
        fu, fv = u - i, v - j
        fu, fv = fu * fu * (3 - 2 * fu), fv * fv * (3 - 2 * fv)
        feld += ((g[i, j] * (1 - fu) + g[i + 1, j] * fu) * (1 - fv)
                 + (g[i, j + 1] * (1 - fu) + g[i + 1, j + 1] * fu) * fv) / 2 ** stufe
    return feld / 1.4


def stufe(d, a, e):
    t = np.clip((d - a) / (e - a), 0, 1)
    return t * t * (3 - 2 * t)


def mische(farbe, ziel, anteil):
    return farbe * (1 - anteil[..., None]) + np.array(rgb(ziel)) * anteil[..., None]


def gitter(schritt, rand=60):
    x = np.arange(-rand, 741 + rand, schritt)
    y = np.arange(-427 * TIEFE - rand, 110, schritt)
    return np.meshgrid(x, y)


def als_netz(name, x, y, z, farbe, stoff_):
    h, b = x.shape
    nr = np.arange(h * b).reshape(h, b)
    flächen = np.stack([nr[:-1, :-1], nr[:-1, 1:], nr[1:, 1:], nr[1:, :-1]], -1).reshape(-1, 4)
    me = bpy.data.meshes.new(name)
    me.vertices.add(h * b)
    me.vertices.foreach_set("co", np.stack([x, y, z], -1).astype(np.float32).ravel())
    me.loops.add(flächen.size)
    me.loops.foreach_set("vertex_index", flächen.ravel().astype(np.int32))
    me.polygons.add(len(flächen))
    me.polygons.foreach_set("loop_start", np.arange(0, flächen.size, 4, dtype=np.int32))
    me.polygons.foreach_set("loop_total", np.full(len(flächen), 4, dtype=np.int32))
    me.update(calc_edges=True)
    färbe(me, farbe, "Farbe")
    return objekt(name, me, stoff_, glatt=True, kanten=False)


def land():
    x, y = gitter(2.0)
    küste = abstand(x, y, weich(KÜSTE)) + 3.0 * rauschfeld(x, y, 26, 3)
    farbe = np.broadcast_to(np.array(rgb("#82a84a")), (*x.shape, 3)).copy()
    farbe = mische(farbe, "#9cb955", 0.75 * stufe(rauschfeld(x, y, 70, 5), 0, .7))
    farbe = mische(farbe, "#5f9440", 0.65 * stufe(rauschfeld(x, y, 45, 8), 0.1, .8))
    for name, (ton, rand, umriss) in GRÜNDE.items():
        d = abstand(x, y, weich(umriss)) + 3 * rauschfeld(x, y, 14, 11)
        anteil = stufe(d, -rand / 2, rand / 2)
        farbe = mische(farbe, ton, anteil)
        farbe = mische(farbe, heller(ton, 1.18), anteil * .5 * stufe(rauschfeld(x, y, 30, 21), 0, .8))
        farbe = mische(farbe, heller(ton, .82), anteil * .5 * stufe(rauschfeld(x, y, 22, 22), .1, .8))
    strand = 1 - stufe(küste + 2.5 * rauschfeld(x, y, 12, 9), 9, 15)
    farbe = mische(farbe, SAND, strand)
    farbe = mische(farbe, "#cfa96c", 1 - stufe(küste, 0.5, 4.5))
    z = -5.0 + 5.0 * stufe(küste, -8, 12)
    als_netz("Land", x, y, z, farbe, punktstoff("Land", .9, .12, .55, 1.1, .13))


def meer():
    x, y = gitter(2.0, rand=400)
    d = -abstand(x, y, weich(KÜSTE)) + 3.0 * rauschfeld(x, y, 26, 3)
    wild = rauschfeld(x, y, 20, 14)
    farbe = np.broadcast_to(np.array(rgb("#1b6f9e")), (*x.shape, 3)).copy()
    farbe = mische(farbe, "#2291b4", 1 - stufe(d + 14 * wild, 36, 85))
    farbe = mische(farbe, "#3db9c4", 1 - stufe(d + 6 * wild, 12, 42))
    farbe = mische(farbe, "#86d8cf", 1 - stufe(d + 2 * wild, 2, 16))
    for mitte_, breite in ((3.0, 1.7), (10.5, 1.0)):
        schaum = np.clip(1 - np.abs(d + 1.6 * wild - mitte_) / breite, 0, 1) * stufe(rauschfeld(x, y, 9, 31), -.55, .1)
        farbe = mische(farbe, "#f4fbf6", schaum * (.95 if mitte_ < 5 else .6))
    als_netz("Meer", x, y, np.full(x.shape, SPIEGEL), farbe, punktstoff("Meer", .12, .5, .30, .22, .05))


def schneeberg(x, y, r, h):
    """Der Berg mit der Schneehaube; (x, y) Fußmitte in Entwurfspunkten."""
    n, m = 96, 40
    p, w = welt(x, y), np.linspace(0, 2 * math.pi, n, endpoint=False)
    a = np.linspace(0, 1, m)[:, None]
    kante = 1 + .10 * np.sin(3 * w + 1) + .06 * np.sin(7 * w) + .03 * np.sin(17 * w + 2)
    radius = r * ((1 - a) * kante * (1 - .30 * np.sin(a * math.pi) * (1 - .2 * a)) + .10)
    höhe = h * (a ** 1.25) * (1 + .035 * np.sin(9 * w + 4 * a) * a)
    höhe = np.where(a > .985, h * .955, höhe)
    gx, gy = p.x + radius * np.cos(w), p.y + radius * np.sin(w)
    farbe = np.broadcast_to(np.array(rgb("#7fa048")), (m, n, 3)).copy()
    a2 = np.broadcast_to(a, (m, n))
    farbe = mische(farbe, "#7d7f92", stufe(a2 + .05 * np.sin(11 * w), .26, .48))
    farbe = mische(farbe, "#fbfcff", stufe(a2 + .09 * np.sin(8 * w + 1) + .05 * np.sin(19 * w), .54, .60))
    rund = lambda q: np.concatenate([q, q[:, :1]], 1)       # noqa: E731
    als_netz("Schneeberg", rund(gx), rund(gy), rund(np.broadcast_to(höhe, (m, n))), rund(farbe),
             punktstoff("Berg", .85, .15, .7, .5, .10))
    zylinder(p.x, p.y, h * .95, r * .095, .4, "#dfe6f0", rund=0)
