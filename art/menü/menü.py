"""Das Menü: der Vorgarten des Hotels am Abend mit fünf Dingen zum Zeigen.

Aufruf: for s in 0 1 2 3; do blender -b -P menu.py -- --proben 64 --nur $s; done
        malt das Bild in vier Streifen; ohne --nur entsteht es in einem Zug
        python3 menu.py     setzt die Streifen zusammen und macht die leuchtende Blume shape1.png

Die Kamera blickt waagrecht und ist nach unten versetzt: alle Senkrechten bleiben senkrecht, und ein
Punkt im Abstand D liegt bei x = 396 + F * X / D, y = 230 + F * (AUGE - z) / D (Entwurfspunkte).
"""
import math
import os
import random
import subprocess
import sys

HIER = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HIER, os.path.join(HIER, "..", "modell")]
BILD = os.path.normpath(os.path.join(HIER, "..", "..", "bilder", "formen", "menu"))
BREIT, HOCH, HORIZONT, F, AUGE = 792, 600, 230, 1256, 22
STREIFEN = 4
GOTISCH = "../../opentype/urw-base35/URWGothic-Demi.otf"
BUCHMANN = "../../opentype/urw-base35/URWBookman-Demi.otf"


def stelle(px, py):
    """Boden unter dem Bildpunkt: (X, Tiefe vor der Kamera als y, Punkte je Einheit)."""
    d = F * AUGE / (py - HORIZONT)
    return (px - BREIT / 2) * d / F, d, F / d


