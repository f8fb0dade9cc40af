"""Die Gärten der acht Hotels, wie sie auf dem leeren Brett liegen."""
import brett.gelände as gelände
from brett.gelände import weich
from kasten import *


def flach(punkte, z, dick, stoff_, rund=0.0):
    return prisma([tuple(welt(x, y).xy) for x, y in punkte], z, dick, stoff_, rund)


def kasten_(x, y, b, h, r):
    """Abgerundetes Rechteck um (x, y)."""
    return [(x + sx * (b / 2 - r) + r * math.cos(a), y + sy * (h / 2 - r) + r * math.sin(a))
            for sx, sy, a0 in ((1, 1, 0), (-1, 1, 90), (-1, -1, 180), (1, -1, 270))
            for a in [math.radians(a0 + 18 * i) for i in range(6)]]


# Umrisse der befestigten Gärten, Entwurfspunkte
GÄRTEN = {
    "President": [(-14, 372), (18, 318), (54, 280), (82, 262), (112, 270), (165, 276), (214, 280), (252, 294),
                  (284, 322), (318, 352), (330, 380), (322, 404), (296, 424), (180, 436), (-20, 436)],
    "Taj Mahal": [(302, 26), (396, 26), (396, 84), (384, 104), (312, 106), (302, 96)],
    "L'Étoile": kasten_(381, 222, 136, 112, 14),
    "Royal": [(128, 172), (140, 146), (166, 136), (210, 131), (252, 142), (286, 156), (296, 184), (288, 216),
              (238, 214), (180, 210), (146, 200)],
}

def president():
    umriss = GÄRTEN["President"]
    flach([(p[0], -p[1] / TIEFE) for p in weich(umriss)], -.2, 1.0, "#a89a84", .3)
    innen = [(x + (150 - x) * .035, y + (365 - y) * .05) for x, y in umriss]
    flach([(p[0], -p[1] / TIEFE) for p in weich(innen)], -.2, 1.25, platten("#cfc5b4", 10, .34), .2)
    with am_brett(150, 338):
        for r, s in ((40, "#b9a88e"), (36, "#ddd5c6"), (26, "#c7b08e"), (23, "#ddd5c6")):
            zylinder(0, 0, 1.0 + (44 - r) * .004, r, .1, platten(s, 9, .10) if s == "#ddd5c6" else s, rund=0, seiten=72)
        n = 8
        for i in range(n):
            with bei(drehung=360 / n * i):
                prisma([(0, 0), (-4, 9), (0, 22), (4, 9)], 1.2, .06, "#8f7a63" if i % 2 else "#b9966a", 0)
    for x, y in ((92, 282), (128, 288), (176, 290), (214, 292), (250, 306), (268, 322)):
        with am_brett(x, y):
            drehkörper(0, 0, 1, [(2.2, 0), (2.8, 2.6), (3.1, 3), (2.4, 3)], "#d8cdbb", 16)
            kugel(0, 0, 5.4, 3.0, laub("#4c8a40"))
    for x, y in ((52, 296), (30, 326), (283, 331), (310, 368), (318, 392)):
        with am_brett(x, y):
            laterne(0, 0, 1, 10)
    for x, y, drehung in ((104, 276, 8), (152, 283, 4), (196, 288, 5), (234, 300, -20), (58, 282, 35)):
        with am_brett(x, y, drehung=drehung):
            quader(0, 0, .9, 16, 6, 1.2, "#a89a84", .3)
            blumenbeet(0, 0, 14, 4, ("rot", "gelb", "weiß"), .5, 1.6)
    with am_brett(206, 376):
        brunnen(0, 0, 1, 8, "#ddd5c6")


def waikiki():
    for x, y, m in ((64, 126, .75), (100, 66, .9), (130, 36, .95), (172, 18, .9), (232, 12, .85), (268, 26, .9),
                    (274, 62, .8), (268, 46, .7), (252, 8, .7), (94, 88, .8), (182, 70, .8)):
        with am_brett(x, y):
            palme(0, 0, maß=m)
    for nr, (x, y) in enumerate(((118, 92), (146, 74), (205, 66), (168, 66))):
        with am_brett(x, y):
            schirm(0, 0, farben=(("rot", "weiß"), ("blau", "weiß"), ("gelb", "weiß"))[nr % 3])
            liege(5, 0, drehung=-20, tuch=("türkis", "orange")[nr % 2])


