"""Was auf dem Brett von Anfang an steht: Bank, Rathaus, Parkplatz, Schilder, Boote, Leuchtturm."""
from kasten import *
from tafeln import BANK, RATHAUS, WAGEN, WAGEN_B, WAGEN_H, punkte


def bank():
    l, o, b, h = punkte(BANK)
    hell, dunkel = putz("#efe3c9"), "#c9b58c"
    with am_brett(l + b / 2, o + h - 5):
        prisma([(-40, -5), (40, -5), (40, 38), (-40, 38)], 0, 1.0, platten("#d8ccb4", 5), .3)
        for i in range(3):
            quader(0, 17 - i * .8, 1 + i * 1.1, 70 - i * 2, 34 - i * 1.6, 1.2, "#e6dcc6", .25)
        quader(0, 19, 4, 62, 26, 22, hell, .6)
        quader(-23, 18, 4, 14, 27, 22.5, hell, .6)
        quader(23, 18, 4, 14, 27, 22.5, hell, .6)
        for x in (-23, 23):
            with bei(x, 4.4, 4):
                fenster(0, 4, 5, 11, bogen=True, sprossen=(1, 2))
        with bei(0, 6, 4):
            tür(0, 0, 7, 12, "dunkelholz", stufen=0)
            fenster(-9, 3, 4, 9)
            fenster(9, 3, 4, 9)
        for x in (-14.5, -7.5, 7.5, 14.5):
            säule(x, 3, 4, 1.7, 18, "#faf4e6")
        quader(0, 16, 22, 66, 33, 3.6, "#f6edd9", .5)
        quader(0, 16, 25.6, 69, 36, 1.4, dunkel, .4)
        with bei(0, 9, 27):
            keil(0, -2, 0, 21, 38, 9, "#f6edd9", .3, drehung=90)
            satteldach(0, -2, 0, 23, 39, 9.6, ziegel("#4e8b7c", 2.2), über=.8, drehung=90)
        quader(0, 17, 26.5, 58, 28, 2.2, ziegel("#4e8b7c", 2.2), .5)
        with rahmen(schub(0, -6.4, 25.6) @ dreh(-4, "X")):
            quader(0, 0, 0, 37, 1.0, 12, lack("#234a42"), .5)
            quader(0, -.35, 1, 35, .6, 10, lack("#2f6156"), .3)
            schrift("BANK", 0, -.75, 5.9, 9.6, stoff("#ffd45e", fleck=0, leuchten=.15), dick=.25, datei=DEJAVU % "Sans")
        for x in (-36, 36):
            zypresse(x, 3, 1, .8)
            busch(x * .93, -2.5, 1, .7, blüten="gelb")
        fahne(-26, 14, 29, 13, ("gelb", "weiß"))
        fahne(26, 14, 29, 13, ("gelb", "weiß"))


def rathaus():
    l, o, b, h = punkte(RATHAUS)
    wandstoff = mauer("#c98258", 1.6)
    with am_brett(l + b / 2, o + h - 2.5):
        prisma([(-19, -3), (19, -3), (19, 20), (-19, 20)], 0, .8, platten("#cfc4b2", 4), .3)
        quader(0, 8.5, .5, 33, 15, 17, wandstoff, .4)
        quader(0, 8.5, .5, 34, 16, 2.4, "#d9cdb8", .3)
        with wand(0, 8.5, 33, 15, "s"):
            for x in (-12.5, -7.5, 7.5, 12.5):
                fenster(x, 4.2, 2.4, 4.6, sprossen=(0, 1), rand=.45)
                fenster(x, 11, 2.4, 3.8, sprossen=(0, 1), rand=.45)
        walmdach(0, 8.5, 17.5, 33, 15, 8, ziegel("#5a6f86", 1.8), über=1.2)
        quader(0, 5, .5, 10, 10, 27, wandstoff, .4)
        quader(0, 5, 27.5, 11.4, 11.4, 1.4, "#efe6d4", .3)
        with wand(0, 5, 10, 10, "s"):
            tür(0, 1, 4.4, 8, "#3d5f3a", bogen=True, stufen=1)
            fenster(0, 12, 3.2, 5, bogen=True, sprossen=(1, 1))
            balkon(0, 11.6, 6, 1.8)
            with rahmen(schub(0, -.3, 22.4) @ dreh(90, "X")):
                zylinder(0, 0, 0, 3.4, .6, metall("#d9a441"), seiten=36)
                zylinder(0, 0, .3, 2.8, .6, "#fffaf0", seiten=36)
                quader(0, .7, .8, .5, 2.2, .3, "schwarz", 0)
                quader(.6, .1, .8, 1.6, .45, .3, "schwarz", 0)
        walmdach(0, 5, 28.9, 10, 10, 11, ziegel("#4a8a7a", 1.6), über=1.0, first=0)
        spitze(0, 5, 39.4, .8, metall())
        for x in (-16.5, 16.5):
            kugelbaum(x, .5, .6, .42)
        with rahmen(schub(0, -3.6, .4) @ dreh(-48, "X")):
            quader(0, 0, 0, 32, .8, 6.4, lack("#3a4d6b"), .3)
            schrift("RATHAUS", 0, -.45, 3.1, 5.6, stoff("#ffe7a6", fleck=0), dick=.15, datei=DEJAVU % "Sans")
        fahne(0, 5, 41, 7, ("gelb", "grün"), b=4.4, h=2.8)


