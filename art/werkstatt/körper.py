"""Orte und Grundkörper: Rahmen, in denen gebaut wird, und Netze aus Quadern, Drehkörpern, Rohren, Bändern."""
import math
from contextlib import contextmanager

import bmesh
import bpy
import numpy as np
from mathutils import Euler, Matrix, Vector, noise     # noqa: F401

from stoffe import als_stoff

TIEFE = math.sqrt(2)               # Einheiten je Entwurfspunkt in der Tiefe
DEJAVU = "/usr/share/fonts/truetype/dejavu/DejaVu%s-Bold.ttf"
GOTISCH, BUCHMANN = (f"/usr/share/fonts/opentype/urw-base35/URW{n}-Demi.otf" for n in ("Gothic", "Bookman"))


# ---------------------------------------------------------------- Orte

_ORT = [Matrix.Identity(4)]


def geltend():
    """Lage des Rahmens, in dem gerade gebaut wird."""
    return _ORT[-1]


def welt(x, y, z=0.0):
    """Entwurfspunkt des Brettes auf dem Boden -> Ort im Modell."""
    return Vector((x, -y * TIEFE, z))


@contextmanager
def bei(x=0.0, y=0.0, z=0.0, drehung=0.0, maß=1.0):
    """Was darin gebaut wird, steht um (x, y, z) verschoben, um `drehung` Grad gedreht."""
    _ORT.append(_ORT[-1] @ schub(x, y, z) @ dreh(drehung, "Z")
                @ Matrix.Scale(maß, 4))
    try:
        yield
    finally:
        _ORT.pop()


def am_brett(x, y, z=0.0, drehung=0.0, maß=1.0):
    """Wie `bei`, der Ort als Entwurfspunkt des Brettes."""
    return bei(*welt(x, y, z), drehung=drehung, maß=maß)


@contextmanager
def rahmen(matrix):
    """Wie `bei`, für eine beliebige Lage."""
    _ORT.append(_ORT[-1] @ matrix)
    try:
        yield
    finally:
        _ORT.pop()


def lage(x=0.0, y=0.0, z=0.0, drehung=0.0, maß=1.0):
    """Matrix eines Ortes im geltenden Rahmen."""
    m = maß if isinstance(maß, (tuple, list)) else (maß,) * 3
    return (schub(x, y, z) @ dreh(drehung, "Z")
            @ Matrix.Diagonal((*m, 1)))


# ---------------------------------------------------------------- Netze

_NETZE = {}


def leere_netze():
    _NETZE.clear()
    _ORT[:] = [Matrix.Identity(4)]


def netz_aus(punkte, flächen, name="Netz"):
    me = bpy.data.meshes.new(name)
    me.from_pydata([tuple(p) for p in punkte], [], flächen)
    me.update()
    return me


def _lagekarte(me):
    """Flächenlage in Einheiten: u waagrecht in der Fläche, v die Fläche hinauf."""
    karte = me.uv_layers.new(name="Lage").data
    for f in me.polygons:
        n = f.normal
        u = Vector((0, 0, 1)).cross(n)
        u = u.normalized() if u.length > 0.05 else Vector((1, 0, 0))
        w = n.cross(u)
        for ecke in f.loop_indices:
            p = me.vertices[me.loops[ecke].vertex_index].co
            karte[ecke].uv = (p.dot(u), p.dot(w))


def objekt(name, me, stoffe, matrix=Matrix.Identity(4), rund=0.0, glatt=False, kanten=True):
    """Hängt ein Netz in die Szene. rund: Halbmesser der Kanten; kanten: bei `glatt` bleiben scharfe Knicke stehen."""
    if not me.materials:
        for s in (stoffe if isinstance(stoffe, (list, tuple)) else [stoffe]):
            me.materials.append(als_stoff(s))
    if not me.uv_layers and any("muster" in m for m in me.materials):
        _lagekarte(me)
    o = stelle(bpy.data.objects.new(name, me), matrix)
    if glatt or rund:
        me.polygons.foreach_set("use_smooth", [True] * len(me.polygons))
        me.use_auto_smooth, me.auto_smooth_angle = kanten, math.radians(50)
    if rund:
        kante = o.modifiers.new("Kante", "BEVEL")
        kante.width, kante.segments, kante.limit_method = rund, 3, "ANGLE"
        kante.angle_limit, kante.harden_normals = math.radians(35), True
    return o


