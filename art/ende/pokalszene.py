"""Der Pokal auf der Bühne mit Münzen, Ballons und Konfetti; gerahmt wird er in pokal.py."""
from befehl import maß
from kasten import *

PUNKT = 200            # Bildpunkte je Einheit
SCHALE = (880, 660)    # hier liegt der Ursprung im Bild: die Mitte der Schale


def raum():
    """Vorhang und runde Bühne."""
    n, p = 160, []
    for i in range(n):
        x = -9 + 18 * i / (n - 1)
        y = 4.2 + .28 * math.sin(x * 4.1) + .12 * math.sin(x * 9.3 + 1)
        p += [(x, y, -6.5), (x, y + .1 * math.sin(x * 3), 8)]
    f = [(2 * i, 2 * i + 2, 2 * i + 3, 2 * i + 1) for i in range(n - 1)]
    objekt("Vorhang", netz_aus(p, f), stoff("#7d1420", rau=.75, glanz=.25, fleck=.05), Matrix.Identity(4), glatt=True)
    zylinder(0, .2, -5.5, 6.4, .6, stoff("#3a1a12", rau=.4, glanz=.4, fleck=.1), rund=.1, seiten=96)
    zylinder(0, .2, -4.92, 6.0, .06, stoff("#571a1e", rau=.8), rund=0, seiten=96)


def pokal(gold, alt):
    """Sockel und Pokal mit Henkeln, Buckeln und Stern."""
    quader(0, .2, -4.86, 2.9, 2.3, .35, holz("#4a2814"), .08)
    quader(0, .2, -4.51, 2.4, 1.9, 1.0, stoff("#1f2a44", rau=.25, glanz=.5, fleck=.05), .08)
    quader(0, -.77, -4.28, 1.5, .06, .52, gold, .03)
    profil = [(1.15, -3.5), (1.15, -3.38), (.95, -3.28), (.45, -3.05), (.26, -2.75), (.24, -2.62), (.44, -2.48),
              (.5, -2.36), (.42, -2.24), (.26, -2.12), (.28, -2.0),
              (.62, -1.86), (1.15, -1.62), (1.62, -1.22), (1.92, -.62), (2.04, .2), (2.08, 1.0), (2.14, 1.55),
              (2.30, 1.86), (2.36, 1.92), (2.32, 1.97), (2.2, 1.92), (2.0, 1.4), (1.7, .2), (.2, -1.2)]
    drehkörper(0, .2, 0, profil, gold, 96)
    for z, r, d in ((1.58, 2.17, .06), (-1.36, 1.52, .05), (-3.42, 1.17, .05)):
        rohr([(r * math.cos(a), .2 + r * math.sin(a), z) for a in [i * math.pi / 48 for i in range(96)]], d, alt,
             zu=True)
    for s in (-1, 1):
        rohr(glätten([(s * 2.05, .2, 1.2), (s * 2.8, .2, 1.55), (s * 3.25, .2, .8), (s * 2.95, .2, -.15),
                      (s * 2.2, .2, -.7), (s * 1.85, .2, -.85)], 10, zu=False), .17, gold, seiten=24)
        kugel(s * 2.62, .2, 1.52, .26, gold)
    for i in range(18):                    # Buckel am unteren Rand der Schale
        a = 2 * math.pi * i / 18
        kugel(1.34 * math.cos(a), .2 + 1.34 * math.sin(a), -1.50, .16, gold)
    stern = [((1.15 if i % 2 == 0 else .48) * math.sin(math.pi * i / 5),
              (1.15 if i % 2 == 0 else .48) * math.cos(math.pi * i / 5)) for i in range(10)]
    lege(prisma(stern, 0, .25, metall("#ffd667", .16), .07), schub(0, -1.80, .22) @ dreh(90, "X"))


def lorbeer():
    """Zwei Zweige um den Sockel."""
    blatt = stoff("#3f8a3a", rau=.5, glanz=.3)
    for s in (-1, 1):
        for i in range(11):
            t = i / 10
            x, z = s * (.25 + 2.05 * math.sin(t * 1.35)), -4.5 + 1.95 * t ** 1.5
            for v in (-1, 1):
                lege(kugel(0, 0, 0, 1, blatt), schub(x + v * .10, -1.15 + .2 * t, z + .1)
                     @ Matrix.Rotation(-s * (t * 1.1 - .3) + v * .7, 4, "Y") @ Matrix.Diagonal((.10, .06, .28, 1)))


