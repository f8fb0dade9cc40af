"""Haar und Bart der Gäste: Strähnen, Locken und die Frisuren daraus."""
from gäste.kopf import *


class Haarkopf(Kopf):
    """Ein Kopf, auf dem Haar wächst."""

    def ansatz(self, phi):
        """Höhe (Richtungsanteil) des Haaransatzes beim Winkel phi von vorn."""
        f = self.g["ansatz"]          # vorn, Schläfe, Ohr, hinten
        w = np.abs(phi)
        return np.interp(w, [0, 0.55, 1.0, 1.35, 1.62, 2.2, math.pi],
                         [f[0], f[0] * 0.97, f[1], f[2], f[2] - 0.03, f[3], f[3]])

    def maske(self, d):
        return d[:, 2] - self.ansatz(np.arctan2(d[:, 0], -d[:, 1]))

    def hülle(self, d, h):
        """Punkte h über dem Schädel (geglättete Form ohne Gesicht)."""
        g = self.g
        r = np.stack([0.80 * g["breit"] * d[:, 0], 0.86 * d[:, 1], g["lang"] * d[:, 2]], 1)
        return r * (1 + np.asarray(h)[:, None] if np.ndim(h) else 1 + h)

    def kappe(self, dicke, material, rillen=22, tief=0.012):
        """Geschlossene Grundmaße unter den Strähnen; ihr Rand taucht in die Haut: ein glatter Ansatz."""
        d, f = self.richtung(160)
        m = self.maske(d)
        voll = np.sqrt(np.clip(m / 0.22, 0, 1))
        furchen = tief * np.clip(m / 0.05, 0, 1) * np.sin(rillen * np.arctan2(d[:, 0], d[:, 2] + 1.5) * 2)
        p = self.hülle(d, dicke * voll + furchen + 5 * np.minimum(m, 0))
        f = [q for q in f if all(m[k] > -0.12 for k in q)]
        return netz(p, f, material)

    def strähnen(self, n, fluss, länge, breite, materialien, höhe=0.10, fall=None, schritt=0.055, ab=0.0, bis=9,
                 streuung=0.25, spitze=0.15, seite=None, saat=1):
        """n Strähnen, deren Wurzeln über die Kopfhaut verteilt sind und die dem Feld fluss(p, zufall) folgen."""
        z = random.Random(self.g["nr"] * 31 + saat)
        i, gold = 0, math.pi * (3 - math.sqrt(5))
        while i < n * 3:
            i += 1
            hz = 1 - 2 * (i - 0.5) / (n * 3)
            w = gold * i + z.uniform(-.2, .2)
            d = np.array([math.sqrt(1 - hz * hz) * math.sin(w), -math.sqrt(1 - hz * hz) * math.cos(w), hz])
            mm = self.maske(d[None])[0]
            if not ab < mm < bis or (seite and not seite(d)):
                continue
            schritte = max(5, int(länge * z.uniform(0.8, 1.15) / schritt))
            punkte, aus = self.bahn(d, fluss, z, höhe, fall, schritt, schritte, streuung, i)
            anteile = [q / (schritte - 1) for q in range(schritte)]
            rad = [breite * min(1, 0.55 + 3 * t) * (1 - (1 - spitze) * max(0, (t - 0.45) / 0.55) ** 1.6)
                   for t in anteile]
            schlauch(punkte, rad, z.choice(materialien), n=14, flach=0.55, rillen=6, tief=0.10, nach_außen=aus)

    def bahn(self, d, fluss, z, höhe, fall, schritt, schritte, streuung, i):
        """Punkte und Außenrichtungen einer Strähne: auf der Kopfhaut dem Feld nach, unter `fall` frei hängend."""
        punkte, aus, frei = [], [], None
        ablenk = Vector([z.gauss(0, streuung) for _ in range(3)])
        for q in range(schritte):
            u = q / (schritte - 1)
            if frei is None:
                p = Vector(self.hülle(d[None], 0.02 + höhe * math.sin(math.pi * min(1, 0.25 + 0.75 * u)) ** 0.7)[0])
                r = Vector(d).normalized()
                F = Vector(fluss(Vector(d), z)) + ablenk * 0.5
                F = F - r * F.dot(r)
                F = F.normalized() if F.length > 1e-6 else Vector((0, 0, -1))
                if fall is not None and d[2] < fall:
                    frei = p.copy()
                nd = np.array(Vector(d) + F * schritt * 1.15)
                d = nd / np.linalg.norm(nd)
            else:
                wehen = (0.25 - frei.y) * 0.02 + 0.012 * math.sin(u * 9 + i)
                frei = frei + Vector((ablenk.x * 0.02 - frei.x * 0.018, wehen, -schritt * 0.9))
                p, r = frei.copy(), Vector((frei.x, frei.y, 0)).normalized()
            punkte.append(p)
            aus.append(r)
        return punkte, aus

    def locken(self, n, größe, materialien, höhe=0.12, ab=0.0, windung=1.6, saat=2):
        """Ringellocken: flache Schnecken über der Kopfhaut."""
        z = random.Random(self.g["nr"] * 17 + saat)
        gold = math.pi * (3 - math.sqrt(5))
        for i in range(n * 2):
            hz = 1 - 2 * (i + 0.5) / (n * 2)
            w = gold * i
            d = Vector((math.sqrt(1 - hz * hz) * math.sin(w), -math.sqrt(1 - hz * hz) * math.cos(w), hz))
            if self.maske(np.array(d)[None])[0] < ab:
                continue
            o = Vector(self.hülle(np.array(d)[None], höhe + z.uniform(-.03, .05))[0])
            a = d.orthogonal().normalized()
            b = d.cross(a)
            g0, dreh = z.uniform(0, 6.28), z.choice((-1, 1))
            r0 = größe * z.uniform(0.8, 1.25)
            pk = []
            for q in range(22):
                t = q / 21
                w = g0 + dreh * windung * 2 * math.pi * t
                pk.append(o + (a * math.cos(w) + b * math.sin(w)) * r0 * (1 - 0.75 * t) + d * (0.10 * größe / 0.12 * t))
            schlauch(pk, [r0 * 0.42 * (0.6 + 0.4 * math.sin(math.pi * q / 21)) for q in range(22)],
                     z.choice(materialien), n=10, nach_außen=[d] * 22)

    def haarstoffe(self, farbe=None):
        f = farbe or self.g["haarfarbe"]
        ton = lambda k: "#" + "".join(f"{max(0, min(255, round(int(f[i:i + 2], 16) * k))):02x}" for i in (1, 3, 5))
        return [matt(ton(k), 0.42, 0.4) for k in (0.88, 1.0, 1.14)]

    def bart(self, material, unten=-1.02, oben=-0.34, dicke=0.10, rillen=26, schnurrbart=True):
        """Vollbart: Hülle um Kiefer und Kinn mit Furchen, der Mund bleibt frei; sein Rand taucht in die Haut."""
        d, f = self.richtung(200)
        p = self.form(d)
        X, Y, Z = p[:, 0], p[:, 1], p[:, 2]
        A = np.abs(X)
        oberkante = -0.62 + 0.62 * np.clip((A - 0.18) / 0.55, 0, 1) ** 1.3
        m = np.minimum(oberkante - Z, 0.22 - Y) / 0.10
        m = np.minimum(m, (np.hypot(X / (self.mund_b + 0.05), (Z - self.mund_z) / 0.16) - 1) * 2.2)
        n = p / np.linalg.norm(p, axis=1)[:, None]
        dick = (dicke * np.sqrt(np.clip(m, 0, 1)) * (0.75 + 0.55 * weich(-0.5, -1.0, Z))
                + 0.012 * np.sin(rillen * np.arctan2(X, -Y)) * np.clip(m, 0, 1) + 0.2 * np.minimum(m, 0))
        q = p + n * dick[:, None]
        netz(q, [k for k in f if all(m[i] > -0.4 for i in k)], material)

    def schnurrbart(self, material, breit=0.34, dick=0.07, hängt=0.05, hoch=0.0):
        z = self.mund_z + 0.135
        for s in (-1, 1):
            t = np.linspace(0, 1, 18)
            mitte = [(s * (0.012 + breit * q), z - hängt * q * q + hoch * max(0, q - 0.6) ** 2 * 2.2
                      + 0.015 * math.sin(3 * q)) for q in t]
            self.raupe(mitte, [0.012 + dick * math.sin(math.pi * min(1, 0.22 + 0.78 * q)) ** 0.8 for q in t], 0.085,
                       material)


