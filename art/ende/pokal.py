"""Zwei Szenen für das Ende des Spiels: der Pokal und der leere Koffer.

Aufruf: blender -b -P szenen.py -- [pokal] [pleite] [proben=160] [mass=1.0] [ziel=Ordner]
"""
import math
import os
import random
import subprocess
import sys

HIER = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [HIER, os.path.join(HIER, "..", "modell")]
import bpy
from mathutils import Matrix, Vector
from kasten import (neu, bei, quader, prisma, zylinder, kugel, rohr, drehkörper, band, glätten, schrift, holz, stein, stoff, lack, metall, rgb, netz_aus, objekt)

FORMEN = os.path.normpath(os.path.join(HIER, "..", "..", "bilder", "formen"))
BUCHMANN = "../../opentype/urw-base35/URWBookman-Demi.otf"


def licht(ort, ziel, größe, kraft, farbe=(1, 1, 1)):
    l = bpy.data.lights.new("Licht", "AREA")
    l.size, l.energy, l.color = größe, kraft, farbe
    o = bpy.data.objects.new("Licht", l)
    o.location = ort
    o.rotation_euler = (Vector(ziel) - Vector(ort)).to_track_quat("-Z", "Y").to_euler()
    bpy.context.scene.collection.objects.link(o)


def welt(farbe, kraft, kamerafarbe=None):
    """Gleichmäßiges Umgebungslicht; die Kamera sieht auf Wunsch eine andere Farbe."""
    w = bpy.data.worlds.new("Welt")
    bpy.context.scene.world = w
    w.use_nodes = True
    k, v = w.node_tree.nodes, w.node_tree.links
    k["Background"].inputs[0].default_value, k["Background"].inputs[1].default_value = (*rgb(farbe), 1), kraft
    if kamerafarbe:
        b, m, p = k.new("ShaderNodeBackground"), k.new("ShaderNodeMixShader"), k.new("ShaderNodeLightPath")
        b.inputs[0].default_value = (*rgb(kamerafarbe), 1)
        v.new(p.outputs["Is Camera Ray"], m.inputs[0])
        v.new(k["Background"].outputs[0], m.inputs[1])
        v.new(b.outputs[0], m.inputs[2])
        v.new(m.outputs[0], k["World Output"].inputs[0])


def malen(breite, höhe, wahl, name):
    s = bpy.context.scene
    mass = float(wahl.get("mass", 1))
    s.cycles.samples = int(wahl.get("proben", 160))
    s.render.resolution_x, s.render.resolution_y = round(breite * mass), round(höhe * mass)
    s.render.image_settings.file_format, s.render.image_settings.color_mode = "PNG", "RGB"
    s.render.filepath = os.path.join(wahl.get("ziel", "/tmp"), name)
    bpy.ops.render.render(write_still=True)
    return s.render.filepath


# --- Pokal -----------------------------------------------------------------------------------------------------------------
PUNKT = 200            # Bildpunkte je Einheit
SCHALE = (880, 660)    # hier liegt der Ursprung im Bild: die Mitte der Schale


