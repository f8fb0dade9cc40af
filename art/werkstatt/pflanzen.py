"""Pflanzen der Modellinsel: runde, kräftige Spielzeugbäume. Jede Art hat wenige Netze, die oft stehen."""
import math
import random

import bmesh
from mathutils import Matrix, Vector, noise

from körper import aus_bmesh, gemeinsam, lage
from stoffe import als_stoff, heller, lack, laub, stoff

ARTEN = 3        # verschiedene Netze je Baumart


def _knolle(bm, ort, r, streckung=(1, 1, 1), nr=0, beule=0.28, fein=3, saat=0.0):
    """Buckelige Kugel: ein Ballen Laub."""
    erg = bmesh.ops.create_icosphere(bm, subdivisions=fein, radius=1.0)
    for v in erg["verts"]:
        d = v.co.normalized()
        hub = 1 + beule * noise.noise(d * 2.2 + Vector((saat, saat * 1.7, 3.1 * saat))) \
            + .10 * noise.noise(d * 6 + Vector((saat, 0, 0)))
        v.co = Vector((d.x * streckung[0], d.y * streckung[1], d.z * streckung[2])) * r * hub + Vector(ort)
        for f in v.link_faces:
            f.material_index = nr


def _stamm(bm, punkte, radien, nr=0, seiten=10):
    ringe = []
    for i, (p, r) in enumerate(zip(punkte, radien)):
        ringe.append([bm.verts.new((p[0] + r * math.cos(2 * math.pi * k / seiten),
                                    p[1] + r * math.sin(2 * math.pi * k / seiten), p[2]))
                      for k in range(seiten)])
    for a, e in zip(ringe, ringe[1:]):
        for k in range(seiten):
            bm.faces.new((a[k], a[(k + 1) % seiten], e[(k + 1) % seiten], e[k])).material_index = nr
    bm.faces.new(ringe[-1]).material_index = nr


def _rinde(farbe="rinde"):
    return stoff(farbe, rau=.85, glanz=.1, fleck=.15, fleckmaß=.4, korn=.4, kornmaß=1.5)


def _stellen(art, bauen, x, y, z, maß, drehung=None, saat=None):
    nr = random.randrange(ARTEN) if saat is None else saat % ARTEN
    zustand = random.getstate()

    def fest():
        random.seed(nr * 77 + len(art.encode()))
        return bauen(nr)
    o = gemeinsam((art, nr), fest, x, y, z, random.uniform(0, 360) if drehung is None else drehung, maß)
    random.setstate(zustand)
    random.random()
    return o


def kugelbaum(x, y, z=0.0, maß=1.0, farbe="laub", stamm="rinde"):
    """Runder Laubbaum, etwa 16 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        _stamm(bm, [(0, 0, 0), (0, 0, 1), (.2, 0, 6)], [1.3, .9, .7])
        _knolle(bm, (0, 0, 10), 5.2, (1, 1, .95), 1, saat=nr + .3)
        for i in range(5):
            a = i * 1.256 + nr
            _knolle(bm, (3.1 * math.cos(a), 3.1 * math.sin(a), 8.2 + (i % 3) * 1.6), 2.9, (1, 1, .9), 1 + i % 2,
                    saat=nr * 9 + i)
        return bm, [_rinde(stamm), laub(farbe), laub(heller(farbe, 1.13))]
    return _stellen("kugelbaum" + farbe, bauen, x, y, z, maß)


def ahorn(x, y, z=0.0, maß=1.0, farbe="#b04a2c"):
    """Breiter roter Ahorn mit geschichtetem Laub, etwa 13 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        _stamm(bm, [(0, 0, 0), (.6, .2, 3), (-.3, .2, 7)], [1.1, .8, .5])
        for i in range(8):
            a, d = i * 2.4 + nr, 1.2 + .62 * i
            _knolle(bm, (d * math.cos(a), d * math.sin(a), 10.6 - .62 * i), 3.4 - .1 * i, (1.15, 1.15, .55), 1 + i % 2,
                    saat=nr * 9 + i)
        return bm, [_rinde("#5d4436"), laub(farbe), laub(heller(farbe, 1.2))]
    return _stellen("ahorn" + farbe, bauen, x, y, z, maß)