# ---------------------------------------------------------------- Frisuren

def rückwärts(schräg, quer, hinauf, hinab):
    """Feld, das nach hinten kämmt: über der Stirn hinauf, dahinter hinab."""
    return lambda p, z: (schräg * p.x + quer, 1.0, hinauf if p.y < -0.2 else hinab)


def seitwärts(xp):
    """Feld, das vom Scheitel bei xp nach beiden Seiten fällt."""
    return lambda p, z: ((1 if p.x > xp else -1) * (1.0 if p.z > 0.2 else 0.25), 0.35 if p.y < 0.1 else 0.05,
                         -0.45 if p.z > 0.4 else -1.0)


# Dicke der Kappe, Zahl, Feld, Länge, Breite, Höhe, Streuung der Strähnen, Zahl der kurzen am Ansatz
GEKÄMMT = {"zurück": (0.10, 230, rückwärts(0.5, 0, 0.45, -0.5), 0.85, 0.062, 0.15, 0.14, 900),
           "pomade": (0.11, 230, rückwärts(0.35, 0.25, 0.5, -0.6), 0.95, 0.060, 0.17, 0.06, 900),
           "strubbel": (0.12, 150, lambda p, z: (0.9 * p.x + 0.5, -0.5, 0.5), 0.5, 0.085, 0.20, 0.5, 900),
           "kurz": (0.08, 120, lambda p, z: (0.2 * p.x, 0.3, -1), 0.30, 0.08, 0.10, 0.2, 0)}
