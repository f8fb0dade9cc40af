"""Waikiki: Strandhütten und Pavillons mit geschwungenem Palmdach, Palmen, Bretter, Lagune."""
from hotels.anlage import *

SAND, STROH, ROT = "#e4cd9e", "#d6a850", "#d8452f"


def _sand():
    return erde(SAND)


def strohdach(x, y, z, b, t, h, über=3.0, oben=.12, drehung=0.0, saum="#b98236", farbe=STROH):
    """Palmdach mit hochgezogenen Ecken und dickem Saum."""
    pagodendach(x, y, z, b, t, h, stroh(farbe), über, .9, oben, drehung, rand=lack(saum))


def brett(x, y, z, farbe, neig=0, lang=6.0, streifen="weiß"):
    """Stehendes Surfbrett."""
    with bei(x, y, z + lang):
        for r, s in ((1.0, farbe), (.45, streifen)):
            lege(kugel(0, -.25 if r < 1 else 0, 0, 1, s, (1.55 * r, .42, lang * (1 if r == 1 else .96))),
                 dreh(neig, "Y"))


def maske(x, y, z, hoch=8.0, farbe="#8a4f2a"):
    """Tiki: Pfahl mit bemaltem Gesicht."""
    r = hoch * .24
    drehkörper(x, y, z, [(r * .9, 0), (r, hoch * .3), (r * .85, hoch * .42), (r * 1.15, hoch * .5),
                         (r * 1.2, hoch * .9), (r * .8, hoch)], farbe, 16, .1)
    for s in (-1, 1):
        kugel(x + s * r * .5, y - r * 1.05, z + hoch * .76, r * .36, "weiß")
        kugel(x + s * r * .5, y - r * 1.32, z + hoch * .76, r * .17, "schwarz")
    quader(x, y - r * 1.1, z + hoch * .52, r * 1.3, .6, r * .5, "weiß", .1)
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
    boden(b, t, _sand(), ecke=9)


def girlande(x0, x1, y, z, hang=1.6, zahl=7):
    """Bunte Lampions an einer Leine."""
    p = [(x0 + (x1 - x0) * i / 12, y, z - hang * math.sin(math.pi * i / 12)) for i in range(13)]
    rohr(p, .22, "#7a4e2c")
    for i in range(zahl):
        s = (i + .5) / zahl
        kugel(x0 + (x1 - x0) * s, y - .3, z - hang * math.sin(math.pi * s) - .9, .95,
              ("#e8558a", "gelb", "#2fc0c8", ROT)[i % 4])


def kikih():
    """Großer Pavillon: Tor mit Masken, zwei geschwungene Palmdächer, rote Krone."""
    strand(46, 36)
    steg(0, 13, 38, 20, 3)
    stube(0, 15, 3, 33, 14, 10.6, 6, "#f6e2ae")
    pfosten(0, 12, 3, 36, 12, 11, 6)
    girlande(-18, 18, 5.4, 13.6, 1.4, 9)
    strohdach(0, 15.5, 14, 35, 13, 7, 2.6, .5, saum=ROT)
    quader(0, 15.5, 19.8, 16, 6, 3.8, "#2f9aa0", .3)
    with wand(0, 15.5, 16, 6, "s"), bei(0, 0, 20.6):
        fensterreihe(.3, 16, 4, 2.4, 2.8, rahmen="#f3dfae", scheibe=lack("#ffd987"), sprossen=(0, 0), sims=False)
    strohdach(0, 15.5, 23.6, 16.5, 6, 6, 2.4, .10, saum=ROT)
    for s in (-1, 1):
        rohr([(0, 15.5, 28), (s * 1.8, 15.5, 30), (s * 1.4, 15.5, 31.6)], .7, ROT)
        maske(s * 7.4, 3.2, .6, 10.5)
        palme(s * 16.5, 25, .6, .8, drehung=0 if s > 0 else 180, neigung=.4)
        busch(s * 19, 2.8, .6, .75, blüten="#e8558a")
    brett(-13.5, 2.8, .6, "gelb", -8, 5.2, ROT)
    brett(13.5, 2.8, .6, "#2fa8b0", 8, 5.2)


