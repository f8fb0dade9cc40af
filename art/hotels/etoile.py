"""L'Étoile: französische Palais der Belle Époque, Mansarddächer, Stern auf der Kuppel, Park mit Fontänen."""
from hotels.anlage import *

WAND, SIMS, DACH, MARKISE = "#dfb981", "#efe3cb", "#41699f", ("#c23a5a", "#fbf3e2")
BOGEN = dict(rahmen=SIMS, bogen=True, sprossen=(1, 0), rand=.6)
HOCH = dict(rahmen=SIMS, sprossen=(1, 1), rand=.6)


def _dach():
    return stoff(DACH, rau=.45, glanz=.45, fleck=.05, muster=("stein", 2.4, 1.5, .22), musterhub=.5)


def _wand():
    return putz(WAND)


def geschosse(x, y, z, b, t, hohen, achse=6.5, bögen=True, markisen=False, fb=3.4):
    """Wandkasten mit Geschossen; unten Bögen, darüber hohe Fenster mit Balkonen; gibt die Oberkante."""
    h = sum(hohen)
    quader(x, y, z, b, t, h, _wand(), .4)
    for s in (-1, 1):
        quader(x + s * (b / 2 - .9), y - t / 2 + .6, z, 2.2, 2.4, h, SIMS, .3)
    n = max(1, round((b - 3) / achse))
    with wand(x, y, b, t, "s"), bei(0, 0, z):
        unten = 0
        for k, g in enumerate(hohen):
            if k:
                quader(0, -.4, unten - .7, b + .6, 1.6, 1.3, SIMS, .25)
            for i in range(n):
                fx = -(b - 3) / 2 + (b - 3) * (i + .5) / n
                if k == 0 and bögen:
                    fenster(fx, 1.2, fb * 1.2, g - 3, **BOGEN)
                    if markisen:
                        markise(fx, g - .6, fb * 1.75, 2.6, MARKISE, 1.4)
                else:
                    fenster(fx, unten + 1.6, fb, g - 3.6, **HOCH)
                    if k == 1:
                        balkon(fx, unten + 1.0, fb * 1.7, 1.6, SIMS, "#3a3f52", 1.9)
            unten += g
    return z + h


def kuppelhaube(x, y, z, b, t, h, gaube=True):
    """Bauchige Haube über quadratischem Grundriss, mit Gold gefasst."""
    quader(x, y, z - .8, b + 2.6, t + 2.6, 1.8, SIMS, .4)
    e = min(b, t) / 2
    rechteckprofil(x, y, z + .8, b, t,
                   [(0, 0), (-.04 * e, h * .18), (.10 * e, h * .42), (.32 * e, h * .66), (.62 * e, h * .87),
                    (.80 * e, h)], _dach(), .3)
    quader(x, y, z + .6 + h, b - 1.6 * e + 1, t - 1.6 * e + 1, 1.2, metall("gold"), .3)
    if gaube:
        with bei(x, y - t / 2 - .4, z + h * .10):
            quader(0, 1.6, 0, b * .34, 4, h * .42, SIMS, .4)
            with bei(0, -.5):
                fenster(0, .6, b * .2, h * .34, **BOGEN)
    return z + h + 1.8


def sternspitze(x, y, z, r, mast=4.0):
    """Goldener Stern auf einem Mast."""
    zylinder(x, y, z - .5, .9, mast + 1, metall("gold"), oben=.5)
    kugel(x, y, z + .6, 1.3, metall("gold"))
    with bei(x, y, z + mast + r * .86):
        kippe(stern(r, 1.8, stoff("#ffc93a", rau=.25, metall=.5, leuchten=.25, fleck=0), -.9), 72)