def pokal(wahl):
    """Der Pokal auf der Bühne, rechts der Rahmen für das Bild des Siegers, unten die Tafel für seinen Namen."""
    neu(2)
    bpy.data.objects.remove(bpy.data.objects["Sonne"])
    welt("#8a7658", .75, "#050406")
    k = bpy.context.scene.camera
    k.data.ortho_scale = 2004 / PUNKT
    k.location = ((1002 - SCHALE[0]) / PUNKT, -30, (SCHALE[1] - 938.5) / PUNKT + 3.89)
    k.rotation_euler = (math.radians(82), 0, 0)
    gold = metall("#f2b63a", .20)
    alt = metall("#b97f22", .35)

    # Vorhang und Boden
    n, m, p = 160, 2, []
    for i in range(n):
        x = -9 + 18 * i / (n - 1)
        y = 4.2 + .28 * math.sin(x * 4.1) + .12 * math.sin(x * 9.3 + 1)
        p += [(x, y, -6.5), (x, y + .1 * math.sin(x * 3), 8)]
    f = [(2 * i, 2 * i + 2, 2 * i + 3, 2 * i + 1) for i in range(n - 1)]
    objekt("Vorhang", netz_aus(p, f), stoff("#7d1420", rau=.75, glanz=.25, fleck=.05), Matrix.Identity(4), glatt=True)
    zylinder(0, .2, -5.5, 6.4, .6, stoff("#3a1a12", rau=.4, glanz=.4, fleck=.1), rund=.1, seiten=96)
    zylinder(0, .2, -4.92, 6.0, .06, stoff("#571a1e", rau=.8), rund=0, seiten=96)

    # Sockel und Pokal
    quader(0, .2, -4.86, 2.9, 2.3, .35, holz("#4a2814"), .08)
    quader(0, .2, -4.51, 2.4, 1.9, 1.0, stoff("#1f2a44", rau=.25, glanz=.5, fleck=.05), .08)
    quader(0, -.77, -4.28, 1.5, .06, .52, gold, .03)
    profil = [(1.15, -3.5), (1.15, -3.38), (.95, -3.28), (.45, -3.05), (.26, -2.75), (.24, -2.62), (.44, -2.48), (.5, -2.36), (.42, -2.24), (.26, -2.12), (.28, -2.0),
              (.62, -1.86), (1.15, -1.62), (1.62, -1.22), (1.92, -.62), (2.04, .2), (2.08, 1.0), (2.14, 1.55), (2.30, 1.86), (2.36, 1.92), (2.32, 1.97), (2.2, 1.92), (2.0, 1.4), (1.7, .2), (.2, -1.2)]
    drehkörper(0, .2, 0, profil, gold, 96)
    for z, r, d in ((1.58, 2.17, .06), (-1.36, 1.52, .05), (-3.42, 1.17, .05)):
        rohr([(r * math.cos(a), .2 + r * math.sin(a), z) for a in [i * math.pi / 48 for i in range(96)]], d, alt, zu=True)
    for s in (-1, 1):
        rohr(glätten([(s * 2.05, .2, 1.2), (s * 2.8, .2, 1.55), (s * 3.25, .2, .8), (s * 2.95, .2, -.15), (s * 2.2, .2, -.7), (s * 1.85, .2, -.85)], 10, zu=False), .17, gold, seiten=24)
        kugel(s * 2.62, .2, 1.52, .26, gold)
    for i in range(18):                    # Buckel am unteren Rand der Schale
        a = 2 * math.pi * i / 18
        kugel(1.34 * math.cos(a), .2 + 1.34 * math.sin(a), -1.50, .16, gold)
    # Stern auf der Schale
    stern = [((1.15 if i % 2 == 0 else .48) * math.sin(math.pi * i / 5), (1.15 if i % 2 == 0 else .48) * math.cos(math.pi * i / 5)) for i in range(10)]
    o = prisma(stern, 0, .25, metall("#ffd667", .16), .07)
    o.matrix_world = Matrix.Translation((0, -1.80, .22)) @ Matrix.Rotation(math.radians(90), 4, "X")
    # Lorbeer um den Sockel
    blatt = stoff("#3f8a3a", rau=.5, glanz=.3)
    for s in (-1, 1):
        for i in range(11):
            t = i / 10
            x, z = s * (.25 + 2.05 * math.sin(t * 1.35)), -4.5 + 1.95 * t ** 1.5
            for v in (-1, 1):
                o = kugel(0, 0, 0, 1, blatt)
                o.matrix_world = Matrix.Translation((x + v * .10, -1.15 + .2 * t, z + .1)) @ Matrix.Rotation(-s * (t * 1.1 - .3) + v * .7, 4, "Y") @ Matrix.Diagonal((.10, .06, .28, 1))
    # Münzen, Bündel und Ballons
    z = random.Random(6)
    def münzen(x, y, zahl, r=.36):
        for i in range(zahl):
            zylinder(x + z.uniform(-.03, .03), y + z.uniform(-.03, .03), -4.86 + .10 * i, r, .09, metall(z.choice(("#eab83f", "#e0a833")), .3), rund=.02, seiten=40)
    for x, y, n_ in ((-2.3, -1.2, 9), (-2.95, -.9, 12), (-2.75, -1.9, 4), (2.35, -1.3, 7), (3.0, -.7, 9), (-3.7, -1.4, 5), (3.3, -1.7, 3)):
        münzen(x, y, n_)
    for x, y, w, n_, f_ in ((-3.9, .2, 12, 5, "#4aa39b"), (-3.6, 1.2, -8, 8, "#c1699d"), (4.2, .6, -12, 4, "#d9913f")):
        for i in range(n_):
            with bei(x + z.uniform(-.05, .05), y, -4.86 + .21 * i, w + z.uniform(-4, 4)):
                quader(0, 0, 0, 1.55, .85, .19, stoff(f_, rau=.7), .03)
                quader(0, 0, -.01, .3, .87, .21, stoff("#fbf3e2", rau=.7), .02)
    for x, h, r, f_ in ((-3.55, 1.9, .62, "#2f6fc0"), (-2.9, 2.6, .58, "#f2b92c"), (-3.95, 2.75, .54, "#c8392f"), (3.7, 1.0, .66, "#e58a9a"), (4.45, 1.75, .62, "#3fb5ad"), (3.55, 2.35, .60, "#f2b92c"), (4.5, .35, .52, "#c8392f")):
        drehkörper(x, 1.2, h, [(.02, -1.18 * r), (.10 * r, -1.12 * r), (.05 * r, -1.04 * r)] + [(r * math.sin(a) * (1 - .10 * math.cos(a) * (math.cos(a) < 0) * -1), -r * 1.08 * math.cos(a)) for a in [math.pi * i / 24 for i in range(1, 24)]] + [(.01, r * 1.08)], stoff(f_, rau=.18, glanz=.6, fleck=.02), 40)
        fuß = -3.75 if x < 0 else 4.2
        rohr(glätten([(x, 1.2, h - 1.15 * r), (x * .9 + fuß * .1 + .15, 1.2, h - 2.4), (fuß, 1.2, -3.2)], 8, zu=False), .018, stoff("#e9dcc0"))
    for _ in range(150):
        x, y, h = z.uniform(-5.4, 4.2), z.uniform(-1, 3), z.uniform(-3.5, 5.2)
        if abs(x) < 2.7 and h < 2.2 and y < 1.6:
            continue
        q = quader(0, 0, 0, .13, .09, .012, stoff(z.choice(("#f2b92c", "#c8392f", "#2f6fc0", "#3f9a4a", "#e58a9a", "#fbf3e2")), rau=.5), 0)
        q.matrix_world = Matrix.Translation((x, y, h)) @ Matrix.Rotation(z.uniform(0, 3), 4, "X") @ Matrix.Rotation(z.uniform(0, 3), 4, "Y")
    licht((-6, -9, 8), (0, 0, -.5), 3, 2900, (1, .90, .74))
    licht((7, -7, 2), (0, 0, -1), 4, 1000, (.9, .92, 1))
    licht((4, 3.0, 7), (0, 0, 0), 2, 800, (1, .85, .6))
    licht((-7, 1, 0), (0, 0, 0), 2, 450, (1, .7, .5))
    roh = malen(2004, 1877, wahl, "pokal.roh.png")
    siegerbühne(roh, wahl.get("ziel", os.path.join(FORMEN, "gewinn")))


