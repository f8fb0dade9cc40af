"""Safari: Lodge aus Stein, Rundholz und Stroh, Wachturm, Zelte, Wasserloch mit Tieren."""
from hotels.anlage import *

SAVANNE, HOLZ, DUNKEL, TUCH, STROH = "#dcb766", "#9c6232", "#6b4223", "#f0e0b6", "#c99a4a"


def _grund():
    return erde(SAVANNE)


def _stein():
    return mauer("#c8a27c", 2.6)


def _bohlen(farbe=HOLZ):
    return stoff(farbe, rau=.6, glanz=.25, muster=("brett", 30, 2.4, .3), musterhub=.8)


def strohdach(x, y, z, b, t, h, über=3.0, first=None, drehung=0.0):
    """Steiles dickes Strohdach mit Wulst am First."""
    first = max(b - t, 0) * .8 if first is None else first
    walmdach(x, y, z, b, t, h, stroh(STROH), über, first, 2.0, drehung)
    with bei(x, y, z, drehung):
        rohr([(-first / 2 - 1.4, 0, h - .2), (first / 2 + 1.4, 0, h - .2)], 1.5, stroh("#a87a38"))
        for s in (-1, 1):
            rohr([(s * (first / 2 + 1), -1.6, h - 1.8), (s * (first / 2 + 2), 0, h + .6),
                  (s * (first / 2 + 1), 1.6, h - 1.8)], .6, DUNKEL)


def bein(x, y, z, h, r=.8):
    zylinder(x, y, z, r, h, DUNKEL, rund=.2)


def elefant(x, y, z=0.0, drehung=0.0, maß=1.0):
    grau = stoff("#8e93a6", rau=.7, fleck=.05)
    with bei(x, y, z, drehung, maß):
        for a in (-1.6, 1.6):
            for b in (-1.7, 1.7):
                zylinder(a, b, 0, 1.05, 3.4, grau, rund=.3)
        kugel(0, 0, 4.8, 1, grau, (3.6, 2.7, 2.7))
        kugel(-3.9, 0, 6.2, 2.0, grau)
        for s in (-1, 1):
            kugel(-3.1, s * 2.3, 6.4, 1, grau, (.6, 1.6, 1.9))
            rohr([(-5.2, s * 1.0, 5.4), (-6.6, s * 1.1, 4.9)], .3, "weiß")
            kugel(-5.4, s * .95, 6.9, .3, "schwarz")
        rohr(glätten([(-5.4, 0, 6.2), (-6.6, 0, 4.6), (-6.9, 0, 2.6), (-7.7, 0, 1.7)], 4, zu=False), .62, grau)


def giraffe(x, y, z=0.0, drehung=0.0, maß=1.0):
    gelb, braun = lack("#eeb648"), lack("#9a5a26")
    with bei(x, y, z, drehung, maß):
        for a in (-1.5, 1.5):
            for b in (-.9, .9):
                zylinder(a, b, 0, .5, 6, gelb, rund=.2)
        kugel(0, 0, 7, 1, gelb, (2.9, 1.7, 1.8))
        rohr([(-1.8, 0, 7.4), (-3.4, 0, 14)], .8, gelb)
        kugel(-4.2, 0, 14.4, 1, gelb, (1.7, .9, .9))
        for s in (-1, 1):
            rohr([(-3.4, s * .5, 15), (-3.2, s * .6, 16.4)], .25, braun)
        for i, (px, py, pz) in enumerate(((-1, -1.5, 7.4), (.8, -1.6, 7), (-.2, -.6, 8.5), (1.6, -.4, 8.2),
                                          (-2.2, -.7, 9), (-2.7, -.7, 11), (-3.1, -.7, 12.8), (-1.4, .6, 8.4))):
            kugel(px, py, pz, .62, braun)


def zebra(x, y, z=0.0, drehung=0.0, maß=1.0):
    weiß, schwarz = lack("#f7f2e8"), lack("schwarz")
    with bei(x, y, z, drehung, maß):
        for a in (-1.5, 1.5):
            for b in (-.8, .8):
                zylinder(a, b, 0, .45, 3, weiß, rund=.1)
        kugel(0, 0, 4, 1, weiß, (2.6, 1.5, 1.6))
        rohr([(-1.8, 0, 4.6), (-3.2, 0, 6.8)], .85, weiß)
        kugel(-3.9, 0, 6.8, 1, weiß, (1.5, .8, .8))
        for px in (-1.6, -.7, .2, 1.1, 1.9):
            r = 1.58 * math.sqrt(max(0, 1 - (px / 2.7) ** 2))
            rohr([(px, r * math.cos(w) * .97, 4 + r * math.sin(w) * 1.05)
                  for w in [math.pi * 2 * i / 14 for i in range(14)]], .24, schwarz, zu=True)
        rohr([(-1.6, 0, 5.6), (-3.0, 0, 7.8)], .35, schwarz)