def bauen():
    from kasten import (neu, bei, quader, prisma, zylinder, kugel, rohr, drehkörper, band, glätten, schrift, putz, holz, mauer, platten,
                        gras, stein, wasser, metall, stoff, lack, aus_bmesh, ziegel, laub as laubstoff)
    import bpy
    import bmesh
    from mathutils import Matrix, Vector
    from bauteile import (walmdach, wand, fenster, balkon, markise, säule, laterne, parkbank)
    from pflanzen import palme, busch, hecke, zypresse, blumenbeet, grasbüschel

    szene = neu(5)
    sonne = bpy.data.objects["Sonne"]
    sonne.rotation_euler = Vector((-0.80, -0.55, 0.42)).to_track_quat("Z", "Y").to_euler()
    sonne.data.energy, sonne.data.color, sonne.data.angle = 3.3, (1.0, 0.72, 0.48), math.radians(5)
    himmel(szene)
    kamera = szene.camera
    kamera.data.type, kamera.data.sensor_fit, kamera.data.sensor_width = "PERSP", "HORIZONTAL", 36
    kamera.data.lens = 36 * F / BREIT
    kamera.data.shift_y = -(HOCH / 2 - HORIZONT) / BREIT
    kamera.data.clip_end = 20000
    kamera.location, kamera.rotation_euler = (0, 0, AUGE), (math.pi / 2, 0, 0)

    def leuchte(x, y, z, kraft, farbe=(1, .72, .42), r=.8):
        l = bpy.data.lights.new("Licht", "POINT")
        l.energy, l.color, l.shadow_soft_size = kraft, farbe, r
        o = bpy.data.objects.new("Licht", l)
        o.location = (x, y, z)
        szene.collection.objects.link(o)

    # --- Boden, Meer, Ferne
    quader(0, 60, -1, 900, 420, 1, gras("#7fae4c"), 0)
    quader(0, 3230, -2, 9000, 6000, 1.2, wasser("#3f8fb0"), 0)
    for x, y, b, h, f in ((-700, 2600, 420, 95, "#7a76a4"), (-330, 3000, 380, 62, "#9484a8"), (560, 1900, 700, 90, "#5f6c94"), (900, 1500, 300, 60, "#566f8c")):
        kugel(x, y, -4, 1, stoff(f, rau=1, glanz=0, fleck=.12, fleckmass=.01), (b / 2, 90, h))
    for i in range(60):                       # Sterne
        z = random.Random(i)
        d = 9000
        kugel((z.uniform(10, 780) - 396) * d / F, d, AUGE + (HORIZONT - z.uniform(4, 120) ** 1.0) * d / F, z.uniform(3, 7.5), stoff("#fff6dc", leuchten=z.choice((1.2, 2.2))), fein=1)

    # --- Weg vom Bildrand zum Eingang
    weg = [stelle(px, py)[:2] for px, py in ((330, 660), (372, 600), (420, 545), (462, 490), (512, 438), (560, 404), (576, 392))]
    linie = glätten(weg, 10, zu=False)
    band(linie, 9.5, platten("#dcc79a", 3.2, .16), 0, .25, rund=.05)
    for s in (-1, 1):
        band(linie, .9, stein("#cbbd9f"), 0, .7, versatz=s * 5.1)

    # --- Hotel
    y0 = 171.6
    creme, ziegelrot, weiß = putz("#f3ddb0"), ziegel("#bf5a37", 1.7), putz("#fbf3e2")
    warm = stoff("#ffc46a", rau=.3, fleck=.25, fleckmass=.25, leuchten=1.15)
    kühl = stoff("#5f7ea0", rau=.1, glanz=.8)
    zf = random.Random(3)

    def scheibe():
        return warm if zf.random() < .72 else kühl

    with bei(25, y0 + 13):                    # Flügel mit dem Eingang
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
    with bei(-13.5, y0 + 10):                 # Turm
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
                    fenster(x, z, 3.6, 6.0, scheibe=scheibe(), bogen=z < 5, sprossen=(2, 2), läden=None if z < 5 else "#4f7f6a")
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
    leuchte(-13.5, y0 - 16, 37, 800, (1, .8, .5), 3)

    # --- Eingang: Treppe, Säulen, Vordach mit Schrift, Flügeltür
    with bei(24.7, y0 - .4):
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
            kugel(s * 6.2, -6.2, 3.9, 1.9, laubstoff("#4a8a3c"))
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

    # --- Mond an der Schnur, mit dem Schild zum Ausgang
    D = 150
    s = F / D
    with bei((650 - 396) / s, D, AUGE + (HORIZONT - 134) / s):
        gelb = stoff("#ffd766", rau=.55, fleck=.10, fleckmass=.5, korn=.25, leuchten=.55)
        n, R = 40, 7.4
        außen = [(R * math.cos(a), R * math.sin(a)) for a in [math.radians(52 + 256 * i / n) for i in range(n + 1)]]
        ax, ay = außen[0]
        c, r = 3.3, math.hypot(ax - 3.3, ay)
        w0 = math.atan2(ay, ax - c)
        innen = [(c + r * math.cos(a), r * math.sin(a)) for a in [2 * math.pi - w0 - (2 * math.pi - 2 * w0) * i / n for i in range(n + 1)]]
        mond = prisma(außen + innen[1:-1], -1.0, 2.0, gelb, .85)
        mond.matrix_world = mond.matrix_world @ Matrix.Identity(4)
        dreh = Matrix.Translation(mond.matrix_world.translation) @ Matrix.Rotation(math.radians(90), 4, "X") @ Matrix.Rotation(math.radians(-18), 4, "Z") @ Matrix.Translation((0, 0, -1.0))
        mond.matrix_world = dreh
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

    # --- Blume der Bestenliste
    x, y, _ = stelle(334, 478)
    with bei(x, y):
        drehkörper(0, .6, 0, [(1.7, 0), (2.4, 2.4), (2.7, 2.5), (2.7, 3.1), (2.3, 3.1), (2.2, 2.7)], putz("#bf5f3a"), 36)
        zylinder(0, .6, 2.5, 2.2, .2, stein("#5a3d26"))
        rohr(glätten([(0, .6, 2.6), (.25, .5, 3.6), (0, .3, 5.2)], 5, zu=False), .30, lack("#3f8a3a"))
        for w, l in ((25, 3.3), (155, 3.3), (60, 2.6), (118, 2.7)):
            m = laubstoff("#4a9a3f")
            o = kugel(0, 0, 0, 1, m)
            a = math.radians(w)
            o.matrix_world = o.matrix_world @ Matrix.Translation((l * .62 * math.cos(a), .2, 3.3 + l * .25)) @ Matrix.Rotation(-math.radians(14 if w < 90 else 166), 4, "Y") @ Matrix.Diagonal((l * .6, .7, .28, 1))
        for lage_, zahl, gr, farbe, vor in ((0, 9, 1.0, "#d8345a", .25), (20, 9, .76, "#ef5f86", -.12)):
            tuch = stoff(farbe, rau=.5, glanz=.3, fleck=.12, fleckmass=.6)
            for i in range(zahl):
                a = 2 * math.pi * i / zahl + math.radians(lage_)
                o = kugel(0, 0, 0, 1, tuch)
                o.matrix_world = o.matrix_world @ Matrix.Translation((2.25 * gr * math.cos(a), vor, 5.7 + 2.25 * gr * math.sin(a))) @ Matrix.Rotation(-a, 4, "Y") @ Matrix.Rotation(.35, 4, "Z") @ Matrix.Diagonal((1.75 * gr, .42, 1.0 * gr, 1))
        gold = stoff("#f6c445", rau=.25, glanz=.7, fleck=.04)
        o = zylinder(0, 0, 0, 1.75, .7, gold, rund=.25, seiten=48)
        o.matrix_world = o.matrix_world @ Matrix.Translation((0, -.2, 5.7)) @ Matrix.Rotation(math.radians(90), 4, "X")
        rohr([(1.42 * math.cos(a), -.95, 5.7 + 1.42 * math.sin(a)) for a in [i * math.pi / 24 for i in range(48)]], .09, stoff("#b9821f", rau=.3), zu=True)
        schrift("1", 0, -.92, 5.70, 2.3, stoff("#6b3208", rau=.5), dick=.05, datei=BUCHMANN)
        quader(0, -2.2, .0, .5, .5, 1.0, holz("#8a5a32"), .1)
        quader(0, -2.6, .25, 9.5, .5, 1.95, holz("#b9804a"), .25)
        quader(0, -2.75, .42, 9.0, .4, 1.6, stoff("#f2e2b8", rau=.6), .2)
        schrift("Bestenliste", 0, -3.0, 1.22, 1.50, stoff("#3f1a0a", rau=.7, glanz=.1), dick=.03, datei=GOTISCH)
        leuchte(0, -6, 8, 75, (1, .85, .6), 1.2)
        blumenbeet(-7.2, 1.5, 6.5, 3.2, ("#f2c23a", "weiß", "#e98232"), .9)
        blumenbeet(6.4, 3.0, 4.2, 3.0, ("#8a5fa8", "weiß", "#f2c23a"), .9)

    # --- Wegweiser zur Hilfe
    x, y, _ = stelle(114, 553)
    with bei(x, y):
        pfosten = holz("#8a5a32")
        zylinder(0, .3, 0, .55, 11.2, pfosten, oben=.45, seiten=20, rund=.2)
        kugel(0, .3, 11.4, .7, metall())
        quader(.1, -.35, 1.8, 9.4, .8, 2.9, holz("#b9804a"), .35)
        quader(.1, -.6, 2.05, 8.8, .7, 2.4, stoff("#f2e2b8", rau=.6), .25)
        schrift("Hilfe", .1, -1.05, 3.22, 2.6, stoff("#3f1a0a", rau=.7, glanz=.1), dick=.03, datei=GOTISCH)
        for r, h, f in ((3.35, .7, metall("#e0ac3f", .3)), (2.95, .95, stoff("#2b6fb5", rau=.4, glanz=.45))):
            o = zylinder(0, 0, 0, r, h, f, rund=.25, seiten=64)
            o.matrix_world = o.matrix_world @ Matrix.Translation((0, 0, 8.1)) @ Matrix.Rotation(math.radians(90), 4, "X")
        schrift("?", 0, -1.1, 8.1, 5.0, stoff("#fff3d0", rau=.4, leuchten=.5), dick=.2, datei=BUCHMANN)
        busch(-3.6, 1.4, mass=.62, blüten="#f2b92c")
        busch(3.4, 1.6, mass=.55, blüten="#e58a9a")
        for k in range(5):
            grasbüschel(-3 + 1.5 * k, -.6 - .3 * (k % 2), mass=.35, farbe="#6f9a3f")
        leuchte(-2, -7, 9, 110, (1, .85, .62), 1.5)

    # --- Stein mit i
    x, y, _ = stelle(586, 537)
    with bei(x, y):
        bm = bmesh.new()
        bmesh.ops.create_icosphere(bm, subdivisions=5, radius=1)
        zs = random.Random(2)
        buckel = [(Vector((zs.gauss(0, 1), zs.gauss(0, 1), zs.gauss(0, 1))).normalized(), zs.uniform(.03, .10)) for _ in range(26)]
        for v in bm.verts:
            d = v.co.normalized()
            h = sum(k * max(0, d.dot(q)) ** 6 for q, k in buckel)
            k = (abs(d.x) ** 3.4 + abs(d.z) ** 3.4 + abs(d.y) ** 3.4) ** (-1 / 3.4)
            v.co = Vector((d.x * 4.0 * k * (1 + .4 * h), d.y * 1.1 * k * (1 + h), d.z * 2.35 * k * (1 + .5 * h)))
        aus_bmesh(bm, stein("#b9b2a4"), Matrix.Translation((0, .6, 2.15)), glatt=True, name="Stein")
        quader(.0, -.62, .85, 6.7, .6, 2.9, stoff("#e8ddc6", rau=.65, fleck=.12, fleckmass=.7, korn=.2), .3)
        o = zylinder(0, 0, 0, 1.2, .5, stoff("#2b6fb5", rau=.4), rund=.15, seiten=40)
        o.matrix_world = o.matrix_world @ Matrix.Translation((-2.0, -.7, 2.3)) @ Matrix.Rotation(math.radians(90), 4, "X")
        schrift("i", -2.0, -1.26, 2.30, 2.0, stoff("#fff6dc", rau=.4, leuchten=.4), dick=.08, datei=BUCHMANN)
        schrift("Über", 1.0, -1.0, 2.28, 1.85, stoff("#3a2414", rau=.7, glanz=.1), dick=.03, datei=GOTISCH)
        for px, py, m, f in ((-5.0, .6, .5, "weiß"), (4.7, .9, .45, "#8a5fa8"), (5.9, 2.2, .6, "#f2c23a")):
            busch(px, py, mass=m, blüten=f)
        for k in range(9):
            grasbüschel(-4 + 1.0 * k, -.9 + .25 * (k % 3), mass=.30, farbe="#6f9a3f")
        leuchte(-1, -6, 6, 62, (1, .85, .62), 1.2)

    # --- Garten
    for px, py, m in ((30, 425, 1.35), (165, 405, 1.5), (772, 452, 1.45), (95, 392, 1.1)):
        x, y, _ = stelle(px, py)
        palme(x, y, mass=m)
    palme(62, y0 + 34, mass=1.5)
    palme(70, y0 + 10, mass=1.25)
    palme(-38, y0 + 30, mass=1.6)
    for px, py, f in ((225, 408, "#e58a9a"), (255, 410, None), (285, 408, "#f2b92c"), (415, 402, "#e58a9a"), (448, 404, None), (705, 404, "#f2b92c"), (738, 406, None), (770, 408, "#e58a9a"), (690, 402, None)):
        x, y, _ = stelle(px, py)
        busch(x, y, mass=1.0, blüten=f)
    for px, py in ((396, 398), (203, 402)):
        x, y, _ = stelle(px, py)
        zypresse(x, y, mass=.95)
    hecke([stelle(690, 470)[:2], stelle(800, 486)[:2]], hoch=2.6, breite=2.4)
    hecke([stelle(-20, 470)[:2], stelle(60, 462)[:2], stelle(215, 440)[:2]], hoch=2.4, breite=2.4)
    for px, py in ((238, 462), (494, 516), (468, 455), (590, 432)):
        x, y, _ = stelle(px, py)
        laterne(x, y, 0, 4.6)
    for px, py, b, f in ((250, 575, 8, ("#c8392f", "#f2c23a", "weiß")), (690, 585, 9, ("#e58a9a", "weiß", "#8a5fa8")), (650, 440, 9, ("#c8392f", "weiß", "#f2b92c"))):
        x, y, _ = stelle(px, py)
        blumenbeet(x, y, b, 3, f, .9)
    x, y, _ = stelle(712, 560)
    parkbank(*stelle(735, 545)[:2], drehung=-20)
    x, y, _ = stelle(245, 520)
    busch(x, y, mass=.8, blüten="#e58a9a")
    zg = random.Random(9)
    for _ in range(110):
        px, py = zg.uniform(0, 792), zg.uniform(430, 600)
        if 300 < px < 560 and abs(px - (372 + (600 - py) * 1.0)) < 75:
            continue
        x, y, _ = stelle(px, py)
        grasbüschel(x, y, mass=zg.uniform(.10, .22), farbe=zg.choice(("#7fa84a", "#6f9a3f", "#93b455")))
    for m in bpy.data.materials:
        m.cycles.sample_as_light = False
    return szene


