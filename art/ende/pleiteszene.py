"""Leerer Koffer, umgestülpte Börse, eine Krabbe mit der letzten Münze, eine Regenwolke; gerahmt in pleite.py."""
from befehl import maß
from kasten import *


def koffer(farbe, futter):
    """Aufgeklappter Koffer: Schale, Deckel dahinter, leeres Futter."""
    leder, innen, messing = stoff(farbe, rau=.6, glanz=.35, fleck=.15, fleckmaß=.3, korn=.25,
                                  kornmaß=3), stoff(futter, rau=.9, glanz=.1, fleck=.1,
                                                    fleckmaß=.5), metall("#c99a45", .35)
    b, t, h = 12, 7.5, 3.2
    quader(0, 0, 0, b, t, .4, leder, .18)
    for y in (-1, 1):
        quader(0, y * (t / 2 - .2), .1, b, .45, h, leder, .2)
    for x in (-1, 1):
        quader(x * (b / 2 - .2), 0, .1, .45, t, h, leder, .2)
    quader(0, 0, .4, b - .9, t - .9, .1, innen, .05)
    for x in (-1, 1):
        for y in (-1, 1):
            kugel(x * (b / 2 - .25), y * (t / 2 - .25), .5, .75, messing, (1, 1, .9))
            kugel(x * (b / 2 - .25), y * (t / 2 - .25), h - .25, .6, messing, (1, 1, .7))
        quader(x * 3.3, -t / 2 - .1, h - 1.1, 1.0, .3, 1.1, messing, .1)
    rohr(glätten([(-1.6, -t / 2 - .2, h - 1.6), (-1.5, -t / 2 - .9, h - 1.9), (0, -t / 2 - 1.05, h - 2.0),
                  (1.5, -t / 2 - .9, h - 1.9), (1.6, -t / 2 - .2, h - 1.6)], 6, zu=False), .24,
         stoff("#4a2814", rau=.6))
    for x, y, w, f, g in ((-4.2, -t / 2 - .04, 8, "#e9d8a6", "#c8392f"),
                          (-2.6, -t / 2 - .05, -10, "#9fd0e0", "#2f6fc0"),
                          (4.6, -t / 2 - .04, 6, "#f2c26a", "#3f9a4a")):
        lege(zylinder(0, 0, 0, .78, .08, stoff(f, rau=.6), rund=.02, seiten=32), schub(x, y, 1.5) @ dreh(90, "X"))
        lege(zylinder(0, 0, 0, .48, .1, stoff(g, rau=.6), rund=.02, seiten=5), schub(x, y, 1.5) @ dreh(90, "X"))
    neigung = dreh(-16, "X")
    with bei(0, t / 2 + .2, h), rahmen(neigung):            # Deckel, nach hinten gelehnt
        quader(0, .2, 0, b, .4, t, leder, .18)
        quader(0, -.05, .45, b - .9, .15, t - .9, innen, .05)
        for x in (-1, 1):
            quader(x * (b / 2 - .2), -.7, 0, .45, 1.6, t, leder, .2)
        quader(0, -.7, t - .4, b, 1.6, .45, leder, .2)
        for x in (-2.6, 2.6):
            quader(x, -.2, .5, .55, .12, t - 1, stoff("#8a5a32", rau=.6), .05)
    # Flicken
    quader(2.0, -t / 2 - .05, .7, 1.7, .15, 1.3, stoff("#6a7f9a", rau=.9, fleck=.2, fleckmaß=1), .06)