def siegerbühne(roh, ziel):
    """Hängt den goldenen Rahmen an Kordeln in das Bild und stellt die Namenstafel davor; zum Rand wird es schwarz wie die Form."""
    from dialoge import holz, papier, grunddefs, nagel
    from stift import svg, verlauf
    b, h = 2004, 1877
    x, y, w, k = 1600, 1040, 376, 400      # das Bild des Siegers
    kordel = "".join(f'<path d="M{x + v * w} {y - 22}V0" stroke="#5a3a10" stroke-width="11"/><path d="M{x + v * w} {y - 22}V0" stroke="#e9b744" stroke-width="8" stroke-dasharray="9 5"/>' for v in (.2, .8))
    rahmen_ = (f'<g filter="url(#schattengroß)">{kordel}<rect x="{x - 24}" y="{y - 24}" width="{w + 48}" height="{k + 48}" rx="14" fill="#8c5e1c"/></g><g filter="url(#prägung)">'
               f'<path d="M{x - 24} {y - 24}H{x + w + 24}V{y + k + 24}H{x - 24}ZM{x} {y}V{y + k}H{x + w}V{y}Z" fill="url(#gold)" fill-rule="evenodd"/></g><rect x="{x}" y="{y}" width="{w}" height="{k}" fill="#1a1224"/>')
    tafel = (f'<g filter="url(#schattengroß)"><rect x="536" y="1592" width="892" height="168" rx="20" fill="#5c3419"/></g><g transform="translate(536 1592)"><clipPath id="t"><rect width="892" height="168" rx="20"/></clipPath>'
             f'<g clip-path="url(#t)">{holz(892, 168)}</g>{papier(18, 16, 856, 136, 12, zierlinie=False)}</g>' + nagel(546, 1676, 6) + nagel(1418, 1676, 6))
    rand = "".join(f'<rect x="{x0}" y="{y0}" width="{w0}" height="{h0}" fill="url(#{n})"/>' for n, x0, y0, w0, h0 in (("vl", 0, 0, 200, h), ("vr", b - 200, 0, 200, h), ("vo", 0, 0, b, 160), ("vu", 0, h - 160, b, 160)))
    os.makedirs(ziel, exist_ok=True)
    quelle = os.path.join(os.path.dirname(roh), "pokal.svg")
    with open(quelle, "w", encoding="utf-8") as f:
        f.write(svg(b, h, f'''<image width="{b}" height="{h}" preserveAspectRatio="none" xlink:href="file://{roh}"/>
{rand}{rahmen_}{tafel}''',
                    grunddefs() + "".join(verlauf(n, [(0, "#000"), (.35, "#000", .72), (1, "#000", 0)], *v) for n, v in (("vl", (0, 0, 1, 0)), ("vr", (1, 0, 0, 0)), ("vo", (0, 0, 0, 1)), ("vu", (0, 1, 0, 0))))))
    subprocess.run(["rsvg-convert", "--unlimited", "-o", quelle + ".png", quelle], check=True)
    subprocess.run(["convert", quelle + ".png", "-background", "black", "-flatten", "-strip", "-quality", "90", os.path.join(ziel, "picture1.jpg")], check=True)


