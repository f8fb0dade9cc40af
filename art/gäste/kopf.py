"""Der Kopf eines Gastes: Schädel, Ohren, Augen, Brauen, Mund.

Maße: der Schädel ist 2 hoch, sein Mittelpunkt der Ursprung; x nach rechts, y nach hinten, z nach oben.
"""
from kasten import *            # zuerst: er führt nach Blender, wo es mathutils gibt
from mathutils.bvhtree import BVHTree


def glocke(x, s):
    return np.exp(-(x / s) ** 2)


def weich(a, b, x):
    t = np.clip((x - a) / (b - a), 0, 1)
    return t * t * (3 - 2 * t)


class Kopf:
    """Ein Kopf nach seiner Beschreibung g (Zeile der Gästetabelle)."""

    def __init__(self, g):
        self.g = g
        self.haut = matt(g["haut"], 0.46, 0.4, ton="ton")
        self.bauen()

    # --- Form des Schädels
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
        rücken = weich(0.16, tip, Z) * weich(tip - 0.15, tip - 0.02, Z)
        h += 0.30 * nh * rücken * glocke(X, 0.095 * nb) * weich(0.2, tip, Z) ** 0.8
        h += 0.15 * nh * glocke(np.hypot(X, (Z - tip)), 0.115 * nb)
        h += 0.10 * nh * glocke(np.hypot(A - 0.115 * nb, (Z - tip + 0.035)), 0.062 * nb)
        h -= 0.028 * g["alter"] * glocke(A - 0.30 - 0.22 * (tip - Z),
                                         0.030) * weich(tip + 0.1, tip - .05, Z) * weich(-0.70, -0.55, Z)
        m = self.mund_z
        h += 0.035 * glocke(np.hypot(X * 0.7, Z - m), 0.16)                                # Mundhügel
        h -= 0.030 * glocke(Z - (m - 0.19), 0.05) * glocke(X, 0.20)
        h -= 0.03 * glocke(np.hypot(A - self.mund_b - 0.035, Z - m - 0.05), 0.045)         # Mundwinkel
        p[:, 1] -= h * vorn
        p[:, 0] += np.sign(X) * 0.35 * (0.075 * g["wangen"] * glocke(np.hypot(A - 0.48, Z + 0.34), 0.28)) * vorn
        return p

    def richtung(self, n):
        """Würfelkugel: gleichmäßige Richtungen und Vierecke."""
        ecken, flächen = [], []
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
                    flächen.append(q if vz > 0 else q[::-1])
        e = np.array(ecken, float)
        return e / np.linalg.norm(e, axis=1)[:, None], flächen

    def bauen(self):
        g = self.g
        self.mund_z, self.mund_b = -0.55 - 0.04 * (g["nase"][0] - 1), 0.235 * g["mund"][1]
        d, f = self.richtung(72)
        p = self.form(d)
        self.schädel = netz(p, f, self.haut)
        m = self.schädel.data
        bm = bmesh.new()
        bm.from_mesh(m)
        bmesh.ops.remove_doubles(bm, verts=bm.verts, dist=1e-4)
        bmesh.ops.recalc_face_normals(bm, faces=bm.faces)
        bm.to_mesh(m)
        bm.free()
        self.färben(m)
        self.baum = BVHTree.FromPolygons([v.co for v in m.vertices], [tuple(q.vertices) for q in m.polygons])
        for s in (-1, 1):
            if (g.get("hut") or " ")[0] != "kopftuch":
                self.ohr(s)
            self.auge(s)
            self.braue(s)
        self.mund()

    def färben(self, m):
        g = self.g
        grund = np.array(rgb(g["haut"]))
        rosig = grund * np.array([1.12, 0.62, 0.60]) if sum(grund) > 0.6 else grund * np.array([1.25, 0.72, 0.66])
        tief = grund * np.array([0.72, 0.55, 0.52])
        co = np.array([v.co for v in m.vertices])
        X, Y, Z = co[:, 0], co[:, 1], co[:, 2]
        A = np.abs(X)
        vorn = (Y < 0)
        f = np.tile(grund, (len(co), 1))
        tip = -0.05 - 0.24 * g["nase"][0]
        r = (np.clip(0.62 * g["rot"] * glocke(np.hypot(A - 0.44, Z + 0.30), 0.20)
                     + 0.42 * g["rot"] * glocke(np.hypot(X, Z - tip), 0.15), 0, 1) * vorn)
        f = f * (1 - r[:, None]) + rosig * r[:, None]
        s = 0.42 * glocke(np.hypot(A - g["augab"], Z - 0.06), 0.17) * vorn
        f = f * (1 - s[:, None]) + tief * s[:, None]
        if g.get("stoppeln"):
            b = (g["stoppeln"] * np.maximum(weich(-0.32, -0.55, Z) * weich(0.0, -0.3, Y - 0.35),
                                            0) * (1 - 0.8 * glocke(np.hypot(X * .8, Z - self.mund_z), 0.12)))
            dunkel = grund * 0.35 + np.array(rgb(g["haarfarbe"])) * 0.3
            f = f * (1 - b[:, None]) + dunkel * b[:, None]
        färbe(m, f)

    # --- Auflegen auf die Haut
    def treffer(self, x, z):
        o, n, _, _ = self.baum.ray_cast(Vector((x, -4, z)), Vector((0, 1, 0)))
        if not o:
            return Vector((x, 0, z)), Vector((0, -1, 0))
        return o, (n if n.y < 0 else -n)

    def band(self, links, rechts, dicke, material, m=9, über=0.0, spitz=True):
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
                p.append(o + n * (dicke * ende * math.sqrt(max(0, 1 - (2 * v - 1) ** 2)) + über - 0.006))
        return netz(p, gitter(k, m), material)

    def raupe(self, mitte, breiten, dicke, material, über=0.0):
        links, rechts = [], []
        for i, (x, z) in enumerate(mitte):
            a, b = mitte[max(i - 1, 0)], mitte[min(i + 1, len(mitte) - 1)]
            dx, dz = b[0] - a[0], b[1] - a[1]
            q = math.hypot(dx, dz) or 1
            links.append((x - dz / q * breiten[i], z + dx / q * breiten[i]))
            rechts.append((x + dz / q * breiten[i], z - dx / q * breiten[i]))
        return self.band(links, rechts, dicke, material, über=über)

    # --- Teile
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
        farbe = np.array(rgb(g["haut"])) * np.array([1.04, 0.86, 0.84])
        ort = platz((s * 0.80 * g["breit"], 0.04, -0.10), (0.12, s * 0.20, s * 0.62))
        netz(p, gitter(n, m, zu_u=True), self.haut, ort @ Matrix.Diagonal((s, 1, 1, 1)), [farbe] * len(p))
        if g.get("ohrring"):
            ball(0.062, (s * 0.845 * g["breit"], -0.06, -0.36), matt(g["ohrring"], 0.2, 0.6, 0.8))

    def auge(self, s):
        g = self.g
        r = 0.205 * g["augen"]
        x, z = s * g["augab"], 0.02
        o, _ = self.treffer(x, z)
        mitte = Vector((x, o.y + r * 0.60, z))
        blick = g.get("blick", (0, 0))
        self.augapfel(r, platz(mitte, (math.radians(-blick[1]), 0, math.radians(blick[0] - s * 2))))
        licht = matt("#ffffff", 0.3, leuchten=1.2)
        bl = Vector((blick[0] / 57.3, -1, blick[1] / 57.3)).normalized()
        ball(r * 0.13, mitte + (bl + Vector((-0.26, 0, 0.30))).normalized() * r * 0.99, licht, n=12)
        ball(r * 0.06, mitte + (bl + Vector((0.22, 0, -0.22))).normalized() * r * 0.99, licht, n=12)
        oben, unten = g["lid"]
        self.lid(s, mitte, r * 1.07, oben, 100, 0.10 * s)
        self.lid(s, mitte, r * 1.06, -unten, -110, 0)
        # Wimpern folgen der Lidkante
        kante = [self.lidpunkt(s, mitte, r * 1.105, oben, w, 0.10 * s) for w in np.linspace(-66, 66, 25)]
        dick = g["wimpern"]
        schlauch(kante, [0.008 + dick * (0.022 + 0.016 * (s * w / 66)) * math.cos(math.radians(w * 1.3))
                         for w in np.linspace(-66, 66, 25)],
                 matt(g.get("wimpernfarbe", "#2a1710"), 0.5), flach=0.6)

    def augapfel(self, r, ort):
        """Weiß, Irisrand, Iris und Pupille als Ringe einer Kugel mit Blick nach -y."""
        winkel = [0, 8, 15.5, 15.51, 26, 31, 31.01, 36, 36.01, 45] + list(range(55, 181, 10))
        n, p = 48, []
        for i in range(n):
            w = 2 * math.pi * i / n
            for a in map(math.radians, winkel):
                p.append((r * math.sin(a) * math.cos(w), -r * math.cos(a), r * math.sin(a) * math.sin(w)))
        auge = netz(p, gitter(n, len(winkel), zu_u=True), matt("#f7f2e8", 0.25, 0.5), ort).data
        for farbe, rau, glanz in ((self.g["irisrand"], 0.35, 0.5), (self.g["iris"], 0.3, 0.5), ("#120b08", 0.2, 0.6)):
            auge.materials.append(matt(farbe, rau, glanz))
        for i, q in enumerate(auge.polygons):
            a = winkel[i % (len(winkel) - 1)]
            q.material_index = 3 if a < 15 else 2 if a < 31 else 1 if a < 36 else 0

    def lidpunkt(self, s, mitte, r, höhe, länge, kipp):
        a, b = math.radians(höhe), math.radians(länge)
        x, y, z = r * math.sin(b), -r * math.cos(b) * math.cos(a), r * math.cos(b) * math.sin(a)
        return mitte + Vector((x * math.cos(kipp) - z * math.sin(kipp), y, x * math.sin(kipp) + z * math.cos(kipp)))

    def lid(self, s, mitte, r, von, bis, kipp):
        n, m, p = 14, 33, []
        for i in range(n):
            for j in range(m):
                h = von + (bis - von) * i / (n - 1)
                rr = r * (1 - 0.05 * (1 - min(1, i / 1.5)))
                p.append(self.lidpunkt(s, mitte, rr, h, -90 + 180 * j / (m - 1), kipp))
        schatten = self.g.get("lidschatten")
        f = np.array(rgb(schatten or self.g["haut"])) * (1 if schatten and von > 0 else 0.92)
        if von < 0:
            f = np.array(rgb(self.g["haut"])) * np.array([0.97, 0.86, 0.84])
        netz(p, gitter(n, m), self.haut, farben=[f] * len(p))

    def braue(self, s):
        g = self.g
        dick, bogen, schräg, hoch = g["braue"]
        m = matt(g.get("brauenfarbe", g["haarfarbe"]), 0.7, 0.2, korn=0.6, kornmaß=40)
        ab = g["augab"]
        mitte = [(s * (ab - 0.19 + 0.42 * t), 0.29 + 0.05 * hoch + bogen * 0.09 * math.sin(math.pi * min(1, t * 1.05))
                  + schräg * 0.10 * (t - 0.5)) for t in np.linspace(0, 1, 18)]
        self.raupe(mitte, [0.010 + 0.040 * dick * (1 - 0.65 * t) * min(1, 0.55 + 3 * t)
                           for t in np.linspace(0, 1, 18)], 0.035 * (0.6 + 0.5 * dick), m)

    def mund(self):
        g = self.g
        art, _, lächeln, farbe, voll = g["mund"]
        z0, b = self.mund_z, self.mund_b
        lippe = matt(farbe, 0.38, 0.45)
        u = np.linspace(-1, 1, 31)
        linie = lambda t: z0 + lächeln * 0.105 * (t * t - 0.35)
        bogen = lambda t: math.sqrt(max(0, 1 - t * t))
        if art == "offen":
            tief = 0.135
            oben = [(b * t, linie(t) + 0.012 * bogen(t)) for t in u]
            unten = [(b * t, linie(t) - tief * bogen(t) ** 1.3 * (1 - 0.15 * t * t)) for t in u]
            self.band(oben, unten, -0.02, matt("#5a1712", 0.6), über=0.018)
            z_oben = [(b * 0.93 * t, linie(t) + 0.006) for t in u]
            z_unten = [(b * 0.93 * t, linie(t) + 0.004 - 0.062 * bogen(t) ** 0.8) for t in u]
            self.band(z_oben, z_unten, 0.014, matt("#fbf6ea", 0.3, 0.5), über=0.022)
            zu = [(0.10 * t + 0.0, z0 - 0.085 * lächeln - 0.02 + 0.02 * bogen(t)) for t in u]
            zw = [(0.12 * t, z0 - 0.105 * lächeln - 0.04 * bogen(t)) for t in u]
            self.band(zu, zw, 0.012, matt("#c4574f", 0.4), über=0.020)
            self.raupe([(x * 1.04, z + 0.016) for x, z in oben],
                       [0.008 + 0.026 * voll * bogen(t) * (1 - 0.25 * math.exp(-(t / 0.12) ** 2)) for t in u], 0.045,
                       lippe, 0.0)
            self.raupe([(x * 1.0, z - 0.016) for x, z in unten], [0.006 + 0.034 * voll * bogen(t) for t in u], 0.05,
                       lippe, 0.0)
        else:
            spalt = matt("#4c1a14", 0.6)
            self.raupe([(b * t, linie(t) + 0.026 * voll * bogen(t)) for t in u],
                       [0.006 + 0.030 * voll * bogen(t) * (1 - 0.3 * math.exp(-(t / 0.14) ** 2)) for t in u], 0.045,
                       lippe)
            self.raupe([(0.92 * b * t, linie(t) - 0.036 * voll * bogen(t)) for t in u],
                       [0.005 + 0.038 * voll * bogen(t) for t in u], 0.058, lippe)
            self.raupe([(b * 1.10 * t, linie(t * 1.05)) for t in u], [0.004 + 0.008 * bogen(t) for t in u], 0.030,
                       spalt, 0.012)
