"""Die 15 Gäste des Hauses als Büsten, 396 mal 392 Punkte.

Aufruf: blender -b -P gaeste.py -- [Nummern ...] [proben=64] [mass=1.0] [ziel=Ordner]
"""
import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import bpy
import numpy as np
from mathutils import Vector
from mathutils.bvhtree import BVHTree
from koepfe import *

BILDER = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "bilder", "charakter"))

GRUND = dict(breit=1.0, lang=1.0, kiefer=0.06, wangen=1.0, kinn=0.6, brauenwulst=0.6, augab=0.315, augen=1.0, alter=0.0, rot=0.8,
             nase=(1.0, 1.0, 1.0), mund=("zu", 1.0, 1.0, "#b5584f", 0.8), lid=(34, 44), wimpern=0.3, braue=(0.7, 0.8, 0.0, 0.0),
             iris="#6b4426", irisrand="#2e1a0c", ansatz=(0.55, 0.42, 0.05, -0.45), schulter=1.0, drehung=(0, 0, 8), hals=1.0)


def gast(nr, **w):
    return {**GRUND, "nr": nr, **w}


# Felder: Kopfform, Farben, nase (Länge, Breite, Höhe), mund (Art, Breite, Lächeln, Farbe, Fülle),
# lid (oben, unten in Grad), braue (Dicke, Bogen, Schräge, Höhe), ansatz des Haars, Kleid, Hut, Hintergrund
GAESTE = [
    gast(141, haut="#e0ab88", haarfarbe="#c9c6c0", breit=0.98, lang=1.04, kiefer=0.07, kinn=0.9, alter=1, nase=(1.15, 1.1, 1.15), mund=("zu", 0.95, 0.7, "#a85a4c", 0.55),
         lid=(26, 38), braue=(1.25, 0.5, -0.2, 0), iris="#4f7187", irisrand="#253a4a", ansatz=(0.72, 0.50, 0.05, -0.45),
         frisur="zurueck", bart="schnauz", kleid=("anzug", "#3b4a63", "#f4efe4", "#9c2f35", "fliege"), grund=("#d9c08a", "#8d6a3f"), drehung=(0, 0, -12)),
    gast(142, haut="#7a4a2e", haarfarbe="#2a1a14", breit=0.96, kinn=0.4, nase=(0.9, 1.35, 0.75), mund=("offen", 1.15, 1.15, "#a3403f", 1.25), lid=(32, 40), wimpern=0.9,
         braue=(0.6, 1.1, 0.2, 0.4), iris="#4a2a16", ansatz=(0.50, 0.36, 0.02, -0.40), frisur="afro", schulter=0.84, ohrring="#f0c040",
         kleid=("kleid", "#f2b632", "#f7d679"), grund=("#7fc8c0", "#2f8288"), drehung=(0, 4, 12), hals=0.88),
    gast(143, haut="#e6a883", haarfarbe="#b9541c", breit=1.05, kiefer=0.10, kinn=0.7, rot=1.15, nase=(0.95, 1.2, 1.0), mund=("offen", 0.95, 0.9, "#b4574c", 0.7), lid=(30, 36),
         braue=(1.2, 0.7, 0.1, 0.2), iris="#4d8a53", irisrand="#1f4426", ansatz=(0.62, 0.46, 0.02, -0.45), frisur="strubbel", bart="voll",
         kleid=("hemd", "#3f7f4c", "#2e6239"), grund=("#f0d7a0", "#c48f4a"), drehung=(0, -3, 14), schulter=1.1),
    gast(144, haut="#e6b491", haarfarbe="#e6e1ea", breit=0.95, lang=0.97, kiefer=0.05, wangen=1.35, kinn=0.4, alter=1, rot=1.1, nase=(0.95, 0.95, 0.85), mund=("zu", 0.95, 1.3, "#b8404e", 0.9),
         lid=(26, 34), wimpern=0.6, braue=(0.5, 1.0, 0.0, 0.5), brauenfarbe="#a89c96", iris="#5b82a8", irisrand="#2b4560", ansatz=(0.62, 0.46, 0.08, -0.42), frisur="dutt", brille=("rund", "#8a2f4a"),
         schulter=0.84, ohrring="#f3ead8", kleid=("rolli", "#8f6fae", "#a487c0"), kette="#f6efe2", grund=("#f3d3cf", "#b97a80"), drehung=(0, -4, -12), hals=0.86),
    gast(145, haut="#e6b98d", haarfarbe="#1c1718", breit=0.99, kiefer=0.07, kinn=0.6, brauenwulst=0.3, nase=(0.85, 1.15, 0.7), mund=("offen", 1.05, 1.0, "#b56a5a", 0.6), lid=(24, 24),
         braue=(0.9, 0.5, 0.35, 0.2), iris="#3b2314", ansatz=(0.55, 0.44, 0.02, -0.40), frisur="stachel", kleid=("tshirt", "#e8743a", "#fbe9d2"), grund=("#a9d7ee", "#3f86b5"), drehung=(0, 5, 14)),
    gast(146, haut="#eab68e", haarfarbe="#e3b75f", breit=0.93, kinn=0.45, kiefer=0.03, rot=1.0, nase=(0.9, 0.9, 0.9), mund=("offen", 1.0, 1.2, "#cf4f55", 1.0), lid=(33, 42), wimpern=0.9,
         braue=(0.5, 0.9, 0.1, 0.4), brauenfarbe="#a8793a", iris="#3f8fc4", irisrand="#1d4d75", frisur="lang", hut=("sonnenhut", "#ecd9a4", "#2f6fa8"), schulter=0.80,
         kleid=("kleid", "#3f86c0", "#dcecf4"), grund=("#fbe6b3", "#e0a24e"), drehung=(0, 6, -12), hals=0.82),
    gast(147, haut="#d99f7b", haarfarbe="#b9b4ac", breit=1.06, kiefer=0.10, wangen=1.3, kinn=0.8, alter=1, rot=1.4, nase=(1.0, 1.4, 1.15), mund=("zu", 0.9, 1.2, "#a5524a", 0.8), lid=(22, 34),
         braue=(1.5, 0.6, -0.1, 0), brauenfarbe="#cfc9bf", iris="#4a86b0", irisrand="#234a66", ansatz=(0.60, 0.46, 0.0, -0.45), frisur="kurz", bart="seebaer", hut=("kapitaen", "#f5f1e6", "#1e2b46"),
         kleid=("anzug", "#22345a", "#f1ece0", "#22345a", "rolli"), grund=("#a7d4e6", "#3a7ea6"), drehung=(0, 0, 12), schulter=1.1),
    gast(148, haut="#a8703f", haarfarbe="#1d1413", breit=0.93, kiefer=0.03, kinn=0.45, nase=(1.0, 1.0, 0.95), mund=("zu", 1.05, 1.3, "#9c3440", 1.15), lid=(30, 42), wimpern=1.0, braue=(0.75, 1.1, 0.1, 0.2),
         iris="#3a2010", frisur="zopf", ansatz=(0.58, 0.44, 0.06, -0.45), ohrring="#f2c14a", stirnpunkt="#c22338", schulter=0.80, kleid=("sari", "#c2286e", "#f0b83c"), kette="#f0c14a",
         grund=("#f6cf8b", "#cf7a36"), drehung=(0, -4, 12), hals=0.82, lidschatten="#8f5a38"),
    gast(149, haut="#5f3a26", haarfarbe="#1a1210", breit=1.08, lang=0.98, kiefer=0.12, wangen=1.35, kinn=0.6, nase=(0.95, 1.45, 0.95), mund=("offen", 1.15, 1.15, "#8e4640", 1.05), lid=(28, 32),
         braue=(1.1, 0.8, 0.0, 0.3), iris="#2e1a0f", frisur="glatze", bart="kinn", brille=("eckig", "#2a2a30"), kleid=("hawaii", "#1f8f86", "#f6d65a"), grund=("#f7c98a", "#d9743f"), drehung=(0, 0, -12), schulter=1.12, hals=1.15),
    gast(150, haut="#efbf9c", haarfarbe="#7a3f1f", breit=0.97, lang=0.95, kiefer=0.03, wangen=1.2, kinn=0.3, brauenwulst=0.2, rot=1.2, nase=(0.75, 0.9, 0.75), mund=("offen", 1.05, 1.25, "#cf746c", 0.7), lid=(38, 46), augen=1.10,
         wimpern=0.55, braue=(0.55, 0.9, 0.2, 0.5), iris="#6d8a3a", irisrand="#39491c", frisur="pagenkopf", ansatz=(0.55, 0.42, 0.05, -0.45), sprossen=True, schulter=0.78, kleid=("ringel", "#f6f1e4", "#2c4f8f"),
         grund=("#c6e6b6", "#5c9c5a"), drehung=(0, -6, -12), hals=0.78),
    gast(151, haut="#c48a5c", haarfarbe="#221714", breit=0.98, lang=1.03, kiefer=0.09, kinn=0.95, brauenwulst=0.9, nase=(1.1, 1.0, 1.2), mund=("offen", 1.05, 0.9, "#a3604f", 0.65), lid=(26, 34), braue=(1.15, 0.7, 0.35, 0),
         iris="#4a2b14", ansatz=(0.66, 0.50, -0.06, -0.45), frisur="pomade", stoppeln=0.42, bart="duenn", kleid=("offen", "#f6f1e6", "#dfd5c2"), kette="#e8b83c", grund=("#f2b37a", "#b5483f"), drehung=(0, 4, 14)),
    gast(152, haut="#d69c6c", haarfarbe="#d9a648", breit=1.0, kiefer=0.13, kinn=1.0, nase=(1.0, 1.0, 1.0), mund=("offen", 1.15, 1.0, "#b4705c", 0.55), lid=(27, 34), braue=(1.1, 0.4, 0.25, -0.1), brauenfarbe="#8f6426",
         iris="#3f9aa8", irisrand="#1d5560", frisur="surfer", ansatz=(0.60, 0.46, 0.04, -0.45), stoppeln=0.55, brauenwulst=1.0, kleid=("tshirt", "#2fa8a0", "#f3efe0"), kettchen="#6b4426", grund=("#fbe1a4", "#4fb0c6"), drehung=(0, -5, -13)),
    gast(153, haut="#dfa67c", haarfarbe="#53291a", breit=0.94, kiefer=0.03, kinn=0.45, nase=(0.9, 0.95, 0.9), mund=("offen", 1.1, 1.25, "#c23b46", 1.1), lid=(32, 42), wimpern=0.95, braue=(0.65, 1.0, 0.1, 0.3),
         iris="#6f4a20", frisur="wellen", ansatz=(0.57, 0.44, 0.05, -0.45), blume="#e8414f", schulter=0.80, kleid=("hawaii", "#ef7d5b", "#fff0d6"), grund=("#a5dccb", "#2f8f93"), drehung=(0, -6, 12), hals=0.82),
    gast(154, haut="#553421", haarfarbe="#e9e5de", breit=0.98, lang=1.02, kiefer=0.08, kinn=0.8, alter=1, nase=(1.05, 1.35, 1.0), mund=("zu", 1.05, 1.2, "#7e423a", 0.95), lid=(24, 34), braue=(1.15, 0.6, -0.1, 0.1),
         iris="#2e1a0f", frisur="krauskurz", bart="weiss", hut=("fedora", "#e9d6a6", "#5a3420"), kleid=("anzug", "#e3d6b6", "#f7f3ea", "#3f7f86", "krawatte"), grund=("#c9dba0", "#6b8f4a"), drehung=(0, 4, -12)),
    gast(155, haut="#e3b48c", haarfarbe="#2a1a12", breit=0.93, kiefer=0.02, kinn=0.4, rot=0.9, nase=(1.0, 0.9, 1.0), mund=("zu", 1.0, 1.4, "#b24850", 1.0), lid=(31, 42), wimpern=1.0, braue=(0.7, 0.9, 0.1, 0.3),
         iris="#5a3a1a", frisur="keine", hut=("kopftuch", "#3f9c97", "#e9c46a"), schulter=0.82, kleid=("rolli", "#e9dcc6", "#f3e9d8"), lidschatten="#bd8f70", grund=("#f2d9c0", "#c28f74"), drehung=(0, 4, 12), hals=0.8),
]


