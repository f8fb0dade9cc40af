"""Hüte, Brillen, Blumen, Bärte der Gäste."""
from gäste.haar import *


def hut(k):
    if k.g.get("hut"):
        art, f1, f2 = k.g["hut"]
        bau = {"sonnenhut": strohhut, "fedora": strohhut, "kapitän": mütze, "kopftuch": kopftuch}[art]
        bau(k, art, matt(f1, 0.75, 0.2, korn=0.5, kornmaß=55), matt(f2, 0.6, 0.3, korn=0.2, kornmaß=90), f2)


def strohhut(k, art, tuch, bandstoff, _):
    """Hut mit Krempe: der weite Sonnenhut und der schmale mit der Kniffkrone."""
    b = k.g["breit"]
    groß = art == "sonnenhut"
    R = 1.62 if groß else 1.30
    krone = ([(0.985 - 0.06 * (t ** 2), 0.0 + 0.62 * t) for t in np.linspace(0, 0.72, 14)]
             + [(0.95 * math.cos(t), 0.45 + 0.22 * math.sin(t)) for t in np.linspace(0.1, math.pi / 2, 14)])
    krempe = [(0.97 + (R - 0.97) * t, 0.0 - 0.05 * t ** 2 + 0.0) for t in np.linspace(0, 1, 14)]
    krempe += [(R + 0.02, -0.075)] + [(0.97 + (R - 0.97) * t, -0.05 - 0.05 * t ** 2) for t in np.linspace(1, 0, 14)]
    def welle(p):
        r, w = math.hypot(p.x, p.y), math.atan2(p.y, p.x)
        rille = 0.010 * math.sin(r * 90) + 0.004 * math.sin(p.z * 120) if r > 0.2 else 0
        if r > 0.99:
            u = (r - 0.97) / (R - 0.97)
            auf = 0.10 if groß else 0.16 * abs(math.cos(w)) - 0.10 * max(0, -math.sin(w))
            p.z += 0.10 * math.sin(2 * w + 0.6) * u + auf * u ** 1.5 - (0.12 * u * u if groß else 0)
        elif not groß and p.z > 0.5:
            p.z -= 0.16 * math.exp(-(p.x / 0.22) ** 2) * (1 if r < 0.7 else 0.4)
        p.z += rille
        return p
    with rahmen(platz((0, 0.06, 0.50 if groß else 0.52), (-0.16 if groß else -0.08, 0.05, 0))):
        m = platz(maß=(b * 0.98, 1.0, 1.05))
        gedreht(krone, tuch, 96, m, welle)
        gedreht(krempe, tuch, 128, m, welle)
        gedreht([(1.0, 0.02), (1.03, 0.03), (1.025, 0.20), (0.98, 0.22)], bandstoff, 96, m)


def mütze(k, art, tuch, bandstoff, _):
    """Kapitänsmütze: Rand, Deckel, Schirm, Kordel und Wappen."""
    b = k.g["breit"]
    with rahmen(platz((0, 0.04, 0.48), (-0.10, 0, 0))):
        m = platz(maß=(b, 1.02, 1))
        gedreht([(0.93, 0.0), (0.97, 0.02), (0.97, 0.24), (0.94, 0.26)], bandstoff, 96, m)
        deckel = [(0.93, 0.22), (1.0, 0.30), (1.18, 0.44), (1.23, 0.52), (1.20, 0.60), (1.0, 0.67), (0.6, 0.70),
                  (0.0, 0.70)]
        gedreht(deckel, tuch, 96, m, lambda p: Vector((p.x, p.y, p.z + (0.12 * -p.y if p.z > 0.4 else 0.0))))
        schirm = []
        lack = matt("#15151b", 0.18, 0.6)
        for i in range(40):
            a = math.radians(-160 + 140 * i / 39)
            for r in (0.95, 1.0, 1.16, 1.28, 1.29, 1.26, 1.14, 0.95):
                u = (r - 0.95) / 0.33 * math.sin(math.pi * i / 39) ** 0.6
                rr = 0.95 + 0.33 * u
                schirm.append((rr * math.cos(a) * b, rr * math.sin(a), 0.02 - 0.20 * u ** 1.4))
        netz(schirm, gitter(40, 8), lack).modifiers.new("d", "SOLIDIFY").thickness = 0.03
        gold = matt("#e6b63c", 0.25, 0.6, 0.7)
        schlauch([(0.985 * math.cos(a) * b, 0.985 * 1.02 * math.sin(a), 0.05)
                  for a in np.radians(np.linspace(-165, -15, 40))], [0.028] * 40, gold, rillen=3, tief=0.2)
        ball(0.12, (0, -1.0, 0.20), gold, maß=(1, 0.4, 1.1))
        for s in (-1, 1):
            schlauch([(s * (0.05 + 0.17 * math.sin(t)), -1.0 + 0.03, 0.08 + 0.22 * t / 1.8)
                      for t in np.linspace(0, 1.8, 9)], [0.03] * 9, gold)


