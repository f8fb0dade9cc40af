"""Bauteile der Häuser und Gärten: Dächer, Fenster, Türen, Säulen, Fahnen, Zäune, Möbel.

Häuser stehen mit der Front nach -y (zum Betrachter). `seite` einer Wand: "s" vorn, "w" links, "o" rechts,
"n" hinten; die Lage eines Fensters in der Wand ist (von der Wandmitte nach rechts gesehen, hinauf).
"""
import math
import random

import bmesh
from mathutils import Matrix, Vector

from körper import (band, bei, dreh, drehkörper, gemeinsam, keil, kugel, lage, netz_aus, objekt, prisma, quader,
                    rahmen, rohr, schrift, schub, zylinder)
from stoffe import als_stoff, glas, holz, metall, stein, stoff, wasser, ziegel

DREHUNG = {"s": 0, "o": 90, "n": 180, "w": 270}


# ---------------------------------------------------------------- Dächer

def satteldach(x, y, z, b, t, h, stoff_=None, über=1.5, dick=1.0, giebel=None, drehung=0.0):
    """Satteldach über einem Grundriss b x t, First längs b; `giebel` füllt die Giebel mit Stoff."""
    stoff_ = stoff_ or ziegel()
    with bei(x, y, z, drehung):
        if giebel:
            keil(0, 0, -0.01, b, t, h, giebel, rund=0)
        steig = h / (t / 2)
        for s in (-1, 1):
            u = t / 2 + über
            p = [(-b / 2 - über, s * u, -über * steig), (b / 2 + über, s * u, -über * steig),
                 (b / 2 + über, 0, h), (-b / 2 - über, 0, h)]
            _platte([Vector(q) for q in (p if s < 0 else p[::-1])], dick, stoff_)
        rohr([(-b / 2 - über, 0, h + dick * .8), (b / 2 + über, 0, h + dick * .8)], dick * .8, stoff_)


def _platte(ecken, dick, stoff_, rund=0.25):
    n = (ecken[1] - ecken[0]).cross(ecken[2] - ecken[0]).normalized() * dick
    k = len(ecken)
    p = ecken + [e + n for e in ecken]
    f = [tuple(range(k - 1, -1, -1)), tuple(range(k, 2 * k))]
    f += [(i, (i + 1) % k, k + (i + 1) % k, k + i) for i in range(k)]
    return objekt("Platte", netz_aus(p, f), stoff_, Matrix.Identity(4), rund)


def walmdach(x, y, z, b, t, h, stoff_=None, über=1.5, first=None, dick=1.0, drehung=0.0):
    """Walmdach; first: Länge des Firstes (0 gibt ein Zeltdach)."""
    stoff_ = stoff_ or ziegel()
    first = max(b - t, 0) if first is None else first
    B, T, f = b / 2 + über, t / 2 + über, first / 2
    p = [(-B, -T, 0), (B, -T, 0), (B, T, 0), (-B, T, 0), (-f, 0, h), (f, 0, h)]
    p += [(-B, -T, -dick), (B, -T, -dick), (B, T, -dick), (-B, T, -dick)]
    fl = [(0, 1, 5, 4), (2, 3, 4, 5), (1, 2, 5), (3, 0, 4), (9, 8, 7, 6),
          (6, 7, 1, 0), (7, 8, 2, 1), (8, 9, 3, 2), (9, 6, 0, 3)]
    return objekt("Walmdach", netz_aus(p, fl), stoff_, lage(x, y, z, drehung), 0.3)