# --- Rumpf und Kleid ---------------------------------------------------------------------------------------------------
class Rumpf(Kopf):
    def __init__(self, g):
        self.g = g
        self.e = None
        art, f1, f2 = g["kleid"][:3]
        s = g["schulter"]
        self.tuch = self.stoff_zu(art, f1, f2)
        self.hautstoff = stoff("hautrumpf", g["haut"], 0.5, 0.4)
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
                p.append((x * W[j], y * D[j] + 0.06 - 0.10 * math.exp(-((zz[j] + 1.95) / 0.4) ** 2) * (y < 0) * abs(y), zz[j]))
        o = netz("rumpf", p, gitter(n, 70, zu_u=True), self.tuch)
        self.baum = BVHTree.FromPolygons([Vector(q) for q in p], [tuple(f.vertices) for f in o.data.polygons])
        o.data.materials.append(self.hautstoff)
        o.data.materials.append(stoff("tuch2", f2, 0.75, 0.2, korn=0.25, kornmass=90))
        self.netz = o
        h = 0.335 * (0.55 + 0.45 * g["hals"]) * (0.82 + 0.18 * g["hals"])
        drehkoerper("hals", [(h * 1.04, -0.6), (h, -0.95), (h * 1.02, -1.12), (h * 1.15, -1.25), (h * 1.5, -1.36)], self.hautstoff, ort=(0, 0.10, 0), mass=(1, 0.95, 1))
        getattr(self, art)(f1, f2, *g["kleid"][3:])
        self.schmuck()

    def stoff_zu(self, art, f1, f2):
        m = stoff("tuch", f1, 0.78, 0.18, korn=0.25, kornmass=90)
        if art == "hawaii":
            n, l = m.node_tree.nodes, m.node_tree.links
            k = n.new("ShaderNodeTexCoord")
            v = n.new("ShaderNodeTexVoronoi")
            v.inputs["Scale"].default_value = 3.1
            v.inputs["Randomness"].default_value = 0.75
            w = n.new("ShaderNodeTexNoise")
            w.inputs["Scale"].default_value = 7
            add = n.new("ShaderNodeMath")
            add.operation = "MULTIPLY_ADD"
            add.inputs[1].default_value = 0.5
            l.new(k.outputs["Object"], v.inputs["Vector"])
            l.new(k.outputs["Object"], w.inputs["Vector"])
            l.new(w.outputs["Fac"], add.inputs[0])
            l.new(v.outputs["Distance"], add.inputs[2])
            r = n.new("ShaderNodeValToRGB")
            r.color_ramp.interpolation = "EASE"
            e = r.color_ramp.elements
            e[0].position, e[0].color = 0.34, (*linear("#f4a72c"), 1)
            e[1].position, e[1].color = 0.38, (*linear(f2), 1)
            for pos, col in ((0.54, f2), (0.57, f1)):
                q = e.new(pos)
                q.color = (*linear(col), 1)
            l.new(add.outputs[0], r.inputs["Fac"])
            l.new(r.outputs["Color"], n["Principled BSDF"].inputs["Base Color"])
        return m

    def flaechen(self, wahl):
        for q in self.netz.data.polygons:
            q.material_index = wahl(q.center)

    def ring(self, z, r, dick, material, tiefe=0.92, neigung=0.0):
        n = 48
        schlauch("ring", [(r * math.cos(a), 0.10 + r * tiefe * math.sin(a), z + neigung * math.sin(a)) for a in np.linspace(0, 2 * math.pi, n, False)],
                 [dick] * n, material, n=14, nach_aussen=[Vector((math.cos(a), math.sin(a), 0)) for a in np.linspace(0, 2 * math.pi, n, False)], zu=True)

    def ausschnitt(self, spitze, breite, material):
        """Haut oder Hemd im V vor dem Hals."""
        t = np.linspace(0, 1, 14)
        links = [(-breite * (1 - q) ** 0.9, -1.20 - (abs(spitze) - 1.20) * q) for q in t]
        rechts = [(-x, z) for x, z in links]
        self.band("ausschnitt", links, rechts, 0.012, material, ueber=0.012, spitz=False, m=15)

    def kragen(self, material, spitze=-1.62, breit=0.26):
        for s in (-1, 1):
            t = np.linspace(0, 1, 14)
            innen = [(s * (0.30 * (1 - q) + 0.02 * q), -1.16 - 0.30 * q) for q in t]
            aussen = [(s * (0.36 + breit * math.sin(math.pi * min(1, 0.15 + 0.62 * q)) * (1 - 0.35 * q) - 0.06 * q), -1.17 - 0.40 * q) for q in t]
            self.band("kragen", innen, aussen, 0.05, material, ueber=0.03, spitz=False)

    def aufschlag(self, material, tief=-2.3):
        for s in (-1, 1):
            t = np.linspace(0, 1, 20)
            innen = [(s * (0.33 - 0.27 * q), -1.20 + (tief + 1.20) * q) for q in t]
            aussen = [(s * (0.38 + 0.30 * math.sin(math.pi * q ** 0.75) - 0.28 * q + (0.10 if 0.28 < q < 0.42 else 0)), -1.19 + (tief + 1.19) * q) for q in t]
            self.band("aufschlag", innen, aussen, 0.05, material, ueber=0.035, spitz=False)

    def knopf(self, z, farbe, x=0.0):
        o, n = self.treffer(x, z)
        kugel("knopf", 0.042, o + n * 0.02, stoff("knopf", farbe, 0.3, 0.5), mass=(1, 0.5, 1), n=14)

    def tshirt(self, f1, f2):
        self.ring(-1.215, 0.40, 0.055, stoff("saum", f2, 0.75, 0.2), neigung=0.05)

    def ringel(self, f1, f2):
        self.flaechen(lambda c: 2 if c.z < -1.34 and int((c.z + 5) / 0.115) % 2 else 0)
        self.ring(-1.215, 0.40, 0.05, stoff("saum", f2, 0.75, 0.2), neigung=0.05)

    def hemd(self, f1, f2):
        self.ausschnitt(-1.62, 0.27, self.hautstoff)
        self.kragen(stoff("kragen", f1, 0.75, 0.2, korn=0.25, kornmass=90))
        t = np.linspace(0, 1, 10)
        self.band("leiste", [(-0.075, -1.6 - 1.2 * q) for q in t], [(0.075, -1.6 - 1.2 * q) for q in t], 0.02, stoff("leiste", f2, 0.75, 0.2), ueber=0.01, spitz=False)
        for z in (-1.72, -2.0, -2.3):
            self.knopf(z, "#f1e7d2")

    def offen(self, f1, f2):
        self.ausschnitt(-1.98, 0.27, self.hautstoff)
        self.kragen(stoff("kragen", f1, 0.75, 0.2))
        self.knopf(-2.05, "#cdbf9f")

    def hawaii(self, f1, f2):
        self.ausschnitt(-1.72, 0.27, self.hautstoff)
        self.kragen(self.tuch, breit=0.30)
        for z in (-1.80, -2.08):
            self.knopf(z, "#fff3d6")

    def anzug(self, f1, f2, f3, art):
        tuch = stoff("aufschlag", "#" + "".join(f"{min(255, round(int(f1[i:i + 2], 16) * 1.12)):02x}" for i in (1, 3, 5)), 0.7, 0.25, korn=0.2, kornmass=120)
        hemd = stoff("hemd", f2, 0.65, 0.25)
        self.ausschnitt(-2.35, 0.36, hemd)
        if art == "rolli":
            m = stoff("rolli", f2, 0.8, 0.2, korn=0.4, kornmass=60)
            self.ring(-1.14, 0.37, 0.10, m)
            self.ring(-1.25, 0.40, 0.10, m)
        else:
            self.kragen(hemd, breit=0.16)
            m = stoff("binder", f3, 0.5, 0.35)
            o, n = self.treffer(0, -1.36)
            if art == "fliege":
                for s in (-1, 1):
                    t = np.linspace(0, 1, 12)
                    self.band("fliege", [(s * (0.02 + 0.27 * q), -1.36 + 0.03 + 0.085 * q) for q in t], [(s * (0.02 + 0.27 * q), -1.36 - 0.03 - 0.085 * q) for q in t], 0.075, m, ueber=0.06)
                kugel("knoten", 0.062, o + Vector((0, -0.10, 0)), m, n=16)
            else:
                t = np.linspace(0, 1, 14)
                self.band("krawatte", [(-0.06 - 0.09 * q, -1.42 - 1.2 * q) for q in t], [(0.06 + 0.09 * q, -1.42 - 1.2 * q) for q in t], 0.05, m, ueber=0.04, spitz=False)
                kugel("knoten", 0.095, o + Vector((0, -0.06, 0)), m, mass=(1, 0.7, 0.85), n=16)
        self.aufschlag(tuch)
        if art == "fliege":
            t = np.linspace(0, 1, 8)
            self.band("tuch", [(0.62 + 0.22 * q, -1.78 + 0.03 * math.sin(9 * q)) for q in t], [(0.63 + 0.20 * q, -1.92) for q in t], 0.03, stoff("einstecktuch", f3, 0.5), ueber=0.02, spitz=False)

    def kleid(self, f1, f2):
        self.flaechen(lambda c: 0 if c.z < -1.60 else 1)
        s = self.g["schulter"]
        for v in (-1, 1):
            t = np.linspace(0, 1, 14)
            self.raupe("traeger", [(v * (0.50 + 0.04 * q) * s / 0.82, -1.30 - 0.28 * q) for q in t], [0.085] * 14, 0.05, stoff("traeger", f1, 0.7, 0.2), 0.012)
        borte = stoff("borte", f2, 0.7, 0.2)
        t = np.linspace(-1, 1, 60)
        self.raupe("borte", [(x * 1.12 * s, -1.60 + 0.008 * math.sin(40 * x)) for x in t], [0.055] * 60, 0.06, borte, 0.02)

    def sari(self, f1, f2):
        self.flaechen(lambda c: 1 if c.z > -1.62 and c.y < 0.15 and abs(c.x) < 0.62 else 0)
        t = np.linspace(0, 1, 24)
        gold, tuch = stoff("gold", f2, 0.35, 0.5, 0.4), stoff("schal", f1, 0.6, 0.3)
        for k in range(4):
            self.raupe("falte", [(0.70 - 0.16 * k - 1.15 * q, -1.30 - 0.06 * k - 1.3 * q ** 1.3) for q in t], [0.10] * 24, 0.07, tuch, 0.02 + 0.01 * k)
        self.raupe("borte", [(0.20 - 0.9 * q, -1.40 - 1.25 * q ** 1.1) for q in t], [0.05] * 24, 0.05, gold, 0.07)
        t = np.linspace(-1, 1, 24)
        self.raupe("borte2", [(x * 0.72, -1.68 + 0.10 * x * x) for x in t], [0.04] * 24, 0.04, gold, 0.02)

    def rolli(self, f1, f2):
        m = stoff("rolli", f2, 0.8, 0.2, korn=0.5, kornmass=50)
        self.ring(-1.08, 0.37, 0.10, m)
        self.ring(-1.20, 0.41, 0.11, m)

    def schmuck(self):
        g = self.g
        for schluessel, r, tief, n in (("kette", 0.045, 0.30, 25), ("kettchen", 0.03, 0.20, 27)):
            if not g.get(schluessel):
                continue
            m = stoff("kette", g[schluessel], 0.22, 0.6, 0.2 if g["nr"] == 144 else 0.5)
            for t in np.linspace(-1, 1, n):
                o, nn = self.treffer(0.40 * t, -1.26 - tief * (1 - t * t))
                kugel("perle", r, o + nn * (r + (0.11 if g["kleid"][0] == "rolli" else 0.02)), m, n=12)


