"""Fujijama: hohe Pagoden mit geschwungenen Dächern, roter Lack und weiße Felder, Ahorn, rote Brücke."""
from hotels.anlage import *

ROT, DACH, WEISS, STEIN = "#d63c28", "#3f8a92", "#f4e8d0", "#c4b698"


def _dach(farbe=DACH):
    return ziegel(farbe, 1.7)


def _moos():
    return gras("#7fa646")


def laterne_stein(x, y, z=0.0, maß=1.0):
    """Steinlaterne."""
    with bei(x, y, z, 0, maß):
        st = stein("#c9c0ae")
        zylinder(0, 0, 0, 1.7, .8, st, seiten=6)
        zylinder(0, 0, .8, .8, 3, st, seiten=12)
        zylinder(0, 0, 3.8, 1.6, .7, st, seiten=6)
        quader(0, 0, 4.5, 2.0, 2.0, 2.0, stoff("#ffe2a0", leuchten=.3), .2)
        drehkörper(0, 0, 6.3, [(2.6, -.2), (2.7, .2), (1.0, 1.5), (.2, 2.4)], st, 6, glatt=False)


def geschoss(x, y, z, b, t, h, felder, farbe=ROT, feld=WEISS, umgang=True):
    """Ein Stockwerk: Lackbalken, helle Felder mit warmem Papierlicht, Umgang mit Geländer."""
    quader(x, y, z, b, t, h, feld, .2)
    with wand(x, y, b, t, "s"), bei(0, 0, z):
        for i in range(felder + 1):
            quader(-b / 2 + b * i / felder, -.2, 0, 1.5, 1.6, h, farbe, .25)
        for i in range(felder):
            mitte = i == felder // 2 and felder % 2
            fenster(-b / 2 + b * (i + .5) / felder, h * .20 if not mitte else .3, b / felder * .52,
                    h * (.46 if not mitte else .66), rahmen=farbe if mitte else "#6b3b22",
                    scheibe=lack("#ffdf96") if not mitte else lack("#7a2a1c"), sprossen=(1, 1) if not mitte
                    else (1, 0), sims=False, rand=.4)
        quader(0, -.2, h - 1.8, b + .8, 1.8, 1.8, farbe, .25)
    if umgang:
        quader(x, y, z - .6, b + 5, t + 5, 1.0, farbe, .2)
        zaun([(x - b / 2 - 2, y - t / 2 - 2.1), (x + b / 2 + 2, y - t / 2 - 2.1)], farbe, 2.4, 2.6, z + .3, 2, .55)