def stelle(o, matrix=Matrix.Identity(4)):
    """Hängt einen neuen Gegenstand im geltenden Rahmen in die Szene."""
    o.matrix_world = _ORT[-1] @ matrix
    bpy.context.scene.collection.objects.link(o)
    return o


def schub(x, y, z):
    return Matrix.Translation((x, y, z))


def dreh(grad, achse):
    return Matrix.Rotation(math.radians(grad), 4, achse)


def lege(o, *lagen):
    """Stellt einen um den Ursprung gebauten Gegenstand um; die Lagen gelten im Rahmen, in dem er entstand."""
    for m in lagen:
        o.matrix_world = o.matrix_world @ m
    return o


def aus_bmesh(bm, stoffe, matrix=Matrix.Identity(4), rund=0.0, glatt=False, name="Teil"):
    me = bpy.data.meshes.new(name)
    bmesh.ops.recalc_face_normals(bm, faces=bm.faces)
    bm.to_mesh(me)
    bm.free()
    return objekt(name, me, stoffe, matrix, rund, glatt)


def quader(x, y, z, b, t, h, stoff_, rund=0.5, drehung=0.0):
    """Kasten: Mitte (x, y), Unterkante z, Breite b, Tiefe t, Höhe h."""
    p = [(sx * b / 2, sy * t / 2, sz * h) for sz in (0, 1) for sy in (-1, 1) for sx in (-1, 1)]
    f = [(0, 2, 3, 1), (4, 5, 7, 6), (0, 1, 5, 4), (1, 3, 7, 5), (3, 2, 6, 7), (2, 0, 4, 6)]
    return objekt("Quader", netz_aus(p, f), stoff_, lage(x, y, z, drehung), min(rund, 0.45 * min(b, t, h)))


def prisma(punkte, z, h, stoff_, rund=0.4):
    """Umriss [(x, y), ...] von z um h hochgezogen."""
    n = len(punkte)
    if sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(punkte, punkte[1:] + punkte[:1])) < 0:
        punkte = punkte[::-1]
    p = [(x, y, 0) for x, y in punkte] + [(x, y, h) for x, y in punkte]
    f = [tuple(range(n - 1, -1, -1)), tuple(range(n, 2 * n))]
    f += [(i, (i + 1) % n, n + (i + 1) % n, n + i) for i in range(n)]
    return objekt("Prisma", netz_aus(p, f), stoff_, lage(z=z), rund)


def keil(x, y, z, b, t, h, stoff_, rund=0.3, drehung=0.0):
    """Giebelkörper: First längs der Breite b."""
    p = [(-b / 2, -t / 2, 0), (b / 2, -t / 2, 0), (b / 2, t / 2, 0), (-b / 2, t / 2, 0), (-b / 2, 0, h), (b / 2, 0, h)]
    f = [(3, 2, 1, 0), (0, 1, 5, 4), (2, 3, 4, 5), (0, 4, 3), (1, 2, 5)]
    return objekt("Keil", netz_aus(p, f), stoff_, lage(x, y, z, drehung), rund)


def drehkörper(x, y, z, profil, stoff_, seiten=32, rund=0.0, glatt=True, maß=1.0):
    """Profil [(r, z), ...] von unten nach oben um die Achse gedreht."""
    p, f = [], []
    for r, h in profil:
        p += [(r * math.cos(2 * math.pi * i / seiten), r * math.sin(2 * math.pi * i / seiten), h)
              for i in range(seiten)]
    for k in range(len(profil) - 1):
        f += [(k * seiten + i, k * seiten + (i + 1) % seiten, (k + 1) * seiten + (i + 1) % seiten,
               (k + 1) * seiten + i) for i in range(seiten)]
    f += [tuple(range(seiten - 1, -1, -1)), tuple(range((len(profil) - 1) * seiten, len(profil) * seiten))]
    return objekt("Drehkörper", netz_aus(p, f), stoff_, lage(x, y, z, 0, maß), rund, glatt)