def himmel(szene):
    """Abendhimmel für die Kamera, ruhiges Dämmerlicht für die Dinge."""
    import bpy
    from kasten import rgb
    w = bpy.data.worlds.new("Abend")
    szene.world = w
    w.use_nodes = True
    k, v = w.node_tree.nodes, w.node_tree.links
    k.clear()
    aus, mix, pfad, ort, teil, rampe, bild, licht = (k.new("ShaderNode" + n) for n in ("OutputWorld", "MixShader", "LightPath", "TexCoord", "SeparateXYZ", "ValToRGB", "Background", "Background"))
    e = rampe.color_ramp.elements
    e[0].position, e[0].color = 0.0, (*rgb("#ffd79a"), 1)
    e[1].position, e[1].color = 0.19, (*rgb("#2b3f7f"), 1)
    for ort_, f in ((.018, "#ffb877"), (.050, "#e58f86"), (.095, "#8d72a8"), (.145, "#4a5a9c")):
        e.new(ort_).color = (*rgb(f), 1)
    licht.inputs[0].default_value, licht.inputs[1].default_value = (.56, .60, .86, 1), .56
    v.new(ort.outputs["Generated"], teil.inputs[0])
    v.new(teil.outputs["Z"], rampe.inputs[0])
    v.new(rampe.outputs[0], bild.inputs[0])
    v.new(pfad.outputs["Is Camera Ray"], mix.inputs[0])
    v.new(licht.outputs[0], mix.inputs[1])
    v.new(bild.outputs[0], mix.inputs[2])
    v.new(mix.outputs[0], aus.inputs[0])