def pagode(x, y, z, b, t, stufen, hoch, dachhoch, über, schwund=.87, felder=5, farbe=ROT, dach=DACH, rand="gold",
           feld=WEISS):
    """Turm aus Stockwerken; gibt die Höhe des letzten Firstes."""
    for k in range(stufen):
        f = schwund ** k
        letzte = k == stufen - 1
        B, T, h = b * f, t * f, hoch * (1 - .03 * k)
        geschoss(x, y, z, B, T, h, max(3, felder - 2 * (k * 2 // stufen)), farbe, feld, k > 0)
        z += h
        dh = dachhoch * (1.55 if letzte else 1)
        pagodendach(x, y, z, B, T, dh, _dach(dach), über * (1 - .06 * k), 1.25, .04 if letzte else .62,
                    rand=metall(rand) if rand == "gold" else lack(rand))
        for s in (-1, 1):
            e = B / 2 + über * (1 - .06 * k) * 1.1
            rohr(glätten([(x + s * (e - 2), y - T / 2 - über * .9, z + .6),
                          (x + s * e, y - T / 2 - über * 1.05, z + über * .5),
                          (x + s * (e + .4), y - T / 2 - über * 1.1, z + über * .8)], 4, zu=False), .55, metall("gold"))
        z += dh * (.78 if not letzte else 1)
    return z


def krone(x, y, z, hoch):
    """Goldene Spitze mit Ringen."""
    g = metall("gold")
    zylinder(x, y, z - 1.5, .55, hoch, g, oben=.25)
    kugel(x, y, z - .5, 1.7, g)
    for i in range(6):
        drehkörper(x, y, z + 1.8 + i * (hoch - 7) / 6, [(1.0, 0), (1.75 - .14 * i, .4), (1.0, .8)], g, 20)
    kugel(x, y, z + hoch - 3, 1.0, g)


def sockel(b, t, y, h=7.0, tor=True):
    """Geböschte Grundmauer aus großen Steinen."""
    rechteckprofil(0, y, 0, b, t, [(0, 0), (1.8, h * .6), (2.2, h)], mauer(STEIN, 3.2), .4)
    quader(0, y, h - .4, b - 3, t - 3, .8, "#d8cdb6", .2)
    if tor:
        for i in range(4):
            quader(0, y - t / 2 - 2.4 + .9 * i, 0, 11 - i * .4, 3.4, h * (i + 1) / 4.3, mauer("#cfc4ae", 2.4), .25)


def fujih():
    """Große Pagode, sieben Dächer."""
    boden(55, 46, _moos(), ecke=8)
    sockel(45, 28, 22, 7)
    z = pagode(0, 22, 7, 37, 20, 6, 17.6, 8.4, 5.6, .895, 5)
    krone(0, 22, z, 189.5 - z - 1)
    for s in (-1, 1):
        ahorn(s * 21.5, 6.5, .6, .62, "#d2572a" if s > 0 else "#b83a26")
        laterne_stein(s * 9.5, 4, .6, .95)
        nadelbaum(s * 22.5, 36, .6, .8)
        steine(s * 15.5, 4, 3, 2.4, 1.3)


def fujin1():
    """Weiße Burg mit vier Dächern und Giebeln."""
    boden(43, 40, _moos(), ecke=7)
    sockel(37, 28, 20, 19)
    z = 19.0
    for k, (b, t, h, d) in enumerate(((32, 18, 17, 6), (28, 16, 16, 5.8), (23.5, 14, 15, 5.6), (19, 11.5, 14, 5.4),
                                      (14.5, 9.5, 13, 8.5))):
        geschoss(0, 21, z, b, t, h, 5 if k < 3 else 3, "#4a3426", "#fbf6ea", k == 4)
        z += h
        pagodendach(0, 21, z, b, t, d, _dach("#6f8f98"), 4.4 - .25 * k, 1.1, .05 if k == 4 else .64,
                    rand=lack("#fbf6ea"))
        if k in (0, 2, 3):
            with bei(0, 21 - t / 2 - 1.6, z + 1.0):
                keil(0, 1.5, 0, 9, b * .44, b * .2, "#fbf6ea", 0, drehung=90)
                satteldach(0, 1.5, -.2, 9, b * .44, b * .2 + .3, _dach("#6f8f98"), über=1.2, dick=1.0, drehung=90)
                kugel(0, -3.2, b * .07, 1.1, metall("gold"))
        z += d * .74 if k < 4 else d
    for s in (-1, 1):
        rohr(glätten([(s * 4.5, 21, z - 1), (s * 6.4, 21, z + 1.6), (s * 5.4, 21, z + 3.8)], 4, zu=False), .9,
             metall("gold"))
    quader(0, 21, z - 1.4, 10, 1.6, 1.8, _dach("#6f8f98"), .4)
    with wand(0, 20, 37, 28, "s"):
        tür(0, 0, 7, 9, "#6b3b22", rahmen="#d8cdb6", stufen=1)
    kugelbaum(-17, 5, .6, .48, "#e79ab4")
    kugelbaum(17, 4.6, .6, .44, "#e79ab4")
    nadelbaum(-18, 33, .6, .7)
    nadelbaum(18, 33, .6, .75)
    laterne_stein(9, 3, .6, .85)


def fujin2():
    """Schlanke Pagode, fünf Dächer, ganz in Zinnober."""
    boden(37, 38, _moos(), ecke=7)
    sockel(32, 22, 18, 6)
    z = pagode(0, 18, 6, 25, 14, 5, 18.6, 7.8, 4.8, .90, 3, "#e0482c", "#5f9a4e", "gold", "#f6cf9a")
    krone(0, 18, z, 159 - z - 1)
    for s in (-1, 1):
        ahorn(s * 13.4, 4.6, .6, .48, "#d2572a" if s < 0 else "#e08a2e")
        laterne_stein(s * 7.5, 3, .6, .8)
        nadelbaum(s * 14, 32, .6, .66)


def torii(x, y, z, b, h):
    for s in (-1, 1):
        zylinder(x + s * b * .38, y, z, .9, h, ROT, rund=.2)
        zylinder(x + s * b * .38, y, z, 1.2, 1.2, "schwarz", rund=.2)
    quader(x, y, z + h * .72, b, 1.2, 1.2, ROT, .2)
    rohr(glätten([(x - b * .62, y, z + h + 1.2), (x - b * .3, y, z + h + .2), (x, y, z + h),
                  (x + b * .3, y, z + h + .2), (x + b * .62, y, z + h + 1.2)], 4, zu=False), 1.1, ROT)
    rohr(glätten([(x - b * .66, y, z + h + 2.3), (x - b * .3, y, z + h + 1.2), (x, y, z + h + 1),
                  (x + b * .3, y, z + h + 1.2), (x + b * .66, y, z + h + 2.3)], 4, zu=False), .7, "#33302e")


def fujip():
    """Garten mit Teich, roter Bogenbrücke, Torii, Kies und Ahorn."""
    boden(73, 35, _moos(), ecke=8)
    becken(glätten([(-28, 10), (-16, 5), (-2, 8), (8, 5), (15, 11), (11, 20), (-2, 17), (-12, 23), (-25, 20)], 6), .5,
           stein("#a8a08e"), 2.0, "#2f9fb0", 1.0)
    # Brücke
    n, x0, x1, y = 14, -22, 8, 12.4
    bogen = [(x0 + (x1 - x0) * i / n, .8 + 5.6 * math.sin(math.pi * i / n)) for i in range(n + 1)]
    for (ax, az), (ex, ez) in zip(bogen, bogen[1:]):
        rohr([(ax, y - 2, az), (ax, y + 2, az)], .9, "#e05a3c")
    for s in (-2.3, 2.3):
        rohr([(a, y + s, c + .2) for a, c in bogen], .9, ROT)
        rohr([(a, y + s, c + 3.6) for a, c in bogen], .6, ROT)
        for a, c in bogen[::2]:
            zylinder(a, y + s, c, .55, 4.2, ROT)
            kugel(a, y + s, c + 4.4, .6, metall("gold"))
    # Kiesgarten
    prisma(kreis(26, 10, 9, .82), .6, .4, stoff("#efe6d0", rau=.9), .1)
    for r in (3.6, 5.4, 7.2):
        rohr([(px, py, 1.0) for px, py in kreis(26, 10, r, .82)], .3, stoff("#d6c9aa", rau=.9), zu=True)
    kugel(26, 10, 1.2, 2.0, stein("#7d776c"), (1.1, .9, 1))
    kugel(28.4, 8.6, 1.0, 1.1, stein("#8d8679"))
    torii(24, 24, .6, 13, 9)
    ahorn(-30.5, 25, .6, .82, "#c8402a")
    ahorn(12, 25, .6, .78, "#e0702e")
    ahorn(-14, 28, .6, .62, "#d2572a")
    kugelbaum(33, 27, .6, .55, "#e79ab4")
    kugelbaum(-1, 28, .6, .52, "#e79ab4")
    laterne_stein(-33, 6, .6, .9)
    laterne_stein(15.5, 4, .6, .8)
    for x, yy in ((-24, 15), (-6, 10), (2, 14)):
        kugel(x, yy, 1.1, 1.2, laub("#4f9a4a"), (1, .8, .2))
        kugel(x + .5, yy, 1.5, .45, "rosa")
    steine(-31, 15, 4, 2.5, 1.4)


STUFEN = dict(fujih=fujih, fujin1=fujin1, fujin2=fujin2, fujip=fujip)
