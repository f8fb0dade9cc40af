"""President: weiße Hochhäuser aus Marmor und Glas, Säulenhallen, Gold und Fahnen."""
from hotels.anlage import *

MARMOR, PFLASTER, BLAU = "#e6decd", "#d9c8a8", "#1f3f8f"
FAHNE = (BLAU, "weiß", "#d9a441")


def _marmor():
    return stoff(MARMOR, rau=.35, glanz=.4, fleck=.05, fleckmaß=.15)


def _glas(farbe="#3f8fc0"):
    return stoff(farbe, rau=.18, glanz=.8, fleck=.10, fleckmaß=.10, muster=("platte", 2.2, 3.6, .45), musterhub=.2)


def schaft(x, y, z, b, t, h, achse=5.0, geschoss=9.0, drehung=0.0, farbe="#3f8fc0", lisene=1.7):
    """Hochhausschaft: Glas zwischen Marmorlisenen und Geschossbändern."""
    m = _marmor()
    with bei(x, y, z, drehung):
        quader(0, 0, 0, b, t, h, _glas(farbe), .3)
        for seite in "swo" if drehung else "s":
            lang = b if seite == "s" else t
            n = max(2, round(lang / achse))
            with wand(0, 0, b, t, seite):
                for i in range(n + 1):
                    dick = lisene * (1.5 if i in (0, n) else 1)
                    quader(-lang / 2 + lang * i / n, -.3, 0, dick, 1.6, h, m, .3)
        k = max(1, round(h / geschoss))
        for i in range(k + 1):
            quader(0, 0, h * i / k - (.9 if i else 0), b + .9, t + .9, 1.8 if 0 < i < k else 1.4, m, .25)


def gesims(x, y, z, b, t, hoch=2.6, über=2.0, drehung=0.0):
    """Kräftiges Dachgesims mit goldener Kante und heller Terrasse."""
    with bei(x, y, z, drehung):
        quader(0, 0, 0, b + 2 * über, t + 2 * über, hoch, _marmor(), .5)
        quader(0, 0, hoch * .35, b + 2 * über + .5, t + 2 * über + .5, .8, metall("gold"), .2)
        quader(0, 0, hoch, b + 2 * über - 2.4, t + 2 * über - 2.4, .3, platten("#c9b48c", 3), .1)


def säulenhalle(x, y, z, b, t, h, zahl, r=1.6, giebel=True):
    """Vorhalle mit Säulen, Gebälk und Giebel."""
    quader(x, y, z, b, t, 1.2, _marmor(), .3)
    for i in range(zahl):
        säule(x - b / 2 + 2.5 + (b - 5) * i / (zahl - 1), y - t / 2 + 2, z + 1.2, r, h - 5, _marmor())
    quader(x, y, z + h - 3.8, b + 1, t, 3.8, _marmor(), .4)
    quader(x, y, z + h - 1.0, b + 2, t + 1, .8, metall("gold"), .2)
    if giebel:
        with bei(x, y - t / 2, z + h):
            kippe(prisma([(-b / 2 - 1, 0), (b / 2 + 1, 0), (0, b * .2)], -t, t, _marmor(), .4))
            kippe(prisma([(-b / 2 + 5, 1.2), (b / 2 - 5, 1.2), (0, b * .2 - 2.2)], -.3, .6, lack("#7fb0e0"), .1))


def mast(x, y, z, hoch, b=9, h=5.5):
    wimpel(x, y, z, hoch, FAHNE, b, h)


def rotunde(x, y, z, r, h, dach="gold"):
    """Säulenkranz mit Kuppel."""
    zylinder(x, y, z, r * .72, h, _glas())
    for i in range(14):
        a = 2 * math.pi * i / 14
        säule(x + r * .88 * math.cos(a), y + r * .88 * math.sin(a), z, r * .09, h, _marmor(), kapitell=False)
    zylinder(x, y, z + h, r, 1.8, _marmor(), seiten=40, rund=.4)
    kuppel(x, y, z + h + 1.6, r * .88, metall(dach, .35) if dach == "gold" else lack(dach), knauf="gold")