def pagodendach(x, y, z, b, t, h, stoff_=None, über=4.0, schwung=1.0, oben=0.25, drehung=0.0, rand=None):
    """Geschwungenes Dach mit hochgezogenen Ecken; oben: Anteil der Grundfläche, der oben bleibt."""
    stoff_ = stoff_ or ziegel("#3d5a66", 1.8)
    n, m = 24, 8
    p, f = [], []
    for k in range(m + 1):
        a = k / m
        weit = 1 - a
        for i in range(4 * n):
            seite, q = divmod(i, n)
            s = 2 * q / n - 1
            grund = [(s, -1), (1, s), (-s, 1), (-1, -s)][seite]
            ecke = abs(s) ** 4
            B = b / 2 * (oben + (1 - oben) * weit) + über * weit * weit * (1 + 0.12 * ecke)
            T = t / 2 * (oben + (1 - oben) * weit) + über * weit * weit * (1 + 0.12 * ecke)
            hoch = h * a ** 1.5 + schwung * über * 0.45 * ecke * weit ** 3
            p.append((grund[0] * B, grund[1] * T, hoch))
    ring = 4 * n
    for k in range(m):
        f += [(k * ring + i, k * ring + (i + 1) % ring, (k + 1) * ring + (i + 1) % ring, (k + 1) * ring + i)
              for i in range(ring)]
    f.append(tuple(range(m * ring, (m + 1) * ring)))
    unten = len(p)
    p += [(px * 0.97, py * 0.97, pz - 1.0) for px, py, pz in p[:ring]]
    f += [(unten + i, unten + (i + 1) % ring, (i + 1) % ring, i) for i in range(ring)]
    f.append(tuple(range(unten + ring - 1, unten - 1, -1)))
    o = objekt("Pagodendach", netz_aus(p, f), stoff_, lage(x, y, z, drehung), 0, glatt=True)
    if rand:
        with bei(x, y, z, drehung):
            rohr([(px, py, pz - 0.4) for px, py, pz in p[:ring]], 0.55, rand, zu=True)
    return o


def kuppel(x, y, z, r, stoff_, art="rund", knauf="gold", maß=1.0):
    """Kuppel; art "rund" oder "zwiebel"."""
    if art == "rund":
        profil = [(r * math.cos(a), r * math.sin(a)) for a in [i * math.pi / 2 / 14 for i in range(14)]] + [(0.02, r)]
        hoch = r
    else:
        profil = [(r * q, r * w) for q, w in ((.80, 0), (.93, .12), (1.02, .32), (1.05, .52), (1.0, .74), (.86, .98),
                                              (.64, 1.22), (.40, 1.42), (.20, 1.58), (.08, 1.74), (.02, 1.9))]
        hoch = 1.9 * r
    drehkörper(x, y, z, profil, stoff_, maß=maß)
    if knauf:
        spitze(x, y, z + hoch * maß - 0.3, 0.16 * r * maß, metall(knauf))


def spitze(x, y, z, r, stoff_):
    """Knauf mit Spitze."""
    drehkörper(x, y, z, [(r * .5, 0), (r, r * .8), (r * .5, r * 1.6), (r * .8, r * 2.2), (r * .3, r * 3),
                         (0.02, r * 4.6)],
               stoff_, 16)


def zinnen(x, y, z, b, t, stoff_, maß=2.0):
    """Zinnenkranz um ein Rechteck."""
    for achse, lang, quer in ((0, b, t), (1, t, b)):
        n = max(2, round(lang / (2 * maß)))
        for i in range(achse, n + 1 - achse):          # die Ecken nur einmal
            a = -lang / 2 + lang * i / n
            for s in (-1, 1):
                px, py = (a, s * quer / 2) if achse == 0 else (s * quer / 2, a)
                quader(x + px, y + py, z, maß, maß, maß * 1.1, stoff_, 0.25)


# ---------------------------------------------------------------- Wände

def wand(x, y, b, t, seite):
    """Rahmen der Wand `seite` eines Kastens b x t um (x, y): darin ist x die Wand entlang, -y nach außen."""
    dx, dy = {"s": (0, -t / 2), "n": (0, t / 2), "w": (-b / 2, 0), "o": (b / 2, 0)}[seite]
    return bei(x + dx, y + dy, 0, DREHUNG[seite])