def zylinder(x, y, z, r, h, stoff_, oben=None, seiten=24, rund=0.3):
    """Stehender Zylinder; oben: Halbmesser der Oberseite (0 gibt einen Kegel)."""
    ro = r if oben is None else max(oben, 0.02)
    return drehkörper(x, y, z, [(r, 0), (ro, h)], stoff_, seiten, min(rund, 0.4 * r, 0.4 * h))


def kugel(x, y, z, r, stoff_, streckung=(1, 1, 1), fein=3):
    """Kugel um (x, y, z)."""
    me = _NETZE.get(("kugel", fein, als_stoff(stoff_).name))
    if not me:
        bm = bmesh.new()
        bmesh.ops.create_icosphere(bm, subdivisions=fein, radius=1)
        me = bpy.data.meshes.new("Kugel")
        bm.to_mesh(me)
        bm.free()
        _NETZE["kugel", fein, als_stoff(stoff_).name] = me
    return objekt("Kugel", me, stoff_, lage(x, y, z, 0, tuple(r * s for s in streckung)), glatt=True)


def rohr(punkte, r, stoff_, seiten=10, zu=False):
    """Rundstab durch Raumpunkte; zu: geschlossener Ring."""
    kurve = bpy.data.curves.new("Rohr", "CURVE")
    kurve.dimensions, kurve.bevel_depth, kurve.bevel_resolution, kurve.use_fill_caps = "3D", r, seiten // 4, True
    s = kurve.splines.new("POLY")
    s.points.add(len(punkte) - 1)
    for q, p in zip(s.points, punkte):
        q.co = (*p, 1)
    s.use_cyclic_u = zu
    kurve.materials.append(als_stoff(stoff_))
    return stelle(bpy.data.objects.new("Rohr", kurve))


def glätten(punkte, stufen=8, zu=True):
    """Weiche Linie (Catmull-Rom) durch die Punkte."""
    n, aus = len(punkte), []
    for i in range(n if zu else n - 1):
        p = [Vector(punkte[j % n] if zu else punkte[min(max(j, 0), n - 1)]) for j in range(i - 1, i + 3)]
        for s in range(stufen):
            t = s / stufen
            aus.append(0.5 * (2 * p[1] + (p[2] - p[0]) * t + (2 * p[0] - 5 * p[1] + 4 * p[2] - p[3]) * t * t
                              + (3 * p[1] - p[0] - 3 * p[2] + p[3]) * t ** 3))
    if not zu:
        aus.append(Vector(punkte[-1]))
    return [tuple(q) for q in aus]


def band(punkte, breite, stoff_, z=0.0, dick=0.4, zu=False, rund=0.15, versatz=0.0):
    """Streifen längs der Linie [(x, y), ...]: Weg, Straße, Bordstein. versatz: nach links der Fahrt."""
    n, mitte = len(punkte), [Vector(p[:2]) for p in punkte]
    l, r = [], []
    for i, p in enumerate(mitte):
        a = mitte[i - 1] if zu or i else p
        e = mitte[(i + 1) % n] if zu or i < n - 1 else p
        q = (e - a).normalized()
        q = Vector((-q.y, q.x))
        l.append(p + q * (versatz + breite / 2))
        r.append(p + q * (versatz - breite / 2))
    p = [(*q, 0) for q in l] + [(*q, 0) for q in r] + [(*q, dick) for q in l] + [(*q, dick) for q in r]
    f = []
    for i in range(n if zu else n - 1):
        j = (i + 1) % n
        f += [(2 * n + i, 3 * n + i, 3 * n + j, 2 * n + j), (i, 2 * n + i, 2 * n + j, j),
              (n + i, n + j, 3 * n + j, 3 * n + i)]
    if not zu:
        f += [(0, n, 3 * n, 2 * n), (n - 1, 3 * n - 1, 4 * n - 1, 2 * n - 1)]
    bm = bmesh.new()
    bm.from_mesh(netz_aus(p, f))
    return aus_bmesh(bm, stoff_, lage(z=z), rund, name="Band")


def schrift(text, x, y, z, höhe, stoff_, stehend=True, drehung=0.0, dick=0.15, datei=DEJAVU % "Serif"):
    """Text eines Schildes, um x gemittet; stehend: auf einer Wand mit Blick nach vorn."""
    kurve = bpy.data.curves.new("Schrift", "FONT")
    kurve.font = bpy.data.fonts.load(datei, check_existing=True)
    kurve.body, kurve.size, kurve.extrude, kurve.align_x, kurve.align_y = text, höhe, dick, "CENTER", "CENTER"
    kurve.materials.append(als_stoff(stoff_))
    kipp = dreh(90 if stehend else 0, "X")
    return stelle(bpy.data.objects.new("Schrift", kurve), lage(x, y, z, drehung) @ kipp)