# --- Frisuren -------------------------------------------------------------------------------------------------------------
def frisieren(k):
    g, f = k.g, k.g["frisur"]
    if f in ("keine", "glatze"):
        return
    st = k.haarstoffe()
    scheitel = lambda xp, runter=-0.55, vor=0.0: (lambda p, z: ((1 if p.x > xp else -1) * 1.0, -vor if p.y < 0 else 0.5, runter))
    if f == "zurueck":
        k.kappe(0.10, st[0])
        k.straehnen(230, lambda p, z: (0.5 * p.x, 1.0, 0.45 if p.y < -0.2 else -0.5), 0.85, 0.062, st, 0.15, streuung=0.14)
    elif f == "pomade":
        k.kappe(0.11, st[0], tief=0.0)
        k.straehnen(230, lambda p, z: (0.35 * p.x + 0.25, 1.0, 0.5 if p.y < -0.2 else -0.6), 0.95, 0.060, st, 0.17, streuung=0.06)
    elif f == "afro":
        k.kappe(0.30, st[0])
        k.locken(250, 0.15, st, hoehe=0.42, ab=0.06)
        k.locken(160, 0.14, st, hoehe=0.24, ab=0.0, saat=3)
    elif f == "krauskurz":
        k.kappe(0.07, st[0])
        k.locken(260, 0.075, st, hoehe=0.08, ab=0.02)
    elif f == "strubbel":
        k.kappe(0.12, st[0])
        k.straehnen(150, lambda p, z: (0.9 * p.x + 0.5, -0.5, 0.5), 0.5, 0.085, st, 0.20, streuung=0.5)
    elif f == "kurz":
        k.kappe(0.08, st[0])
        k.straehnen(120, lambda p, z: (0.2 * p.x, 0.3, -1), 0.30, 0.08, st, 0.10, streuung=0.2)
    elif f == "stachel":
        k.kappe(0.10, st[0])
        z = random.Random(5)
        k.straehnen(130, lambda p, z: (0.5 * p.x + 0.15, 0.25, -0.9), 0.32, 0.085, st, 0.09, bis=0.55, streuung=0.2)
        for i in range(64):
            a, q = i * 2.39996, math.sqrt((i + 0.5) / 64) * 0.92
            d = Vector((q * math.sin(a) * 0.95, -q * math.cos(a) * 0.95 + 0.02, math.sqrt(max(0.05, 1 - q * q)))).normalized()
            if k.maske(np.array(d)[None])[0] < 0.02:
                continue
            o = Vector(k.huelle(np.array(d)[None], 0.04)[0])
            hin = (d + Vector((0.25, -0.55, 0.35)) + Vector((z.gauss(0, .16), z.gauss(0, .12), 0))).normalized()
            pk = [o + d * 0.10 * t + hin * 0.34 * t ** 1.2 for t in np.linspace(0, 1, 8)]
            schlauch("stachel", pk, [0.125 * (1 - t) ** 0.75 + 0.004 for t in np.linspace(0, 1, 8)], z.choice(st), k.e, n=12, flach=0.7, rillen=5, tief=0.10)
    elif f == "dutt":
        k.kappe(0.13, st[0])
        ziel = Vector((0, 0.10, 1.15))
        k.straehnen(130, lambda p, z: (ziel - p), 1.0, 0.095, st, 0.17, streuung=0.08)
        for i in range(9):
            w = i * 2 * math.pi / 9
            pk = [Vector((0.24 * math.cos(w + 2.4 * t) * math.sin(math.pi * (0.18 + 0.8 * t)), 0.10 + 0.24 * math.sin(w + 2.4 * t) * math.sin(math.pi * (0.18 + 0.8 * t)), 1.10 + 0.36 * t)) * 1.0 for t in np.linspace(0, 1, 14)]
            schlauch("dutt", pk, [0.12 * (1 - 0.5 * abs(2 * t - 1)) for t in np.linspace(0, 1, 14)], st[i % 3], k.e, n=12, rillen=5, tief=0.08, flach=0.8)
        kugel("duttkern", 0.27, (0, 0.10, 1.25), st[0], k.e)
    elif f in ("lang", "wellen", "surfer", "zopf", "pagenkopf"):
        xp = {"lang": 0.0, "wellen": 0.22, "surfer": -0.15, "zopf": 0.0, "pagenkopf": 0.0}[f]
        k.kappe(0.13, st[0])
        laenge = {"lang": 2.3, "wellen": 1.9, "surfer": 1.0, "zopf": 1.0, "pagenkopf": 1.15}[f]
        fluss = lambda p, z: ((1 if p.x > xp else -1) * (1.0 if p.z > 0.2 else 0.25), 0.35 if p.y < 0.1 else 0.05, -0.45 if p.z > 0.4 else -1.0)
        if f == "zopf":
            k.straehnen(130, lambda p, z: ((1 if p.x > 0 else -1) * (0.9 if p.z > 0.3 else 0.1), 0.75, -0.45), 1.25, 0.095, st, 0.13, streuung=0.06)
            for i in range(9):      # geflochten über die Schulter
                for s in (-1, 1):
                    kugel("flechte", 0.15, (0.62 + 0.05 * math.sin(i) + s * 0.055, -0.18 - 0.05 * i + 0.02, -0.62 - 0.17 * i - (0.085 if s > 0 else 0)), st[(i + (s > 0)) % 3], k.e, mass=(0.72, 0.8, 0.95), drehung=(0, s * 0.7, 0), n=16)
            kugel("band", 0.13, (0.66, -0.64, -2.16), stoff("band", "#f0b83c", 0.5), k.e, mass=(0.8, 0.8, 0.5), n=16)
        else:
            k.straehnen(190 if f != "surfer" else 150, fluss, laenge, 0.105 if f != "pagenkopf" else 0.10, st, 0.16, fall=-0.12 if f != "pagenkopf" else -0.35, streuung={"lang": 0.12, "wellen": 0.35, "surfer": 0.35, "pagenkopf": 0.05}[f], spitze=0.12 if f != "pagenkopf" else 0.5)
        if f == "pagenkopf":
            k.straehnen(60, lambda p, z: (0.05 * p.x, -1.0, -0.5), 0.62, 0.09, st, 0.15, seite=lambda d: d[1] < 0.1 and d[2] > 0.45, streuung=0.05, spitze=0.45, saat=7)
        if f in ("wellen", "lang"):
            k.straehnen(34, lambda p, z: ((1 if p.x > xp else -1) * 1.0, -0.35, -0.35), 0.95, 0.10, st, 0.18, seite=lambda d: d[1] < -0.15 and d[2] > 0.40, streuung=0.15, saat=9)