# --- Pleite -----------------------------------------------------------------------------------------------------------------
def koffer(farbe, futter):
    """Aufgeklappter Koffer: Schale, Deckel dahinter, leeres Futter."""
    leder, innen, messing = stoff(farbe, rau=.6, glanz=.35, fleck=.15, fleckmass=.3, korn=.25, kornmass=3), stoff(futter, rau=.9, glanz=.1, fleck=.1, fleckmass=.5), metall("#c99a45", .35)
    b, t, h = 12, 7.5, 3.2
    quader(0, 0, 0, b, t, .4, leder, .18)
    for y in (-1, 1):
        quader(0, y * (t / 2 - .2), .1, b, .45, h, leder, .2)
    for x in (-1, 1):
        quader(x * (b / 2 - .2), 0, .1, .45, t, h, leder, .2)
    quader(0, 0, .4, b - .9, t - .9, .1, innen, .05)
    for x in (-1, 1):
        for y in (-1, 1):
            kugel(x * (b / 2 - .25), y * (t / 2 - .25), .5, .75, messing, (1, 1, .9))
            kugel(x * (b / 2 - .25), y * (t / 2 - .25), h - .25, .6, messing, (1, 1, .7))
        quader(x * 3.3, -t / 2 - .1, h - 1.1, 1.0, .3, 1.1, messing, .1)
    rohr(glätten([(-1.6, -t / 2 - .2, h - 1.6), (-1.5, -t / 2 - .9, h - 1.9), (0, -t / 2 - 1.05, h - 2.0), (1.5, -t / 2 - .9, h - 1.9), (1.6, -t / 2 - .2, h - 1.6)], 6, zu=False), .24, stoff("#4a2814", rau=.6))
    for x, y, w, f, g in ((-4.2, -t / 2 - .04, 8, "#e9d8a6", "#c8392f"), (-2.6, -t / 2 - .05, -10, "#9fd0e0", "#2f6fc0"), (4.6, -t / 2 - .04, 6, "#f2c26a", "#3f9a4a")):
        o = zylinder(0, 0, 0, .78, .08, stoff(f, rau=.6), rund=.02, seiten=32)
        o.matrix_world = o.matrix_world @ Matrix.Translation((x, y, 1.5)) @ Matrix.Rotation(math.radians(90), 4, "X")
        o = zylinder(0, 0, 0, .48, .1, stoff(g, rau=.6), rund=.02, seiten=5)
        o.matrix_world = o.matrix_world @ Matrix.Translation((x, y, 1.5)) @ Matrix.Rotation(math.radians(90), 4, "X")
    with bei(0, t / 2 + .2, h):            # Deckel, nach hinten gelehnt
        alle = [quader(0, .2, 0, b, .4, t, leder, .18), quader(0, -.05, .45, b - .9, .15, t - .9, innen, .05)]
        for x in (-1, 1):
            alle.append(quader(x * (b / 2 - .2), -.7, 0, .45, 1.6, t, leder, .2))
        alle.append(quader(0, -.7, t - .4, b, 1.6, .45, leder, .2))
        for x in (-2.6, 2.6):
            alle.append(quader(x, -.2, .5, .55, .12, t - 1, stoff("#8a5a32", rau=.6), .05))
        drehpunkt = Matrix.Translation((0, t / 2 + .2, h))
        for o in alle:
            rahmen = bpy.context.view_layer
            rahmen.update()
            o.matrix_world = RAHMEN @ drehpunkt @ Matrix.Rotation(math.radians(-16), 4, "X") @ drehpunkt.inverted() @ RAHMEN.inverted() @ o.matrix_world
    # Flicken
    quader(2.0, -t / 2 - .05, .7, 1.7, .15, 1.3, stoff("#6a7f9a", rau=.9, fleck=.2, fleckmass=1), .06)