# Scheitel, Zahl, Länge, Breite, Fall, Streuung, Spitze
OFFEN = {"lang": (0.0, 190, 2.3, 0.105, -0.12, 0.12, 0.12), "wellen": (0.22, 190, 1.9, 0.105, -0.12, 0.35, 0.12),
         "surfer": (-0.15, 150, 1.0, 0.105, -0.12, 0.35, 0.12), "pagenkopf": (0.0, 190, 1.15, 0.10, -0.35, 0.05, 0.5)}


def frisieren(k):
    f = k.g["frisur"]
    if f in ("keine", "glatze"):
        return
    st = k.haarstoffe()
    if f in GEKÄMMT:
        kappe, zahl, feld, länge, breite, höhe, streuung, ansatz = GEKÄMMT[f]
        k.kappe(kappe, st[0], tief=0.0 if f == "pomade" else 0.012)
        k.strähnen(zahl, feld, länge, breite, st, höhe, streuung=streuung)
        k.strähnen(ansatz, feld, 0.6, 0.055, st, höhe * 0.6, ab=-0.01, bis=0.06, streuung=streuung, saat=3)
    elif f in OFFEN:
        offen(k, st, f)
    else:
        {"afro": afro, "krauskurz": krauskurz, "stachel": stachel, "dutt": dutt, "zopf": zopf}[f](k, st)


def afro(k, st):
    k.kappe(0.30, st[0])
    k.locken(250, 0.15, st, höhe=0.42, ab=0.06)
    k.locken(160, 0.14, st, höhe=0.24, ab=0.0, saat=3)


def krauskurz(k, st):
    k.kappe(0.07, st[0])
    k.locken(260, 0.075, st, höhe=0.08, ab=0.02)