def _rahmennetz(b, h, rand, tief, bogen):
    """Fenster um (0, 0, Unterkante 0), Blick nach -y: Rahmen, Scheibe, Sprossen, Sims."""
    bm = bmesh.new()

    def linie(rb, ru, ro):
        p = [(-b / 2 - rb, -ru), (b / 2 + rb, -ru)]
        if bogen:
            r = b / 2 + rb
            p += [(r * math.cos(a), h - b / 2 + r * math.sin(a)) for a in [i * math.pi / 10 for i in range(11)]]
        else:
            p += [(b / 2 + rb, h + ro), (-b / 2 - rb, h + ro)]
        return p
    außen, innen = linie(rand, rand, rand), linie(0, 0, 0)
    n = len(außen)
    v = [[bm.verts.new((px, y, pz)) for px, pz in l] for l, y in
         ((außen, 0), (außen, -tief), (innen, -tief), (innen, tief * .3))]
    for i in range(n):
        j = (i + 1) % n
        for a, c in ((0, 1), (1, 2), (2, 3)):
            bm.faces.new((v[a][i], v[a][j], v[c][j], v[c][i]))
    scheibe = bm.faces.new([bm.verts.new((px, -0.05, pz)) for px, pz in innen])
    scheibe.material_index = 1
    return bm


def fenster(x, z, b, h, rahmen="weiß", scheibe=None, rand=0.5, tief=0.5, sprossen=(1, 1), sims=True, bogen=False,
            läden=None):
    """Fenster im Rahmen einer Wand (siehe `wand`): Mitte x, Unterkante z."""
    def bauen():
        bm = _rahmennetz(b, h, rand, tief, bogen)
        for i in range(sprossen[0]):
            _stab(bm, -b / 2 + b * (i + 1) / (sprossen[0] + 1), h / 2, 0.32, h, tief * .6)
        for i in range(sprossen[1]):
            _stab(bm, 0, h * (i + 1) / (sprossen[1] + 1), b, 0.32, tief * .6)
        if sims:
            _stab(bm, 0, -rand * 1.2, b + 2.4 * rand + .6, .6, tief * 2)
        return bm, [rahmen, scheibe or glas()]
    gemeinsam(("fenster", b, h, str(rahmen), str(scheibe), rand, tief, sprossen, sims, bogen), bauen, x, 0, z)
    if läden:
        for s in (-1, 1):
            quader(x + s * (b * .75 + rand), -.3, z - .2, b * .48, .5, h + .4, läden, .15)


def _stab(bm, x, z, b, h, tief):
    m = schub(x, -tief / 2, z) @ Matrix.Diagonal((b, tief, h, 1))
    bmesh.ops.create_cube(bm, size=1, matrix=m)


def fensterreihe(z, breite, zahl, b, h, **wie):
    """`zahl` Fenster gleichmäßig über die Wandbreite."""
    for i in range(zahl):
        fenster(-breite / 2 + breite * (i + .5) / zahl, z, b, h, **wie)


def tür(x, z, b, h, stoff_="dunkelholz", rahmen="weiß", bogen=False, stufen=1):
    """Tür mit Rahmen und Stufen davor, im Rahmen einer Wand."""
    fenster(x, z, b, h, rahmen=rahmen, scheibe=als_stoff(stoff_), rand=.6, tief=.6, sprossen=(1, 0), sims=False,
            bogen=bogen)
    kugel(x + .45, -.5, z + h * .45, .28, metall())
    for i in range(stufen):
        quader(x, -1.2 - .8 * (stufen - 1 - i) / 1, z - .8 * (stufen - i) + .05, b + 2.5, 2.4 + 1.6 * (stufen - 1 - i),
               .8, "stein", .15)


def balkon(x, z, b, tief=2.2, platte="weiß", gitter="weiß", hoch=2.0, voll=False):
    """Balkon im Rahmen einer Wand; voll: geschlossene Brüstung."""
    quader(x, -tief / 2, z - .6, b, tief, .6, platte, .15)
    if voll:
        quader(x, -tief + .25, z, b, .5, hoch, gitter, .2)
        for s in (-1, 1):
            quader(x + s * (b / 2 - .25), -tief / 2, z, .5, tief, hoch, gitter, .2)
        return
    quader(x, -tief + .2, z + hoch - .3, b, .4, .35, gitter, .1)
    n = max(3, round(b / 1.3))
    for i in range(n + 1):
        quader(x - b / 2 + .2 + (b - .4) * i / n, -tief + .2, z, .22, .22, hoch, gitter, 0)