# --- Hüte, Brillen, Beigaben -------------------------------------------------------------------------------------------------
def hut(k):
    if not k.g.get("hut"):
        return
    art, f1, f2 = k.g["hut"]
    b = k.g["breit"]
    tuch, bandstoff = stoff("hut", f1, 0.75, 0.2, korn=0.5, kornmass=55), stoff("hutband", f2, 0.6, 0.3, korn=0.2, kornmass=90)
    if art in ("sonnenhut", "fedora"):
        gross = art == "sonnenhut"
        R = 1.62 if gross else 1.30
        n = 40
        krone = [(0.985 - 0.06 * (t ** 2), 0.0 + 0.62 * t) for t in np.linspace(0, 0.72, 14)] + [(0.95 * math.cos(t), 0.45 + 0.22 * math.sin(t)) for t in np.linspace(0.1, math.pi / 2, 14)]
        krempe = [(0.97 + (R - 0.97) * t, 0.0 - 0.05 * t ** 2 + 0.0) for t in np.linspace(0, 1, 14)]
        krempe += [(R + 0.02, -0.075)] + [(0.97 + (R - 0.97) * t, -0.05 - 0.05 * t ** 2) for t in np.linspace(1, 0, 14)]
        def welle(p):
            r, w = math.hypot(p.x, p.y), math.atan2(p.y, p.x)
            rille = 0.010 * math.sin(r * 90) + 0.004 * math.sin(p.z * 120) if r > 0.2 else 0
            if r > 0.99:
                u = (r - 0.97) / (R - 0.97)
                p.z += (0.10 * math.sin(2 * w + 0.6) * u + (0.10 if gross else 0.16 * abs(math.cos(w)) - 0.10 * max(0, -math.sin(w))) * u ** 1.5) - (0.12 * u * u if gross else 0)
            elif not gross and p.z > 0.5:
                p.z -= 0.16 * math.exp(-(p.x / 0.22) ** 2) * (1 if r < 0.7 else 0.4)
            p.z += rille
            return p
        e = bpy.data.objects.new("hutachse", None)
        bpy.context.scene.collection.objects.link(e)
        e.parent, e.location, e.rotation_euler = k.e, (0, 0.06, 0.50 if gross else 0.52), (-0.16 if gross else -0.08, 0.05, 0)
        m = (b * 0.98, 1.0, 1.05)
        drehkoerper("krone", krone, tuch, e, 96, mass=m, verbiegen=welle)
        drehkoerper("krempe", krempe, tuch, e, 128, mass=m, verbiegen=welle)
        drehkoerper("band", [(1.0, 0.02), (1.03, 0.03), (1.025, 0.20), (0.98, 0.22)], bandstoff, e, 96, mass=m)
    elif art == "kapitaen":
        e = bpy.data.objects.new("hutachse", None)
        bpy.context.scene.collection.objects.link(e)
        e.parent, e.location, e.rotation_euler = k.e, (0, 0.04, 0.48), (-0.10, 0.0, 0)
        m = (b, 1.02, 1)
        drehkoerper("rand", [(0.93, 0.0), (0.97, 0.02), (0.97, 0.24), (0.94, 0.26)], bandstoff, e, 96, mass=m)
        deckel = [(0.93, 0.22), (1.0, 0.30), (1.18, 0.44), (1.23, 0.52), (1.20, 0.60), (1.0, 0.67), (0.6, 0.70), (0.0, 0.70)]
        drehkoerper("deckel", deckel, tuch, e, 96, mass=m, verbiegen=lambda p: Vector((p.x, p.y, p.z + (0.12 * -p.y if p.z > 0.4 else 0.0))))
        schirm = []
        lack = stoff("schirm", "#15151b", 0.18, 0.6)
        for i in range(40):
            a = math.radians(-160 + 140 * i / 39)
            for r in (0.95, 1.0, 1.16, 1.28, 1.29, 1.26, 1.14, 0.95):
                u = (r - 0.95) / 0.33 * math.sin(math.pi * i / 39) ** 0.6
                rr = 0.95 + 0.33 * u
                schirm.append((rr * math.cos(a) * b, rr * math.sin(a), 0.02 - 0.20 * u ** 1.4))
        netz("schirm", schirm, gitter(40, 8), lack, e).modifiers.new("d", "SOLIDIFY").thickness = 0.03
        gold = stoff("gold", "#e6b63c", 0.25, 0.6, 0.7)
        schlauch("kordel", [(0.985 * math.cos(a) * b, 0.985 * 1.02 * math.sin(a), 0.05) for a in np.radians(np.linspace(-165, -15, 40))], [0.028] * 40, gold, e, rillen=3, tief=0.2)
        kugel("wappen", 0.12, (0, -1.0, 0.20), gold, e, mass=(1, 0.4, 1.1))
        for s in (-1, 1):
            schlauch("lorbeer", [(s * (0.05 + 0.17 * math.sin(t)), -1.0 + 0.03, 0.08 + 0.22 * t / 1.8) for t in np.linspace(0, 1.8, 9)], [0.03] * 9, gold, e)
    elif art == "kopftuch":
        d, f = k.richtung(64)
        X, Y, Z = d[:, 0], d[:, 1], d[:, 2]
        phi = np.abs(np.arctan2(X, -Y))
        gesicht = np.hypot(X / 0.69, (Z - 0.03) / 0.84)
        mk = np.where(Y < 0.1, gesicht - 1, 1.0)
        falten = 0.022 * np.sin(9 * np.arctan2(Z + 1.2, np.abs(X) + 0.4) * 2 + 3 * Y) * weich(0.05, 0.5, mk)
        h = 0.06 + 0.06 * np.sqrt(np.clip(mk / 0.3, 0, 1)) + falten + 0.10 * weich(0.2, 1.0, Y)
        p = k.huelle(d, h)
        p[:, 2] += 0.02
        netz("tuch", p, [q for q in f if all(mk[i] > 0 for i in q)], tuch, k.e)
        # Saum um das Gesicht und die Falten um den Hals
        n = 72
        saum = []
        for a in np.linspace(0, 2 * math.pi, n, False):
            dd = np.array([0.69 * math.cos(a), 0, 0.03 + 0.84 * math.sin(a)])
            dd[1] = -math.sqrt(max(0.02, 1 - dd[0] ** 2 - dd[2] ** 2))
            dd /= np.linalg.norm(dd)
            saum.append(Vector(k.huelle(dd[None], 0.085)[0]) + Vector((0, 0, 0.02)))
        schlauch("saum", saum, [0.05] * n, tuch, k.e, n=14, zu=True, nach_aussen=[q.normalized() for q in saum])
        for i, (z, r, dick) in enumerate(((-0.98, 0.62, 0.17), (-1.18, 0.78, 0.19), (-1.40, 0.98, 0.20))):
            pk = [(r * math.cos(a) * (0.80 + 0.0 * i), 0.06 + r * 0.80 * math.sin(a), z - 0.10 * math.sin(a) * (1 if i % 2 else 0.4) + 0.07 * math.cos(a) * (1 if i % 2 else -1)) for a in np.linspace(0, 2 * math.pi, n, False)]
            schlauch("falte", pk, [dick * (1 + 0.12 * math.sin(3 * a + i)) for a in np.linspace(0, 2 * math.pi, n, False)], tuch, k.e, n=16, zu=True, rillen=4, tief=0.06,
                     nach_aussen=[Vector((math.cos(a), math.sin(a), 0.4)) for a in np.linspace(0, 2 * math.pi, n, False)])
        kugel("nadel", 0.055, (0.46, -0.66, -1.02), stoff("nadel", f2, 0.25, 0.6, 0.6), k.e, n=16)


