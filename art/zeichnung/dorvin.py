"""Dorvin: der runde Kopf des Pagen als Bild aus dem Modell, Augen und Mund als eigene Teile.

Aufruf: blender -b -P dorvin.py -- [proben=200]   malt Kopf und Schnurrbart
        python3 dorvin.py                          zeichnet Pupillen und Mund und stellt eine Probe nach /tmp
"""
import math
import os
import subprocess
import sys

HIER = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HIER)
ORDNER = os.path.normpath(os.path.join(HIER, "..", "..", "bilder", "formen", "assistent"))
PUNKT = 150           # Bildpunkte je Einheit des Modells; (536, 180) des Bildes ist die Mitte des Kopfes
MITTE = (536, 180)


def modell(proben):
    import bpy
    import numpy as np
    from mathutils import Vector
    from koepfe import leeren, stoff, kugel, schlauch, drehkoerper, netz, gitter, linear

    def ort(x, y):
        return (x - MITTE[0]) / PUNKT, (MITTE[1] - y) / PUNKT

    def buehne(breite, hoehe, cx, cy):
        s = bpy.context.scene
        s.render.engine = "CYCLES"
        s.cycles.samples, s.cycles.use_denoising = proben, False
        s.cycles.max_bounces, s.cycles.diffuse_bounces = 4, 2
        s.render.film_transparent = True
        s.render.resolution_x, s.render.resolution_y = breite, hoehe
        s.view_settings.view_transform, s.view_settings.look = "Filmic", "High Contrast"
        s.view_settings.exposure = 0.45
        w = s.world = bpy.data.worlds.new("welt")
        w.use_nodes = True
        w.node_tree.nodes["Background"].inputs[0].default_value = (0.66, 0.72, 0.84, 1)
        w.node_tree.nodes["Background"].inputs[1].default_value = 0.35
        for wo, groesse, kraft, farbe in (((-3.2, -4.2, 3.8), 2.0, 430, (1, .91, .78)), ((3.8, -3.4, -0.4), 3.5, 120, (1, .86, .76)), ((2.8, 2.6, 3), 2, 260, (1, .86, .66))):
            l = bpy.data.lights.new("licht", "AREA")
            l.size, l.energy, l.color = groesse, kraft, farbe
            o = bpy.data.objects.new("licht", l)
            s.collection.objects.link(o)
            o.location = wo
            o.rotation_euler = (-Vector(wo)).to_track_quat("-Z", "Y").to_euler()
        c = bpy.data.cameras.new("kamera")
        c.type, c.ortho_scale = "ORTHO", max(breite, hoehe) / PUNKT
        k = bpy.data.objects.new("kamera", c)
        s.collection.objects.link(k)
        k.location, k.rotation_euler = (cx, -8, cy), (math.pi / 2, 0, 0)
        s.camera = k

    def malen(name):
        bpy.context.scene.render.filepath = os.path.join(ORDNER, name)
        bpy.ops.render.render(write_still=True)

    # Kopf
    leeren()
    haut = stoff("haut", "#eeb083", 0.45, 0.4, attribut="ton")
    n, p, ton = 96, [], []
    grund, rosig = np.array(linear("#f3a473")), np.array(linear("#e65a4e"))
    for i in range(2 * n):
        a = 2 * math.pi * i / (2 * n)
        for j in range(n + 1):
            b = math.pi * j / n
            d = Vector((math.sin(b) * math.cos(a), math.sin(b) * math.sin(a), -math.cos(b)))
            q = d * 1.04
            if d.y < 0:
                for s in (-1, 1):
                    wx = -0.12 + s * 0.62
                    g = math.exp(-((q.x - wx) / 0.30) ** 2 - ((q.z + 0.30) / 0.26) ** 2)
                    q = q + d * 0.10 * g
                h = math.exp(-((q.x + 0.12) / 0.42) ** 2 - ((q.z + 0.80) / 0.16) ** 2)
                q = q + d * 0.05 * h
            r = sum(math.exp(-((q.x + 0.12 - s * 0.68) / 0.20) ** 2 - ((q.z + 0.34) / 0.17) ** 2) for s in (-1, 1)) * 0.62 * (d.y < 0)
            p.append(q)
            ton.append((*(grund * (1 - r) + rosig * r), 1))
    o = netz("kopf", p, gitter(2 * n, n + 1, zu_u=True), haut)
    o.data.color_attributes.new("ton", "FLOAT_COLOR", "POINT").data.foreach_set("color", np.array(ton).ravel())
    weiss = stoff("weiss", "#fbf7ee", 0.22, 0.5)
    lid = stoff("lid", "#ec9463", 0.45, 0.4)
    braue = stoff("braue", "#6d3518", 0.55, 0.3)
    for x in (461, 577):
        ex, ez = ort(x, 150)
        y = -math.sqrt(max(0, 1.04 ** 2 - ex * ex - ez * ez))
        kugel("auge", 0.365, (ex, y + 0.02, ez), weiss, mass=(1.02, 0.42, 0.94), n=48)
        # Lidrand: weicher Wulst um das Auge
        ring = [(ex + 0.375 * 1.02 * math.cos(a), y + 0.0 + 0.02, ez + 0.375 * 0.94 * math.sin(a)) for a in np.linspace(0, 2 * math.pi, 48, False)]
        schlauch("wulst", ring, [0.045] * 48, lid, zu=True, n=12)
        s = -1 if x < 519 else 1
        t = np.linspace(0, 1, 16)
        schlauch("braue", [(ex + s * (-0.26 + 0.56 * q), y - 0.17 + 0.10 * q, ez + 0.385 + 0.09 * math.sin(math.pi * q) - 0.03 * q) for q in t], [0.028 + 0.036 * math.sin(math.pi * (0.12 + 0.8 * q)) for q in t], braue, n=14, rillen=5, tief=0.12, flach=0.8)
    nx, nz = ort(519, 203)
    kugel("nase", 0.205, (nx, -1.14, nz), stoff("nase", "#ec7d58", 0.38, 0.45), mass=(1.05, 1, 0.9), n=40)
    # Pagenmütze, ein wenig schief
    tuch, gold = stoff("muetze", "#c22f2b", 0.65, 0.3, korn=0.3, kornmass=70), stoff("gold", "#eebb45", 0.25, 0.6, 0.55)
    achse = bpy.data.objects.new("muetze", None)
    bpy.context.scene.collection.objects.link(achse)
    achse.location, achse.rotation_euler = (-0.06, -0.08, 0.80), (0.16, 0.06, 0)
    drehkoerper("muetze", [(0.86, 0), (0.87, 0.05), (0.82, 0.62), (0.78, 0.68), (0, 0.72)], tuch, achse, 96)
    for z, r in ((0.05, 0.045), (0.16, 0.03)):
        schlauch("kordel", [((0.885 - 0.05 * z) * math.cos(a), (0.885 - 0.05 * z) * math.sin(a), z) for a in np.linspace(0, 2 * math.pi, 96, False)], [r] * 96, gold, achse, zu=True, n=12)
    kugel("knopf", 0.09, (-0.06, -0.90, 0.30), gold, achse, mass=(1, 0.6, 1))
    cx, cy = ort(370, 210)
    buehne(740, 420, cx, cy)
    malen("image1.png")

    # Schnurrbart
    leeren()
    st = [stoff("bart", f, 0.4, 0.4) for f in ("#6d3518", "#7d4120", "#8a4a26")]
    for s in (-1, 1):
        for k in range(6):
            t = np.linspace(0, 1, 22)
            f = (k - 2.5) / 2.5
            pk = [(s * (0.01 + 0.60 * q), -0.05 * math.sin(math.pi * q) - 0.03 * abs(f) * 0 - 0.01 * k, 0.035 - 0.115 * math.sin(math.pi * min(1, q * 0.95)) * (0.8 - 0.45 * f) + 0.115 * max(0, q - 0.55) ** 1.4 * 3.0 + 0.055 * f * math.sin(math.pi * (0.10 + 0.85 * q))) for q in t]
            schlauch("bart", pk, [0.012 + 0.060 * math.sin(math.pi * min(1, 0.12 + 0.86 * q)) ** 0.9 * (1 - 0.55 * q) for q in t], st[k % 3], n=14, rillen=5, tief=0.10)
    buehne(192, 44, 0, 0)
    bpy.context.scene.camera.data.ortho_scale = 1.29
    malen("redeno.png")


