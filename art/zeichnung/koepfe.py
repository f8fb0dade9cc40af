"""Baukasten der Köpfe: Schädel, Augen, Haar, Hüte, Kleider als runde Modellfiguren in Blender.

Maße: der Schädel ist 2 hoch, sein Mittelpunkt der Ursprung; x nach rechts, y nach hinten, z nach oben.
"""
import math
import random

import bpy
import numpy as np
from mathutils import Vector
from mathutils.bvhtree import BVHTree


def leeren():
    bpy.ops.wm.read_factory_settings(use_empty=True)


def linear(h):
    """Farbe #rrggbb im linearen Raum."""
    c = [int(h[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    return tuple(x / 12.92 if x <= 0.04045 else ((x + 0.055) / 1.055) ** 2.4 for x in c)


def stoff(name, farbe, rau=0.55, glanz=0.35, metall=0.0, haut=0.0, korn=0.0, kornmass=60.0, attribut=None, deck=1.0):
    """Matte Farbe; haut: Anteil durchscheinenden Lichts, korn: feine Unebenheit."""
    m = bpy.data.materials.new(name)
    m.use_nodes = True
    n, l = m.node_tree.nodes, m.node_tree.links
    b = n["Principled BSDF"]
    b.inputs["Base Color"].default_value = (*linear(farbe), 1)
    b.inputs["Roughness"].default_value = rau
    b.inputs["Specular"].default_value = glanz
    b.inputs["Metallic"].default_value = metall
    b.inputs["Alpha"].default_value = deck
    if haut:
        b.inputs["Subsurface"].default_value = haut
        b.inputs["Subsurface Radius"].default_value = (0.22, 0.08, 0.04)
        b.inputs["Subsurface Color"].default_value = (*linear(farbe), 1)
    if attribut:
        a = n.new("ShaderNodeVertexColor")
        a.layer_name = attribut
        l.new(a.outputs["Color"], b.inputs["Base Color"])
        if haut:
            l.new(a.outputs["Color"], b.inputs["Subsurface Color"])
    if korn:
        t = n.new("ShaderNodeTexNoise")
        t.inputs["Scale"].default_value = kornmass
        u = n.new("ShaderNodeBump")
        u.inputs["Strength"].default_value = korn
        u.inputs["Distance"].default_value = 0.02
        l.new(t.outputs["Fac"], u.inputs["Height"])
        l.new(u.outputs["Normal"], b.inputs["Normal"])
    return m


def netz(name, punkte, flaechen, material, eltern=None, glatt=True):
    m = bpy.data.meshes.new(name)
    m.from_pydata([tuple(p) for p in punkte], [], flaechen)
    m.materials.append(material)
    m.polygons.foreach_set("use_smooth", [glatt] * len(m.polygons))
    m.update()
    o = bpy.data.objects.new(name, m)
    bpy.context.scene.collection.objects.link(o)
    o.parent = eltern
    return o


def gitter(nu, nv, zu_u=False, zu_v=False):
    """Vierecke eines Gitters von nu mal nv Punkten (Index u * nv + v)."""
    f = []
    for u in range(nu if zu_u else nu - 1):
        for v in range(nv if zu_v else nv - 1):
            a, b = (u + 1) % nu, (v + 1) % nv
            f.append((u * nv + v, a * nv + v, a * nv + b, u * nv + b))
    return f


def drehkoerper(name, profil, material, eltern=None, n=64, ort=(0, 0, 0), mass=(1, 1, 1), drehung=(0, 0, 0), verbiegen=None):
    """Profil von (Radius, Höhe) um die z-Achse gedreht."""
    p = []
    for i in range(n):
        w = 2 * math.pi * i / n
        for r, z in profil:
            q = Vector((r * math.cos(w), r * math.sin(w), z))
            p.append(verbiegen(q) if verbiegen else q)
    o = netz(name, p, gitter(n, len(profil), zu_u=True), material, eltern)
    o.location, o.scale, o.rotation_euler = ort, mass, drehung
    return o


def kugel(name, r, ort, material, eltern=None, mass=(1, 1, 1), drehung=(0, 0, 0), n=32):
    prof = [(r * math.sin(math.pi * i / n), -r * math.cos(math.pi * i / n)) for i in range(n + 1)]
    return drehkoerper(name, prof, material, eltern, 2 * n, ort, mass, drehung)


def schlauch(name, punkte, radien, material, eltern=None, n=12, flach=1.0, rillen=0, tief=0.0, nach_aussen=None, zu=False):
    """Schlauch durch die Punkte; flach: Höhe zu Breite, rillen: Längsfurchen (Haarsträhnen)."""
    p, k = [Vector(q) for q in punkte], len(punkte)
    ecken = []
    for i in range(k):
        t = (p[(i + 1) % k] - p[i - 1] if zu else p[min(i + 1, k - 1)] - p[max(i - 1, 0)])
        t = t.normalized() if t.length > 1e-9 else Vector((0, 0, 1))
        auf = (nach_aussen[i] if nach_aussen else Vector((0, -1, 0.2)))
        auf = auf - t * auf.dot(t)
        auf = auf.normalized() if auf.length > 1e-6 else t.orthogonal().normalized()
        seite = t.cross(auf)
        for j in range(n):
            w = 2 * math.pi * j / n
            r = radien[i] * (1 + tief * math.cos(rillen * w))
            ecken.append(p[i] + seite * (r * math.cos(w)) + auf * (r * flach * math.sin(w)))
    f = gitter(k, n, zu_u=zu, zu_v=True)
    if not zu:
        f += [tuple(range(n))[::-1], tuple((k - 1) * n + j for j in range(n))]
    return netz(name, ecken, f, material, eltern)


def glocke(x, s):
    return np.exp(-(x / s) ** 2)


def weich(a, b, x):
    t = np.clip((x - a) / (b - a), 0, 1)
    return t * t * (3 - 2 * t)


class Kopf:
    """Ein Kopf nach seiner Beschreibung g (Zeile der Gästetabelle)."""

    def __init__(self, g, eltern):
        self.g, self.e = g, eltern
        self.zufall = random.Random(g["nr"])
        self.haut = stoff("haut", g["haut"], 0.46, 0.4, attribut="ton")
        self.bauen()

    # --- Form des Schädels -------------------------------------------------------------------------------------------
    def form(self, d):
        """Punkt der Haut zur Richtung d (n mal 3)."""
        g = self.g
        x, y, z = d[:, 0], d[:, 1], d[:, 2]
        a, b, c = 0.80 * g["breit"], 0.86, 1.0 * g["lang"]
        p = np.stack([a * x, b * y, c * z], 1)
        t = np.clip(-z, 0, 1)
        p[:, 0] *= 1 + g["kiefer"] * glocke(t - 0.62, 0.34) - 0.10 * t ** 2
        vorn = weich(0.15, -0.35, y)
        p[:, 1] *= 1 - 0.09 * vorn * (1 - t)
        X, Z = p[:, 0], p[:, 2]
        A = np.abs(X)
        h = 0.075 * g["wangen"] * glocke(np.hypot(A - 0.40, Z + 0.30), 0.24)            # Wangen
        h += -0.105 * glocke(np.hypot((A - g["augab"]), Z - 0.03), 0.20)                  # Augenhöhlen
        h += 0.055 * g["brauenwulst"] * glocke(np.hypot((A - 0.28) * 0.7, Z - 0.27), 0.13)
        h += 0.10 * g["kinn"] * glocke(np.hypot(X * 0.85, Z + 0.88), 0.20)                # Kinn
        nl, nb, nh = g["nase"]                                                             # Länge, Breite, Höhe
        tip = -0.05 - 0.24 * nl
        ruecken = weich(0.16, tip, Z) * weich(tip - 0.15, tip - 0.02, Z)
        h += 0.30 * nh * ruecken * glocke(X, 0.095 * nb) * weich(0.2, tip, Z) ** 0.8
        h += 0.15 * nh * glocke(np.hypot(X, (Z - tip)), 0.115 * nb)
        h += 0.10 * nh * glocke(np.hypot(A - 0.115 * nb, (Z - tip + 0.035)), 0.062 * nb)
        h -= 0.028 * g["alter"] * glocke(A - 0.30 - 0.22 * (tip - Z), 0.030) * weich(tip + 0.1, tip - .05, Z) * weich(-0.70, -0.55, Z)
        m = self.mund_z
        h += 0.035 * glocke(np.hypot(X * 0.7, Z - m), 0.16)                                # Mundhügel
        h -= 0.030 * glocke(Z - (m - 0.19), 0.05) * glocke(X, 0.20)
        h -= 0.03 * glocke(np.hypot(A - self.mund_b - 0.035, Z - m - 0.05), 0.045)         # Mundwinkel
        p[:, 1] -= h * vorn
        p[:, 0] += np.sign(X) * 0.35 * (0.075 * g["wangen"] * glocke(np.hypot(A - 0.48, Z + 0.34), 0.28)) * vorn
        return p

    def richtung(self, n):
        """Würfelkugel: gleichmäßige Richtungen und Vierecke."""
        ecken, flaechen = [], []
        s = np.tan(np.linspace(-math.pi / 4, math.pi / 4, n))
        for achse in range(3):
            for vz in (-1, 1):
                o = len(ecken)
                for i in range(n):
                    for j in range(n):
                        v = [0, 0, 0]
                        v[achse] = vz
                        v[(achse + 1) % 3], v[(achse + 2) % 3] = s[i], s[j]
                        ecken.append(v)
                for q in gitter(n, n):
                    q = tuple(k + o for k in q)
                    flaechen.append(q if vz > 0 else q[::-1])
        e = np.array(ecken, float)
        return e / np.linalg.norm(e, axis=1)[:, None], flaechen

    def bauen(self):
        g = self.g
        self.mund_z, self.mund_b = -0.55 - 0.04 * (g["nase"][0] - 1), 0.235 * g["mund"][1]
        d, f = self.richtung(72)
        p = self.form(d)
        self.schaedel = netz("schaedel", p, f, self.haut, self.e)
        m = self.schaedel.data
        import bmesh
        bm = bmesh.new()
        bm.from_mesh(m)
        bmesh.ops.remove_doubles(bm, verts=bm.verts, dist=1e-4)
        bmesh.ops.recalc_face_normals(bm, faces=bm.faces)
        bm.to_mesh(m)
        bm.free()
        self.faerben(m)
        self.baum = BVHTree.FromPolygons([v.co for v in m.vertices], [tuple(q.vertices) for q in m.polygons])
        for s in (-1, 1):
            if (g.get("hut") or " ")[0] != "kopftuch":
                self.ohr(s)
            self.auge(s)
            self.braue(s)
        self.mund()

    def faerben(self, m):
        g = self.g
        grund = np.array(linear(g["haut"]))
        rosig = grund * np.array([1.12, 0.62, 0.60]) if sum(grund) > 0.6 else grund * np.array([1.25, 0.72, 0.66])
        tief = grund * np.array([0.72, 0.55, 0.52])
        co = np.array([v.co for v in m.vertices])
        X, Y, Z = co[:, 0], co[:, 1], co[:, 2]
        A = np.abs(X)
        vorn = (Y < 0)
        f = np.tile(grund, (len(co), 1))
        tip = -0.05 - 0.24 * g["nase"][0]
        r = np.clip(0.62 * g["rot"] * glocke(np.hypot(A - 0.44, Z + 0.30), 0.20) + 0.42 * g["rot"] * glocke(np.hypot(X, Z - tip), 0.15), 0, 1) * vorn
        f = f * (1 - r[:, None]) + rosig * r[:, None]
        s = 0.42 * glocke(np.hypot(A - g["augab"], Z - 0.06), 0.17) * vorn
        f = f * (1 - s[:, None]) + tief * s[:, None]
        if g.get("stoppeln"):
            b = g["stoppeln"] * np.maximum(weich(-0.32, -0.55, Z) * weich(0.0, -0.3, Y - 0.35), 0) * (1 - 0.8 * glocke(np.hypot(X * .8, Z - self.mund_z), 0.12))
            dunkel = grund * 0.35 + np.array(linear(g["haarfarbe"])) * 0.3
            f = f * (1 - b[:, None]) + dunkel * b[:, None]
        c = m.color_attributes.new("ton", "FLOAT_COLOR", "POINT")
        c.data.foreach_set("color", np.hstack([f, np.ones((len(f), 1))]).ravel())

    # --- Auflegen auf die Haut -----------------------------------------------------------------------------------------
    def treffer(self, x, z):
        o, n, _, _ = self.baum.ray_cast(Vector((x, -4, z)), Vector((0, 1, 0)))
        if not o:
            return Vector((x, 0, z)), Vector((0, -1, 0))
        return o, (n if n.y < 0 else -n)

    def band(self, name, links, rechts, dicke, material, m=9, ueber=0.0, spitz=True):
        """Gewölbtes Band zwischen zwei Linien (x, z), auf die Haut gelegt."""
        k, p = len(links), []
        for i in range(k):
            u = i / (k - 1)
            ende = min(1, math.sin(math.pi * min(max(u, 0.0), 1)) ** 0.5 * 1.3) if spitz else 1
            for j in range(m):
                v = j / (m - 1)
                x = links[i][0] * (1 - v) + rechts[i][0] * v
                z = links[i][1] * (1 - v) + rechts[i][1] * v
                o, n = self.treffer(x, z)
                p.append(o + n * (dicke * ende * math.sqrt(max(0, 1 - (2 * v - 1) ** 2)) + ueber - 0.006))
        return netz(name, p, gitter(k, m), material, self.e)

    def raupe(self, name, mitte, breiten, dicke, material, ueber=0.0):
        links, rechts = [], []
        for i, (x, z) in enumerate(mitte):
            a, b = mitte[max(i - 1, 0)], mitte[min(i + 1, len(mitte) - 1)]
            dx, dz = b[0] - a[0], b[1] - a[1]
            q = math.hypot(dx, dz) or 1
            links.append((x - dz / q * breiten[i], z + dx / q * breiten[i]))
            rechts.append((x + dz / q * breiten[i], z - dx / q * breiten[i]))
        return self.band(name, links, rechts, dicke, material, ueber=ueber)

    # --- Teile ---------------------------------------------------------------------------------------------------------
    def ohr(self, s):
        g = self.g
        p, n, m = [], 40, 28
        for i in range(n):
            w = 2 * math.pi * i / n
            for j in range(m):
                t = j / (m - 1)
                r = math.sin(math.pi * t)
                x, z = r * math.cos(w) * 0.15, r * math.sin(w) * 0.24 * (1 + 0.12 * math.sin(w))
                x *= 1.05 - 0.25 * (z < 0) * abs(z) / 0.24
                y = -math.cos(math.pi * t) * 0.075
                if y > 0:
                    mulde = math.exp(-((x + 0.01) / 0.075) ** 2 - ((z - 0.02) / 0.13) ** 2)
                    y -= 0.085 * mulde
                p.append((x, -y, z))
        o = netz("ohr", p, gitter(n, m, zu_u=True), self.haut, self.e)
        c = o.data.color_attributes.new("ton", "FLOAT_COLOR", "POINT")
        f = np.array(linear(g["haut"])) * np.array([1.04, 0.86, 0.84])
        c.data.foreach_set("color", np.tile(np.append(f, 1), (len(p), 1)).ravel())
        o.location = (s * 0.80 * g["breit"] * 1.0, 0.04, -0.10)
        o.rotation_euler = (0.12, s * 0.20, s * 0.62)
        if s < 0:
            o.scale = (-1, 1, 1)
        if g.get("ohrring"):
            kugel("ohrring", 0.062, (s * 0.845 * g["breit"], -0.06, -0.36), stoff("schmuck", g["ohrring"], 0.2, 0.6, 0.8), self.e)

    def auge(self, s):
        g = self.g
        r = 0.205 * g["augen"]
        x, z = s * g["augab"], 0.02
        o, _ = self.treffer(x, z)
        mitte = Vector((x, o.y + r * 0.60, z))
        weiss = stoff("augweiss", "#f7f2e8", 0.25, 0.5)
        iris = stoff("iris", g["iris"], 0.3, 0.5)
        rand = stoff("irisrand", g["irisrand"], 0.35, 0.5)
        pupille = stoff("pupille", "#120b08", 0.2, 0.6)
        winkel = [0, 8, 15.5, 15.51, 26, 31, 31.01, 36, 36.01, 45] + list(range(55, 181, 10))
        blick = g.get("blick", (0, 0))
        n, p = 48, []
        for i in range(n):
            w = 2 * math.pi * i / n
            for a in winkel:
                a = math.radians(a)
                p.append((r * math.sin(a) * math.cos(w), -r * math.cos(a), r * math.sin(a) * math.sin(w)))
        ball = netz("auge", p, gitter(n, len(winkel), zu_u=True), weiss, self.e)
        for q in (rand, iris, pupille):
            ball.data.materials.append(q)
        for i, q in enumerate(ball.data.polygons):
            a = winkel[i % (len(winkel) - 1)]
            q.material_index = 3 if a < 15 else 2 if a < 31 else 1 if a < 36 else 0
        ball.location = mitte
        ball.rotation_euler = (math.radians(-blick[1]), 0, math.radians(blick[0] - s * 2))
        licht = stoff("funke", "#ffffff", 0.3)
        licht.node_tree.nodes["Principled BSDF"].inputs["Emission"].default_value = (1, 1, 1, 1)
        licht.node_tree.nodes["Principled BSDF"].inputs["Emission Strength"].default_value = 1.2
        bl = Vector((blick[0] / 57.3, -1, blick[1] / 57.3)).normalized()
        kugel("funke", r * 0.13, mitte + (bl + Vector((-0.26, 0, 0.30))).normalized() * r * 0.99, licht, self.e, n=12)
        kugel("funke2", r * 0.06, mitte + (bl + Vector((0.22, 0, -0.22))).normalized() * r * 0.99, licht, self.e, n=12)
        oben, unten = g["lid"]
        self.lid(s, mitte, r * 1.07, oben, 100, 0.10 * s)
        self.lid(s, mitte, r * 1.06, -unten, -110, 0)
        # Wimpern folgen der Lidkante
        kante = [self.lidpunkt(s, mitte, r * 1.105, oben, w, 0.10 * s) for w in np.linspace(-66, 66, 25)]
        dick = g["wimpern"]
        schlauch("wimpern", kante, [0.008 + dick * (0.022 + 0.016 * (s * w / 66)) * math.cos(math.radians(w * 1.3)) for w in np.linspace(-66, 66, 25)],
                 stoff("wimper", g.get("wimpernfarbe", "#2a1710"), 0.5), self.e, flach=0.6)

    def lidpunkt(self, s, mitte, r, hoehe, laenge, kipp):
        a, b = math.radians(hoehe), math.radians(laenge)
        x, y, z = r * math.sin(b), -r * math.cos(b) * math.cos(a), r * math.cos(b) * math.sin(a)
        return mitte + Vector((x * math.cos(kipp) - z * math.sin(kipp), y, x * math.sin(kipp) + z * math.cos(kipp)))

    def lid(self, s, mitte, r, von, bis, kipp):
        n, m, p = 14, 33, []
        for i in range(n):
            for j in range(m):
                h = von + (bis - von) * i / (n - 1)
                rr = r * (1 - 0.05 * (1 - min(1, i / 1.5)))
                p.append(self.lidpunkt(s, mitte, rr, h, -90 + 180 * j / (m - 1), kipp))
        o = netz("lid", p, gitter(n, m), self.haut, self.e)
        c = o.data.color_attributes.new("ton", "FLOAT_COLOR", "POINT")
        f = np.array(linear(self.g.get("lidschatten") or self.g["haut"])) * (1 if self.g.get("lidschatten") and von > 0 else 0.92)
        if von < 0:
            f = np.array(linear(self.g["haut"])) * np.array([0.97, 0.86, 0.84])
        c.data.foreach_set("color", np.tile(np.append(f, 1), (len(p), 1)).ravel())

    def braue(self, s):
        g = self.g
        dick, bogen, schraeg, hoch = g["braue"]
        m = stoff("braue", g.get("brauenfarbe", g["haarfarbe"]), 0.7, 0.2, korn=0.6, kornmass=40)
        ab = g["augab"]
        mitte = [(s * (ab - 0.19 + 0.42 * t), 0.29 + 0.05 * hoch + bogen * 0.09 * math.sin(math.pi * min(1, t * 1.05)) + schraeg * 0.10 * (t - 0.5)) for t in np.linspace(0, 1, 18)]
        self.raupe("braue", mitte, [0.010 + 0.040 * dick * (1 - 0.65 * t) * min(1, 0.55 + 3 * t) for t in np.linspace(0, 1, 18)], 0.035 * (0.6 + 0.5 * dick), m)

    def mund(self):
        g = self.g
        art, breit, laecheln, farbe, voll = g["mund"]
        z0, b = self.mund_z, self.mund_b
        lippe = stoff("lippe", farbe, 0.38, 0.45)
        u = np.linspace(-1, 1, 31)
        linie = lambda t: z0 + laecheln * 0.105 * (t * t - 0.35)
        bogen = lambda t: math.sqrt(max(0, 1 - t * t))
        if art == "offen":
            tief = 0.135
            oben = [(b * t, linie(t) + 0.012 * bogen(t)) for t in u]
            unten = [(b * t, linie(t) - tief * bogen(t) ** 1.3 * (1 - 0.15 * t * t)) for t in u]
            self.band("rachen", oben, unten, -0.02, stoff("rachen", "#5a1712", 0.6), ueber=0.018)
            z_oben = [(b * 0.93 * t, linie(t) + 0.006) for t in u]
            z_unten = [(b * 0.93 * t, linie(t) + 0.004 - 0.062 * bogen(t) ** 0.8) for t in u]
            self.band("zaehne", z_oben, z_unten, 0.014, stoff("zahn", "#fbf6ea", 0.3, 0.5), ueber=0.022)
            zu = [(0.10 * t + 0.0, z0 - 0.085 * laecheln - 0.02 + 0.02 * bogen(t)) for t in u]
            zw = [(0.12 * t, z0 - 0.105 * laecheln - 0.04 * bogen(t)) for t in u]
            self.band("zunge", zu, zw, 0.012, stoff("zunge", "#c4574f", 0.4), ueber=0.020)
            self.raupe("oberlippe", [(x * 1.04, z + 0.016) for x, z in oben], [0.008 + 0.026 * voll * bogen(t) * (1 - 0.25 * math.exp(-(t / 0.12) ** 2)) for t in u], 0.045, lippe, 0.0)
            self.raupe("unterlippe", [(x * 1.0, z - 0.016) for x, z in unten], [0.006 + 0.034 * voll * bogen(t) for t in u], 0.05, lippe, 0.0)
        else:
            spalt = stoff("spalt", "#4c1a14", 0.6)
            self.raupe("oberlippe", [(b * t, linie(t) + 0.026 * voll * bogen(t)) for t in u], [0.006 + 0.030 * voll * bogen(t) * (1 - 0.3 * math.exp(-(t / 0.14) ** 2)) for t in u], 0.045, lippe)
            self.raupe("unterlippe", [(0.92 * b * t, linie(t) - 0.036 * voll * bogen(t)) for t in u], [0.005 + 0.038 * voll * bogen(t) for t in u], 0.058, lippe)
            self.raupe("spalt", [(b * 1.10 * t, linie(t * 1.05)) for t in u], [0.004 + 0.008 * bogen(t) for t in u], 0.030, spalt, 0.012)

    # --- Haar ------------------------------------------------------------------------------------------------------------
    def ansatz(self, phi):
        """Höhe (Richtungsanteil) des Haaransatzes beim Winkel phi von vorn."""
        f = self.g["ansatz"]          # vorn, Schläfe, Ohr, hinten
        w = np.abs(phi)
        return np.interp(w, [0, 0.55, 1.0, 1.35, 1.62, 2.2, math.pi], [f[0], f[0] * 0.97, f[1], f[2], f[2] - 0.03, f[3], f[3]])

    def maske(self, d):
        return d[:, 2] - self.ansatz(np.arctan2(d[:, 0], -d[:, 1]))

    def huelle(self, d, h):
        """Punkte h über dem Schädel (geglättete Form ohne Gesicht)."""
        g = self.g
        r = np.stack([0.80 * g["breit"] * d[:, 0], 0.86 * d[:, 1], g["lang"] * d[:, 2]], 1)
        return r * (1 + np.asarray(h)[:, None] if np.ndim(h) else 1 + h)

    def kappe(self, dicke, material, rillen=22, tief=0.012):
        """Geschlossene Grundmasse unter den Strähnen."""
        d, f = self.richtung(48)
        m = self.maske(d)
        dick = dicke * np.sqrt(np.clip(m / 0.22, 0, 1)) + tief * np.sin(rillen * np.arctan2(d[:, 0], d[:, 2] + 1.5) * 2)
        p = self.huelle(d, np.where(m > -0.03, dick, 0))
        f = [q for q in f if all(m[k] > -0.03 for k in q)]
        return netz("kappe", p, f, material, self.e)

    def straehnen(self, n, fluss, laenge, breite, materialien, hoehe=0.10, fall=None, schritt=0.055, ab=0.0, bis=9, streuung=0.25, spitze=0.15, seite=None, saat=1):
        """n Strähnen, deren Wurzeln über die Kopfhaut verteilt sind und die dem Feld fluss(p, zufall) folgen."""
        z = random.Random(self.g["nr"] * 31 + saat)
        k, i = 0, 0
        gold = math.pi * (3 - math.sqrt(5))
        while i < n * 3:
            i += 1
            hz = 1 - 2 * (i - 0.5) / (n * 3)
            w = gold * i + z.uniform(-.2, .2)
            d = np.array([math.sqrt(1 - hz * hz) * math.sin(w), -math.sqrt(1 - hz * hz) * math.cos(w), hz])
            mm = self.maske(d[None])[0]
            if not ab < mm < bis or (seite and not seite(d)):
                continue
            punkte, aus, l = [], [], laenge * z.uniform(0.8, 1.15)
            schritte = max(5, int(l / schritt))
            ablenk = Vector([z.gauss(0, streuung) for _ in range(3)])
            frei = None
            for q in range(schritte):
                u = q / (schritte - 1)
                if frei is None:
                    h = 0.02 + hoehe * math.sin(math.pi * min(1, 0.25 + 0.75 * u)) ** 0.7
                    p = Vector(self.huelle(d[None], h)[0])
                    r = Vector(d).normalized()
                    F = Vector(fluss(Vector(d), z)) + ablenk * 0.5
                    F = F - r * F.dot(r)
                    F = F.normalized() if F.length > 1e-6 else Vector((0, 0, -1))
                    if fall is not None and d[2] < fall:
                        frei = p.copy()
                    nd = np.array(Vector(d) + F * schritt * 1.15)
                    d = nd / np.linalg.norm(nd)
                else:
                    frei = frei + Vector((ablenk.x * 0.02 - frei.x * 0.018, (0.25 - frei.y) * 0.02 + 0.012 * math.sin(u * 9 + i), -schritt * 0.9))
                    p = frei.copy()
                    r = Vector((p.x, p.y, 0)).normalized()
                punkte.append(p)
                aus.append(r)
            rad = [breite * min(1, 0.55 + 3 * (q / (schritte - 1))) * (1 - (1 - spitze) * max(0, (q / (schritte - 1) - 0.45) / 0.55) ** 1.6) for q in range(schritte)]
            schlauch("straehne", punkte, rad, z.choice(materialien), self.e, n=14, flach=0.55, rillen=6, tief=0.10, nach_aussen=aus)
            k += 1
        return k

    def locken(self, n, groesse, materialien, hoehe=0.12, ab=0.0, windung=1.6, saat=2):
        """Ringellocken: flache Schnecken über der Kopfhaut."""
        z = random.Random(self.g["nr"] * 17 + saat)
        gold = math.pi * (3 - math.sqrt(5))
        for i in range(n * 2):
            hz = 1 - 2 * (i + 0.5) / (n * 2)
            w = gold * i
            d = Vector((math.sqrt(1 - hz * hz) * math.sin(w), -math.sqrt(1 - hz * hz) * math.cos(w), hz))
            if self.maske(np.array(d)[None])[0] < ab:
                continue
            o = Vector(self.huelle(np.array(d)[None], hoehe + z.uniform(-.03, .05))[0])
            a = d.orthogonal().normalized()
            b = d.cross(a)
            g0, dreh = z.uniform(0, 6.28), z.choice((-1, 1))
            r0 = groesse * z.uniform(0.8, 1.25)
            pk = []
            for q in range(22):
                t = q / 21
                w = g0 + dreh * windung * 2 * math.pi * t
                pk.append(o + (a * math.cos(w) + b * math.sin(w)) * r0 * (1 - 0.75 * t) + d * (0.10 * groesse / 0.12 * t))
            schlauch("locke", pk, [r0 * 0.42 * (0.6 + 0.4 * math.sin(math.pi * q / 21)) for q in range(22)], z.choice(materialien), self.e, n=10, nach_aussen=[d] * 22)

    def haarstoffe(self, farbe=None):
        f = farbe or self.g["haarfarbe"]
        ton = lambda k: "#" + "".join(f"{max(0, min(255, round(int(f[i:i + 2], 16) * k))):02x}" for i in (1, 3, 5))
        return [stoff("haar", ton(k), 0.42, 0.4) for k in (0.88, 1.0, 1.14)]

    def bart(self, material, unten=-1.02, oben=-0.34, dicke=0.10, rillen=26, schnurrbart=True):
        """Vollbart: Hülle um Kiefer und Kinn mit Furchen, der Mund bleibt frei."""
        d, f = self.richtung(96)
        p = self.form(d)
        X, Y, Z = p[:, 0], p[:, 1], p[:, 2]
        A = np.abs(X)
        oberkante = -0.62 + 0.62 * np.clip((A - 0.18) / 0.55, 0, 1) ** 1.3
        m = np.minimum(oberkante - Z, 0.22 - Y) / 0.10
        m = np.minimum(m, (np.hypot(X / (self.mund_b + 0.05), (Z - self.mund_z) / 0.16) - 1) * 2.2)
        n = p / np.linalg.norm(p, axis=1)[:, None]
        dick = dicke * np.sqrt(np.clip(m, 0, 1)) * (0.75 + 0.55 * weich(-0.5, -1.0, Z)) + 0.012 * np.sin(rillen * np.arctan2(X, -Y)) * np.clip(m, 0, 1)
        q = p + n * dick[:, None]
        netz("bart", q, [k for k in f if all(m[i] > -0.15 for i in k)], material, self.e)

    def schnurrbart(self, material, breit=0.34, dick=0.07, haengt=0.05, hoch=0.0):
        z = self.mund_z + 0.135
        for s in (-1, 1):
            t = np.linspace(0, 1, 18)
            mitte = [(s * (0.012 + breit * q), z - haengt * q * q + hoch * max(0, q - 0.6) ** 2 * 2.2 + 0.015 * math.sin(3 * q)) for q in t]
            self.raupe("schnurrbart", mitte, [0.012 + dick * math.sin(math.pi * min(1, 0.22 + 0.78 * q)) ** 0.8 for q in t], 0.085, material)