def portal(y, z, b, h):
    """Eingang mit Markise und Stufen, im Rahmen des Hauses."""
    for i in range(3):
        quader(0, y - 1.6 - 1.3 * i, 0, b + 5 - i, 2.8, z + .6 - .6 * i, SIMS, .25)
    with bei(0, y, z):
        tür(0, 0, b * .62, h * .78, "#2f4a78", rahmen="gold", bogen=True, stufen=0)
        markise(0, h + 1.2, b + 3, 4.4, MARKISE, 1.6)


def leth():
    boden(70, 46, erde("#e2c894"), ecke=6)
    for s in (-1, 1):
        oben = geschosse(s * 20, 26, 0, 22, 20, (10, 9.5, 8.5), 6.4, markisen=True)
        mansarde(s * 20, 26, oben, 22, 20, 10, _dach(), 3, sims=SIMS)
        oben = geschosse(s * 29.5, 24, 0, 10, 23, (10, 9.5, 8.5, 4), 9, fb=4)
        kuppelhaube(s * 29.5, 22, oben, 9.6, 14, 9)
        spitze(s * 29.5, 22, oben + 10, 1.2, metall("gold"))
    oben = geschosse(0, 23, 0, 24, 26, (13, 12, 11), 7.6, fb=4.2)
    säulen = [-10.6, -3.8, 3.8, 10.6]
    for x in säulen:
        säule(x, 9.2, 12, 1.1, 22, SIMS)
    quader(0, 9.2, 34, 25.5, 3.2, 2.4, SIMS, .4)
    oben = kuppelhaube(0, 22, oben, 24, 22, 23, gaube=False)
    with bei(0, 10.6, 37.5):
        kippe(zylinder(0, 5, 0, 4.6, 3, SIMS, seiten=32))
        kippe(zylinder(0, 5, 2.6, 3.6, .9, lack("#fff8e6"), seiten=32))
        kippe(zylinder(0, 5, 2.2, 4.1, .9, metall("gold"), seiten=32))
        kippe(stern(3.0, .6, lack("#2f4a78"), 3.4)).location.z += 5
    sternspitze(0, 22, oben, 6.2, 3.6)
    portal(10, 1.6, 9, 9.5)
    for s in (-1, 1):
        wimpel(s * 12.2, 18, oben - 16, 12, ("#2a4fa0", "weiß", "#c8352b"), 6, 4.4)
        for x in (12, 20, 28):
            kugelbaum(s * x, 5.5, .6, .42, "#4b9438")
        blumenbeet(s * 20, 2.6, 22, 2.6, ("rosa", "weiß", "rot"), z=.6)


def letn1():
    """Schlanker Turmbau mit hoher Haube."""
    boden(33, 34, erde("#e2c894"), ecke=5)
    oben = geschosse(0, 18, 0, 29, 20, (11, 10, 9), 7)
    mansarde(0, 18, oben, 29, 20, 8, _dach(), 0, sims=SIMS)
    oben = geschosse(0, 14.5, 0, 15, 16, (12, 10.5, 9.5, 9.5, 8.5), 6.2)
    oben = kuppelhaube(0, 14.5, oben, 15, 15, 15)
    quader(0, 14.5, oben - .6, 4, 4, 4, SIMS, .4)
    kegeldach(0, 14.5, oben + 3.4, 2.4, 6, _dach(), knauf=None)
    sternspitze(0, 14.5, oben + 9, 3.6, 1.2)
    for s in (-1, 1):
        with bei(s * 11, 9.6, 31):
            quader(0, 2, 0, 4.4, 4, 5, SIMS, .3)
            with bei(0, -.1):
                fenster(0, .8, 2.6, 3.6, **BOGEN)
            with bei(0, 4, 4.8):
                kippe(zylinder(0, 0, 0, 2.5, 4.6, _dach()))
        kugelbaum(s * 12, 3.6, .6, .44, "#4b9438")
    with bei(0, 6.4):
        markise(0, 11, 9, 4, MARKISE, 1.4)
        tür(0, .4, 5, 8, "#2f4a78", rahmen="gold", bogen=True, stufen=1)