def taj():
    flach(GÄRTEN["Taj Mahal"], 0, .7, "#b8ad9a", .3)
    flach([(305, 24), (393, 24), (393, 83), (382, 101.5), (313, 103.5), (305, 95)], 0, .9, platten("#dcd4c6", 7, .14),
          .2)
    with am_brett(352, 93):
        becken([(-5, -13), (5, -13), (5, 12), (-5, 12)], .8, "#ffffff", 1.6)
    with am_brett(352, 44):
        becken([(-5, -24), (5, -24), (5, 34), (-5, 34)], .8, "#ffffff", 1.6)
        for s in (-1, 1):
            prisma([(s * 10, -24), (s * 16, -24), (s * 16, 34), (s * 10, 34)], .7, .5, gras("#7fb04e"), .2)
            for y in (-18, -6, 6, 18, 30):
                zypresse(s * 13, y, 1, .55)
    for x, y in ((316, 97), (384, 92)):
        with am_brett(x, y):
            blumenbeet(0, 0, 12, 6, ("rosa", "weiß", "rot"), z=.8)


def boomerang():
    for x, y, m in ((548, 384, .9), (538, 398, .75), (700, 318, .9), (724, 306, .8), (664, 354, .8), (626, 398, .7),
                    (736, 318, .9), (570, 370, .7), (612, 364, .75), (648, 362, .8), (716, 402, .8)):
        with am_brett(x, y):
            eukalyptus(0, 0, maß=m)
    for x, y in ((560, 398), (618, 372), (650, 404), (690, 336), (600, 368)):
        with am_brett(x, y):
            steine(0, 0, 5, 6, 1.3, "#b8643f")
            grasbüschel(5, 2, farbe="#b9a14e")
    with am_brett(684, 372):                    # ein Wurfholz aus Sand im roten Boden
        bogen = [(r * math.cos(math.radians(a)), r * math.sin(math.radians(a)) - 12) for r, von,
                 bis in ((22, 30, 150), (15, 150, 30))
                 for a in [von + (bis - von) * i / 12 for i in range(13)]]
        prisma(bogen, .1, .3, stoff("#e8c48a", rau=.8), .1)


def safari():
    for x, y, m in ((590, 22, .8), (690, 24, .8), (686, 58, .8), (578, 76, .65), (612, 10, .7)):
        with am_brett(x, y):
            schirmakazie(0, 0, maß=m)
    for x, y in ((596, 40), (660, 96), (650, 20), (690, 78), (606, 90), (630, 60)):
        with am_brett(x, y):
            grasbüschel(0, 0, maß=1.3, farbe="#c9ae56")
            grasbüschel(4, 3, farbe="#b99b48")
    with am_brett(612, 62):
        umriss = glätten([(-9, 0), (-3, 6), (6, 5), (10, -1), (3, -6), (-6, -5)])
        prisma(umriss, .05, .3, "#9c8352", .2)
        prisma([(x * .85, y * .82) for x, y, *_ in umriss], .1, .4, wasser("#4aa6b0"), 0)
        steine(-10, 4, 4, 4, 1.6, "#b9a487")
    with am_brett(648, 76):
        steine(0, 0, 5, 5, 2.0, "#b39a78")


