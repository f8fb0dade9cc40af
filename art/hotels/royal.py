"""Royal: englisches Schloss aus honigfarbenem Stein, rote Dächer, Zinnen und Gold; Park mit Irrgarten."""
from hotels.anlage import *

STEIN, DUNKEL, ROT = "#ecd29a", "#d8b878", "#b8262c"


def _stein():
    return mauer(STEIN, 2.6)


def _dach():
    return ziegel(ROT, 2.2)


BOGEN = dict(rahmen="#fff3d6", bogen=True, sprossen=(1, 1), rand=.7)


def eckturm(x, y, h, r=5.2, dach=15, fensterhöhen=(), z=0.0, krone=True):
    """Runder Turm mit Kranz und spitzem Dach."""
    zylinder(x, y, z, r, h, _stein(), rund=.3)
    zylinder(x, y, z, r * 1.12, 2.5, putz(DUNKEL), rund=.3)
    if krone:
        drehkörper(x, y, z + h - 3, [(r, 0), (r * 1.22, 1.6), (r * 1.22, 4.2)], putz(DUNKEL), 32)
        zinnenring(x, y, z + h + 1.2, r * 1.12, putz(STEIN), max(8, round(r * 1.9)), 1.8)
    kegeldach(x, y, z + h + .8, r * (.92 if krone else 1.1), dach, _dach())
    for f in fensterhöhen:
        rundfenster(x, y, z + f, r, (-38, 0, 38) if r > 6 else (-8,), 2.8, 5, **BOGEN)


def brustwehr(x, y, z, b, t, maß=2.4):
    """Zinnenkranz auf einer Mauerkrone."""
    quader(x, y, z - 1.6, b + 1.8, t + 1.8, 2.2, putz(DUNKEL), .4)
    zinnen(x, y, z + .5, b + .2, t + .2, putz(STEIN), maß)


def banner(x, z, b=3.4, h=12, farben=(ROT, "gold")):
    """Langes Tuch an einer Wand."""
    quader(x, -.5, z, b, .5, h, farben[0], .1)
    quader(x, -.8, z + h * .35, b * .5, .3, h * .28, metall(farben[1]), .1)
    quader(x, -.8, z, b, .3, 1.0, metall(farben[1]), .1)


def royh():
    boden(45, 40, erde("#e2c795"), ecke=5)
    haus(0, 25, 0, 34, 18, 26, _stein(), ((15, 8, 3.6, 6, BOGEN),))
    brustwehr(0, 25, 27, 34, 18, 2.2)
    haus(0, 23, 26, 17, 12, 6.5, _stein(), ((1.4, 5.5, 2.8, 4.4, BOGEN),))
    walmdach(0, 23, 32.5, 17, 12, 7, _dach(), first=7)
    # Torhaus
    haus(0, 12, 0, 15, 10, 20, _stein())
    brustwehr(0, 12, 21, 15, 10, 2.0)
    with wand(0, 12, 15, 10, "s"):
        tür(0, 0, 7, 11, "#6b3f22", rahmen="#fff3d6", bogen=True, stufen=1)
        with bei(0, -.8, 16):
            kippe(prisma([(-2.4, 2.4), (2.4, 2.4), (2.2, -1), (0, -2.8), (-2.2, -1)], 0, .8, metall("gold"), .2))
    for s in (-1, 1):
        eckturm(s * 10.5, 10, 25, 4.4, 13, (8, 17))
        wimpel(s * 10.5, 10, 37, 9, (ROT, "weiß", "#25408f"), 6.5, 3.8)
        eckturm(s * 17.5, 21, 26, 4.6, 13, (14,))
        with wand(0, 25, 34, 18, "s"):
            banner(s * 12.8, 9, 3.0, 11)
        kugelbaum(s * 19.5, 6, maß=.5, farbe="#3f8a3c")
    quader(0, 3.5, .6, 8, 6, .4, "#d9b36c", .1)


