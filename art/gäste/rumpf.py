"""Schultern, Kleid und Schmuck der Gäste."""
from gäste.kopf import *
from knoten import Baum


class Rumpf(Kopf):
    def __init__(self, g):
        self.g = g
        art, f1, f2 = g["kleid"][:3]
        s = g["schulter"]
        self.tuch = self.stoff_zu(art, f1, f2)
        self.hautstoff = matt(g["haut"], 0.5, 0.4)
        z = np.array([-1.16, -1.22, -1.30, -1.40, -1.54, -1.74, -2.0, -2.4, -3.1])
        w = np.array([0.33, 0.40, 0.60, 0.86, 1.10, 1.26, 1.34, 1.36, 1.36]) * s
        t = np.array([0.33, 0.38, 0.46, 0.52, 0.58, 0.64, 0.68, 0.70, 0.70]) * (0.75 + 0.25 * s)
        zz = np.linspace(z[0], z[-1], 70)
        W, D = np.interp(-zz, -z, w), np.interp(-zz, -z, t)
        for _ in range(6):
            W[1:-1], D[1:-1] = (W[:-2] + 2 * W[1:-1] + W[2:]) / 4, (D[:-2] + 2 * D[1:-1] + D[2:]) / 4
        n, p = 96, []
        for i in range(n):
            a = 2 * math.pi * i / n
            c, q = math.cos(a), math.sin(a)
            k = 2 / 2.3
            x, y = math.copysign(abs(c) ** k, c), math.copysign(abs(q) ** k, q)
            for j in range(70):
                p.append((x * W[j], y * D[j] + 0.06 - 0.10 * math.exp(-((zz[j] + 1.95) / 0.4) ** 2) * (y < 0) * abs(y),
                          zz[j]))
        o = netz(p, gitter(n, 70, zu_u=True), self.tuch)
        self.baum = BVHTree.FromPolygons([Vector(q) for q in p], [tuple(f.vertices) for f in o.data.polygons])
        o.data.materials.append(self.hautstoff)
        o.data.materials.append(matt(f2, 0.75, 0.2, korn=0.25, kornmaß=90))
        self.netz = o
        h = 0.335 * (0.55 + 0.45 * g["hals"]) * (0.82 + 0.18 * g["hals"])
        gedreht([(h * 1.04, -0.6), (h, -0.95), (h * 1.02, -1.12), (h * 1.15, -1.25), (h * 1.5, -1.36)], self.hautstoff,
                matrix=platz((0, 0.10, 0), maß=(1, 0.95, 1)))
        getattr(self, art)(f1, f2, *g["kleid"][3:])
        self.schmuck()

    def stoff_zu(self, art, f1, f2):
        m = matt(f1, 0.78, 0.18, korn=0.25, kornmaß=90)
        if art == "hawaii":
            baum = Baum(m)
            ort = baum.neu("TexCoord", aus="Object")
            blumen = baum.neu("TexVoronoi", {"Scale": 3.1, "Randomness": 0.75, "Vector": ort}, "Distance")
            wild = baum.neu("TexNoise", {"Scale": 7, "Vector": ort}, "Fac")
            stufen = [(.34, rgb("#f4a72c")), (.38, rgb(f2)), (.54, rgb(f2)), (.57, rgb(f1))]
            muster = baum.rampe(baum.mathe("MULTIPLY_ADD", wild, .5, blumen), stufen, "EASE")
            baum.setze(baum.knoten["Principled BSDF"], {"Base Color": muster})
        return m

    def flächen(self, wahl):
        for q in self.netz.data.polygons:
            q.material_index = wahl(q.center)

    def ring(self, z, r, dick, material, tiefe=0.92, neigung=0.0):
        n = 48
        schlauch([(r * math.cos(a), 0.10 + r * tiefe * math.sin(a), z + neigung * math.sin(a))
                  for a in np.linspace(0, 2 * math.pi, n, False)],
                 [dick] * n, material, n=14, nach_außen=[Vector((math.cos(a), math.sin(a), 0))
                                                         for a in np.linspace(0, 2 * math.pi, n, False)], zu=True)

    def ausschnitt(self, spitze, breite, material):
        """Haut oder Hemd im V vor dem Hals."""
        t = np.linspace(0, 1, 14)
        links = [(-breite * (1 - q) ** 0.9, -1.20 - (abs(spitze) - 1.20) * q) for q in t]
        rechts = [(-x, z) for x, z in links]
        self.band(links, rechts, 0.012, material, über=0.012, spitz=False, m=15)

    def kragen(self, material, spitze=-1.62, breit=0.26):
        for s in (-1, 1):
            t = np.linspace(0, 1, 14)
            innen = [(s * (0.30 * (1 - q) + 0.02 * q), -1.16 - 0.30 * q) for q in t]
            außen = [(s * (0.36 + breit * math.sin(math.pi * min(1, 0.15 + 0.62 * q)) * (1 - 0.35 * q) - 0.06 * q),
                      -1.17 - 0.40 * q) for q in t]
            self.band(innen, außen, 0.05, material, über=0.03, spitz=False)

    def aufschlag(self, material, tief=-2.3):
        for s in (-1, 1):
            t = np.linspace(0, 1, 20)
            innen = [(s * (0.33 - 0.27 * q), -1.20 + (tief + 1.20) * q) for q in t]
            außen = [(s * (0.38 + 0.30 * math.sin(math.pi * q ** 0.75) - 0.28 * q + (0.10 if 0.28 < q < 0.42 else 0)),
                      -1.19 + (tief + 1.19) * q) for q in t]
            self.band(innen, außen, 0.05, material, über=0.035, spitz=False)

    def knopf(self, z, farbe, x=0.0):
        o, n = self.treffer(x, z)
        ball(0.042, o + n * 0.02, matt(farbe, 0.3, 0.5), maß=(1, 0.5, 1), n=14)

    def tshirt(self, f1, f2):
        self.ring(-1.215, 0.40, 0.055, matt(f2, 0.75, 0.2), neigung=0.05)

    def ringel(self, f1, f2):
        self.flächen(lambda c: 2 if c.z < -1.34 and int((c.z + 5) / 0.115) % 2 else 0)
        self.ring(-1.215, 0.40, 0.05, matt(f2, 0.75, 0.2), neigung=0.05)

    def hemd(self, f1, f2):
        self.ausschnitt(-1.62, 0.27, self.hautstoff)
        self.kragen(matt(f1, 0.75, 0.2, korn=0.25, kornmaß=90))
        t = np.linspace(0, 1, 10)
        self.band([(-0.075, -1.6 - 1.2 * q) for q in t], [(0.075, -1.6 - 1.2 * q) for q in t], 0.02,
                  matt(f2, 0.75, 0.2), über=0.01, spitz=False)
        for z in (-1.72, -2.0, -2.3):
            self.knopf(z, "#f1e7d2")

    def offen(self, f1, f2):
        self.ausschnitt(-1.98, 0.27, self.hautstoff)
        self.kragen(matt(f1, 0.75, 0.2))
        self.knopf(-2.05, "#cdbf9f")

    def hawaii(self, f1, f2):
        self.ausschnitt(-1.72, 0.27, self.hautstoff)
        self.kragen(self.tuch, breit=0.30)
        for z in (-1.80, -2.08):
            self.knopf(z, "#fff3d6")

    def anzug(self, f1, f2, f3, art):
        tuch = matt("#" + "".join(f"{min(255, round(int(f1[i:i + 2], 16) * 1.12)):02x}" for i in (1, 3, 5)), 0.7, 0.25,
                    korn=0.2, kornmaß=120)
        hemd = matt(f2, 0.65, 0.25)
        self.ausschnitt(-2.35, 0.36, hemd)
        if art == "rolli":
            m = matt(f2, 0.8, 0.2, korn=0.4, kornmaß=60)
            self.ring(-1.14, 0.37, 0.10, m)
            self.ring(-1.25, 0.40, 0.10, m)
        else:
            self.kragen(hemd, breit=0.16)
            m = matt(f3, 0.5, 0.35)
            o, n = self.treffer(0, -1.36)
            if art == "fliege":
                for s in (-1, 1):
                    t = np.linspace(0, 1, 12)
                    self.band([(s * (0.02 + 0.27 * q), -1.36 + 0.03 + 0.085 * q) for q in t],
                              [(s * (0.02 + 0.27 * q), -1.36 - 0.03 - 0.085 * q) for q in t], 0.075, m, über=0.06)
                ball(0.062, o + Vector((0, -0.10, 0)), m, n=16)
            else:
                t = np.linspace(0, 1, 14)
                self.band([(-0.06 - 0.09 * q, -1.42 - 1.2 * q) for q in t],
                          [(0.06 + 0.09 * q, -1.42 - 1.2 * q) for q in t], 0.05, m, über=0.04, spitz=False)
                ball(0.095, o + Vector((0, -0.06, 0)), m, maß=(1, 0.7, 0.85), n=16)
        self.aufschlag(tuch)
        if art == "fliege":
            t = np.linspace(0, 1, 8)
            self.band([(0.62 + 0.22 * q, -1.78 + 0.03 * math.sin(9 * q)) for q in t],
                      [(0.63 + 0.20 * q, -1.92) for q in t], 0.03, matt(f3, 0.5), über=0.02, spitz=False)

    def kleid(self, f1, f2):
        self.flächen(lambda c: 0 if c.z < -1.60 else 1)
        s = self.g["schulter"]
        for v in (-1, 1):
            t = np.linspace(0, 1, 14)
            self.raupe([(v * (0.50 + 0.04 * q) * s / 0.82, -1.30 - 0.28 * q) for q in t], [0.085] * 14, 0.05,
                       matt(f1, 0.7, 0.2), 0.012)
        borte = matt(f2, 0.7, 0.2)
        t = np.linspace(-1, 1, 60)
        self.raupe([(x * 1.12 * s, -1.60 + 0.008 * math.sin(40 * x)) for x in t], [0.055] * 60, 0.06, borte, 0.02)

    def sari(self, f1, f2):
        self.flächen(lambda c: 1 if c.z > -1.62 and c.y < 0.15 and abs(c.x) < 0.62 else 0)
        t = np.linspace(0, 1, 24)
        gold, tuch = matt(f2, 0.35, 0.5, 0.4), matt(f1, 0.6, 0.3)
        for k in range(4):
            self.raupe([(0.70 - 0.16 * k - 1.15 * q, -1.30 - 0.06 * k - 1.3 * q ** 1.3) for q in t], [0.10] * 24, 0.07,
                       tuch, 0.02 + 0.01 * k)
        self.raupe([(0.20 - 0.9 * q, -1.40 - 1.25 * q ** 1.1) for q in t], [0.05] * 24, 0.05, gold, 0.07)
        t = np.linspace(-1, 1, 24)
        self.raupe([(x * 0.72, -1.68 + 0.10 * x * x) for x in t], [0.04] * 24, 0.04, gold, 0.02)

    def rolli(self, f1, f2):
        m = matt(f2, 0.8, 0.2, korn=0.5, kornmaß=50)
        self.ring(-1.08, 0.37, 0.10, m)
        self.ring(-1.20, 0.41, 0.11, m)

    def schmuck(self):
        g = self.g
        for schlüssel, r, tief, n in (("kette", 0.045, 0.30, 25), ("kettchen", 0.03, 0.20, 27)):
            if not g.get(schlüssel):
                continue
            m = matt(g[schlüssel], 0.22, 0.6, 0.2 if g["nr"] == 144 else 0.5)
            for t in np.linspace(-1, 1, n):
                o, nn = self.treffer(0.40 * t, -1.26 - tief * (1 - t * t))
                ball(r, o + nn * (r + (0.11 if g["kleid"][0] == "rolli" else 0.02)), m, n=12)