def teile():
    from stift import svg, ausgeben, kugel, verlauf
    iris = (kugel("iris", [(0, "#9a5a2a"), (.55, "#6b3a17"), (1, "#33180a")], .5, .62, .6)
            + kugel("pupille", [(0, "#000"), (.8, "#0c0604"), (1, "#1c0e06")], .5, .5, .5))
    strahlen = "".join(f'<path d="M32 30L{32 + 26 * math.cos(a):.1f} {30 + 25 * math.sin(a):.1f}" stroke="{"#c98544" if i % 2 else "#4a250d"}" stroke-width="1.4" opacity=".45"/>' for i, a in enumerate(k * math.pi / 16 for k in range(32)))
    auge = (f'<ellipse cx="32" cy="30" rx="28" ry="27" fill="#1d0d05"/><ellipse cx="32" cy="30" rx="25.6" ry="24.6" fill="url(#iris)"/>{strahlen}'
            '<ellipse cx="32" cy="30" rx="14.5" ry="14.5" fill="url(#pupille)"/>'
            '<path d="M8 22A26 26 0 0 1 56 22Q44 10 32 12Q18 11 8 22Z" fill="#120602" opacity=".35"/>'
            '<ellipse cx="22.5" cy="19.5" rx="8" ry="7" fill="#fff"/><circle cx="42" cy="40" r="3.6" fill="#fff" opacity=".8"/>'
            '<path d="M14 42Q32 60 50 42" fill="none" stroke="#e0a060" stroke-width="3" opacity=".35" stroke-linecap="round"/>')
    for n in ("augel", "auger"):
        ausgeben(f"formen/assistent/{n}.png", svg(64, 60, auge, iris))
    defs = (verlauf("rachen", [(0, "#3a0b0a"), (.5, "#6e1a17"), (1, "#8c2a22")]) + kugel("zunge", [(0, "#f08a80"), (.7, "#cf5a55"), (1, "#a33b3b")], .45, .2, .8)
            + verlauf("lippe", [(0, "#a64a3c"), (.6, "#d9705c"), (1, "#b4513f")]) + '<clipPath id="m"><path d="M12 14Q96 34 180 14Q168 84 96 84Q24 84 12 14Z"/></clipPath>')
    mund = ('<path d="M4 8Q96 32 188 8Q180 91 96 91Q12 91 4 8Z" fill="url(#lippe)"/><path d="M20 62Q96 102 172 62" stroke="#ffd0b8" stroke-width="4" opacity=".35" fill="none" transform="translate(0 3)"/>'
            '<path d="M12 14Q96 34 180 14Q168 84 96 84Q24 84 12 14Z" fill="url(#rachen)"/>'
            '<g clip-path="url(#m)"><ellipse cx="96" cy="82" rx="54" ry="27" fill="url(#zunge)"/><path d="M96 58V84" stroke="#9a3836" stroke-width="3" opacity=".5"/>'
            '<path d="M8 8H184V26Q96 46 8 26Z" fill="#fffaf0"/><path d="M8 26Q96 46 184 26" stroke="#cbb9a4" stroke-width="2.5" fill="none"/><path d="M0 0H192V22Q96 40 0 22Z" fill="#2a0605" opacity=".28"/></g>')
    ausgeben("formen/assistent/reden.png", svg(192, 92, f'<g transform="translate(12 0) scale(.84 1)">{mund}</g>', defs))