def kikin1():
    """Zwei runde Hütten auf Pfählen."""
    strand(46, 34)
    for x, y, r, farbe, saum in ((-11, 21, 9.5, "#f6cf86", "#2f9aa0"), (10, 12, 10.5, "#f7e6c0", ROT)):
        zylinder(x, y, 1.4, r + 2, 1.4, holz("#c28a50"), seiten=32)
        for i in range(9):
            a = math.radians(190 + 20 * i)
            zylinder(x + (r + 1) * math.cos(a), y + (r + 1) * math.sin(a), 0, .6, 2, "#7a4e2c")
        zylinder(x, y, 2.8, r * .92, 10, stoff(farbe, rau=.8, muster=("platte", 1.6, 1.6, .25), musterhub=.5),
                 seiten=32)
        rundfenster(x, y, 4.4, r * .92, (-48, 48), 3.6, 4.6, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))
        with bei(x, y - r * .92):
            tür(0, 2.8, 5, 7.6, saum, rahmen="#7a4e2c", stufen=0)
        drehkörper(x, y, 12.4, [(r * 1.04, -.9), (r * 1.10, 0), (r * .85, 2.4), (r * .55, 5.6), (r * .24, 8.6),
                                (.3, 11)], stroh(STROH), 36)
        drehkörper(x, y, 12.4, [(r * 1.08, -1.1), (r * 1.14, -.6), (r * 1.12, .5)], saum, 36)
        kugel(x, y, 23.4, 1.3, saum)
    palme(13.5, 26, .6, .8, drehung=30, neigung=.4)
    palme(-17, 6, .6, .6, drehung=160, neigung=.4)
    brett(-5.4, 5, .6, "#f28a2e", -10, 4.8)
    brett(-9, 4.6, .6, "#e8558a", -14, 4.8)
    busch(20, 3.4, .6, .8, blüten="#e8558a")


def kikin2():
    """Versammlungshaus: Giebel nach vorn, geschnitzte rote Bretter."""
    strand(46, 34)
    steg(0, 14, 36, 22, 2.6)
    matte = stoff("#f6e2ae", rau=.8, muster=("platte", 1.6, 1.6, .25), musterhub=.5)
    quader(0, 15, 2.6, 29, 18, 9, matte, .3)
    keil(0, 15, 11.4, 18, 30, 9.6, stoff("#e7b66a", rau=.8, muster=("brett", 4, 1.6, .25), musterhub=.5), .1,
         drehung=90)
    satteldach(0, 14.5, 10.8, 17, 29, 9.8, stroh(STROH), über=1.8, dick=1.5, drehung=90)
    with wand(0, 15, 29, 18, "s"):
        tür(0, 2.6, 6.4, 9, "#2f9aa0", rahmen=ROT, stufen=0)
        for s in (-1, 1):
            fenster(s * 9.4, 4.8, 4.6, 4.8, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))
        fenster(0, 13.4, 4.4, 4.4, rahmen=ROT, scheibe=lack("#ffd987"), sprossen=(1, 0), bogen=True)
    for s in (-1, 1):
        with bei(0, 5.2, 10):
            rohr([(s * 17, 0, -2.0), (0, 0, 11.8), (-s * 2.4, 0, 13.8)], 1.25, ROT)
        maske(s * 16, 3.2, .6, 10.5)
        palme(s * 16, 24, .6, .8, drehung=0 if s > 0 else 180, neigung=.4)
    brett(-8, 2.4, .6, "gelb", 5, 4.6, ROT)
    busch(8.5, 2.4, .6, .75, blüten="#e8558a")


def kikin3():
    """Zweistöckiger Pavillon mit Veranda und Lampions."""
    strand(46, 34)
    steg(0, 13, 34, 20, 2.6)
    stube(0, 15, 2.6, 28, 13, 9.2, 5, "#f6cf86")
    pfosten(0, 12, 2.6, 32, 12, 9.6, 5)
    zaun([(-16, 5), (-4, 5)], "#f7ead0", 2.6, 2.2, 2.6, 1, .55)
    zaun([(4, 5), (16, 5)], "#f7ead0", 2.6, 2.2, 2.6, 1, .55)
    girlande(-15.5, 15.5, 5.2, 12.2, 1.2, 8)
    strohdach(0, 15, 12, 31, 13, 5.4, 2.4, .66, saum="#2f9aa0")
    stube(0, 14, 15.6, 21, 8.5, 6, 3.2, "#f6e2ae")
    strohdach(0, 15, 21.6, 22, 8.5, 7.6, 2.4, .12, saum="#2f9aa0")
    kugel(0, 15, 29.6, 1.3, "#2f9aa0")
    palme(-16, 24, .6, .85, drehung=180, neigung=.4)
    palme(17, 6, .6, .6, drehung=0, neigung=.4)
    brett(-18.6, 4, .6, "#2fa8b0", -8, 4.8)
    brett(-15.4, 3.6, .6, "gelb", -4, 4.8, ROT)
    busch(-9, 2.2, .6, .7, blüten="gelb")
    busch(11, 2.4, .6, .7, blüten="#e8558a")


