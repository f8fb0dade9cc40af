"""Worauf man im Menü zeigt: Blume der Bestenliste, Wegweiser zur Hilfe, Stein mit i, Mond des Ausgangs."""
from kasten import *
from menü.hotel import AUGE, F, HORIZONT


def mond():
    """An der Schnur, mit dem Schild zum Ausgang."""
    D = 150
    s = F / D
    with bei((650 - 396) / s, D, AUGE + (HORIZONT - 134) / s):
        gelb = stoff("#ffd766", rau=.55, fleck=.10, fleckmaß=.5, korn=.25, leuchten=.55)
        n, R = 40, 7.4
        außen = [(R * math.cos(a), R * math.sin(a)) for a in [math.radians(52 + 256 * i / n) for i in range(n + 1)]]
        ax, ay = außen[0]
        c, r = 3.3, math.hypot(ax - 3.3, ay)
        w0 = math.atan2(ay, ax - c)
        innen = [(c + r * math.cos(a), r * math.sin(a))
                 for a in [2 * math.pi - w0 - (2 * math.pi - 2 * w0) * i / n for i in range(n + 1)]]
        lege(prisma(außen + innen[1:-1], -1.0, 2.0, gelb, .85), dreh(90, "X") @ dreh(-18, "Z") @ schub(0, 0, -1.0))
        dunkel = stoff("#7a4a1c", rau=.6)
        rohr([(-4.9, -1.25, 2.5), (-4.2, -1.35, 2.1), (-3.5, -1.25, 2.5)], .18, dunkel)             # schlafendes Auge
        rohr([(-4.3, -1.25, -1.5), (-3.6, -1.35, -2.1), (-2.6, -1.25, -1.9)], .18, dunkel)            # Mund
        kugel(-5.2, -.9, -.4, .8, stoff("#f2a266", rau=.6, leuchten=.25), (1, .4, .7))
        rohr([(0, 0, 6.8), (0, 0, 60)], .07, stoff("#d9cba8"))
        brett = holz("#b9804a")
        for x in (-3.2, 4.2):
            rohr([(x, -1.4, -5.0), (x, -1.0, -1.0 if x > 0 else -4)], .12, stoff("#e9dcb8"))
        rohr([(4.2, -1.0, -1.0), (3.0, -.3, 5.0)], .12, stoff("#e9dcb8"))
        quader(.6, -1.5, -8.0, 11.6, .9, 4.2, brett, .35)
        quader(.6, -1.75, -7.65, 10.8, .7, 3.5, stoff("#f2e2b8", rau=.6, leuchten=.22), .25)
        schrift("Ende", .6, -2.2, -5.85, 3.3, stoff("#4a1f0c", rau=.7, glanz=.1), dick=.04, datei=GOTISCH)
        for x in (-4.4, 5.6):
            kugel(x, -2.1, -5.9, .25, metall())


def blume():
    drehkörper(0, .6, 0, [(1.7, 0), (2.4, 2.4), (2.7, 2.5), (2.7, 3.1), (2.3, 3.1), (2.2, 2.7)], putz("#bf5f3a"), 36)
    zylinder(0, .6, 2.5, 2.2, .2, stein("#5a3d26"))
    rohr(glätten([(0, .6, 2.6), (.25, .5, 3.6), (0, .3, 5.2)], 5, zu=False), .30, lack("#3f8a3a"))
    for w, l in ((25, 3.3), (155, 3.3), (60, 2.6), (118, 2.7)):
        ort = schub(l * .62 * math.cos(math.radians(w)), .2, 3.3 + l * .25)
        lege(kugel(0, 0, 0, 1, laub("#4a9a3f")), ort @ dreh(-14 if w < 90 else -166, "Y")
             @ Matrix.Diagonal((l * .6, .7, .28, 1)))
    for lage_, zahl, gr, farbe, vor in ((0, 9, 1.0, "#d8345a", .25), (20, 9, .76, "#ef5f86", -.12)):
        tuch = stoff(farbe, rau=.5, glanz=.3, fleck=.12, fleckmaß=.6)
        for i in range(zahl):
            a = 2 * math.pi * i / zahl + math.radians(lage_)
            lege(kugel(0, 0, 0, 1, tuch), schub(2.25 * gr * math.cos(a), vor, 5.7 + 2.25 * gr * math.sin(a))
                 @ Matrix.Rotation(-a, 4, "Y") @ Matrix.Rotation(.35, 4, "Z")
                 @ Matrix.Diagonal((1.75 * gr, .42, 1.0 * gr, 1)))
    gold = stoff("#f6c445", rau=.25, glanz=.7, fleck=.04)
    lege(zylinder(0, 0, 0, 1.75, .7, gold, rund=.25, seiten=48), schub(0, -.2, 5.7) @ dreh(90, "X"))
    rohr([(1.42 * math.cos(a), -.95, 5.7 + 1.42 * math.sin(a)) for a in [i * math.pi / 24 for i in range(48)]], .09,
         stoff("#b9821f", rau=.3), zu=True)
    schrift("1", 0, -.92, 5.70, 2.3, stoff("#6b3208", rau=.5), dick=.05, datei=BUCHMANN)
    quader(0, -2.2, .0, .5, .5, 1.0, holz("#8a5a32"), .1)
    quader(0, -2.6, .25, 9.5, .5, 1.95, holz("#b9804a"), .25)
    quader(0, -2.75, .42, 9.0, .4, 1.6, stoff("#f2e2b8", rau=.6), .2)
    schrift("Bestenliste", 0, -3.0, 1.22, 1.50, stoff("#3f1a0a", rau=.7, glanz=.1), dick=.03, datei=GOTISCH)
    leuchte(0, -6, 8, 75, (1, .85, .6), 1.2)
    blumenbeet(-7.2, 1.5, 6.5, 3.2, ("#f2c23a", "weiß", "#e98232"), .9)
    blumenbeet(6.4, 3.0, 4.2, 3.0, ("#8a5fa8", "weiß", "#f2c23a"), .9)