def kopftuch(k, art, tuch, bandstoff, f2):
    d, f = k.richtung(64)
    X, Y, Z = d[:, 0], d[:, 1], d[:, 2]
    gesicht = np.hypot(X / 0.69, (Z - 0.03) / 0.84)
    mk = np.where(Y < 0.1, gesicht - 1, 1.0)
    falten = 0.022 * np.sin(9 * np.arctan2(Z + 1.2, np.abs(X) + 0.4) * 2 + 3 * Y) * weich(0.05, 0.5, mk)
    h = 0.06 + 0.06 * np.sqrt(np.clip(mk / 0.3, 0, 1)) + falten + 0.10 * weich(0.2, 1.0, Y)
    p = k.hülle(d, h)
    p[:, 2] += 0.02
    netz(p, [q for q in f if all(mk[i] > 0 for i in q)], tuch)
    # Saum um das Gesicht und die Falten um den Hals
    n = 72
    saum = []
    for a in np.linspace(0, 2 * math.pi, n, False):
        dd = np.array([0.69 * math.cos(a), 0, 0.03 + 0.84 * math.sin(a)])
        dd[1] = -math.sqrt(max(0.02, 1 - dd[0] ** 2 - dd[2] ** 2))
        dd /= np.linalg.norm(dd)
        saum.append(Vector(k.hülle(dd[None], 0.085)[0]) + Vector((0, 0, 0.02)))
    schlauch(saum, [0.05] * n, tuch, n=14, zu=True, nach_außen=[q.normalized() for q in saum])
    for i, (z, r, dick) in enumerate(((-0.98, 0.62, 0.17), (-1.18, 0.78, 0.19), (-1.40, 0.98, 0.20))):
        pk = [(r * math.cos(a) * (0.80 + 0.0 * i), 0.06 + r * 0.80 * math.sin(a),
               z - 0.10 * math.sin(a) * (1 if i % 2 else 0.4) + 0.07 * math.cos(a) * (1 if i % 2 else -1))
              for a in np.linspace(0, 2 * math.pi, n, False)]
        schlauch(pk, [dick * (1 + 0.12 * math.sin(3 * a + i)) for a in np.linspace(0, 2 * math.pi, n, False)], tuch,
                 n=16, zu=True, rillen=4, tief=0.06,
                 nach_außen=[Vector((math.cos(a), math.sin(a), 0.4)) for a in np.linspace(0, 2 * math.pi, n, False)])
    ball(0.055, (0.46, -0.66, -1.02), matt(f2, 0.25, 0.6, 0.6), n=16)