def eukalyptus(x, y, z=0.0, maß=1.0, farbe="#8aa35c"):
    """Gummibaum: heller, gegabelter Stamm, lichte graugrüne Ballen, etwa 18 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        _stamm(bm, [(0, 0, 0), (.3, 0, 3), (1, .3, 7)], [1.0, .8, .6], 0)
        for i in range(5):
            a = i * 1.256 + nr * .7
            e = Vector((4.4 * math.cos(a), 4.4 * math.sin(a), 11.5 + (i * 7 % 5) * 1.1))
            _stamm(bm, [(.5, .1, 5), tuple(e * .6 + Vector((0, 0, 3))), tuple(e)], [.55, .4, .25], 0, 8)
            _knolle(bm, e, 2.9, (1.25, 1.25, .6), 1 + i % 2, saat=nr * 5 + i)
        _knolle(bm, (.3, 0, 15.5), 3.0, (1.2, 1.2, .65), 1, saat=nr)
        return bm, [_rinde("#d8cbb4"), laub(farbe), laub(heller(farbe, 1.15))]
    return _stellen("eukalyptus" + farbe, bauen, x, y, z, maß)


def schirmakazie(x, y, z=0.0, maß=1.0, farbe="#7f9440"):
    """Flache Schirmkrone der Savanne, etwa 12 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        _stamm(bm, [(0, 0, 0), (.4, .1, 4), (.2, 0, 8.5)], [.9, .6, .5], 0)
        for i in range(4):
            a = i * 1.57 + nr
            _stamm(bm, [(.3, .1, 4.5), (4 * math.cos(a), 4 * math.sin(a), 9)], [.4, .25], 0, 8)
            _knolle(bm, (3.7 * math.cos(a), 3.7 * math.sin(a), 9.6), 3.6, (1.15, 1.15, .38), 1 + i % 2, saat=nr * 3 + i)
        _knolle(bm, (0, 0, 10.2), 4.4, (1.2, 1.2, .36), 1, saat=nr)
        return bm, [_rinde("#7d6044"), laub(farbe), laub(heller(farbe, 1.15))]
    return _stellen("schirmakazie" + farbe, bauen, x, y, z, maß)


def nadelbaum(x, y, z=0.0, maß=1.0, farbe="#3f7a45"):
    """Tanne aus vier Röcken, etwa 17 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        _stamm(bm, [(0, 0, 0), (0, 0, 4)], [1.0, .8], 0)
        n = 24
        for k in range(4):
            r, zu, h = 5.2 - 1.15 * k, 2.6 + 3.3 * k, 5.4 - .3 * k
            ringe = []
            for q, w in ((.75, -.25), (1, 0), (.62, .45), (.28, .8), (.03, 1.0)):
                ring = []
                for i in range(n):
                    a, weit = 2 * math.pi * (i + k * .5) / n, r * q * (1 + (.10 if i % 2 else -.06) * (q > .5))
                    ring.append(bm.verts.new((weit * math.cos(a), weit * math.sin(a), zu + h * w)))
                ringe.append(ring)
            for a, e in zip(ringe, ringe[1:]):
                for i in range(n):
                    bm.faces.new((a[i], a[(i + 1) % n], e[(i + 1) % n], e[i])).material_index = 1 + k % 2
        return bm, [_rinde(), laub(farbe), laub(heller(farbe, 1.12))]
    return _stellen("nadelbaum" + farbe, bauen, x, y, z, maß)


def zypresse(x, y, z=0.0, maß=1.0, farbe="#3d7048"):
    """Schlanke Säule, etwa 16 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        _stamm(bm, [(0, 0, 0), (0, 0, 2)], [.7, .6], 0)
        _knolle(bm, (0, 0, 8.6), 2.5, (1, 1, 3.1), 1, beule=.12, saat=nr)
        return bm, [_rinde(), laub(farbe)]
    return _stellen("zypresse" + farbe, bauen, x, y, z, maß)


def busch(x, y, z=0.0, maß=1.0, farbe="#4f8f3a", blüten=None):
    """Rundlicher Busch, etwa 4 hoch; blüten: Farbe aufgesetzter Blüten."""
    def bauen(nr):
        bm = bmesh.new()
        for i in range(4):
            a = i * 1.57 + nr
            _knolle(bm, (1.3 * math.cos(a), 1.3 * math.sin(a), 1.3), 1.8, (1, 1, .95), 0, saat=nr * 4 + i)
        _knolle(bm, (0, 0, 2.3), 1.9, (1, 1, .9), 0, saat=nr)
        for i in range(16 if blüten else 0):
            d = Vector((random.uniform(-1, 1), random.uniform(-1, 1), random.uniform(.2, 1))).normalized()
            _knolle(bm, Vector((0, 0, 1.6)) + Vector((d.x * 2.7, d.y * 2.7, d.z * 2.5)), .5, nr=1, fein=1)
        return bm, [laub(farbe), lack(blüten or "weiß")]
    return _stellen("busch" + farbe + str(blüten), bauen, x, y, z, maß)


