"""Taj Mahal: weißer Marmor, Zwiebelkuppeln mit Gold, schlanke Minarette, Garten mit langem Becken."""
from hotels.anlage import *

MARMOR, SCHATTEN, PFLASTER = "#ece4d5", "#d6bf98", "#dfae8c"


def _marmor():
    return stoff(MARMOR, rau=.4, glanz=.35, fleck=.03)


def iwan(x, y, z, b, h, tief="#2a7f8f"):
    """Portal mit Kielbogen in einem goldgefassten Feld."""
    with bei(x, y, z):
        quader(0, -.5, 0, b + 3, 1.2, h + 3, _marmor(), .3)
        quader(0, -1.0, .3, b + 1.9, .5, h + 1.9, metall("gold"), .1)
        quader(0, -1.2, 0, b + .9, .5, h + 1.3, lack("#f8ecd6"), .1)
        bogen = [(-b / 2, 0), (b / 2, 0), (b / 2, h * .62), (b * .36, h * .82), (0, h), (-b * .36, h * .82),
                 (-b / 2, h * .62)]
        kippe(prisma(bogen, 1.3, .5, stoff(tief, rau=.3, fleck=.05), .1))


def chhatri(x, y, z, r, h):
    """Offener Kuppelpavillon."""
    zylinder(x, y, z, r * 1.1, .8, _marmor(), seiten=24, rund=.2)
    for i in range(8):
        a = math.pi / 8 + math.pi * i / 4
        zylinder(x + r * .82 * math.cos(a), y + r * .82 * math.sin(a), z, r * .15, h, _marmor(), seiten=8, rund=0)
    zylinder(x, y, z + .4, r * .5, h, stoff("#2a7f8f", rau=.4), seiten=16, rund=0)
    drehkörper(x, y, z + h, [(r * 1.35, -.3), (r * 1.35, .3), (r, .8)], SCHATTEN, 24)
    kuppel(x, y, z + h + .6, r * .92, _marmor(), "zwiebel", maß=.82)


def minarett(x, y, z, h, r=3.4):
    """Turm mit drei Kränzen und Pavillon obenauf."""
    for k in range(3):
        r0, r1 = r * (1 - .1 * k), r * (1 - .1 * (k + 1))
        zylinder(x, y, z + h * k / 3, r0, h / 3, _marmor(), oben=r1, seiten=32, rund=.1)
        drehkörper(x, y, z + h * (k + 1) / 3 - 1, [(r1, -1.4), (r1 * 1.55, 0), (r1 * 1.55, .9), (r1, .9)], SCHATTEN,
                   32, .1)
        drehkörper(x, y, z + h * (k + 1) / 3 - 1, [(r1 * 1.5, .9), (r1 * 1.5, 1.6), (r1 * 1.3, 1.6)], metall("gold"),
                   32)
        rundfenster(x, y, z + h * (k + .32) / 3, r0 * .97, (-5,), 1.9, 4.2, rahmen="#e9dcc4", scheibe=lack("#2a7f8f"),
                    sprossen=(0, 0), bogen=True, sims=False, rand=.4)
    chhatri(x, y, z + h - .2, r * .86, r * 1.2)


def tajh():
    """Das Mausoleum: Portal, große Kuppel, vier kleine."""
    quader(0, 18, 0, 32, 34, 3.6, platten(PFLASTER, 3), .4)
    quader(0, 2.2, 0, 9, 3.6, 2.4, platten(SCHATTEN, 2), .2)
    quader(0, 20, 3.6, 28, 20, 1.2, _marmor(), .3)
    p = [(-13.5, 13), (-10.5, 10), (10.5, 10), (13.5, 13), (13.5, 27), (10.5, 30), (-10.5, 30), (-13.5, 27)]
    prisma(p, 4.6, 24, _marmor(), .3)
    iwan(0, 9.6, 4.6, 9, 20)
    for s in (-1, 1):
        for z in (5.4, 16):
            iwan(s * 8.8, 10.4, z, 2.4, 7)
        for f in (-1, 1):
            zylinder(s * 11.9, 20 + f * 8.6, 4.6, .9, 28, _marmor(), rund=.1)
            spitze(s * 11.9, 20 + f * 8.6, 32.2, .7, metall("gold"))
        zylinder(s * 6, 9.4, 4.6, .8, 29, _marmor(), rund=.1)
        spitze(s * 6, 9.4, 33.2, .7, metall("gold"))
        chhatri(s * 9.2, 14.5, 28.4, 3.0, 3.4)
    quader(0, 20, 28, 27.4, 19.6, 1.4, SCHATTEN, .3)
    zylinder(0, 20, 29, 8.4, 7, _marmor(), seiten=48)
    drehkörper(0, 20, 34.6, [(8.4, 0), (9, .6), (9, 1.4), (8.4, 1.8)], metall("gold"), 48)
    kuppel(0, 20, 36, 9.6, _marmor(), "zwiebel", knauf=None)
    drehkörper(0, 20, 51.4, [(3.4, 0), (2.2, 1.0), (1.0, 2.4)], metall("gold"), 24)
    spitze(0, 20, 53, 1.7, metall("gold"))
    for s in (-1, 1):
        zypresse(s * 13.6, 2.6, 0, .45)