def strand():
    """Strand, Meer, trüber Himmel."""
    sand = stoff("#dcc091", rau=.95, glanz=.05, fleck=.10, fleckmaß=.12, korn=.5, kornmaß=1.6)
    quader(0, 0, -1, 300, 90, 1, sand, 0)
    quader(0, 345, -1.6, 1400, 620, 1,
           stoff("#5f93a0", rau=.12, glanz=.6, fleck=.15, fleckmaß=.05, korn=.2, kornmaß=.3), 0)
    band([(x, 44.5 + 1.2 * math.sin(x * .21)) for x in range(-90, 91, 3)], 1.6, stoff("#f4f4ec", rau=.6), -.6, .25)
    kugel(-150, 420, -6, 1, stoff("#8497a6", rau=1, glanz=0), (150, 60, 36))
    kugel(190, 480, -6, 1, stoff("#8f9fac", rau=1, glanz=0), (180, 60, 26))


def socke():
    """Hängt über den Rand des Koffers."""
    socke = stoff("#e9e2d0", rau=.95, korn=.4, kornmaß=4)
    rohr(glätten([(4.2, -2.6, 1.0), (4.2, -3.3, 3.3), (4.2, -4.35, 3.2), (4.2, -4.6, 1.6), (4.1, -5.6, .8)], 6,
                 zu=False), .55, socke, seiten=16)
    rohr(glätten([(4.2, -4.57, 2.1), (4.2, -4.6, 1.7)], 4, zu=False), .58, stoff("#c8392f", rau=.95), seiten=16)


def börse():
    tuch = stoff("#7d3b5c", rau=.6, glanz=.3, fleck=.08)
    kugel(0, 0, 1.35, 1, tuch, (2.4, 1.25, 1.6))
    rohr([(2.05 * math.cos(a), .55 * math.sin(a), 2.75 + .25 * math.sin(a))
          for a in [i * math.pi / 20 for i in range(40)]], .20, metall("#d8ad4c", .3), zu=True)
    kugel(0, 0, 2.75, 1, stoff("#2a1018", rau=.9), (1.9, .45, .12))
    kugel(-.3, -.4, 3.25, .28, metall())
    kugel(.3, -.3, 3.25, .28, metall())
    kugel(2.3, .1, 2.3, 1, stoff("#e9d8c0", rau=.9), (.55, .35, .8))


def motte():
    flügel = stoff("#d9cba4", rau=.8, fleck=.2, fleckmaß=2)
    with bei(-7.2, -5.4, 6.2, 20):
        kugel(0, 0, 0, 1, stoff("#8a7a5a", rau=.9), (.16, .16, .5))
        for s in (-1, 1):
            rohr([(s * .05, 0, .45), (s * .3, -.05, .9)], .03, stoff("#5a4a30"))
    for s in (-1, 1):
        lege(kugel(0, 0, 0, 1, flügel), schub(-7.2 + s * .6, -5.4, 6.35)
             @ Matrix.Rotation(s * -.5, 4, "Y") @ Matrix.Diagonal((.62, .10, .5, 1)))


def krabbe():
    rot = stoff("#d8552f", rau=.4, glanz=.45, fleck=.08)
    kugel(0, 0, 1.05, 1, rot, (1.6, 1.05, .85))
    for s in (-1, 1):
        rohr([(s * .45, -.5, 1.6), (s * .5, -.6, 2.2)], .10, rot)
        kugel(s * .5, -.62, 2.35, .34, stoff("#fbf6ea", rau=.3))
        kugel(s * .5 - .04, -.92, 2.28, .15, stoff("#1a1210", rau=.2))
        rohr(glätten([(s * .95, -.5, 1.9 + .8), (s * .5, -.75, 2.78), (s * .25, -.7, 2.66)], 3, zu=False), .06,
             stoff("#7a2a14"))
        for i in range(3):
            rohr(glätten([(s * 1.1, -.2 + .45 * i, .9), (s * 2.0, -.3 + .55 * i, 1.15), (s * 2.35, -.35 + .6 * i, 0)],
                         4, zu=False), .16, rot)
        rohr(glätten([(s * 1.1, -.6, 1.1), (s * 1.9, -1.2, 1.3), (s * 1.6, -1.9, 1.6)], 4, zu=False), .22, rot)
        kugel(s * 1.35, -2.1, 1.75, .5, rot, (.8, 1, .9))
    rohr(glätten([(-.42, -1.05, .95), (0, -1.12, 1.1), (.42, -1.05, .95)], 4, zu=False), .07, stoff("#7a2a14"))
    lege(zylinder(0, 0, 0, .95, .2, metall("#eab83f", .28), rund=.06, seiten=48), schub(0, -2.2, 1.75) @ dreh(90, "X"))
    schrift("1", 0, -2.44, 1.75, 1.2, stoff("#7a4a10"), dick=.02, datei=BUCHMANN)


