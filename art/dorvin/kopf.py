"""Dorvins runder Kopf mit Pagenmütze und sein Schnurrbart: bilder/formen/assistent/image1 und redeno."""
from befehl import maß
from kasten import *

PUNKT = 150           # Bildpunkte je Einheit des Modells; (536, 180) des Bildes ist die Mitte des Kopfes
MITTE = (536, 180)
# Ort, Größe, Kraft und Farbe der Lichter
LICHTER = (((-3.2, -4.2, 3.8), 2.0, 430, (1, .91, .78)), ((3.8, -3.4, -0.4), 3.5, 120, (1, .86, .76)),
           ((2.8, 2.6, 3), 2, 260, (1, .86, .66)))


def ort(x, y):
    """Bildpunkt -> x und z im Modell."""
    return (x - MITTE[0]) / PUNKT, (MITTE[1] - y) / PUNKT


def glocke(x, z, weit, hoch):
    return math.exp(-(x / weit) ** 2 - (z / hoch) ** 2)


def haut():
    """Kugel mit Backen und Kinn, die Backen gerötet."""
    n, p, ton = 96, [], []
    grund, rosig = np.array(rgb("#f3a473")), np.array(rgb("#e65a4e"))
    for i in range(2 * n):
        a = math.pi * i / n
        for j in range(n + 1):
            b = math.pi * j / n
            d = Vector((math.sin(b) * math.cos(a), math.sin(b) * math.sin(a), -math.cos(b)))
            q, rot = d * 1.04, 0
            if d.y < 0:
                for s in (-1, 1):
                    q = q + d * 0.10 * glocke(q.x + 0.12 - s * 0.62, q.z + 0.30, 0.30, 0.26)
                q = q + d * 0.05 * glocke(q.x + 0.12, q.z + 0.80, 0.42, 0.16)
                rot = 0.62 * sum(glocke(q.x + 0.12 - s * 0.68, q.z + 0.34, 0.20, 0.17) for s in (-1, 1))
            p.append(q)
            ton.append(grund * (1 - rot) + rosig * rot)
    netz(p, gitter(2 * n, n + 1, zu_u=True), matt("#eeb083", 0.45, 0.4, ton="ton"), farben=ton)


def auge(x, weiß, lid, braue):
    """Augapfel, der weiche Wulst um ihn und die Braue darüber."""
    ex, ez = ort(x, 150)
    y = -math.sqrt(max(0, 1.04 ** 2 - ex * ex - ez * ez))
    ball(0.365, (ex, y + 0.02, ez), weiß, maß=(1.02, 0.42, 0.94), n=48)
    kreis = np.linspace(0, 2 * math.pi, 48, False)
    schlauch([(ex + 0.375 * 1.02 * math.cos(a), y + 0.02, ez + 0.375 * 0.94 * math.sin(a)) for a in kreis],
             [0.045] * 48, lid, zu=True)
    s, t = -1 if x < 519 else 1, np.linspace(0, 1, 16)
    bogen = [(ex + s * (-0.26 + 0.56 * q), y - 0.17 + 0.10 * q, ez + 0.385 + 0.09 * math.sin(math.pi * q) - 0.03 * q)
             for q in t]
    schlauch(bogen, [0.028 + 0.036 * math.sin(math.pi * (0.12 + 0.8 * q)) for q in t], braue, 14, 0.8, 5, 0.12)


def mütze():
    """Pagenmütze, ein wenig schief."""
    tuch, gold = matt("#c22f2b", 0.65, 0.3, korn=0.3, kornmaß=70), matt("#eebb45", 0.25, 0.6, 0.55)
    with rahmen(platz((-0.06, -0.08, 0.80), (0.16, 0.06, 0))):
        gedreht([(0.86, 0), (0.87, 0.05), (0.82, 0.62), (0.78, 0.68), (0, 0.72)], tuch, 96)
        for z, r in ((0.05, 0.045), (0.16, 0.03)):
            kreis = np.linspace(0, 2 * math.pi, 96, False)
            schlauch([((0.885 - 0.05 * z) * math.cos(a), (0.885 - 0.05 * z) * math.sin(a), z) for a in kreis],
                     [r] * 96, gold, zu=True)
        ball(0.09, (-0.06, -0.90, 0.30), gold, maß=(1, 0.6, 1))


def kopf():
    haut()
    weiß, lid, braue = matt("#fbf7ee", 0.22, 0.5), matt("#ec9463", 0.45, 0.4), matt("#6d3518", 0.55, 0.3)
    for x in (461, 577):
        auge(x, weiß, lid, braue)
    nx, nz = ort(519, 203)
    ball(0.205, (nx, -1.14, nz), matt("#ec7d58", 0.38, 0.45), maß=(1.05, 1, 0.9), n=40)
    mütze()


def schnurrbart():
    """Sechs Strähnen nach jeder Seite."""
    farben = [matt(f, 0.4, 0.4) for f in ("#6d3518", "#7d4120", "#8a4a26")]
    t = np.linspace(0, 1, 22)
    for s in (-1, 1):
        for k in range(6):
            f = (k - 2.5) / 2.5
            strähne = [(s * (0.01 + 0.60 * q), -0.05 * math.sin(math.pi * q) - 0.01 * k,
                        0.035 - 0.115 * math.sin(math.pi * min(1, q * 0.95)) * (0.8 - 0.45 * f)
                        + 0.115 * max(0, q - 0.55) ** 1.4 * 3.0 + 0.055 * f * math.sin(math.pi * (0.10 + 0.85 * q)))
                       for q in t]
            radien = [0.012 + 0.060 * math.sin(math.pi * min(1, 0.12 + 0.86 * q)) ** 0.9 * (1 - 0.55 * q) for q in t]
            schlauch(strähne, radien, farben[k % 3], n=14, rillen=5, tief=0.10)


def mache(datei):
    porträt(0.45)
    himmel("Welt", 0.35, (0.66, 0.72, 0.84))
    for wo, größe, kraft, farbe in LICHTER:
        flächenlicht(wo, (0, 0, 0), größe, kraft, farbe)
    if datei.endswith("image1.png"):
        kopf()
        x, z = ort(370, 210)
        breite, höhe, weite = 740, 420, 740 / PUNKT
    else:
        schnurrbart()
        (x, z), breite, höhe, weite = (0, 0), 192, 44, 1.29
    kamera((x, -8, z), drehung=(math.pi / 2, 0, 0), weite=weite)
    belichte(ziel(datei), breite * maß(), höhe * maß(), 220)