def markise(x, z, b, tief=3.0, farben=("rot", "weiß"), streifen=1.2):
    """Gestreiftes Vordach im Rahmen einer Wand."""
    n = max(3, round(b / streifen)) | 1
    for i in range(n):
        a, e = x - b / 2 + b * i / n, x - b / 2 + b * (i + 1) / n
        _platte([Vector(p) for p in ((a, -tief, z - tief * .45), (e, -tief, z - tief * .45), (e, 0, z), (a, 0, z))], .3,
                farben[i % 2], 0)
        quader((a + e) / 2, -tief, z - tief * .45 - .7, b / n, .25, .8, farben[i % 2], .1)


def säule(x, y, z, r, h, stoff_="weiß", kapitell=True):
    """Säule mit Fuß und Kopf."""
    drehkörper(x, y, z, [(r * 1.35, 0), (r * 1.35, r * .5), (r * 1.05, r * .8), (r, r), (r * .88, h - r),
                         (r, h - r * .8),
                        (r * 1.3, h - r * .5), (r * 1.3, h)] if kapitell else [(r, 0), (r * .95, h)], stoff_, 20)


# ---------------------------------------------------------------- Garten, Straße

def _entlang(punkte, abstand):
    """Gleichmäßige Stellen (x, y, Richtung in Grad) auf einer Linie."""
    for (ax, ay), (ex, ey) in zip(punkte, punkte[1:]):
        lang = math.hypot(ex - ax, ey - ay)
        n = max(1, round(lang / abstand))
        for i in range(n):
            yield ax + (ex - ax) * i / n, ay + (ey - ay) * i / n, math.degrees(math.atan2(ey - ay, ex - ax))
    yield *punkte[-1], 0


def zaun(punkte, stoff_="weiß", hoch=3.0, abstand=3.0, z=0.0, latten=2, dick=.45):
    """Zaun: Pfosten und Querlatten längs [(x, y), ...]."""
    for x, y, _ in _entlang(punkte, abstand):
        quader(x, y, z, dick * 1.4, dick * 1.4, hoch, stoff_, .12)
    for k in range(latten):
        hz = z + hoch * (1 - .12 - .45 * k)
        for (ax, ay), (ex, ey) in zip(punkte, punkte[1:]):
            rohr([(ax, ay, hz), (ex, ey, hz)], dick * .5, stoff_)


def fahne(x, y, z, hoch, farben=("rot",), b=5.0, h=3.2, drehung=0.0):
    """Mast mit wehendem Tuch; mehrere Farben geben waagrechte Streifen."""
    zylinder(x, y, z, .28, hoch, "weiß", oben=.2, rund=0)
    kugel(x, y, z + hoch, .5, metall())
    n, k = 14, len(farben)
    p = [(b * i / n, .45 * math.sin(i * .8) * i / n, hoch - .4 - h * j / k - .25 * i / n) for j in range(k + 1)
         for i in range(n + 1)]
    f = [(j * (n + 1) + i, j * (n + 1) + i + 1, (j + 1) * (n + 1) + i + 1, (j + 1) * (n + 1) + i) for j in range(k)
         for i in range(n)]
    me = netz_aus(p, f, "Fahne")
    for s in farben:
        me.materials.append(als_stoff(s))
    for nr, fl in enumerate(me.polygons):
        fl.material_index = nr // n
    return objekt("Fahne", me, [], lage(x, y, z, drehung), glatt=True)


def laterne(x, y, z=0.0, hoch=9.0, farbe="#39424a"):
    """Laterne mit Kugel."""
    drehkörper(x, y, z, [(.7, 0), (.7, .5), (.3, 1.0), (.25, hoch - 1), (.5, hoch - .6), (.5, hoch - .2)], farbe, 12)
    kugel(x, y, z + hoch + .6, 1.0, stoff("#fff3d0", rau=.3, leuchten=.5))