def stachel(k, st):
    k.kappe(0.10, st[0])
    k.strähnen(130, lambda p, z: (0.5 * p.x + 0.15, 0.25, -0.9), 0.32, 0.085, st, 0.09, bis=0.55, streuung=0.2)
    z, t = random.Random(5), np.linspace(0, 1, 8)
    for i in range(64):
        a, q = i * 2.39996, math.sqrt((i + 0.5) / 64) * 0.92
        d = Vector((q * math.sin(a) * 0.95, -q * math.cos(a) * 0.95 + 0.02, math.sqrt(max(0.05, 1 - q * q))))
        d.normalize()
        if k.maske(np.array(d)[None])[0] >= 0.02:
            o = Vector(k.hülle(np.array(d)[None], 0.04)[0])
            hin = (d + Vector((0.25, -0.55, 0.35)) + Vector((z.gauss(0, .16), z.gauss(0, .12), 0))).normalized()
            schlauch([o + d * 0.10 * q + hin * 0.34 * q ** 1.2 for q in t], 0.125 * (1 - t) ** 0.75 + 0.004,
                     z.choice(st), flach=0.7, rillen=5, tief=0.10)


def dutt(k, st):
    k.kappe(0.13, st[0])
    ziel, t = Vector((0, 0.10, 1.15)), np.linspace(0, 1, 14)
    k.strähnen(130, lambda p, z: ziel - p, 1.0, 0.095, st, 0.17, streuung=0.08)
    for i in range(9):
        w, weit = i * 2 * math.pi / 9, 0.24 * np.sin(math.pi * (0.18 + 0.8 * t))
        schlauch(np.c_[weit * np.cos(w + 2.4 * t), 0.10 + weit * np.sin(w + 2.4 * t), 1.10 + 0.36 * t],
                 0.12 * (1 - 0.5 * abs(2 * t - 1)), st[i % 3], flach=0.8, rillen=5, tief=0.08)
    ball(0.27, (0, 0.10, 1.25), st[0])


def zopf(k, st):
    """Geflochten über die Schulter."""
    k.kappe(0.13, st[0])
    k.strähnen(130, lambda p, z: ((1 if p.x > 0 else -1) * (0.9 if p.z > 0.3 else 0.1), 0.75, -0.45), 1.25, 0.095, st,
               0.13, streuung=0.06)
    for i in range(9):
        for s in (-1, 1):
            ort = (0.62 + 0.05 * math.sin(i) + s * 0.055, -0.16 - 0.05 * i, -0.62 - 0.17 * i - (0.085 if s > 0 else 0))
            ball(0.15, ort, st[(i + (s > 0)) % 3], (0.72, 0.8, 0.95), (0, s * 0.7, 0), 16)
    ball(0.13, (0.66, -0.64, -2.16), matt("#f0b83c", 0.5), (0.8, 0.8, 0.5), n=16)


def offen(k, st, f):
    """Offenes Haar, das von der Kopfhaut fällt; dazu Pony oder Stirnsträhnen."""
    xp, zahl, länge, breite, fall, streuung, spitze = OFFEN[f]
    k.kappe(0.13, st[0])
    k.strähnen(zahl, seitwärts(xp), länge, breite, st, 0.16, fall=fall, streuung=streuung, spitze=spitze)
    if f == "pagenkopf":
        k.strähnen(60, lambda p, z: (0.05 * p.x, -1.0, -0.5), 0.62, 0.09, st, 0.15, streuung=0.05, spitze=0.45, saat=7,
                   seite=lambda d: d[1] < 0.1 and d[2] > 0.45)
    if f in ("wellen", "lang"):
        k.strähnen(34, lambda p, z: (1.0 if p.x > xp else -1.0, -0.35, -0.35), 0.95, 0.10, st, 0.18, streuung=0.15,
                   saat=9, seite=lambda d: d[1] < -0.15 and d[2] > 0.40)