def gemeinsam(schlüssel, bauen, x, y, z=0.0, drehung=0.0, maß=1.0):
    """Stellt ein Netz auf, das `bauen()` nur einmal als bmesh mit Stoffen (bm, [stoff, ...]) herstellt."""
    if schlüssel not in _NETZE:
        bm, stoffe = bauen()
        me = bpy.data.meshes.new(str(schlüssel))
        bmesh.ops.recalc_face_normals(bm, faces=bm.faces)
        bm.to_mesh(me)
        bm.free()
        for s in stoffe:
            me.materials.append(als_stoff(s))
        _NETZE[schlüssel] = me
    return objekt(str(schlüssel), _NETZE[schlüssel], [], lage(x, y, z, drehung, maß), glatt=True)


# ---------------------------------------------------------------- Figuren: frei gestellte, weiche Körper

def platz(ort=(0, 0, 0), drehung=(0, 0, 0), maß=(1, 1, 1)):
    """Matrix aus Ort, Drehung um x, y, z im Bogenmaß und Maß."""
    return Matrix.LocRotScale(Vector(ort), Euler(drehung), Vector(maß))


def gitter(nu, nv, zu_u=False, zu_v=False):
    """Vierecke eines Gitters von nu mal nv Punkten (Index u * nv + v)."""
    f = []
    for u in range(nu if zu_u else nu - 1):
        for v in range(nv if zu_v else nv - 1):
            a, b = (u + 1) % nu, (v + 1) % nv
            f.append((u * nv + v, a * nv + v, a * nv + b, u * nv + b))
    return f


def färbe(me, farben, name="ton"):
    """Legt die linearen Farben je Punkt als Farbfeld in das Netz."""
    feld = me.color_attributes.new(name, "FLOAT_COLOR", "POINT")
    f = np.asarray(farben).reshape(-1, 3)
    feld.data.foreach_set("color", np.hstack([f, np.ones((len(f), 1))]).astype(np.float32).ravel())


def netz(punkte, flächen, stoff_, matrix=Matrix.Identity(4), farben=None):
    """Weiches Netz; farben: lineare Farbe je Punkt, als Farbfeld "ton"."""
    me = netz_aus(punkte, flächen)
    if farben is not None:
        färbe(me, farben)
    return objekt("Netz", me, stoff_, matrix, glatt=True, kanten=False)


def gedreht(profil, stoff_, n=64, matrix=Matrix.Identity(4), verbiegen=None):
    """Profil von (Radius, Höhe) um die z-Achse gedreht, oben und unten offen."""
    p = [Vector((r * math.cos(2 * math.pi * i / n), r * math.sin(2 * math.pi * i / n), z))
         for i in range(n) for r, z in profil]
    return netz([verbiegen(q) for q in p] if verbiegen else p, gitter(n, len(profil), zu_u=True), stoff_, matrix)


def ball(r, ort, stoff_, maß=(1, 1, 1), drehung=(0, 0, 0), n=32):
    profil = [(r * math.sin(math.pi * i / n), -r * math.cos(math.pi * i / n)) for i in range(n + 1)]
    return gedreht(profil, stoff_, 2 * n, platz(ort, drehung, maß))


def schlauch(punkte, radien, stoff_, n=12, flach=1.0, rillen=0, tief=0.0, nach_außen=None, zu=False):
    """Schlauch durch die Punkte; flach: Höhe zu Breite, rillen: Längsfurchen (Haarsträhnen)."""
    p, k = [Vector(q) for q in punkte], len(punkte)
    ecken = []
    for i in range(k):
        t = (p[(i + 1) % k] - p[i - 1] if zu else p[min(i + 1, k - 1)] - p[max(i - 1, 0)])
        t = t.normalized() if t.length > 1e-9 else Vector((0, 0, 1))
        auf = (nach_außen[i] if nach_außen else Vector((0, -1, 0.2)))
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
    return netz(ecken, f, stoff_)