def presih():
    p = platten(PFLASTER, 5)
    for i in range(4):
        quader(0, 29 + i, 0, 90 - 3 * i, 56 - 3.4 * i, 1.4 * (i + 1), p, .3)
    quader(0, 4, .2, 15, 7, 4.4, lack("#a8232b"), .3)
    schaft(0, 34, 5, 80, 34, 34, 6.2, 11)
    gesims(0, 34, 39, 80, 34)
    säulenhalle(0, 15, 5, 52, 12, 34, 7, 2.1)
    with bei(0, 8.6, 35):
        schrift("PRESIDENT", 0, -.8, 1.9, 4.6, metall("gold"), dick=.4)
    for s in (-1, 1):
        schaft(s * 33, 35, 41, 15, 22, 72, 5, 9)
        gesims(s * 33, 35, 113, 15, 22, 2.4, 1.4)
        rotunde(s * 33, 35, 115, 6.6, 7)
        kegeldach(s * 33, 35, 129, .8, 6, metall("gold"), knauf=None, über=0)
    schaft(0, 34, 41, 46, 28, 104, 5.2, 9.4)
    gesims(0, 34, 145, 46, 28, 3, 2.2)
    schaft(0, 35, 148, 34, 22, 36, 5, 9)
    gesims(0, 35, 184, 34, 22, 2.8, 2)
    for sx in (-1, 1):
        spitze(sx * 20.5, 24, 147, 1.6, metall("gold"))
        spitze(sx * 15.5, 27, 186, 1.4, metall("gold"))
        mast(sx * 42 - (5 if sx > 0 else 0), 19, 41, 22, 7, 4.6)
    schaft(0, 35, 187, 24, 17, 12, 4.6, 12)
    gesims(0, 35, 199, 24, 17, 2.2, 1.4)
    rotunde(0, 35, 201, 9.5, 8)
    mast(0, 35, 218, 19, 12, 7)
    # Wappenschild am Schaft
    with wand(0, 34, 46, 28, "s"), bei(0, -1.6, 118):
        kippe(zylinder(0, 0, 0, 8.4, 1.0, metall("gold"), seiten=40))
        kippe(zylinder(0, 0, .7, 7.0, 1.0, BLAU, seiten=40))
        kippe(stern(6.2, 1.0, metall("gold"), 1.6))
    for s in (-1, 1):
        for x in (14, 22, 30, 38):
            kugelbaum(s * x, 5.5, 0, .40 if x < 38 else .5, farbe="#4b9438")


def _sockel(b, t, y, säulen=6):
    p = platten(PFLASTER, 5)
    for i in range(3):
        quader(0, y + i * .6, 0, b - 2.6 * i, t - 2.6 * i, 1.4 * (i + 1), p, .3)
    quader(0, y - t / 2 + 2.6, .2, 9, 6, 3.6, lack("#a8232b"), .3)


def presi1():
    """Zwillingstürme über einer Säulenhalle."""
    _sockel(68, 44, 23)
    schaft(0, 27, 4, 60, 26, 24, 6, 12)
    gesims(0, 27, 28, 60, 26)
    säulenhalle(0, 12, 4, 34, 9, 24, 6, 1.6)
    for s, h in ((-1, 106), (1, 86)):
        schaft(s * 17, 28, 30, 25, 20, h, 5, 9)
        gesims(s * 17, 28, 30 + h, 25, 20, 2.6, 1.6)
        schaft(s * 17, 29, 33 + h, 17, 14, 14, 4.3, 7)
        gesims(s * 17, 29, 47 + h, 17, 14, 2.2, 1.2)
        kuppel(s * 17, 29, 49 + h, 6.2, lack("#3c84b8"), knauf=None)
        mast(s * 17, 29, 53 + h, 13, 8.5, 5)
    quader(0, 27, 95, 16, 9, 6, _glas(), .4)
    quader(0, 27, 101, 17, 10, 1.4, _marmor(), .3)
    for s in (-1, 1):
        for x in (12, 20, 28):
            kugelbaum(s * x, 3.6, 0, .36, farbe="#4b9438")


def presi2():
    """Rundturm mit Lisenen und Tempel auf dem Dach."""
    _sockel(68, 52, 27)
    for r, h, z in ((30, 22, 4),):
        zylinder(0, 28, z, r, h, _glas(), seiten=64, rund=.3)
    m = _marmor()

    def kranz(r, z, h, n, geschosse, dick=2.2):
        zylinder(0, 28, z, r, h, _glas(), seiten=64, rund=.3)
        for i in range(n):
            with bei(0, 28, z, 360 * i / n):
                quader(0, -r, 0, dick, 2.0, h, m, .35)
        for i in range(geschosse + 1):
            zylinder(0, 28, z + h * i / geschosse - .8, r + .7, 1.7, m, seiten=64, rund=.3)
    kranz(30, 4, 22, 30, 2)
    zylinder(0, 28, 26, 32, 3, m, seiten=64)
    zylinder(0, 28, 27.2, 32.4, .9, metall("gold"), seiten=64, rund=.2)
    kranz(22.5, 29, 84, 22, 9)
    zylinder(0, 28, 113, 25, 2.8, m, seiten=64)
    zylinder(0, 28, 114, 25.4, .9, metall("gold"), seiten=64, rund=.2)
    kranz(16, 116, 18, 18, 2, 1.8)
    zylinder(0, 28, 134, 18.2, 2.4, m, seiten=64)
    rotunde(0, 28, 136, 12, 9)
    mast(0, 28, 157, 15, 9, 5.4)
    for i in range(8):
        a = math.radians(200 + 20 * i)
        kugelbaum(28 * math.cos(a), 28 + 28 * math.sin(a), 29, .32, farbe="#4b9438")
    säulenhalle(0, 5.5, 3.6, 20, 6, 16, 4, 1.2)
    for s in (-1, 1):
        mast(s * 29 - 2, 8, 2, 24, 6, 4)