def royn1():
    """Hoher Bergfried mit Eckwarten."""
    boden(50, 44, erde("#e2c795"), ecke=6)
    haus(0, 22, 0, 40, 26, 38, _stein(), ((6, 9, 4, 7, BOGEN), (22, 9, 4, 7, BOGEN)))
    brustwehr(0, 22, 39, 40, 26, 2.6)
    haus(0, 24, 38, 25, 18, 34, _stein(), ((8, 8, 4, 7, BOGEN), (21, 8, 4, 7, BOGEN)))
    brustwehr(0, 24, 73, 25, 18, 2.4)
    walmdach(0, 24, 73, 20, 13, 15, _dach(), first=5, über=.8)
    wimpel(0, 24, 86, 13, (ROT, "gold"), 10, 5.5)
    for s in (-1, 1):
        eckturm(s * 19, 11, 46, 5.4, 17, (9, 25, 35))
        eckturm(s * 11.6, 15.5, 24, 3.2, 12, (10,), z=58, krone=False)
    with wand(0, 22, 40, 26, "s"):
        tür(0, 0, 6.5, 10, "#6b3f22", rahmen="#fff3d6", bogen=True, stufen=1)
    with wand(0, 24, 25, 18, "s"), bei(0, 0, 38):
        banner(0, 3, 4.4, 15)
    for s in (-1, 1):
        zypresse(s * 9.5, 4.5, maß=.62)
        busch(s * 14, 4, maß=.75, blüten="rot")


def royn2():
    """Großer Rundturm mit Altan und Seitenflügel."""
    boden(48, 44, erde("#e2c795"), ecke=6)
    haus(0, 22, 0, 42, 24, 30, _stein(), ((5, 10, 4.4, 7, BOGEN), (17.5, 10, 4.4, 7, BOGEN)))
    brustwehr(0, 22, 31, 42, 24, 2.4)
    for s in (-1, 1):
        walmdach(s * 15.5, 23, 31, 9, 17, 9, _dach(), first=0, über=.4)
        eckturm(s * 19.5, 10.5, 36, 4.6, 14, (7, 20))
    r = 11.5
    zylinder(0, 17, 0, r, 76, _stein(), rund=.4)
    drehkörper(0, 17, 71, [(r, 0), (r * 1.16, 2.4), (r * 1.16, 6)], putz(DUNKEL), 40)
    zinnenring(0, 17, 77, r * 1.09, putz(STEIN), 16, 2.6)
    zylinder(0, 17, 76, r * .8, 9, _stein())
    rundfenster(0, 17, 79, r * .8, (-45, 0, 45), 3, 4.4, **BOGEN)
    kegeldach(0, 17, 85, r * .84, 23, _dach(), über=2)
    for f in (14, 31, 46, 59):
        rundfenster(0, 17, f, r, (-50, 0, 50), 4, 7.5, **BOGEN)
    with bei(0, 5.5):
        tür(0, 0, 6, 9, "#6b3f22", rahmen="#fff3d6", bogen=True, stufen=1)
    wimpel(0, 17, 105, 9, (ROT, "weiß", ROT), 9, 4.8)
    for s in (-1, 1):
        kugelbaum(s * 11, 3.5, maß=.42, farbe="#3f8a3c")