def probe():
    """Drei Zustände des Kopfes, wie ihn das Fenster ausschneidet: Ruhe, Augen rechts, Mund schmal, Mund breit."""
    def lage(x, y, b, h):
        return [round(v / 3) for v in (x, y, b, h)]
    zeilen = []
    for i, (augen, rx, ry, rb, rh, ob, ox) in enumerate(((0, 900, 1250, 576, 276, 576, 880), (150, 900, 1250, 576, 276, 576, 880), (75, 1060, 1250, 216, 321, 216, 1040), (150, 860, 1250, 666, 261, 666, 840))):
        ziel = f"/tmp/dorvin{i}.png"
        befehl = ["convert", "-size", "680x648", "xc:#88a0b0"]
        for name, x, y, b, h in (("image1", -360, 600, 2220, 1260), ("augel", 852 + augen, 960, 192, 180), ("auger", 1200 + augen, 960, 192, 180), ("reden", rx, ry, rb, rh), ("redeno", ox, 1250, ob, 132)):
            x, y, b, h = lage(x, y, b, h)
            befehl += ["(", os.path.join(ORDNER, name + ".png"), "-resize", f"{b}x{h}!", ")", "-geometry", f"{x:+d}{y:+d}", "-composite"]
        befehl += ["(", "-size", "680x648", "xc:black", "-fill", "white", "-draw", "ellipse 416,380 148,152 0,360", ")", "-alpha", "off", "-compose", "CopyOpacity", "-composite", "-compose", "over", "-background", "#7fae6a", "-flatten", "-crop", "340x340+246+210", "+repage", ziel]
        subprocess.run(befehl, check=True)
        zeilen.append(ziel)
    subprocess.run(["convert", *zeilen, "+append", "/tmp/dorvin.png"], check=True)


if __name__ == "__main__":
    if "--" in sys.argv:
        modell(int(dict(a.split("=") for a in sys.argv[sys.argv.index("--") + 1:]).get("proben", 200)))
    else:
        teile()
        probe()