def brille(k):
    if not k.g.get("brille"):
        return
    art, farbe = k.g["brille"]
    m = stoff("gestell", farbe, 0.25, 0.5)
    ab, r = k.g["augab"] * 1.05, 0.255
    y = min(k.treffer(s * ab, z)[0].y for s in (-1, 1) for z in (0.2, -0.15)) - 0.15
    for s in (-1, 1):
        ex = 2.0 if art == "rund" else 3.6
        pk = []
        for a in np.linspace(0, 2 * math.pi, 56, False):
            c, q = math.cos(a), math.sin(a)
            pk.append((s * ab + math.copysign(abs(c) ** (2 / ex), c) * r * (1.0 if art == "rund" else 1.06), y + 0.05 * abs(math.copysign(abs(c) ** (2 / ex), c) * r + 0) * 0, 0.01 + math.copysign(abs(q) ** (2 / ex), q) * r * (1.0 if art == "rund" else 0.80)))
        schlauch("rand", pk, [0.026 if art == "rund" else 0.036] * 56, m, k.e, n=10, zu=True)
        schlauch("buegel", [(s * (ab + r), y, 0.06), (s * (ab + r + 0.10), y + 0.12, 0.07), (s * 0.80 * k.g["breit"] * 1.04, y + 0.55, 0.05), (s * 0.82 * k.g["breit"], 0.05, 0.02)], [0.026] * 4, m, k.e)
        glas = stoff("glas", "#ffffff", 0.3, 0.1, deck=0.06)
        netz("glas", [(s * ab, y, 0.01)] + pk, [(0, i + 1, (i + 1) % 56 + 1) for i in range(56)], glas, k.e)
    schlauch("steg", [(-(ab - r), y, 0.06), (0, y - 0.03, 0.10), (ab - r, y, 0.06)], [0.024] * 3, m, k.e)


