"""Das Hotel hinter dem Garten: Flügel, Turm mit dem Namen, Eingang zum neuen Spiel."""
from kasten import *

BREIT, HOCH, HORIZONT, F, AUGE = 792, 600, 230, 1256, 22
Y0 = 171.6             # Abstand der Front von der Kamera


def boden(px, py):
    """Boden unter dem Bildpunkt: (X, Tiefe vor der Kamera als y)."""
    d = F * AUGE / (py - HORIZONT)
    return (px - BREIT / 2) * d / F, d


def hotel():
    zufall = random.Random(3)
    warm = stoff("#ffc46a", rau=.3, fleck=.25, fleckmaß=.25, leuchten=1.15)
    kühl = stoff("#5f7ea0", rau=.1, glanz=.8)

    def scheibe():
        return warm if zufall.random() < .72 else kühl
    creme, weiß = putz("#f3ddb0"), putz("#fbf3e2")
    with bei(25, Y0 + 13):
        flügel(creme, weiß, scheibe)
    with bei(-13.5, Y0 + 10):
        turm(creme, weiß, scheibe)
    leuchte(-13.5, Y0 - 16, 37, 800, (1, .8, .5), 3)
    with bei(24.7, Y0 - .4):
        eingang(weiß)


def flügel(creme, weiß, scheibe):
    quader(0, 0, 0, 54, 26, 21, creme, .4)
    quader(0, 0, 0, 55.4, 27.4, 1.6, mauer("#b7a88c"), .3)
    quader(0, 0, 11.4, 55, 27, .8, weiß, .2)
    quader(0, 0, 20.6, 56.4, 28.4, 1.2, weiß, .3)
    with wand(0, 0, 54, 26, "s"):
        for i in range(9):
            fenster(-24 + 6 * i, 13.6, 3.0, 5.4, scheibe=scheibe(), läden="#4f7f6a", sprossen=(2, 1))
        for x in (-22.5, 21.5 + 1):
            fenster(x, 3.2, 4.6, 6.4, scheibe=scheibe(), bogen=True, sprossen=(2, 2))
            markise(x, 10.2, 6.2, 2.6, farben=("#c8392f", "weiß"), streifen=.8)
    for x in range(-27, 28, 2):
        zylinder(x, -13.6, 21.8, .36, 1.7, weiß, oben=.3, seiten=10, rund=.1)
    quader(0, -13.6, 23.4, 56, 1.0, .7, weiß, .2)


def turm(creme, weiß, scheibe):
    ziegelrot = ziegel("#bf5a37", 1.7)
    quader(0, 0, 0, 25, 26, 42, creme, .4)
    quader(0, 0, 0, 26.4, 27.4, 2, mauer("#b7a88c"), .3)
    for z in (12.0, 21.2, 30.4):
        quader(0, 0, z, 25.8, 26.8, .8, weiß, .2)
    quader(0, 0, 41.4, 28, 29, 1.6, weiß, .4)
    for s in (-1, 1):
        quader(s * 11.9, -12.6, 0, 2, 1.6, 42, weiß, .3)
    with wand(0, 0, 25, 26, "s"):
        for z in (4.0, 13.6, 22.8):
            for x in (-7.4, 0, 7.4):
                fenster(x, z, 3.6, 6.0, scheibe=scheibe(), bogen=z < 5, sprossen=(2, 2), läden=None if z < 5
                        else "#4f7f6a")
                if z > 20:
                    balkon(x, z, 5.6, 1.8)
        quader(0, -.5, 31.6, 23, 1.2, 9.2, stoff("#24506a", rau=.4, glanz=.4), .5)
        quader(0, -1.0, 32.2, 21.6, .6, 8.0, stoff("#2f6d86", rau=.45, glanz=.4), .3)
        for i in range(24):
            for zz in (31.95, 40.45):
                kugel(-11 + 22 * i / 23, -1.2, zz, .30, stoff("#ffe7a8", leuchten=4.0), fein=2)
        schrift("VELMO", 0, -1.4, 36.2, 6.4, stoff("#ffe2a0", leuchten=1.9), dick=.35, datei=BUCHMANN)
    with wand(0, 0, 25, 26, "w"):
        for z in (13.6, 22.8, 33):
            for x in (-7, 0, 7):
                fenster(x, z, 3.4, 5.6, scheibe=scheibe())
    walmdach(0, 0, 43, 25, 26, 9.5, ziegelrot, über=2.2, first=0)
    kugel(0, 0, 52.6, .8, metall())


def eingang(weiß):
    """Treppe, Säulen, Vordach mit Schrift, Flügeltür, Teppich."""
    for k in range(3):
        quader(0, -2.2 + .9 * k, 0, 21 - 1.6 * k, 7.5 - 1.2 * k, .45 * (k + 1), mauer("#d8cbb0"), .15)
    quader(0, -.2, 1.3, 11, 1, 8.6, weiß, .3)
    for s in (-1, 1):
        quader(s * 2.3, -.9, 1.4, 4.2, .6, 7.4, lack("#8f2f2a"), .2)
        quader(s * 2.3, -1.25, 2.4, 2.9, .3, 5.6, stoff("#ffdf9c", rau=.2, leuchten=2.0), .15)
        quader(s * 2.3, -1.4, 5.0, 2.9, .22, .25, lack("#8f2f2a"), .05)
        quader(s * 2.3, -1.4, 2.4, .25, .22, 5.6, lack("#8f2f2a"), .05)
        rohr([(s * .75, -1.7, 4.0), (s * .75, -1.9, 5.2), (s * .75, -1.7, 6.4)], .16, metall())
        for x in (8.8, 12.4):
            säule(s * x, -4.2, .9, .85, 8.2, "#fbf3e2")
        laterne(s * 15.4, -6.5, 0, 6.2)
        drehkörper(s * 6.2, -6.2, 0, [(1.0, 0), (1.5, 2.0), (1.7, 2.2), (1.4, 2.3)], putz("#c2603c"), 24)
        kugel(s * 6.2, -6.2, 3.9, 1.9, laub("#4a8a3c"))
    quader(0, -3.2, 9.1, 28.6, 7.2, .9, weiß, .25)
    quader(0, -3.4, 9.9, 28.0, 6.8, 3.6, stoff("#8f1f24", rau=.45, glanz=.4), .5)
    quader(0, -6.7, 10.25, 27.0, .5, 2.9, stoff("#b82c2c", rau=.5, glanz=.35), .3)
    schrift("Neues Spiel", 0, -7.05, 11.72, 2.75, stoff("#fff0bd", leuchten=2.6), dick=.18, datei=GOTISCH)
    for i in range(23):
        for zz in (10.02, 13.4):
            kugel(-13.6 + 27.2 * i / 22, -6.9, zz, .24, stoff("#ffe7a8", leuchten=5.0), fein=2)
    leuchte(0, -5.0, 8.4, 260, r=2)
    leuchte(0, -12, 12.4, 330, r=2.5)
    band([(0, -1.5), (0, -9), (-1.2, -16)], 5.2, stoff("#a3262a", rau=.9, glanz=.1, korn=.4), .02, .32, rund=.05)
    quader(0, -3.4, 1.36, 5.2, 3.6, .06, stoff("#a3262a", rau=.9), 0)