def palme(x, y, z=0.0, maß=1.0, farbe="#4f9a3c", drehung=None, neigung=1.0):
    """Kokospalme mit gebogenem Stamm, etwa 18 hoch."""
    def bauen(nr):
        bm = bmesh.new()
        bogen = (3.5 + nr) * neigung
        p = [(bogen * (i / 10) ** 2, 0, 14.5 * i / 10) for i in range(11)]
        r = [(1.25 - .55 * i / 10) * (1.10 if i % 2 else .92) for i in range(11)]
        _stamm(bm, p, r, 0)
        kopf = Vector(p[-1])
        for i in range(11):
            _wedel(bm, kopf, i * 2 * math.pi / 11 + .35 * (i % 2), 8.2 - 1.2 * (i % 3 == 0), .75 - .55 * (i % 2),
                   1 + i % 2)
        for i in range(4):
            _knolle(bm, kopf + Vector((.9 * math.cos(i * 1.6), .9 * math.sin(i * 1.6), -.5)), .75, nr=3, fein=2,
                    beule=0)
        return bm, [_rinde("#a5835a"), laub(farbe), laub(heller(farbe, 1.18)), lack("#7a5230")]
    return _stellen("palme" + farbe + str(neigung), bauen, x, y, z, maß, drehung)


def _wedel(bm, fuß, richtung, lang, steig, nr):
    """Ein Palmwedel: hängender Streifen mit Mittelrippe und gezackten Rändern."""
    n, m = 12, Matrix.Rotation(richtung, 3, "Z")
    reihen = []
    for i in range(n + 1):
        a = i / n
        mitte = Vector((lang * a * (1 - .18 * a), 0, lang * (steig * a - (.62 + steig) * a * a)))
        weit = 1.45 * math.sin(math.pi * min(1, .12 + a * .92)) ** .7 * (1 if i % 2 else .62)
        reihen.append([bm.verts.new(Vector(fuß) + m
                                    @ (mitte + Vector((-.5 * (s != 0), s * weit, -.45 * weit * (s != 0)))))
                       for s in (-1, 0, 1)])
    for a, e in zip(reihen, reihen[1:]):
        for k in (0, 1):
            bm.faces.new((a[k], a[k + 1], e[k + 1], e[k])).material_index = nr


def hecke(punkte, hoch=3.0, breite=2.6, farbe="#4a8a3c", z=0.0):
    """Geschnittene Hecke längs [(x, y), ...]."""
    for (ax, ay), (ex, ey) in zip(punkte, punkte[1:]):
        lang = math.hypot(ex - ax, ey - ay)
        bm = bmesh.new()
        bmesh.ops.create_cube(bm, size=1, matrix=Matrix.Translation((0, 0, hoch / 2))
                              @ Matrix.Diagonal((lang + breite * .8, breite, hoch, 1)))
        bmesh.ops.bevel(bm, geom=bm.edges[:], offset=.5, segments=2, affect="EDGES")
        lange = [e for e in bm.edges if e.calc_length() > 3]
        bmesh.ops.subdivide_edges(bm, edges=lange, cuts=max(1, int(lang / 2)), use_grid_fill=True)
        for v in bm.verts:
            v.co += .22 * noise.noise_vector(v.co * .9 + Vector((ax, ay, 0)))
        aus_bmesh(bm, laub(farbe), lage((ax + ex) / 2, (ay + ey) / 2, z, math.degrees(math.atan2(ey - ay, ex - ax))),
                  glatt=True, name="Hecke")


def blumenbeet(x, y, b, t, farben=("rot", "gelb", "weiß"), dichte=.35, z=0.0, drehung=0.0):
    """Rechteckiges Beet mit Blütentupfen."""
    bm = bmesh.new()
    n = max(6, int(b * t * dichte))
    bmesh.ops.create_cube(bm, size=1, matrix=Matrix.Translation((0, 0, .3)) @ Matrix.Diagonal((b, t, .6, 1)))
    for i in range(n):
        _knolle(bm, (random.uniform(-.45, .45) * b, random.uniform(-.42, .42) * t, .9 + random.random() * .4), .62,
                nr=1 + i % (len(farben) + 1), fein=1, saat=i)
    return aus_bmesh(bm, [laub("#4b7d38"), laub("#5d9a3a")] + [als_stoff(f) for f in farben], lage(x, y, z, drehung),
                     glatt=True, name="Beet")


def grasbüschel(x, y, z=0.0, maß=1.0, farbe="#9aa84f"):
    """Schopf langer Halme."""
    def bauen(nr):
        bm = bmesh.new()
        for i in range(14):
            a, h, d = random.uniform(0, 6.28), random.uniform(1.6, 3.0), random.uniform(.3, 1.2)
            f = Vector((.4 * math.cos(a), .4 * math.sin(a), 0))
            s = Vector((-math.sin(a), math.cos(a), 0)) * .22
            m, e = f * (1 + d) + Vector((0, 0, h * .6)), f * (1 + 3 * d) + Vector((0, 0, h))
            p = [bm.verts.new(q) for q in (f - s, f + s, m + s * .8, m - s * .8, e)]
            bm.faces.new((p[0], p[1], p[2], p[3]))
            bm.faces.new((p[3], p[2], p[4]))
        return bm, [laub(farbe)]
    return _stellen("gras" + farbe, bauen, x, y, z, maß)