def fuji():
    gelände.schneeberg(488, 200, 31, 49)
    for x, y, m in ((506, 150, .8), (458, 232, .8), (470, 250, .85), (632, 222, .7), (488, 258, .7), (512, 172, .7),
                    (640, 262, .55)):
        with am_brett(x, y):
            ahorn(0, 0, maß=m, farbe=("#b8452c", "#cc6b2c", "#a93a34")[int(x) % 3])
    with am_brett(560, 240):
        umriss = glätten([(-26, -8), (-22, 12), (-4, 20), (16, 16), (28, 2), (16, -16), (-8, -18)])
        prisma(umriss, .0, .5, stein("#a8a08f"), .2)
        prisma([(x * .95, y * .93) for x, y, *_ in umriss], .0, .6, stoff("#e6dec9", rau=.9, korn=.5, kornmaß=1.5), .1)
        for r in range(4, 20, 3):
            rohr([(r * 1.1 * math.cos(a) - 6, r * .8 * math.sin(a) + 2, .62)
                  for a in [i * math.pi / 24 for i in range(48)]],
                 .28, "#d3c8ac", zu=True)
        kugel(-6, 2, .8, 3.2, stein("#8f8d86"), (1.2, .9, .8))
        kugel(8, -3, .6, 2.2, stein("#8f8d86"), (1, 1.1, .7))
    for nr, (x, y) in enumerate(((532, 196), (548, 208), (524, 214), (600, 222), (612, 236), (516, 244), (540, 270),
                                 (600, 252), (574, 205))):
        with am_brett(x, y):
            kugel(0, 0, -.6, 4.2 - nr % 3, laub(("#6b9a35", "#86a63c", "#577f38")[nr % 3]), (1.3, 1.1, .55))
            steine(6, -2, 3, 3, 1.3, "#93928a")
    for x, y in ((596, 268), (522, 262)):
        with am_brett(x, y):                    # Steinlaterne
            zylinder(0, 0, 0, 1.1, 3.2, "stein", oben=.8)
            quader(0, 0, 3.2, 2.4, 2.4, 2, stoff("#f1e1ae", leuchten=.2), .2)
            walmdach(0, 0, 5.2, 2.6, 2.6, 1.6, stein("#8d8b85"), über=1, first=0)


def étoile():
    flach(GÄRTEN["L'Étoile"], .0, .45, stoff("#e6d5ae", rau=.9, fleck=.06, korn=.5, kornmaß=2), .2)
    for x, b in ((346, 58), (418, 58)):
        for y, h in ((190, 34), (246, 44)):
            flach(kasten_(x, y, b, h, 5), .0, .9, gras("#7cb24a"), .3)
            with am_brett(x, y):
                w, t = b / 2 - 3.5, (h / 2 - 3) * TIEFE
                hecke([(-w, -t), (w, -t), (w, t), (-w, t), (-w, -t)], 1.6, 1.6, z=.8)
                for s in (-1, 1):
                    blumenbeet(s * w * .45, 0, w * .5, t * .9, ("rot", "weiß", "gelb") if y < 220
                               else ("rosa", "weiß", "lila"), .30, .8)
    with am_brett(382, 216):
        zylinder(0, 0, .3, 15, .3, "#f0e4c6", seiten=48)
        brunnen(0, 0, .5, 9)
    for x, y in ((314, 168), (450, 168), (314, 262), (450, 240), (382, 172), (348, 162), (416, 162)):
        with am_brett(x, y):
            kugel(0, 0, 4.2, 2.6, laub("#3f7d3d"))
            drehkörper(0, 0, 0, [(1.9, 0), (2.3, 2.2), (1.8, 2.2)], "#e8dcc6", 14)


def royal():
    umriss = GÄRTEN["Royal"]
    flach([(p[0], -p[1] / TIEFE) for p in weich(umriss)], -.1, .6, stoff("#e8dab4", rau=.9, korn=.4, kornmaß=2), .2)
    innen = weich([(x + (212 - x) * .055, y + (174 - y) * .09) for x, y in umriss])
    flach([(p[0], -p[1] / TIEFE) for p in innen], -.1, .85,
          stoff("#74ad48", rau=.9, muster=("brett", 4000, 11, .34), musterhub=.05, korn=.5, kornmaß=1.6), .2)
    with am_brett(212, 176):
        band([(0, -50), (0, 46)], 12, stoff("#ecdfbf", rau=.9, korn=.4, kornmaß=2), .1, .8, rund=.1)
        zylinder(0, 0, .1, 15, .85, stoff("#ecdfbf", rau=.9, korn=.4, kornmaß=2), seiten=48)
        brunnen(0, 0, .8, 7.5)
        for s in (-1, 1):
            hecke([(s * 10, -44), (s * 10, -18)], 2.4, 2.2, z=.7)
            hecke([(s * 10, 18), (s * 10, 40)], 2.4, 2.2, z=.7)
            for y in (-32, 30):
                blumenbeet(s * 26, y, 22, 8, ("rot", "gelb", "weiß"), .35, .7)
    for x, y, m in ((140, 184, .7), (146, 156, .7), (284, 170, .7), (172, 142, .65), (252, 148, .65), (160, 200, .6),
                    (240, 208, .6)):
        with am_brett(x, y):
            kugelbaum(0, 0, .6, m, "#5c9c40")


ALLE = (president, waikiki, taj, boomerang, safari, fuji, étoile, royal)