def schirm(x, y, z=0.0, r=4.0, hoch=5.5, farben=("rot", "weiß")):
    """Sonnenschirm mit Feldern in zwei Farben."""
    zylinder(x, y, z, .25, hoch, "weiß", rund=0)
    n = 12
    p = [(0, 0, r * .45)] + [(r * math.cos(2 * math.pi * i / n), r * math.sin(2 * math.pi * i / n), 0)
                             for i in range(n)]
    me = netz_aus(p, [(0, 1 + i, 1 + (i + 1) % n) for i in range(n)], "Schirm")
    for s in farben:
        me.materials.append(als_stoff(s))
    for nr, fl in enumerate(me.polygons):
        fl.material_index = nr % len(farben)
    objekt("Schirm", me, [], lage(x, y, z + hoch - r * .4))


def liege(x, y, z=0.0, drehung=0.0, tuch="weiß", gestell="holz"):
    """Liegestuhl, Kopf nach hinten."""
    with bei(x, y, z, drehung):
        quader(0, -1.0, .7, 2.0, 4.0, .5, tuch, .2)
        _platte([Vector(p) for p in ((-1, 1, .8), (1, 1, .8), (1, 2.4, 2.4), (-1, 2.4, 2.4))], .5, tuch)
        for s in (-1, 1):
            quader(s * .9, -1, 0, .3, 3.6, .7, gestell, .05)


def parkbank(x, y, z=0.0, drehung=0.0, farbe="holz"):
    with bei(x, y, z, drehung):
        quader(0, 0, .9, 5, 1.6, .4, farbe, .1)
        quader(0, .9, 1.5, 5, .35, 1.4, farbe, .1)
        for s in (-1, 1):
            quader(s * 2, .1, 0, .4, 1.6, .9, "grau", .05)


def becken(punkte, z=0.0, rand="weiß", randbreite=1.4, farbe="#35b6cf", hoch=.8):
    """Wasserbecken mit umlaufendem Rand; Umriss [(x, y), ...]."""
    prisma(punkte, z, hoch * .55, wasser(farbe), 0)
    band(punkte, randbreite, rand, z, hoch, zu=True)


def brunnen(x, y, z=0.0, r=6.0, stoff_="weiß"):
    """Runder Springbrunnen mit zwei Schalen."""
    drehkörper(x, y, z, [(r, 0), (r, 1.6), (r - .8, 1.6), (r - .9, .9), (.8, .9)], stoff_, 40, .1)
    zylinder(x, y, z + .9, r - .9, .3, wasser("#55c3dd"), rund=0)
    drehkörper(x, y, z, [(.9, 0), (.6, 2.5), (r * .5, 3.6), (r * .52, 4.0), (r * .4, 3.9), (.5, 3.6), (.4, 5.4),
                         (r * .26, 6.2),
                        (r * .27, 6.5), (.1, 6.5)], stoff_, 32, .1)
    kugel(x, y, z + 7.2, .8, stoff("#dff4ff", rau=.2))


def steine(x, y, zahl, weit, r=1.0, farbe="stein", z=0.0):
    """Ein paar runde Feldsteine."""
    for _ in range(zahl):
        a, d, g = random.uniform(0, 2 * math.pi), weit * math.sqrt(random.random()), r * random.uniform(.5, 1.2)
        kugel(x + d * math.cos(a), y + d * math.sin(a), z + g * .25, g, stein(farbe), (1.2, .9, .7), fein=2)


def schildtafel(text, x, y, z=0.0, b=None, höhe=3.2, tafel="holz", farbe="weiß", drehung=0.0, pfosten=4.0, neigung=25):
    """Namensschild auf zwei Pfosten, etwas zurückgelehnt, damit es von oben zu lesen ist."""
    b = b or (len(text) * höhe * .72 + 4)
    with bei(x, y, z, drehung):
        for s in (-1, 1):
            quader(s * b * .36, .4, 0, .9, .9, pfosten + .8, "dunkelholz", .2)
        kipp = dreh(-neigung, "X")
        with rahmen(schub(0, -.3, pfosten) @ kipp):
            quader(0, 0, 0, b, .9, höhe * 1.75, holz(tafel) if isinstance(tafel, str) else tafel, .3)
            schrift(text, 0, -.5, höhe * .9, höhe, farbe, dick=.12)
