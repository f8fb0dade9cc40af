"""Waikiki: Strandhütten und Pavillons mit geschwungenem Palmdach, Palmen, Bretter, Lagune."""
from anlage import *       # noqa: F403

SAND, STROH, ROT = "#f0d59a", "#d6a850", "#d8452f"


def _sand():
    return erde(SAND)


def strohdach(x, y, z, b, t, h, über=3.0, oben=.12, drehung=0.0, saum=True):
    """Palmdach mit hochgezogenen Ecken und dickem Saum."""
    pagodendach(x, y, z, b, t, h, stroh(STROH), über, .9, oben, drehung, rand=lack("#b98236") if saum else None)


def brett(x, y, z, farbe, neig=0, lang=6.0, streifen="weiss"):
    """Stehendes Surfbrett."""
    with bei(x, y, z + lang):
        for r, s in ((1.0, farbe), (.45, streifen)):
            o = kugel(0, -.25 if r < 1 else 0, 0, 1, s, (1.55 * r, .42, lang * (1 if r == 1 else .96)))
            o.matrix_world = o.matrix_world @ Matrix.Rotation(math.radians(neig), 4, "Y")


def maske(x, y, z, hoch=8.0, farbe="#8a4f2a"):
    """Tiki: Pfahl mit bemaltem Gesicht."""
    r = hoch * .24
    drehkörper(x, y, z, [(r * .9, 0), (r, hoch * .3), (r * .85, hoch * .42), (r * 1.15, hoch * .5), (r * 1.2, hoch * .9), (r * .8, hoch)], farbe, 16, .1)
    for s in (-1, 1):
        kugel(x + s * r * .5, y - r * 1.05, z + hoch * .76, r * .36, "weiss")
        kugel(x + s * r * .5, y - r * 1.32, z + hoch * .76, r * .17, "schwarz")
    quader(x, y - r * 1.1, z + hoch * .52, r * 1.3, .6, r * .5, "weiss", .1)
    quader(x, y - r * 1.1, z + hoch * .92, r * 2.0, 1.2, r * .5, ROT, .2)


def pfosten(x, y, z, b, t, h, zahl=4):
    """Pfosten ringsum vorn und an den Seiten."""
    for i in range(zahl):
        quader(x - b / 2 + b * i / (zahl - 1), y - t / 2, z, 1.2, 1.2, h, "#7a4e2c", .3)


def stube(x, y, z, b, t, h, türbreite=4.5, farbe="#f3dfae", fenster_=True):
    """Hüttenwand aus Matten mit Tür und bunten Läden."""
    quader(x, y, z, b, t, h, stoff(farbe, rau=.8, muster=("platte", 1.6, 1.6, .25), musterhub=.5), .3)
    with wand(x, y, b, t, "s"), bei(0, 0, z):
        tür(0, 0, türbreite, h * .8, "#2f9aa0", rahmen="#7a4e2c", stufen=0)
        if fenster_:
            for s in (-1, 1):
                fenster(s * b * .32, h * .3, 3.4, h * .42, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))


def steg(x, y, b, t, h=2.4):
    """Plattform auf Pfählen."""
    quader(x, y, h - 1.2, b, t, 1.2, holz("#c28a50"), .2)
    n = max(2, round(b / 7))
    for i in range(n + 1):
        zylinder(x - b / 2 + 1 + (b - 2) * i / n, y - t / 2 + .8, 0, .7, h - .6, "#7a4e2c", rund=.1)
    quader(x, y - t / 2 - 1, 0, 7, 2.6, h * .5, holz("#b07a44"), .2)


def strand(b=46, t=32):
    boden(b, t, _sand(), ecke=9, dick=.8)


def kikih():
    """Großer Pavillon mit drei Palmdächern."""
    strand(46, 36)
    steg(0, 14.5, 37, 19, 3)
    stube(0, 16, 3, 28, 13, 7.5)
    pfosten(0, 14.5, 3, 35, 17, 6.5, 6)
    strohdach(0, 15, 9.5, 35, 16, 9, 4.2, .45)
    quader(0, 15, 17.4, 15, 7.4, 3.6, stoff("#c9482f", rau=.6), .3)
    with wand(0, 15, 15, 7.4, "s"), bei(0, 0, 17.9):
        fensterreihe(.3, 15, 4, 2.2, 2.4, rahmen="#f3dfae", scheibe=lack("#ffd987"), sprossen=(0, 0), sims=False)
    strohdach(0, 15, 20.4, 15.5, 7.5, 8.5, 4.2, .06)
    for s in (-1, 1):
        rohr([(0, 15, 27), (s * 1.6, 15, 30), (s * 1.2, 15, 32)], .6, ROT)
        maske(s * 6.6, 3.6, .6, 9)
        palme(s * 15.5, 24, .6, .85, drehung=0 if s > 0 else 180, neigung=.4)
        busch(s * 17, 2.6, .6, .75, blüten="#e8558a")
    brett(-12, 3.2, .6, "gelb", -8, 4.6, ROT)
    brett(11.5, 3.2, .6, "#2fa8b0", 8, 4.6)