def tajn1():
    """Minarett mit kleiner Moschee."""
    quader(0, 13, 0, 25, 24, 3, platten(PFLASTER, 3), .4)
    quader(3, 13, 3, 17, 12, 12, _marmor(), .3)
    iwan(3.4, 7, 3, 5.6, 8.6, "#c8623c")
    quader(3, 13, 14.6, 18, 13, 1.2, SCHATTEN, .3)
    zylinder(3.4, 13, 15.6, 5.2, 2.4, _marmor(), seiten=32)
    kuppel(3.4, 13, 18, 5.8, _marmor(), "zwiebel")
    for x in (-4, 10.6):
        spitze(x, 7.5, 15.4, .8, metall("gold"))
    minarett(-7.2, 11, 3, 48, 3.7)
    zypresse(10.6, 3, 0, .42)
    busch(-9, 2.4, 0, .6, blüten="#e8558a")


def tajn2():
    """Minarett mit Torbau."""
    quader(0, 13, 0, 24, 24, 3, platten(PFLASTER, 3), .4)
    haus(-3.4, 13, 3, 15, 11, 17, _marmor())
    iwan(-3.4, 7.4, 3, 5.6, 10.5)
    quader(-3.4, 13, 19.6, 16.4, 12.4, 1.2, SCHATTEN, .3)
    for x in (-8.2, 1.4):
        chhatri(x, 9.8, 20.6, 2.5, 3)
    chhatri(-3.4, 14.5, 20.6, 3.6, 4)
    minarett(7.2, 11, 3, 47, 3.6)
    zypresse(-9.8, 3, 0, .42)
    busch(8.4, 2.4, 0, .6, blüten="#e8558a")


def tajp():
    """Wassergarten: langes Becken, Zypressen, Beete, Pavillons."""
    boden(73, 35, gras("#86bb4e"), ecke=3)
    weiß = platten("#efe2cb", 3)
    for y in (9.2, 24.8):
        quader(0, y, .6, 70, 3.4, .5, weiß, .1)
    for x in (-33, 0, 33):
        quader(x, 17, .6, 3.6, 30, .44, weiß, .1)
    becken(umriss(58, 9.5, 1.5, 0, 12.2), .6, _marmor(), 1.8, "#1fb0cc", 1.3)
    for x in (-20, -10, 10, 20):
        drehkörper(x, 17, .9, [(1.5, 0), (1.0, 1), (2.0, 1.8)], _marmor(), 16)
        kugel(x, 17, 4.0, 1.0, stoff("#e8f8ff", rau=.2), (1, 1, 1.8))
    zylinder(0, 17, .6, 7, 1.6, _marmor(), seiten=8)
    brunnen(0, 17, 1.8, 5, MARMOR)
    for i in range(8):
        x = -29.5 + 59 * i / 7
        if abs(x) > 6:
            zypresse(x, 7.2, .6, .46)
            zypresse(x, 27.4, .6, .52)
    for s in (-1, 1):
        blumenbeet(s * 16.5, 3.6, 27, 4, ("rosa", "rot", "weiß"), z=.6)
        blumenbeet(s * 16.5, 31, 27, 3.6, ("rosa", "gelb", "weiß"), z=.6)
        chhatri(s * 32.6, 17, .8, 3.4, 5)
        busch(s * 33, 4, .6, .7, blüten="#e8558a")


STUFEN = dict(tajh=tajh, tajn1=tajn1, tajn2=tajn2, tajp=tajp)