RAHMEN = Matrix.Identity(4)


def pleite(wahl):
    """Leerer Koffer, umgestülpte Börse, eine Krabbe mit der letzten Münze, eine Regenwolke an Fäden."""
    global RAHMEN
    neu(3)
    sonne = bpy.data.objects["Sonne"]
    sonne.data.energy, sonne.data.color = 2.7, (1.0, .86, .70)
    sonne.rotation_euler = Vector((-.7, -.6, .62)).to_track_quat("Z", "Y").to_euler()
    welt("#aebccc", .75, "#b9c4cd")
    k = bpy.context.scene.camera
    k.data.type, k.data.lens, k.data.sensor_width = "PERSP", 60, 36
    k.location = (0, -47, 17)
    k.rotation_euler = (Vector((0, 0, 6.1)) - k.location).to_track_quat("-Z", "Y").to_euler()
    # Strand, Meer, trüber Himmel
    sand = stoff("#dcc091", rau=.95, glanz=.05, fleck=.10, fleckmass=.12, korn=.5, kornmass=1.6)
    quader(0, 0, -1, 300, 90, 1, sand, 0)
    quader(0, 345, -1.6, 1400, 620, 1, stoff("#5f93a0", rau=.12, glanz=.6, fleck=.15, fleckmass=.05, korn=.2, kornmass=.3), 0)
    band([(x, 44.5 + 1.2 * math.sin(x * .21)) for x in range(-90, 91, 3)], 1.6, stoff("#f4f4ec", rau=.6), -.6, .25)
    kugel(-150, 420, -6, 1, stoff("#8497a6", rau=1, glanz=0), (150, 60, 36))
    kugel(190, 480, -6, 1, stoff("#8f9fac", rau=1, glanz=0), (180, 60, 26))
    RAHMEN = Matrix.Translation((1.2, 1.5, 0)) @ Matrix.Rotation(math.radians(14), 4, "Z")
    with bei(1.2, 1.5, 0, 14):
        koffer("#9a5a30", "#b7404a")
        # Socke über dem Rand
        socke = stoff("#e9e2d0", rau=.95, korn=.4, kornmass=4)
        rohr(glätten([(4.2, -2.6, 1.0), (4.2, -3.3, 3.3), (4.2, -4.35, 3.2), (4.2, -4.6, 1.6), (4.1, -5.6, .8)], 6, zu=False), .55, socke, seiten=16)
        rohr(glätten([(4.2, -4.57, 2.1), (4.2, -4.6, 1.7)], 4, zu=False), .58, stoff("#c8392f", rau=.95), seiten=16)
    # Börse, umgestülpt
    with bei(-8.6, -5.0, 0, -22):
        tuch = stoff("#7d3b5c", rau=.6, glanz=.3, fleck=.08)
        kugel(0, 0, 1.35, 1, tuch, (2.4, 1.25, 1.6))
        rohr([(2.05 * math.cos(a), .55 * math.sin(a), 2.75 + .25 * math.sin(a)) for a in [i * math.pi / 20 for i in range(40)]], .20, metall("#d8ad4c", .3), zu=True)
        kugel(0, 0, 2.75, 1, stoff("#2a1018", rau=.9), (1.9, .45, .12))
        kugel(-.3, -.4, 3.25, .28, metall())
        kugel(.3, -.3, 3.25, .28, metall())
        kugel(2.3, .1, 2.3, 1, stoff("#e9d8c0", rau=.9), (.55, .35, .8))
    # Motte
    with bei(-7.2, -5.4, 6.2, 20):
        kugel(0, 0, 0, 1, stoff("#8a7a5a", rau=.9), (.16, .16, .5))
        for s in (-1, 1):
            o = kugel(0, 0, 0, 1, stoff("#d9cba4", rau=.8, fleck=.2, fleckmass=2))
            o.matrix_world = Matrix.Translation((-7.2 + s * .6, -5.4, 6.35)) @ Matrix.Rotation(s * -.5, 4, "Y") @ Matrix.Diagonal((.62, .10, .5, 1))
            rohr([(s * .05, 0, .45), (s * .3, -.05, .9)], .03, stoff("#5a4a30"))
    for i in range(7):
        kugel(-8.1 + .16 * i + .25 * math.sin(i * 1.3), -5.2, 3.9 + .28 * i, .06, stoff("#8a7a5a"))
    # Krabbe mit der letzten Münze
    with bei(8.6, -7.4, 0, 14):
        rot = stoff("#d8552f", rau=.4, glanz=.45, fleck=.08)
        kugel(0, 0, 1.05, 1, rot, (1.6, 1.05, .85))
        for s in (-1, 1):
            rohr([(s * .45, -.5, 1.6), (s * .5, -.6, 2.2)], .10, rot)
            kugel(s * .5, -.62, 2.35, .34, stoff("#fbf6ea", rau=.3))
            kugel(s * .5 - .04, -.92, 2.28, .15, stoff("#1a1210", rau=.2))
            rohr(glätten([(s * .95, -.5, 1.9 + .8), (s * .5, -.75, 2.78), (s * .25, -.7, 2.66)], 3, zu=False), .06, stoff("#7a2a14"))
            for i in range(3):
                rohr(glätten([(s * 1.1, -.2 + .45 * i, .9), (s * 2.0, -.3 + .55 * i, 1.15), (s * 2.35, -.35 + .6 * i, 0)], 4, zu=False), .16, rot)
            rohr(glätten([(s * 1.1, -.6, 1.1), (s * 1.9, -1.2, 1.3), (s * 1.6, -1.9, 1.6)], 4, zu=False), .22, rot)
            kugel(s * 1.35, -2.1, 1.75, .5, rot, (.8, 1, .9))
        rohr(glätten([(-.42, -1.05, .95), (0, -1.12, 1.1), (.42, -1.05, .95)], 4, zu=False), .07, stoff("#7a2a14"))
        o = zylinder(0, 0, 0, .95, .2, metall("#eab83f", .28), rund=.06, seiten=48)
        o.matrix_world = o.matrix_world @ Matrix.Translation((0, -2.2, 1.75)) @ Matrix.Rotation(math.radians(90), 4, "X")
        schrift("1", 0, -2.44, 1.75, 1.2, stoff("#7a4a10"), dick=.02, datei=BUCHMANN)
    # Regenwolke an Fäden
    grau = stoff("#8d98a6", rau=.95, glanz=.05, fleck=.08, fleckmass=.2)
    for x, z_, r in ((-4.4, 15.0, 1.9), (-2.2, 15.8, 2.4), (.6, 16.1, 2.7), (3.4, 15.6, 2.3), (5.4, 14.9, 1.7), (0, 14.8, 2.2), (2.6, 14.7, 1.9), (-2.4, 14.7, 1.9)):
        kugel(x, 3.5, z_, r, grau, (1.1, .8, .85))
    zf = random.Random(5)
    for i in range(22):
        x, z_ = zf.uniform(-4.6, 5.6), zf.uniform(9.2, 13.2)
        drehkörper(x, zf.uniform(1.5, 4.5), z_, [(.01, 0), (.17, .12), (.20, .26), (.12, .5), (.01, .85)], stoff("#7fb4d8", rau=.1, glanz=.8), 14)
    for x in (-2.5, 3):
        rohr([(x, 3.5, 18), (x, 3.5, 40)], .05, stoff("#e9dcc0"))
    # Wegschild und Kram
    with bei(-10.6, 6, 0, 8):
        zylinder(0, 0, 0, .4, 8.2, holz("#8a5a32"), rund=.1)
        o1 = quader(0, -.5, 5.4, 6.6, .5, 2.4, holz("#b9804a"), .2)
        schrift("Pleite", 0, -.82, 6.6, 1.8, stoff("#4a1f0c", rau=.8), dick=.03, datei=BUCHMANN)
    for x, y, r in ((12.5, 2, .9), (13.6, .8, .6), (-13.5, -3, .7), (3.5, -10.5, .5), (-3.8, -9.5, .4)):
        kugel(x, y, r * .3, r, stein("#b9b2a4"), (1.2, .9, .7))
    kugel(-2.2, -8.2, .18, 1, stoff("#f2b26a", rau=.6), (.6, .6, .25))
    for i in range(5):
        a = 2 * math.pi * i / 5
        o = kugel(0, 0, 0, 1, stoff("#f2b26a", rau=.6))
        o.matrix_world = Matrix.Translation((-2.2 + .75 * math.cos(a), -8.2 + .75 * math.sin(a), .16)) @ Matrix.Rotation(a, 4, "Z") @ Matrix.Diagonal((.75, .3, .2, 1))
    roh = malen(1468, 1176, wahl, "pleite.roh.png")
    ziel = wahl.get("ziel", os.path.join(FORMEN, "verloren"))
    rahmen(roh, ziel)