def brille(k):
    if not k.g.get("brille"):
        return
    art, farbe = k.g["brille"]
    m = matt(farbe, 0.25, 0.5)
    ab, r = k.g["augab"] * 1.05, 0.255
    y = min(k.treffer(s * ab, z)[0].y for s in (-1, 1) for z in (0.2, -0.15)) - 0.15
    for s in (-1, 1):
        ex = 2.0 if art == "rund" else 3.6
        pk = []
        for a in np.linspace(0, 2 * math.pi, 56, False):
            c, q = math.cos(a), math.sin(a)
            pk.append((s * ab + math.copysign(abs(c) ** (2 / ex), c) * r * (1.0 if art == "rund" else 1.06),
                       y + 0.05 * abs(math.copysign(abs(c) ** (2 / ex), c) * r + 0) * 0,
                       0.01 + math.copysign(abs(q) ** (2 / ex), q) * r * (1.0 if art == "rund" else 0.80)))
        schlauch(pk, [0.026 if art == "rund" else 0.036] * 56, m, n=10, zu=True)
        schlauch([(s * (ab + r), y, 0.06), (s * (ab + r + 0.10), y + 0.12, 0.07),
                  (s * 0.80 * k.g["breit"] * 1.04, y + 0.55, 0.05), (s * 0.82 * k.g["breit"], 0.05, 0.02)],
                 [0.026] * 4, m)
        glas = matt("#ffffff", 0.3, 0.1, deck=0.06)
        netz([(s * ab, y, 0.01)] + pk, [(0, i + 1, (i + 1) % 56 + 1) for i in range(56)], glas)
    schlauch([(-(ab - r), y, 0.06), (0, y - 0.03, 0.10), (ab - r, y, 0.06)], [0.024] * 3, m)


def beigaben(k):
    g = k.g
    if g.get("blume"):
        blume(g["blume"])
    if g.get("stirnpunkt"):
        o, n = k.treffer(0, 0.30)
        ball(0.045, o, matt(g["stirnpunkt"], 0.4), maß=(1, 0.5, 1), n=14)
    if g.get("sprossen"):
        z = random.Random(8)
        m = matt("#c98c63", 0.6)
        for i in range(26):
            x = z.choice((-1, 1)) * abs(z.gauss(0.30, 0.13))
            o, n = k.treffer(x, -0.19 + z.gauss(0, 0.06))
            ball(z.uniform(0.010, 0.018), o + n * 0.0, m, n=8)
    if g.get("bart"):
        barttracht(k, g["bart"])


def blume(farbe):
    """Blüte mit zwei Blättern im Haar."""
    m, herz, blatt = matt(farbe, 0.5, 0.3), matt("#f6c542", 0.6), matt("#3f8f45", 0.5)
    with rahmen(platz((-0.74, -0.50, 0.40), (1.25, 0, -0.75), (1.15,) * 3)):
        for i in range(5):
            w = i * 2 * math.pi / 5
            ball(0.17, (0.17 * math.cos(w), 0.17 * math.sin(w), 0), m, maß=(1.1, 0.85, 0.32), drehung=(0, -0.35, w),
                 n=20)
        ball(0.075, (0, 0, 0.06), herz, n=16)
        for w in (2.4, 4.0):
            ball(0.22, (0.34 * math.cos(w), 0.34 * math.sin(w), -0.05), blatt, maß=(1.1, 0.5, 0.2), drehung=(0, 0, w),
                 n=16)


def barttracht(k, b):
    g = k.g
    farbe = {"weiß": "#ece8e1", "seebär": "#d3cec5"}.get(b, g["haarfarbe"])
    st = k.haarstoffe(farbe)
    if b in ("voll", "weiß", "seebär"):
        k.bart(st[1], dicke={"voll": 0.14, "weiß": 0.07, "seebär": 0.17}[b])
    if b == "voll":
        k.schnurrbart(st[2], 0.36, 0.075, 0.10)
    elif b == "weiß":
        k.schnurrbart(st[2], 0.32, 0.05, 0.08)
    elif b == "seebär":
        k.schnurrbart(st[2], 0.40, 0.085, 0.11)
    elif b == "schnauz":
        k.schnurrbart(st[2], 0.42, 0.068, 0.05, 0.5)
    elif b == "dünn":
        k.schnurrbart(st[1], 0.27, 0.028, 0.05)
    elif b == "kinn":
        k.schnurrbart(st[1], 0.27, 0.04, 0.07)
        k.raupe([(0, -0.80 - 0.24 * t) for t in np.linspace(0, 1, 12)],
                [0.10 + 0.10 * math.sin(math.pi * min(1, t + .1)) for t in np.linspace(0, 1, 12)], 0.13, st[1])