def letn2():
    """Eckhaus mit runder Kuppel."""
    boden(47, 36, erde("#e2c894"), ecke=5)
    oben = geschosse(4, 21, 0, 35, 20, (10, 9, 8), 6.4, markisen=True)
    mansarde(4, 21, oben, 35, 20, 10, _dach(), 4, sims=SIMS)
    x, y, r = -13, 15, 8.4
    zylinder(x, y, 0, r, 34, _wand(), seiten=40)
    for z in (10.4, 19.6, 28.4, 33.6):
        zylinder(x, y, z, r + .7, 1.2, SIMS, seiten=40)
    rundfenster(x, y, 1.4, r, (-48, 0, 48), 3.8, 7.2, **BOGEN)
    for z in (12.4, 21.4):
        rundfenster(x, y, z, r, (-48, 0, 48), 3.2, 5.4, **HOCH)
    rundfenster(x, y, 29.8, r, (-48, -16, 16, 48), 2.2, 2.6, rahmen=SIMS, sprossen=(0, 0), sims=False)
    drehkörper(x, y, 34.6, [(r * 1.08, 0), (r * 1.08, 1), (r, 1.4), (r * .98, 4), (r * .82, 8), (r * .5, 11.6),
                            (r * .22, 13.6)], _dach(), 40)
    drehkörper(x, y, 48, [(2.2, 0), (2.2, 1), (1.6, 1), (1.6, 3), (2.1, 3.4), (.2, 6)], metall("gold"), 20)
    sternspitze(x, y, 53, 2.6, .4)
    wimpel(8, 22, 38, 9, ("#2a4fa0", "weiß", "#c8352b"), 6, 4)
    for x, m in ((-20, .36), (21, .42), (12, .36)):
        kugelbaum(x, 4, .6, m, "#4b9438")


def letn3():
    """Rathausartiger Palast mit Uhrgiebel und zwei Hauben."""
    boden(47, 38, erde("#e2c894"), ecke=5)
    oben = geschosse(0, 21, 0, 38, 20, (14, 13, 12.5, 12), 6.6)
    mansarde(0, 21, oben, 38, 20, 13, _dach(), 0, sims=SIMS)
    for s in (-1, 1):
        o = geschosse(s * 16.2, 17, 0, 11.4, 17, (14, 13, 12.5, 12, 9), 9, fb=4)
        o = kuppelhaube(s * 16.2, 15.5, o, 11.4, 12, 13)
        spitze(s * 16.2, 15.5, o - .4, 1.3, metall("gold"))
    o = geschosse(0, 16.5, 0, 14, 18, (14, 13, 12.5, 12), 6, fb=3.6)
    with bei(0, 7.2, o - .4):
        quader(0, 4, 0, 14, 8, 2, SIMS, .4)
        quader(0, 4, 2, 10, 6, 9, _wand(), .4)
        with bei(0, 0, 0):
            kippe(zylinder(0, 6.4, -1, 4.2, 1.2, metall("gold"), seiten=32))
            kippe(zylinder(0, 6.4, -.5, 3.5, 1.2, lack("#fff8e6"), seiten=32))
        quader(0, .2, 6.2, .7, .5, 2.6, "#2f3b5a", .1, 0).location.y -= 1.1
        quader(.9, -.9, 6.2, 2.2, .5, .7, "#2f3b5a", .1)
    kuppelhaube(0, 12, o + 10.4, 11, 8, 15, gaube=False)
    sternspitze(0, 12, o + 26.6, 5, 1.6)
    with bei(0, 7.4):
        markise(0, 11.6, 9, 4, MARKISE, 1.4)
        tür(0, .4, 5.6, 8.6, "#2f4a78", rahmen="gold", bogen=True, stufen=1)
    for s in (-1, 1):
        for x in (10, 19):
            kugelbaum(s * x, 3.8, .6, .42, "#4b9438")