def rahmen(roh, ziel):
    """Das Bild als Foto auf dem Papier des Dialogs: oben die Zeile, unten die Knöpfe."""
    from dialoge import tafel, grunddefs
    from stift import svg
    b, h = 1584, 1596
    foto = (f'<g filter="url(#schattengroß)"><rect x="50" y="100" width="{b - 100}" height="1192" rx="6" fill="#fffdf4"/></g>'
            f'<image x="58" y="108" width="1468" height="1176" preserveAspectRatio="none" xlink:href="file://{roh}"/>'
            '<rect x="58" y="108" width="1468" height="1176" fill="none" stroke="#3a1e08" stroke-width="2" opacity=".6"/>')
    os.makedirs(ziel, exist_ok=True)
    quelle = os.path.join(os.path.dirname(roh), "pleite.svg")
    with open(quelle, "w", encoding="utf-8") as f:
        f.write(svg(b, h, tafel(b, h, 22, innen=foto, oben=7, zierlinie=False), grunddefs()))
    subprocess.run(["rsvg-convert", "--unlimited", "-o", quelle + ".png", quelle], check=True)
    subprocess.run(["convert", quelle + ".png", "-strip", "-quality", "90", os.path.join(ziel, "verloren.jpg")], check=True)


if __name__ == "__main__":
    rest = sys.argv[sys.argv.index("--") + 1:] if "--" in sys.argv else []
    wahl = dict(a.split("=") for a in rest if "=" in a)
    for szene in (pokal, pleite):
        if szene.__name__ in rest or not [a for a in rest if "=" not in a]:
            szene(wahl)