def beigaben(k):
    g = k.g
    if g.get("blume"):
        m, herz, blatt = stoff("bluete", g["blume"], 0.5, 0.3), stoff("stempel", "#f6c542", 0.6), stoff("blatt", "#3f8f45", 0.5)
        e = bpy.data.objects.new("blume", None)
        bpy.context.scene.collection.objects.link(e)
        e.parent, e.location, e.rotation_euler = k.e, (-0.74, -0.50, 0.40), (1.25, 0, -0.75)
        e.scale = (1.15,) * 3
        for i in range(5):
            w = i * 2 * math.pi / 5
            kugel("bluete", 0.17, (0.17 * math.cos(w), 0.17 * math.sin(w), 0), m, e, mass=(1.1, 0.85, 0.32), drehung=(0, -0.35, w), n=20)
        kugel("herz", 0.075, (0, 0, 0.06), herz, e, n=16)
        for w in (2.4, 4.0):
            kugel("blatt", 0.22, (0.34 * math.cos(w), 0.34 * math.sin(w), -0.05), blatt, e, mass=(1.1, 0.5, 0.2), drehung=(0, 0, w), n=16)
    if g.get("stirnpunkt"):
        o, n = k.treffer(0, 0.30)
        kugel("punkt", 0.045, o, stoff("punkt", g["stirnpunkt"], 0.4), k.e, mass=(1, 0.5, 1), n=14)
    if g.get("sprossen"):
        z = random.Random(8)
        m = stoff("sprosse", "#c98c63", 0.6)
        for i in range(26):
            x = z.choice((-1, 1)) * abs(z.gauss(0.30, 0.13))
            o, n = k.treffer(x, -0.19 + z.gauss(0, 0.06))
            kugel("sprosse", z.uniform(0.010, 0.018), o + n * 0.0, m, k.e, n=8)
    b = g.get("bart")
    if b:
        farbe = {"weiss": "#ece8e1", "seebaer": "#d3cec5"}.get(b, g["haarfarbe"])
        st = k.haarstoffe(farbe)
        if b in ("voll", "weiss", "seebaer"):
            k.bart(st[1], dicke={"voll": 0.14, "weiss": 0.07, "seebaer": 0.17}[b])
        if b == "voll":
            k.schnurrbart(st[2], 0.36, 0.075, 0.10)
        elif b == "weiss":
            k.schnurrbart(st[2], 0.32, 0.05, 0.08)
        elif b == "seebaer":
            k.schnurrbart(st[2], 0.40, 0.085, 0.11)
        elif b == "schnauz":
            k.schnurrbart(st[2], 0.42, 0.068, 0.05, 0.5)
        elif b == "duenn":
            k.schnurrbart(st[1], 0.27, 0.028, 0.05)
        elif b == "kinn":
            k.schnurrbart(st[1], 0.27, 0.04, 0.07)
            k.raupe("kinnbart", [(0, -0.80 - 0.24 * t) for t in np.linspace(0, 1, 12)], [0.10 + 0.10 * math.sin(math.pi * min(1, t + .1)) for t in np.linspace(0, 1, 12)], 0.13, st[1])