def wegweiser():
    pfosten = holz("#8a5a32")
    zylinder(0, .3, 0, .55, 11.2, pfosten, oben=.45, seiten=20, rund=.2)
    kugel(0, .3, 11.4, .7, metall())
    quader(.1, -.35, 1.8, 9.4, .8, 2.9, holz("#b9804a"), .35)
    quader(.1, -.6, 2.05, 8.8, .7, 2.4, stoff("#f2e2b8", rau=.6), .25)
    schrift("Hilfe", .1, -1.05, 3.22, 2.6, stoff("#3f1a0a", rau=.7, glanz=.1), dick=.03, datei=GOTISCH)
    for r, h, f in ((3.35, .7, metall("#e0ac3f", .3)), (2.95, .95, stoff("#2b6fb5", rau=.4, glanz=.45))):
        lege(zylinder(0, 0, 0, r, h, f, rund=.25, seiten=64), schub(0, 0, 8.1) @ dreh(90, "X"))
    schrift("?", 0, -1.1, 8.1, 5.0, stoff("#fff3d0", rau=.4, leuchten=.5), dick=.2, datei=BUCHMANN)
    busch(-3.6, 1.4, maß=.62, blüten="#f2b92c")
    busch(3.4, 1.6, maß=.55, blüten="#e58a9a")
    for k in range(5):
        grasbüschel(-3 + 1.5 * k, -.6 - .3 * (k % 2), maß=.35, farbe="#6f9a3f")
    leuchte(-2, -7, 9, 110, (1, .85, .62), 1.5)


def merkstein():
    """Der Stein mit dem i: Über das Spiel."""
    bm = bmesh.new()
    bmesh.ops.create_icosphere(bm, subdivisions=5, radius=1)
    zs = random.Random(2)
    buckel = [(Vector((zs.gauss(0, 1), zs.gauss(0, 1), zs.gauss(0, 1))).normalized(), zs.uniform(.03, .10))
              for _ in range(26)]
    for v in bm.verts:
        d = v.co.normalized()
        h = sum(k * max(0, d.dot(q)) ** 6 for q, k in buckel)
        k = (abs(d.x) ** 3.4 + abs(d.z) ** 3.4 + abs(d.y) ** 3.4) ** (-1 / 3.4)
        v.co = Vector((d.x * 4.0 * k * (1 + .4 * h), d.y * 1.1 * k * (1 + h), d.z * 2.35 * k * (1 + .5 * h)))
    aus_bmesh(bm, stein("#b9b2a4"), schub(0, .6, 2.15), glatt=True, name="Stein")
    quader(.0, -.62, .85, 6.7, .6, 2.9, stoff("#e8ddc6", rau=.65, fleck=.12, fleckmaß=.7, korn=.2), .3)
    lege(zylinder(0, 0, 0, 1.2, .5, stoff("#2b6fb5", rau=.4), rund=.15, seiten=40), schub(-2.0, -.7, 2.3)
         @ dreh(90, "X"))
    schrift("i", -2.0, -1.26, 2.30, 2.0, stoff("#fff6dc", rau=.4, leuchten=.4), dick=.08, datei=BUCHMANN)
    schrift("Über", 1.0, -1.0, 2.28, 1.85, stoff("#3a2414", rau=.7, glanz=.1), dick=.03, datei=GOTISCH)
    for px, py, m, f in ((-5.0, .6, .5, "weiß"), (4.7, .9, .45, "#8a5fa8"), (5.9, 2.2, .6, "#f2c23a")):
        busch(px, py, maß=m, blüten=f)
    for k in range(9):
        grasbüschel(-4 + 1.0 * k, -.9 + .25 * (k % 3), maß=.30, farbe="#6f9a3f")
    leuchte(-1, -6, 6, 62, (1, .85, .62), 1.2)