def kikin1():
    """Zwei runde Hütten auf Pfählen."""
    strand(46, 34)
    for x, y, r, farbe in ((-10, 19, 9.5, "#f3dfae"), (11, 12, 10, "#f7e6c0")):
        zylinder(x, y, 1.4, r + 2, 1.4, holz("#c28a50"), seiten=32)
        for i in range(9):
            a = math.radians(190 + 20 * i)
            zylinder(x + (r + 1) * math.cos(a), y + (r + 1) * math.sin(a), 0, .6, 2, "#7a4e2c")
        zylinder(x, y, 2.8, r * .8, 8, stoff(farbe, rau=.8, muster=("platte", 1.6, 1.6, .25), musterhub=.5), seiten=32)
        rundfenster(x, y, 3.4, r * .8, (-48, 48), 3, 4, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))
        with bei(x, y - r * .8):
            tür(0, 2.8, 4.2, 6.2, "#d8452f", rahmen="#7a4e2c", stufen=0)
        drehkörper(x, y, 9, [(r * 1.15, -.9), (r * 1.22, 0), (r * .9, 3.2), (r * .55, 8), (r * .22, 13), (.3, 16)], stroh(STROH), 36)
        drehkörper(x, y, 9, [(r * 1.19, -1.0), (r * 1.25, -.6), (r * 1.22, .3)], "#b98236", 36)
        kugel(x, y, 25, 1.1, ROT)
    palme(14.5, 25, .6, .85, drehung=30, neigung=.4)
    palme(-17, 7, .6, .66, drehung=160, neigung=.4)
    brett(-4.6, 5, .6, "#f28a2e", -10, 4.6)
    busch(-14, 3, .6, .8, blüten="#e8558a")
    schirm(-8, 3.6, .6, 3.4, 5, ("gelb", "weiss"))


def kikin2():
    """Langhaus mit steilem Giebel nach vorn und geschnitzten Brettern."""
    strand(46, 34)
    steg(0, 15, 34, 22, 2.6)
    quader(0, 17, 2.6, 24, 17, 6, stoff("#f3dfae", rau=.8, muster=("platte", 1.6, 1.6, .25), musterhub=.5), .3)
    keil(0, 17, 8.2, 17, 24, 9.6, stoff("#e7c786", rau=.8, muster=("brett", 4, 1.6, .25), musterhub=.5), .1, drehung=90)
    satteldach(0, 16, 7.5, 21, 25, 10.8, stroh(STROH), über=2.6, dick=1.5, drehung=90)
    with wand(0, 17, 24, 17, "s"):
        tür(0, 2.6, 5.4, 7.6, "#2f9aa0", rahmen=ROT, stufen=0)
        for s in (-1, 1):
            fenster(s * 8, 4.4, 3.6, 3.6, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))
        fenster(0, 10.6, 3.6, 3.8, rahmen=ROT, scheibe=lack("#ffd987"), sprossen=(1, 0), bogen=True)
    for s in (-1, 1):
        with bei(0, 4.0, 6.6):
            rohr([(s * 15, 0, -1.6), (0, 0, 12.4), (-s * 2.4, 0, 14.6)], 1.1, ROT)
        maske(s * 14.5, 3.4, .6, 9.5)
        palme(s * 15.5, 23, .6, .82, drehung=0 if s > 0 else 180, neigung=.4)
    brett(-9, 2.6, .6, "gelb", 5, 4.4, ROT)
    busch(8.5, 2.4, .6, .75, blüten="#e8558a")


def kikin3():
    """Zweistöckiger Pavillon mit umlaufender Veranda."""
    strand(46, 34)
    steg(0, 14, 32, 18, 2.6)
    stube(0, 16, 2.6, 23, 12, 7, 4.2)
    pfosten(0, 14, 2.6, 30, 16, 6.2, 5)
    zaun([(-15, 5.8), (-4, 5.8)], "#f3dfae", 2.6, 2.2, 2.6, 1, .5)
    zaun([(4, 5.8), (15, 5.8)], "#f3dfae", 2.6, 2.2, 2.6, 1, .5)
    strohdach(0, 14.5, 8.8, 30, 15, 6, 3.4, .62)
    stube(0, 15, 13.6, 17, 8.5, 5.2, 2.6)
    strohdach(0, 15, 18.2, 19, 9.5, 10, 3.6, .10)
    kugel(0, 15, 28.8, 1.2, ROT)
    palme(-15.5, 23, .6, .9, drehung=180, neigung=.4)
    palme(16.5, 7, .6, .66, drehung=0, neigung=.4)
    brett(17.5, 4, .6, "#e8558a", 8, 4.8)
    brett(-18.4, 4, .6, "#2fa8b0", -8, 4.8)
    busch(-11, 2.4, .6, .7, blüten="gelb")
    busch(11, 2.4, .6, .7, blüten="#e8558a")