# --- Bühne ---------------------------------------------------------------------------------------------------------------
def buehne(g, proben, mass):
    s = bpy.context.scene
    s.render.engine = "CYCLES"
    s.cycles.samples = proben
    s.cycles.use_denoising = False
    s.cycles.use_adaptive_sampling = True
    s.cycles.adaptive_threshold = 0.02
    s.cycles.max_bounces, s.cycles.diffuse_bounces, s.cycles.glossy_bounces = 4, 2, 2
    s.cycles.sample_clamp_indirect = 3
    s.render.threads_mode = "AUTO"
    s.render.resolution_x, s.render.resolution_y = round(396 * mass), round(392 * mass)
    s.view_settings.view_transform = "Filmic"
    s.view_settings.look = "High Contrast"
    s.view_settings.exposure = 0.42
    w = bpy.data.worlds.new("welt")
    s.world = w
    w.use_nodes = True
    w.node_tree.nodes["Background"].inputs[0].default_value = (0.62, 0.72, 0.86, 1)
    w.node_tree.nodes["Background"].inputs[1].default_value = 0.32
    def licht(ort, groesse, kraft, farbe, ziel=(0, 0, -0.3)):
        l = bpy.data.lights.new("licht", "AREA")
        l.size, l.energy, l.color = groesse, kraft, farbe
        o = bpy.data.objects.new("licht", l)
        s.collection.objects.link(o)
        o.location = ort
        o.rotation_euler = (Vector(ziel) - Vector(ort)).to_track_quat("-Z", "Y").to_euler()
    licht((-3.6, -4.4, 4.0), 2.2, 520, (1.0, 0.90, 0.76))
    licht((4.2, -3.6, 0.6), 4.0, 150, (0.84, 0.88, 1.0))
    licht((3.0, 3.4, 3.6), 2.0, 360, (1.0, 0.86, 0.66))
    licht((-3.4, 2.6, 1.0), 2.0, 90, (0.85, 0.93, 1.0))
    c = bpy.data.cameras.new("kamera")
    c.lens, c.sensor_width = 98, 36
    o = bpy.data.objects.new("kamera", c)
    s.collection.objects.link(o)
    o.location = (0, -9.6, 0.35)
    o.rotation_euler = (Vector((0, 0, -0.17)) - o.location).to_track_quat("-Z", "Y").to_euler()
    s.camera = o
    # Hintergrund: weiches Licht, von der Mitte oben nach außen dunkler
    h = bpy.data.materials.new("grund")
    h.use_nodes = True
    n, l = h.node_tree.nodes, h.node_tree.links
    n.clear()
    aus, em, ra, gr, ko, ma = (n.new("ShaderNode" + k) for k in ("OutputMaterial", "Emission", "ValToRGB", "TexGradient", "TexCoord", "Mapping"))
    gr.gradient_type = "SPHERICAL"
    ma.inputs["Location"].default_value = (0.12, -0.18, 0)
    ma.inputs["Scale"].default_value = (0.30, 0.30, 0.30)
    ra.color_ramp.interpolation = "EASE"
    ra.color_ramp.elements[0].color, ra.color_ramp.elements[1].color = (*linear(g["grund"][1]), 1), (*linear(g["grund"][0]), 1)
    em.inputs["Strength"].default_value = 0.85
    l.new(ko.outputs["Object"], ma.inputs["Vector"])
    l.new(ma.outputs["Vector"], gr.inputs["Vector"])
    l.new(gr.outputs["Color"], ra.inputs["Fac"])
    l.new(ra.outputs["Color"], em.inputs["Color"])
    l.new(em.outputs["Emission"], aus.inputs["Surface"])
    e = netz("grund", [(-8, -8, 0), (8, -8, 0), (8, 8, 0), (-8, 8, 0)], [(0, 1, 2, 3)], h)
    e.location, e.rotation_euler = (0, 3.5, 0), (math.pi / 2, 0, 0)
    e.visible_diffuse = e.visible_glossy = e.visible_shadow = False


def malen(g, proben, mass, ziel):
    leeren()
    achse = bpy.data.objects.new("kopfachse", None)
    bpy.context.scene.collection.objects.link(achse)
    k = Kopf(g, achse)
    frisieren(k)
    hut(k)
    brille(k)
    beigaben(k)
    achse.rotation_euler = tuple(math.radians(a) for a in g["drehung"])
    Rumpf(g)
    buehne(g, proben, mass)
    s = bpy.context.scene
    s.render.image_settings.file_format, s.render.image_settings.quality = "JPEG", 90
    s.render.filepath = os.path.join(ziel, f"{g['nr']}.jpg")
    bpy.ops.render.render(write_still=True)


if __name__ == "__main__":
    rest = sys.argv[sys.argv.index("--") + 1:] if "--" in sys.argv else []
    wahl = {k: v for k, v in (a.split("=") for a in rest if "=" in a)}
    nummern = [int(a) for a in rest if a.isdigit()]
    os.makedirs(wahl.get("ziel", BILDER), exist_ok=True)
    for g in GAESTE:
        if not nummern or g["nr"] in nummern:
            malen(g, int(wahl.get("proben", 160)), float(wahl.get("mass", 1)), wahl.get("ziel", BILDER))