def regenwolke():
    """An Fäden, mit Tropfen."""
    grau = stoff("#8d98a6", rau=.95, glanz=.05, fleck=.08, fleckmaß=.2)
    for x, z_, r in ((-4.4, 15.0, 1.9), (-2.2, 15.8, 2.4), (.6, 16.1, 2.7), (3.4, 15.6, 2.3), (5.4, 14.9, 1.7),
                     (0, 14.8, 2.2), (2.6, 14.7, 1.9), (-2.4, 14.7, 1.9)):
        kugel(x, 3.5, z_, r, grau, (1.1, .8, .85))
    zf = random.Random(5)
    for i in range(22):
        x, z_ = zf.uniform(-4.6, 5.6), zf.uniform(9.2, 13.2)
        drehkörper(x, zf.uniform(1.5, 4.5), z_, [(.01, 0), (.17, .12), (.20, .26), (.12, .5), (.01, .85)],
                   stoff("#7fb4d8", rau=.1, glanz=.8), 14)
    for x in (-2.5, 3):
        rohr([(x, 3.5, 18), (x, 3.5, 40)], .05, stoff("#e9dcc0"))


def kram():
    """Wegschild, Steine, Seestern."""
    with bei(-10.6, 6, 0, 8):
        zylinder(0, 0, 0, .4, 8.2, holz("#8a5a32"), rund=.1)
        quader(0, -.5, 5.4, 6.6, .5, 2.4, holz("#b9804a"), .2)
        schrift("Pleite", 0, -.82, 6.6, 1.8, stoff("#4a1f0c", rau=.8), dick=.03, datei=BUCHMANN)
    for x, y, r in ((12.5, 2, .9), (13.6, .8, .6), (-13.5, -3, .7), (3.5, -10.5, .5), (-3.8, -9.5, .4)):
        kugel(x, y, r * .3, r, stein("#b9b2a4"), (1.2, .9, .7))
    kugel(-2.2, -8.2, .18, 1, stoff("#f2b26a", rau=.6), (.6, .6, .25))
    for i in range(5):
        a = 2 * math.pi * i / 5
        lege(kugel(0, 0, 0, 1, stoff("#f2b26a", rau=.6)),
             schub(-2.2 + .75 * math.cos(a), -8.2 + .75 * math.sin(a), .16) @ Matrix.Rotation(a, 4, "Z")
             @ Matrix.Diagonal((.75, .3, .2, 1)))


def mache(datei):
    neu(3)
    sonne = sonne_aus((-.7, -.6, .62))
    sonne.energy, sonne.color = 2.7, (1.0, .86, .70)
    umgebung("#aebccc", .75, "#b9c4cd")
    kamera((0, -47, 17), (0, 0, 6.1), brennweite=60).data.clip_end = 4000
    strand()
    with bei(1.2, 1.5, 0, 14):
        koffer("#9a5a30", "#b7404a")
        socke()
    with bei(-8.6, -5.0, 0, -22):
        börse()
    motte()
    for i in range(7):
        kugel(-8.1 + .16 * i + .25 * math.sin(i * 1.3), -5.2, 3.9 + .28 * i, .06, stoff("#8a7a5a"))
    with bei(8.6, -7.4, 0, 14):
        krabbe()
    regenwolke()
    kram()
    belichte_rein(ziel(datei), 1468 * maß(), 1176 * maß(), 64)