def münzen(z, x, y, zahl, r=.36):
    for i in range(zahl):
        zylinder(x + z.uniform(-.03, .03), y + z.uniform(-.03, .03), -4.86 + .10 * i, r, .09,
                 metall(z.choice(("#eab83f", "#e0a833")), .3), rund=.02, seiten=40)


def geld(z):
    """Münzsäulen und Bündel Scheine."""
    for x, y, n_ in ((-2.3, -1.2, 9), (-2.95, -.9, 12), (-2.75, -1.9, 4), (2.35, -1.3, 7), (3.0, -.7, 9),
                     (-3.7, -1.4, 5), (3.3, -1.7, 3)):
        münzen(z, x, y, n_)
    for x, y, w, n_, f_ in ((-3.9, .2, 12, 5, "#4aa39b"), (-3.6, 1.2, -8, 8, "#c1699d"), (4.2, .6, -12, 4, "#d9913f")):
        for i in range(n_):
            with bei(x + z.uniform(-.05, .05), y, -4.86 + .21 * i, w + z.uniform(-4, 4)):
                quader(0, 0, 0, 1.55, .85, .19, stoff(f_, rau=.7), .03)
                quader(0, 0, -.01, .3, .87, .21, stoff("#fbf3e2", rau=.7), .02)


def ballons():
    for x, h, r, f_ in ((-3.55, 1.9, .62, "#2f6fc0"), (-2.9, 2.6, .58, "#f2b92c"), (-3.95, 2.75, .54, "#c8392f"),
                        (3.7, 1.0, .66, "#e58a9a"), (4.45, 1.75, .62, "#3fb5ad"), (3.55, 2.35, .60, "#f2b92c"),
                        (4.5, .35, .52, "#c8392f")):
        drehkörper(x, 1.2, h, [(.02, -1.18 * r), (.10 * r, -1.12 * r), (.05 * r, -1.04 * r)]
                   + [(r * math.sin(a) * (1 - .10 * math.cos(a) * (math.cos(a) < 0) * -1), -r * 1.08 * math.cos(a))
                      for a in [math.pi * i / 24 for i in range(1, 24)]] + [(.01, r * 1.08)],
                   stoff(f_, rau=.18, glanz=.6, fleck=.02), 40)
        fuß = -3.75 if x < 0 else 4.2
        rohr(glätten([(x, 1.2, h - 1.15 * r), (x * .9 + fuß * .1 + .15, 1.2, h - 2.4), (fuß, 1.2, -3.2)], 8, zu=False),
             .018, stoff("#e9dcc0"))


def konfetti(z):
    for _ in range(150):
        x, y, h = z.uniform(-5.4, 4.2), z.uniform(-1, 3), z.uniform(-3.5, 5.2)
        if abs(x) < 2.7 and h < 2.2 and y < 1.6:
            continue
        lege(quader(0, 0, 0, .13, .09, .012,
                    stoff(z.choice(("#f2b92c", "#c8392f", "#2f6fc0", "#3f9a4a", "#e58a9a", "#fbf3e2")), rau=.5), 0),
             schub(x, y, h) @ Matrix.Rotation(z.uniform(0, 3), 4, "X") @ Matrix.Rotation(z.uniform(0, 3), 4, "Y"))


def mache(datei):
    neu(2)
    bpy.data.objects.remove(bpy.data.objects["Sonne"])
    umgebung("#8a7658", .75, "#050406")
    ort = (1002 - SCHALE[0]) / PUNKT, -30, (SCHALE[1] - 938.5) / PUNKT + 3.89
    kamera(ort, drehung=(math.radians(82), 0, 0), weite=2004 / PUNKT).data.clip_end = 4000
    raum()
    pokal(metall("#f2b63a", .20), metall("#b97f22", .35))
    lorbeer()
    z = random.Random(6)
    geld(z)
    ballons()
    konfetti(z)
    flächenlicht((-6, -9, 8), (0, 0, -.5), 3, 2900, (1, .90, .74))
    flächenlicht((7, -7, 2), (0, 0, -1), 4, 1000, (.9, .92, 1))
    flächenlicht((4, 3.0, 7), (0, 0, 0), 2, 800, (1, .85, .6))
    flächenlicht((-7, 1, 0), (0, 0, 0), 2, 450, (1, .7, .5))
    belichte_rein(ziel(datei), 2004 * maß(), 1877 * maß(), 64)