def royn3():
    """Uhrturm."""
    boden(46, 40, erde("#e2c795"), ecke=6)
    haus(0, 22, 0, 38, 24, 26, _stein(), ((4.5, 9, 4, 6.4, BOGEN), (15.5, 9, 4, 6, BOGEN)))
    brustwehr(0, 22, 27, 38, 24, 2.4)
    satteldach(0, 23, 27.5, 33, 16, 8, _dach(), über=.5, giebel=_stein())
    haus(0, 17, 0, 17, 17, 62, _stein(), ((12, 6.5, 3, 7, BOGEN), (27, 6.5, 3, 7, BOGEN)), rund=.6)
    for s in (-1, 1):
        for f in (-1, 1):
            quader(s * 8.2, 17 + f * 8.2, 0, 2.4, 2.4, 64, putz(DUNKEL), .4)
    with wand(0, 17, 17, 17, "s"):
        with bei(0, -.3, 51.5):
            for r, dick, st in ((7.4, .8, metall("gold")), (6.5, 1.3, lack("#fff8e6"))):
                o = zylinder(0, 0, 0, r, dick, st, seiten=40, rund=.2)
                kippe(o, 90)
            for w, lang in ((0, 5.2), (-62, 3.8)):
                lege(quader(0, 0, 0, 1.1, .5, lang, "#25306b", .15), schub(0, -1.6, 0) @ dreh(-w, "Y"))
            for i in range(12):
                a = math.pi * i / 6
                quader(5.4 * math.sin(a), -1.5, 5.4 * math.cos(a) - .4, .8, .4, .8, "#25306b", .1)
        tür(0, 0, 6, 9, "#6b3f22", rahmen="#fff3d6", bogen=True, stufen=1)
    quader(0, 17, 60, 19.5, 19.5, 3, putz(DUNKEL), .5)
    haus(0, 17, 63, 14, 14, 8, _stein(), ((1.5, 4.4, 2.6, 5, BOGEN),))
    with bei(0, 17, 71, 45):
        drehkörper(0, 0, 0, [(11.6, -.6), (11.6, 0), (8.2, 5), (4.6, 14), (1.8, 23), (.05, 28)], _dach(), 4,
                   glatt=False)
    spitze(0, 17, 97, 1.3, metall("gold"))
    for s in (-1, 1):
        for f in (-1, 1):
            kegeldach(s * 8.6, 17 + f * 8.6, 63, 1.8, 8, metall("gold"), über=.3, knauf=None, seiten=12)
        eckturm(s * 18, 11, 32, 4.2, 13, (6, 18))
        kugelbaum(s * 11, 4, maß=.45, farbe="#3f8a3c")


def royp():
    """Palastrasen mit Irrgarten, Brunnen und Rosen."""
    boden(73, 35, gras("#7cb646"), ecke=4)
    weg = erde("#ecd29a")
    quader(14, 17, .6, 3.6, 33, .35, weg, .1)
    quader(14, 17, .6, 40, 3.6, .35, weg, .1)
    prisma(kreis(14, 17, 8.5), .6, .4, weg, .1)
    brunnen(14, 17, .7, 5.6, "#fff6e0")
    # Irrgarten
    mx, my = -21, 17
    for w, lücke in ((14.5, 3.2), (9, 3.0), (3.8, 2.6)):
        h = w * .98
        for s in (-1, 1):
            if s > 0 or w == 9:
                hecke([(mx - w, my + s * h), (mx + w, my + s * h)], 3.0, 2.3, "#3f8a34")
            if s < 0 and w != 9:
                hecke([(mx - w, my - h), (mx - lücke, my - h)], 3.0, 2.3, "#3f8a34")
                hecke([(mx + lücke, my - h), (mx + w, my - h)], 3.0, 2.3, "#3f8a34")
            hecke([(mx + s * w, my - h), (mx + s * w, my + h)], 3.0, 2.3, "#3f8a34")
    zylinder(mx, my, .6, 1.2, 3.5, metall("gold"))
    kugel(mx, my, 5.0, 1.5, metall("gold"))
    for sx in (-1, 1):
        for sy in (-1, 1):
            blumenbeet(14 + sx * 11.5, 17 + sy * 9, 10, 6.5, ("rot", "rosa", "weiß"), z=.6)
            busch(14 + sx * 19.5, 17 + sy * 14, maß=.8, farbe="#3f8a34", blüten="rot")
    for s in (-1, 1):
        kugelbaum(14 + s * 20 - 1, 29, maß=.55, farbe="#4b9438")
        fahne(14 + s * 4.5, 4, .6, 12, (ROT, "gold"), 4.5, 3)


STUFEN = dict(royh=royh, royn1=royn1, royn2=royn2, royn3=royn3, royp=royp)