def kikin4():
    """Langes Haus mit drei Kronen und Ausleger am Strand."""
    strand(46, 34)
    steg(0, 15, 41, 18, 2.6)
    stube(0, 16, 2.6, 37, 12, 9.6, 5, fenster_=False)
    with wand(0, 16, 37, 12, "s"):
        for x in (-14, -8, 8, 14):
            fenster(x, 5, 4.2, 5, rahmen="#7a4e2c", scheibe=lack("#ffd987"), sprossen=(1, 0))
    girlande(-19, 19, 6.4, 12.6, 1.4, 9)
    strohdach(0, 16.5, 12.4, 38, 12, 5.4, 2.2, .6, saum="gelb")
    for x, h, b in ((-12.5, 6.5, 9.5), (0, 9, 12.5), (12.5, 6.5, 9.5)):
        quader(x, 15.5, 15.4, b * .8, 5.4, 3.6, ROT if x == 0 else "#2f9aa0", .3)
        strohdach(x, 15.5, 19, b * .92, 6, h, 1.8, .08, saum="gelb")
        kugel(x, 15.5, 19.4 + h, 1.0, "gelb")
    palme(-16.5, 26, .6, .72, drehung=180, neigung=.4)
    palme(16.5, 26, .6, .72, drehung=0, neigung=.4)
    with bei(9, 3.6, 1.0):                         # Auslegerboot
        kugel(0, 0, .6, 1, ROT, (8.5, 1.5, 1.4))
        kugel(0, 0, 1.5, 1, "#f3dfae", (7, .9, .8))
        kugel(0, -2.4, .3, 1, "weiß", (5.5, .6, .6))
        for s in (-1, 1):
            rohr([(s * 3, .4, 1.6), (s * 3, -2.4, .6)], .4, "#7a4e2c")
    maske(-12, 4, .6, 9)
    brett(-18, 4, .6, "gelb", -8, 5, ROT)
    schirm(-6, 3.6, .6, 3.4, 5, ("#e8558a", "weiß"))


def kikip():
    """Lagune mit Wasserfall, Rutsche, Strandbar."""
    boden(73, 35, _sand(), ecke=10)
    becken(glätten([(-27, 9), (-12, 5), (2, 8), (16, 5), (25, 11), (21, 20), (7, 22), (-4, 19), (-14, 23), (-25, 19)],
                   6), .5, stoff("#fbe9bd", rau=.9), 2.2, "#22c1cf", 1.1)
    for x, y, r, h in ((-2, 27, 6, 8), (4, 27.5, 5, 10), (9, 27, 4.5, 7), (-7, 28, 4, 5), (14, 27, 3, 3.4)):
        kugel(x, y, h * .3, r, stein("#8d7358"), (1, .8, h / r * .72), fein=3)
    rohr(glätten([(3.5, 24.6, 8.6), (3.5, 22.6, 6.5), (3.5, 21.4, 1.0)], 5, zu=False), 1.9, stoff("#d8f6ff", rau=.2))
    rohr(glätten([(-20, 30, 9), (-23, 26, 7), (-21, 21, 4.6), (-18, 17, 1.4)], 6, zu=False), 1.3, "gelb")
    for s in (-1, 1):
        quader(-20 + s * 1.4, 30, 0, .8, .8, 9, "weiß", .2)
    # Bar
    zylinder(28.5, 23, .6, 4.2, 3.4, holz("#b07a44"))
    zylinder(28.5, 23, .6, .8, 9, "#7a4e2c")
    drehkörper(28.5, 23, 8, [(6.4, -.7), (6.6, 0), (4, 2.2), (1.6, 5), (.2, 7)], stroh(STROH), 28)
    for x, y, f in ((-31, 8, ("gelb", "weiß")), (31, 9, ("#e8558a", "weiß")), (-17, 28.5, ("#2fa8b0", "weiß"))):
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