def zelt(x, y, b, t, h, farbe=TUCH, borte="#c8502f", drehung=0.0):
    """Hauszelt mit offenem Eingang auf einem Holzboden."""
    with bei(x, y, 0, drehung):
        quader(0, 0, 0, b + 2.4, t + 3.4, 1.2, holz("#b98350"), .2)
        tuch = stoff(farbe, rau=.8, fleck=.05)
        quader(0, 0, 1.2, b, t, h * .42, tuch, .2)
        with bei(0, 0, 1.2 + h * .42, 90):
            keil(0, 0, 0, t, b, h * .5, tuch, 0)
        satteldach(0, 0, 1.2 + h * .40, t, b, h * .56, tuch, über=1.2, dick=.7, drehung=90)
        for s in (-1, 1):
            rohr([(s * (b / 2 + 1.1), -t / 2 - 1.3, 1.2 + h * .40 - 1.0), (0, -t / 2 - 1.3, 1.9 + h * .97)], .55, borte)
        with bei(0, -t / 2 - .1, 1.2):
            kippe(prisma([(-b * .24, 0), (b * .24, 0), (b * .05, h * .74), (-b * .05, h * .74)], 0, .4,
                         stoff("#6a4a2c", rau=.9), 0))
            for s in (-1, 1):
                kippe(prisma([(s * b * .24, 0), (s * b * .34, 0), (s * b * .06, h * .76)], .2, .5, tuch, 0))


def safh():
    """Lodge mit Strohdach, großem Giebel, Kamin und Veranda."""
    boden(41, 38, _grund(), ecke=7)
    quader(0, 13, 0, 38, 22, 4.5, _stein(), .4)
    for i in range(2):
        quader(0, 1.8 + 1.6 * i, 0, 12 - i, 3.2, 2 + 1.8 * i, _stein(), .3)
    quader(0, 15, 4.5, 34, 15, 14, _bohlen(), .3)
    with wand(0, 15, 34, 15, "s"), bei(0, 0, 4.5):
        tür(0, 0, 6.4, 9, "#c8502f", rahmen=TUCH, stufen=0)
        for s in (-1, 1):
            fenster(s * 11, 3.4, 6.4, 6.4, rahmen=TUCH, scheibe=lack("#ffd27a"), sprossen=(1, 1))
    for x in (-18, -5.6, 5.6, 18):
        bein(x, 3.4, 4.5, 13, 1.0)
    for a, e in ((-18, -5.6), (5.6, 18)):
        zaun([(a, 3.4), (e, 3.4)], "#d09a5c", 3.2, 2.6, 4.5, 2, .7)
    strohdach(0, 15, 18, 34, 16, 13, 2.6, 14)
    with bei(0, 6.6, 17.5):                       # Giebel über dem Eingang
        quader(0, 1, 0, 13, 10, 4.4, _bohlen("#c48a48"), .3)
        with bei(0, -4.1):
            fenster(0, .6, 5.4, 4.4, rahmen=TUCH, scheibe=lack("#ffd27a"), sprossen=(2, 0))
        satteldach(0, 1, 4.2, 11, 13, 6.4, stroh(STROH), über=1.6, dick=1.4, drehung=90, giebel=_bohlen("#c48a48"))
    quader(13, 20, 4, 5.6, 5.6, 36, _stein(), .4)
    quader(13, 20, 39, 6.8, 6.8, 1.8, mauer("#a98360", 2.6), .3)
    wimpel(-9, 15, 30, 14, ("#3c8a46", "gelb", "#c8502f"), 7, 4.6)
    for s in (-1, 1):
        rohr(glätten([(s * 7, 1.8, 0), (s * 8.2, 1.8, 4.6), (s * 6.6, 1.8, 9), (s * 2.2, 1.8, 12)], 5, zu=False), .9,
             "#fff3d8")
        busch(s * 17, 2.4, maß=.7, farbe="#8a9a3c")


def safn1():
    """Wachturm auf Stelzen."""
    boden(38, 36, _grund(), ecke=7)
    x0, y0 = 4, 16
    for sx in (-1, 1):
        for sy in (-1, 1):
            rohr([(x0 + sx * 9.6, y0 + sy * 7, 0), (x0 + sx * 6.4, y0 + sy * 5, 22)], 1.15, DUNKEL)
    for s in (-1, 1):
        rohr([(x0 - s * 9, y0 - 6.4, 3), (x0 + s * 7, y0 - 5.4, 19)], .7, HOLZ)
    rohr([(x0 - 8, y0 - 6, 11), (x0 + 8, y0 - 6, 11)], .8, HOLZ)
    for s in (-1, 1):
        rohr([(x0 + s * 1.8, y0 - 10.5, 0), (x0 + s * 1.8, y0 - 6.8, 22)], .55, "#c79358")
    for i in range(9):
        rohr([(x0 - 1.8, y0 - 10.3 + .4 * i, 1.6 + 2.4 * i), (x0 + 1.8, y0 - 10.3 + .4 * i, 1.6 + 2.4 * i)], .42,
             "#c79358")
    quader(x0, y0, 21.4, 20, 15, 1.6, holz("#b98350"), .3)
    zaun([(x0 - 9.4, y0 - 7), (x0 - 2.4, y0 - 7)], HOLZ, 3, 2.2, 23, 2, .6)
    zaun([(x0 + 2.4, y0 - 7), (x0 + 9.4, y0 - 7)], HOLZ, 3, 2.2, 23, 2, .6)
    quader(x0, y0 + 2, 23, 13, 8.4, 7, _bohlen("#b5763c"), .3)
    with wand(x0, y0 + 2, 13, 8.4, "s"), bei(0, 0, 23):
        fenster(-3.2, 1.8, 3.2, 3.8, rahmen=TUCH, scheibe=lack("#ffd27a"), sprossen=(1, 1))
        tür(3.0, 0, 3.4, 5.6, "#c8502f", rahmen=TUCH, stufen=0)
    for sx in (-1, 1):
        bein(x0 + sx * 9, y0 - 6.6, 23, 8.4, .6)
    strohdach(x0, y0, 30.4, 18, 13, 11, 2.8, 2)
    wimpel(x0, y0, 40, 4.2, ("#3c8a46", "gelb", "#c8502f"), 6, 3)
    zelt(-10.5, 8, 10.5, 9, 10)
    schirmakazie(-11, 25, 0, .95)
    grasbüschel(15.5, 3.5, maß=1.2, farbe="#a79a3c")
    steine(11.5, 5, 4, 3, 1.3, "#c8a27c")