def letn4():
    """Kleines Palais mit drei Gauben."""
    boden(39, 32, erde("#e2c894"), ecke=5)
    oben = geschosse(0, 17, 0, 34, 18, (10, 9), 6.4, markisen=True)
    mansarde(0, 17, oben, 34, 18, 10, _dach(), 0, sims=SIMS)
    o = geschosse(0, 14.5, 0, 12.5, 17, (10, 9, 4), 9, fb=4.2)
    o = kuppelhaube(0, 13.5, o, 12.5, 13, 11)
    sternspitze(0, 13.5, o - .6, 3.0, .8)
    for s in (-1, 1):
        with bei(s * 11.4, 10.2, 21):
            quader(0, 2, 0, 4.6, 4, 5, SIMS, .3)
            with bei(0, -.1):
                fenster(0, .8, 2.6, 3.6, **BOGEN)
            with bei(0, 4, 4.8):
                kippe(zylinder(0, 0, 0, 2.6, 4.6, _dach()))
        kugelbaum(s * 15.5, 3.6, .6, .40, "#4b9438")
        busch(s * 8, 2.8, .6, .6, blüten="rosa")


def letp():
    """Park mit großer Fontäne, Broderien, Karussell."""
    boden(73, 35, gras("#82bb48"), ecke=4)
    kies = erde("#f0e0b8")
    quader(-6, 17, .6, 59, 4, .3, kies, .1)
    quader(-6, 17, .6, 4, 33, .3, kies, .1)
    prisma(kreis(-6, 17, 12.5, .9), .6, .4, kies, .1)
    brunnen(-6, 17, .9, 9, SIMS)
    for i in range(8):
        a = math.pi * (i + .5) / 4
        rohr(glätten([(-6 + 7.2 * math.cos(a), 17 + 7.2 * math.sin(a), 2.2),
                      (-6 + 5 * math.cos(a), 17 + 5 * math.sin(a), 6),
                      (-6 + 3.2 * math.cos(a), 17 + 3.2 * math.sin(a), 4.6)], 4, zu=False), .35,
             stoff("#e8f8ff", rau=.2))
    for sx in (-1, 1):
        for sy in (-1, 1):
            x, y = -6 + sx * 20, 17 + sy * 10
            hecke([(x - 7.5, y - 4), (x + 7.5, y - 4), (x + 7.5, y + 4), (x - 7.5, y + 4), (x - 7.5, y - 4)], 1.7, 1.5,
                  "#3f8a34", .6)
            blumenbeet(x, y, 11, 4.4, ("rosa", "weiß", "lila") if sx == sy else ("rot", "gelb", "weiß"), z=.6)
            zypresse(-6 + sx * 9.4, 17 + sy * 13.4, .6, .36)
    # Karussell
    cx, cy = 28, 18
    zylinder(cx, cy, .6, 7.6, 1.0, "#e9c9a0", seiten=32)
    zylinder(cx, cy, 1.6, 1.6, 8, metall("gold"), seiten=20)
    for i in range(8):
        a = math.pi * (i + .5) / 4
        px, py = cx + 5.6 * math.cos(a), cy + 5.6 * math.sin(a)
        zylinder(px, py, 1.6, .25, 7.4, metall("gold"), seiten=8)
        kugel(px, py, 4 + i % 2, .9, ("weiß", "#c23a5a", "#2f6fc0", "gelb")[i % 4], (1.5, .8, .9))
    schirm(cx, cy, 1.6, 8.2, 10.4, MARKISE)
    zylinder(cx, cy, 7.9, 8.2, .9, metall("gold"), seiten=32)
    sternspitze(cx, cy, 13.4, 1.9, .2)
    for x in (-33.5, 33.5):
        kugelbaum(x, 4.5, .6, .45, "#4b9438")
    for y in (8, 26):
        parkbank(-6 + 10, y, .6, 0)


STUFEN = dict(leth=leth, letn1=letn1, letn2=letn2, letn3=letn3, letn4=letn4, letp=letp)