def rendern():
    import bpy
    from kasten import argumente
    args = argumente()
    szene = bauen()
    r = szene.render
    r.resolution_x, r.resolution_y = round(BREIT * args.fein), round(HOCH * args.fein)
    szene.cycles.samples = args.proben
    ziel = BILD if args.ziel.endswith("bilder") else args.ziel
    os.makedirs(ziel, exist_ok=True)
    name = "menu.roh.png"
    if args.nur:
        k = int(args.nur[0])
        r.use_border = r.use_crop_to_border = True
        r.border_min_x, r.border_max_x = 0, 1
        r.border_min_y, r.border_max_y = 1 - (k + 1) / STREIFEN, 1 - k / STREIFEN
        name = f"menu{k}.roh.png"
    r.filepath = os.path.join(ziel, name)
    r.image_settings.file_format, r.image_settings.color_mode = "PNG", "RGB"
    bpy.ops.render.render(write_still=True)


def fügen():
    """Streifen zu einem Bild; sie werden danach nicht mehr gebraucht."""
    teile = [os.path.join(BILD, f"menu{k}.roh.png") for k in range(STREIFEN)]
    if all(map(os.path.exists, teile)):
        subprocess.run(["convert", *teile, "-append", "-strip", "-quality", "90", os.path.join(BILD, "menu.jpg")], check=True)
        for t in teile:
            os.remove(t)


def blume():
    """Die Blume aufgehellt mit weichem Schein; passt auf die Stelle 3330, 4490 des Menüs."""
    b, h = 448, 424
    subprocess.run(["convert", os.path.join(BILD, "menu.jpg"), "-crop", f"{b}x{h}+1110+1497", "+repage", "-modulate", "120,128",
                    "(", "-size", f"{b}x{h}", "radial-gradient:rgba(255,226,130,0.38)-rgba(255,220,120,0)", ")", "-compose", "screen", "-composite",
                    "(", "-size", f"{b}x{h}", "xc:black", "-fill", "white", "-draw", f"roundrectangle 26,26 {b - 27},{h - 27} 120,120", "-blur", "0x14", ")",
                    "-alpha", "off", "-compose", "CopyOpacity", "-composite", os.path.join(BILD, "shape1.png")], check=True)


if __name__ == "__main__":
    if os.path.basename(sys.argv[0]).startswith("blender"):
        rendern()
    else:
        fügen()
        blume()