def safn2():
    """Zeltlager unter Akazien."""
    boden(62, 38, _grund(), ecke=8)
    zelt(0, 25, 22, 15, 21, "#f4e6c0")
    wimpel(0, 27, 22, 6.6, ("#3c8a46", "gelb", "#c8502f"), 7, 4)
    zelt(-20.5, 13, 14, 12, 15, "#d9c48c", "#3c7a46", 8)
    zelt(20.5, 13, 14, 12, 15, "#d9c48c", "#3c7a46", -8)
    schirmakazie(-21, 30, 0, 1.1)
    schirmakazie(21.5, 31, 0, 1.05)
    for i in range(7):                             # Feuerstelle
        a = 2 * math.pi * i / 7
        kugel(2.8 * math.cos(a), 7 + 2.8 * math.sin(a), .9, 1.0, stein("#a98a70"), (1, 1, .8), fein=2)
    drehkörper(0, 7, .7, [(1.5, 0), (1.7, 1.0), (.9, 2.6), (.1, 4.6)], stoff("#ff8a1e", leuchten=1.0, fleck=0), 12)
    drehkörper(0, 7, .7, [(.8, 0), (.9, 1.4), (.1, 3.4)], stoff("#ffd84a", leuchten=1.0, fleck=0), 12)
    for x, d in ((-6.5, 70), (6.5, -70)):
        parkbank(x, 6.5, .6, d)
    for x, y in ((-28, 4), (28, 4), (-9, 3), (11, 3)):
        grasbüschel(x, y, maß=1.1, farbe="#a79a3c")


def jeep(x, y, z, drehung=0.0, maß=1.0):
    with bei(x, y, z, drehung, maß):
        for a in (-3.4, 3.4):
            for b in (-2.2, 2.2):
                with bei(a, b, 1.5):
                    kippe(zylinder(0, 0, -.6, 1.6, 1.2, stoff("#2c2a28", rau=.8), rund=.3))
        quader(0, 0, 1.4, 11, 5, 2.2, "#4c8a4a", .6)
        quader(-3.7, 0, 3.2, 3.6, 4.6, 1.2, "#4c8a4a", .5)
        quader(1.4, 0, 3.4, 6.4, 4.4, .5, "#6b4a2c", .1)
        quader(1.4, 0, 7.4, 7, 5, .8, TUCH, .3)
        for a in (-1.6, 4.4):
            for b in (-2, 2):
                quader(a, b, 3.4, .5, .5, 4.2, DUNKEL, .1)


def safp():
    """Wasserloch mit Elefant, Giraffe, Zebra und Geländewagen."""
    boden(73, 35, _grund(), ecke=9)
    prisma(umriss(66, 28, 9, 0, 3.6), .6, .25, gras("#b9b04e"), .1)
    becken(glätten([(-10, 8), (2, 5), (14, 8), (16, 16), (6, 20), (-6, 19), (-13, 14)], 6), .6, stein("#c49a62"), 2.0,
           "#2fb0c0", .9)
    elefant(-17, 18, .7, 180, 1.25)
    elefant(-24.5, 11, .7, 180, .8)
    giraffe(22, 18, .7, 0, .95)
    giraffe(29, 14.5, .7, 0, .72)
    zebra(20.5, 6, .7, 0, 1.0)
    zebra(29, 6.5, .7, 0, .85)
    jeep(-25, 26, .7, 0, 1.0)
    schirmakazie(5, 26.5, .6, .7)
    schirmakazie(-9, 28, .6, .66)
    steine(14, 22, 5, 3, 1.4, "#b98f6a")
    for x, y in ((-32, 4), (-12, 3.4), (17, 3), (33, 12), (-5, 24), (32, 28)):
        grasbüschel(x, y, .6, 1.2, "#a79a3c")


STUFEN = dict(safh=safh, safn1=safn1, safn2=safn2, safp=safp)