def kikin4():
    """Langes Haus mit drei Kronen und Ausleger am Strand."""
    strand(46, 34)
    steg(0, 17, 40, 16, 2.6)
    stube(0, 18, 2.6, 35, 11, 7, 4.2, fenster_=False)
    with wand(0, 18, 35, 11, "s"):
        for x in (-13.5, -7.5, 7.5, 13.5):
            fenster(x, 5, 3.6, 3.8, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))
    strohdach(0, 17.5, 9, 37, 13, 7, 3.0, .55)
    for x, h, b in ((-12.5, 9, 9), (0, 12.5, 12), (12.5, 9, 9)):
        quader(x, 16.5, 13, b * .75, 6, 3.6, ROT if x == 0 else "#2f9aa0", .3)
        strohdach(x, 16.5, 16, b * .9, 7, h - 1, 2.6, .06)
        kugel(x, 16.5, 15.6 + h, .9, "gelb")
    palme(-16, 25, .6, .78, drehung=180, neigung=.4)
    palme(16, 25, .6, .78, drehung=0, neigung=.4)
    with bei(8, 4.6, 1.0):                         # Auslegerboot
        kugel(0, 0, .6, 1, ROT, (8.5, 1.5, 1.4))
        kugel(0, 0, 1.5, 1, "#f3dfae", (7, .9, .8))
        kugel(0, -3, .3, 1, "weiss", (5.5, .6, .6))
        for s in (-1, 1):
            rohr([(s * 3, .4, 1.6), (s * 3, -3, .6)], .4, "#7a4e2c")
    maske(-13, 5.4, .6, 7.5)
    brett(-18, 5, .6, "gelb", -8, 4.8, ROT)
    schirm(-6, 4, .6, 3.4, 5, ("#e8558a", "weiss"))


def kikip():
    """Lagune mit Wasserfall, Rutsche, Strandbar."""
    boden(73, 35, _sand(), ecke=10, dick=.8)
    becken(glätten([(-27, 9), (-12, 5), (2, 8), (16, 5), (25, 11), (21, 20), (7, 22), (-4, 19), (-14, 23), (-25, 19)], 6), .5, stoff("#fbe9bd", rau=.9), 2.2, "#22c1cf", 1.1)
    for x, y, r, h in ((-2, 27, 6, 8), (4, 29, 5, 11), (9, 27, 4.5, 7), (-7, 28, 4, 5), (14, 27, 3, 3.4)):
        kugel(x, y, h * .3, r, stein("#8d7358"), (1, .8, h / r * .72), fein=3)
    rohr(glätten([(3.5, 24.6, 8.6), (3.5, 22.6, 6.5), (3.5, 21.4, 1.0)], 5, zu=False), 1.9, stoff("#d8f6ff", rau=.2))
    rohr(glätten([(-20, 30, 9), (-23, 26, 7), (-21, 21, 4.6), (-18, 17, 1.4)], 6, zu=False), 1.3, "gelb")
    for s in (-1, 1):
        quader(-20 + s * 1.4, 30, 0, .8, .8, 9, "weiss", .2)
    # Bar
    zylinder(28.5, 23, .6, 4.2, 3.4, holz("#b07a44"))
    zylinder(28.5, 23, .6, .8, 9, "#7a4e2c")
    drehkörper(28.5, 23, 8, [(6.4, -.7), (6.6, 0), (4, 2.2), (1.6, 5), (.2, 7)], stroh(STROH), 28)
    for x, y, f in ((-31, 8, ("gelb", "weiss")), (31, 9, ("#e8558a", "weiss")), (-17, 28.5, ("#2fa8b0", "weiss"))):
        schirm(x, y, .6, 4.4, 6, f)
        liege(x - 2.4, y - 4, .6, tuch="#f7e6c0")
        liege(x + 2.4, y - 4, .6, tuch="#f7e6c0")
    palme(-29, 23, .6, .85, drehung=180, neigung=.4)
    palme(17, 27, .6, .68, drehung=0)
    palme(-8, 2.5, .6, .5, drehung=180)
    for x, f in ((17, "gelb"), (20.6, ROT), (24.2, "#2fa8b0")):
        brett(x, 3.2, .6, f, 6, 4.2)
    kugel(8, 13, 1.6, 1.7, "rot", (1, 1, .8))
    kugel(-12, 13, 1.4, 1, "gelb", (3.4, 1.4, .5))


STUFEN = dict(kikih=kikih, kikin1=kikin1, kikin2=kikin2, kikin3=kikin3, kikin4=kikin4, kikip=kikip)