def parkplatz():
    orte = [((l + WAGEN_B / 2) / 12, (o + WAGEN_H / 2) / 12) for l, o, _, _ in sorted(w["ort"] for w in WAGEN)]
    links, rechts, y = min(x for x, _ in orte) - 20, max(x for x, _ in orte) + 17, orte[0][1] + 3
    ecken = [tuple(welt(*p).xy) for p in ((links, y - 17), (rechts, y - 17), (rechts, y + 18), (links, y + 18))]
    prisma(ecken, .05, .55, "#e2ddd2", .25)
    with am_brett((links + rechts) / 2, y):
        quader(0, 0, .1, rechts - links - 4, 35 * TIEFE - 4, .65, stoff("#66686e", rau=.85, fleck=.08, korn=.3), .2)
        for x in [orte[0][0] - 15] + [px + 15 for px, _ in orte]:
            quader(x - (links + rechts) / 2, 0, .72, .8, 30, .12, "#f4efe2", 0)
        for px, _ in orte:
            with rahmen(schub(px - (links + rechts) / 2, 0, .74) @ Matrix.Diagonal((1, TIEFE, 1, 1))):
                schrift("P", 0, 0, 0, 15, stoff("#f4efe2", fleck=0), stehend=False, dick=.05, datei=DEJAVU % "Sans")


# Namensschild: Text, Fuß in Entwurfspunkten, Brett, Schrift; unter y = 400 lägen die Notenstapel davor
SCHILDER = [("Boomerang", (588, 399), "#7a3b22", "#ffe9c4"), ("President", (267, 352), "#31435f", "#f6e7c0"),
            ("Waikiki", (84, 99), "#2d8f9c", "#fff6dc"), ("Taj Mahal", (352, 79), "#9c6a1f", "#fff3d6"),
            ("Safari", (672, 106), "#8a5f2c", "#fff0c6"), ("Fujijama", (500, 277), "#8e2f2a", "#fdebd0"),
            ("L'Étoile", (432, 285), "#3b5a45", "#f6e3b0"), ("Royal", (271, 216), "#6b2c4f", "#f8dfa6")]


def schilder():
    for text, ort, tafel, farbe in SCHILDER:
        with am_brett(*ort):
            schildtafel(text, 0, 0, b=len(text) * 6.3 + 8, höhe=8.6, tafel=lack(tafel), farbe=stoff(farbe, fleck=0),
                        pfosten=2.5, neigung=38)


def boot(x, y, drehung, segel="weiß", rumpf="rot"):
    with am_brett(x, y, -2.2, drehung):
        with rahmen(Matrix.Diagonal((1, .42, 1, 1))):
            drehkörper(0, 0, -.5, [(3.2, 0), (5.6, 1.2), (6.6, 2.6)], rumpf, 28)
            zylinder(0, 0, 2.0, 5.8, .3, holz("#d8a868"), rund=0)
        zylinder(0, 0, 1.8, .28, 15, "dunkelholz", rund=0)
        for s, lang, hoch in ((1, 5.6, 12.5), (-1, 4.0, 10)):
            p = [(.3 * s, 0, 3.6), (s * lang, .5, 3.6), (.2 * s, .2, 3.6 + hoch)]
            me = netz_aus(p + [(s * lang * .45, 1.1, 3.6 + hoch * .3)], [(0, 1, 3), (1, 2, 3), (2, 0, 3)])
            objekt("Segel", me, segel if s > 0 else "#fbf3e0", Matrix.Identity(4), glatt=True)


def leuchtturm(x, y):
    with am_brett(x, y):
        for a, r in ((0, 8), (2, 6), (4, 6.5), (5.2, 5)):
            kugel(6 * math.cos(a), 5 * math.sin(a), -2.5, r, stein("#a79a88"), (1.2, 1, .5))
        kugel(0, 0, -1.5, 8, gras("#86a852"), (1.2, 1.1, .38))
        for i in range(4):
            zylinder(0, 0, 1 + 5 * i, 3.6 - .4 * i, 5, ("weiß", "rot")[i % 2], oben=3.2 - .4 * i, rund=.1)
        zylinder(0, 0, 21, 2.8, .7, "#3a4248")
        zylinder(0, 0, 21.6, 1.5, 2.6, stoff("#ffe9a8", rau=.2, leuchten=.7))
        drehkörper(0, 0, 24.1, [(2.2, 0), (1.2, 1.4), (.05, 2.2)], "rot", 20)


def steg(x, y):
    """Bootssteg ins Wasser."""
    with am_brett(x, y):
        quader(0, 0, .3, 5, 30, .7, holz("#b98a58"), .15)
        for py in (-13, -5, 3, 11):
            for px in (-2.6, 2.6):
                zylinder(px, py, -5, .5, 7, "dunkelholz", seiten=10)