def presi3():
    """Turm über Eck mit gläserner Pyramide."""
    _sockel(68, 56, 29)
    with bei(0, 29, 4):
        schaft(0, 0, 0, 43, 43, 18, 6, 9, drehung=45)
        gesims(0, 0, 18, 43, 43, 2.6, 1, drehung=45)
        schaft(0, 0, 20, 33, 33, 85, 5.5, 9, drehung=45)
        gesims(0, 0, 105, 33, 33, 2.6, 1.4, drehung=45)
        schaft(0, 0, 108, 24, 24, 24, 4.8, 8, drehung=45)
        gesims(0, 0, 132, 24, 24, 2.4, 1.2, drehung=45)
        with bei(0, 0, 134, 45):
            rechteckprofil(0, 0, 0, 19, 19, [(0, 0), (9.4, 17)], _glas("#58b4d8"), .2)
            for sx in (-1, 1):
                for sy in (-1, 1):
                    rohr([(sx * 9.5, sy * 9.5, 0), (0, 0, 17.2)], .7, metall("gold"))
                    spitze(sx * 12.6, sy * 12.6, 0, 1.2, metall("gold"))
        mast(0, 0, 150, 14, 9, 5.4)
        for w in (-45, 45):
            with bei(0, 0, 0, w):
                quader(0, -22, 0, 11, 5, 9, _marmor(), .4)
                with bei(0, -24.6, 0):
                    tür(0, 0, 5.5, 6.5, "#27496b", rahmen="gold", stufen=0)
        for s in (-1, 1):
            mast(s * 26.5, -2, 20, 14, 7, 4.4)
    for s in (-1, 1):
        for x, y in ((30, 6), (23, 4), (16, 3.4)):
            kugelbaum(s * x, y, 0, .40, farbe="#4b9438")


def presip():
    """Marmorplatz: Becken, Standbild, Fahnenrund und Tennis."""
    boden(73, 35, platten(PFLASTER, 5), ecke=3)
    # Tennis
    quader(-23, 18, .7, 23, 30, .4, "#c8623c", .1)
    quader(-23, 18, 1.1, 17, 24, .15, "#3f8f5a", 0)
    for x, y, b, t in ((-23, 6.4, 17, .8), (-23, 29.6, 17, .8), (-31.2, 18, .8, 24), (-14.8, 18, .8, 24),
                       (-23, 11.6, 17, .7), (-23, 24.4, 17, .7), (-23, 18, .7, 13)):
        quader(x, y, 1.25, b, t, .15, "weiß", 0)
    zaun([(-33, 18), (-13, 18)], "weiß", 2.6, 6.6, 1.2, latten=1)
    # Becken mit Standbild
    becken(kreis(11, 17, 14.5, .86, 40), .6, _marmor(), 2.4, "#2fa8d4", 1.4)
    drehkörper(11, 17, .8, [(5, 0), (5, 1.6), (3.6, 2), (3.0, 7), (3.8, 7.6), (3.8, 8.6)], _marmor(), 24, .1)
    drehkörper(11, 17, 9.2, [(1.8, 0), (1.2, 3), (1.7, 5.4), (1.0, 6.6), (.6, 7)], metall("gold"), 16)
    kugel(11, 17, 17.2, 1.3, metall("gold"))
    rohr([(12, 17, 14.4), (14.5, 17, 17.5), (15, 17, 20)], .5, metall("gold"))
    for i in range(6):
        a = math.radians(60 * i + 30)
        kugel(11 + 9.6 * math.cos(a), 17 + 8.2 * math.sin(a), 2.6, 1.1, stoff("#e8f8ff", rau=.2), (1, 1, 1.7))
    for x in (-8, 2.5, 13, 24):
        wimpel(x, 27.5, .6, 11, FAHNE, 6, 3.8)
    for x, y in ((30.5, 5), (33, 14), (33, 23), (-6, 4)):
        kugelbaum(x, y, .6, .42, farbe="#4b9438")
    blumenbeet(15, 2.8, 22, 2.6, ("rot", "weiß", "blau"), z=.6)


STUFEN = dict(presih=presih, presi1=presi1, presi2=presi2, presi3=presi3, presip=presip)
