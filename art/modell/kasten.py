"""Baukasten der Modellinsel: Maß, Kamera, Licht, Stoffe und Grundkörper.

Maß: eine Einheit ist ein Entwurfspunkt (12 Twips) in der Breite. x zeigt nach rechts, y nach
hinten, z nach oben. Die Kamera blickt aus Süden um 45 Grad hinab und rechnet ohne Flucht; darum
misst ein Entwurfspunkt in der Tiefe Wurzel 2 Einheiten, und z = 1 hebt um 0,707 Punkte.
"""
import argparse
import math
import os
import random
import subprocess
import sys
from contextlib import contextmanager

import bmesh
import bpy
import numpy as np
from mathutils import Matrix, Vector

from stoffe import *       # noqa: F401,F403
from stoffe import _STOFFE, _mal, _rauschen, _rechne, _relief      # noqa: F401

TWIPS = 12
FEIN = 4                      # Bildpunkte je Entwurfspunkt
TIEFE = math.sqrt(2)
WURZEL = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
BILDER = os.path.join(WURZEL, "bilder")
SONNE = Vector((-0.50, -0.33, 0.80))   # zur Sonne hin: links, etwas vor dem Brett, hoch


# ---------------------------------------------------------------- Aufruf, Szene

def argumente():
    """Was nach "--" steht: --vorschau (klein, wenig Proben), --nur NAME ..., --ziel ORDNER."""
    lese = argparse.ArgumentParser()
    lese.add_argument("--vorschau", action="store_true")
    lese.add_argument("--fein", type=float)
    lese.add_argument("--proben", type=int)
    lese.add_argument("--nur", nargs="*", default=[])
    lese.add_argument("--ziel", default=BILDER)
    args = lese.parse_args(sys.argv[sys.argv.index("--") + 1:] if "--" in sys.argv else [])
    args.fein = args.fein or (1 if args.vorschau else FEIN)
    args.proben = args.proben or (16 if args.vorschau else 96)
    return args


def neu(saat=1):
    """Leere Szene mit Kamera, Sonne und Himmel; Zwischenspeicher gehören zur Szene."""
    bpy.ops.wm.read_factory_settings(use_empty=True)
    _STOFFE.clear()
    _NETZE.clear()
    _ORT[:] = [Matrix.Identity(4)]
    random.seed(saat)
    szene = bpy.context.scene
    szene.render.engine = "CYCLES"
    szene.render.use_persistent_data = True
    szene.view_settings.view_transform = "Standard"
    c = szene.cycles
    c.use_denoising = False
    c.use_adaptive_sampling = True
    c.adaptive_threshold = 0.015
    c.max_bounces, c.diffuse_bounces, c.glossy_bounces = 5, 2, 2
    c.transmission_bounces, c.transparent_max_bounces = 3, 6
    c.caustics_reflective = c.caustics_refractive = False
    c.sample_clamp_indirect = 2.0
    c.blur_glossy = 1.0
    licht = bpy.data.lights.new("Sonne", "SUN")
    licht.energy, licht.angle, licht.color = 3.0, math.radians(4), (1.0, 0.93, 0.82)
    sonne = bpy.data.objects.new("Sonne", licht)
    sonne.rotation_euler = SONNE.to_track_quat("Z", "Y").to_euler()
    szene.collection.objects.link(sonne)
    _himmel(szene)
    kamera = bpy.data.objects.new("Kamera", bpy.data.cameras.new("Kamera"))
    kamera.data.type = "ORTHO"
    kamera.data.clip_end = 4000
    kamera.rotation_euler = (math.radians(45), 0, 0)
    szene.collection.objects.link(kamera)
    szene.camera = kamera
    return szene


def _himmel(szene):
    welt_ = bpy.data.worlds.new("Himmel")
    szene.world = welt_
    welt_.use_nodes = True
    k, v = welt_.node_tree.nodes, welt_.node_tree.links
    grund = k["Background"]
    grund.inputs["Strength"].default_value = 0.62
    ort = k.new("ShaderNodeTexCoord")
    teil = k.new("ShaderNodeSeparateXYZ")
    rampe = k.new("ShaderNodeValToRGB")
    rampe.color_ramp.elements[0].position = 0.0
    rampe.color_ramp.elements[0].color = (0.95, 0.86, 0.74, 1)
    rampe.color_ramp.elements[1].position = 0.55
    rampe.color_ramp.elements[1].color = (0.55, 0.74, 1.0, 1)
    v.new(ort.outputs["Generated"], teil.inputs[0])
    v.new(teil.outputs["Z"], rampe.inputs[0])
    v.new(rampe.outputs[0], grund.inputs["Color"])


def schattengrund(z=0.0):
    """Unsichtbarer Boden, der nur den Schatten auffängt."""
    grund = _objekt("Schattengrund", _netz_aus([(-4000, -4000, 0), (4000, -4000, 0),
                    (4000, 4000, 0), (-4000, 4000, 0)], [(0, 1, 2, 3)]), "#808080", Matrix.Translation((0, 0, z)))
    grund.is_shadow_catcher = True
    return grund


def rendere(datei, links, oben, breite, höhe, fein=FEIN, proben=96, durchsichtig=True,
            rand=4.0, güte=90, mitte=None, größe=None):
    """Zeichnet das Rechteck des Brettes (Entwurfspunkte) nach `datei` (.png oder .jpg).

    `rand`: so viele Punkte vor dem Bildrand läuft ein freier Schatten weich aus. `mitte`: Raumpunkt
    der Bildmitte, wenn die Kamera anders gedreht ist als auf dem Brett. `größe`: Maß in Bildpunkten,
    auf das ein gröber gezeichnetes JPEG gebracht wird."""
    szene = bpy.context.scene
    r = szene.render
    r.resolution_x, r.resolution_y = round(breite * fein), round(höhe * fein)
    r.film_transparent = durchsichtig
    szene.cycles.samples = proben
    kamera = szene.camera
    kamera.data.ortho_scale = max(breite, höhe)
    blick = kamera.rotation_euler.to_matrix() @ Vector((0, 0, -1))
    kamera.location = (mitte or welt(links + breite / 2, oben + höhe / 2)) - blick * 1500
    os.makedirs(os.path.dirname(os.path.abspath(datei)), exist_ok=True)
    roh = datei if datei.endswith(".png") else datei + ".roh.png"
    r.filepath = roh
    r.image_settings.file_format = "PNG"
    r.image_settings.color_mode = "RGBA" if durchsichtig else "RGB"
    r.image_settings.compression = 60
    bpy.ops.render.render(write_still=True)
    if durchsichtig and rand:
        _schatten_auslaufen(roh, rand * fein)
    if roh != datei:
        maß = ["-filter", "Lanczos", "-resize", "%dx%d!" % größe] if größe else []
        subprocess.run(["convert", roh, *maß, "-strip", "-quality", str(güte), datei], check=True)
        os.remove(roh)


def rendere_twips(datei, rechteck, **wie):
    """Wie `rendere`, das Rechteck (links, oben, breite, höhe) in Twips des Brettes."""
    rendere(datei, *(w / TWIPS for w in rechteck), **wie)


def _schatten_auslaufen(datei, weit):
    bild = bpy.data.images.load(datei)
    b, h = bild.size
    p = np.empty(b * h * 4, np.float32)
    bild.pixels.foreach_get(p)
    p = p.reshape(h, b, 4)
    x = np.minimum(np.arange(b) + 0.5, b - np.arange(b) - 0.5)
    y = np.minimum(np.arange(h) + 0.5, h - np.arange(h) - 0.5)
    abstand = np.clip(np.minimum(x[None, :], y[:, None]) / weit, 0, 1)
    schatten = (p[..., :3].max(axis=2) < 0.04) & (p[..., 3] < 0.8)
    p[..., 3] *= np.where(schatten, abstand * abstand * (3 - 2 * abstand), 1)
    bild.pixels.foreach_set(p.ravel())
    bild.filepath_raw, bild.file_format = datei, "PNG"
    bild.save()
    bpy.data.images.remove(bild)


# ---------------------------------------------------------------- Orte

_ORT = [Matrix.Identity(4)]


def welt(x, y, z=0.0):
    """Entwurfspunkt des Brettes auf dem Boden -> Ort im Modell."""
    return Vector((x, -y * TIEFE, z))


@contextmanager
def bei(x=0.0, y=0.0, z=0.0, drehung=0.0, mass=1.0):
    """Was darin gebaut wird, steht um (x, y, z) verschoben, um `drehung` Grad gedreht."""
    _ORT.append(_ORT[-1] @ Matrix.Translation((x, y, z)) @ Matrix.Rotation(math.radians(drehung), 4, "Z")
                @ Matrix.Scale(mass, 4))
    try:
        yield
    finally:
        _ORT.pop()


def am_brett(x, y, z=0.0, drehung=0.0, mass=1.0):
    """Wie `bei`, der Ort als Entwurfspunkt des Brettes."""
    return bei(*welt(x, y, z), drehung=drehung, mass=mass)


@contextmanager
def rahmen(matrix):
    """Wie `bei`, für eine beliebige Lage."""
    _ORT.append(_ORT[-1] @ matrix)
    try:
        yield
    finally:
        _ORT.pop()


def lage(x=0.0, y=0.0, z=0.0, drehung=0.0, mass=1.0):
    """Matrix eines Ortes im geltenden Rahmen."""
    m = mass if isinstance(mass, (tuple, list)) else (mass,) * 3
    return (Matrix.Translation((x, y, z)) @ Matrix.Rotation(math.radians(drehung), 4, "Z")
            @ Matrix.Diagonal((*m, 1)))


# ---------------------------------------------------------------- Netze

_NETZE = {}


def _netz_aus(punkte, flächen, name="Netz"):
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


def _objekt(name, me, stoffe, matrix, rund=0.0, glatt=False):
    """Hängt ein Netz in die Szene; rund: Halbmesser der Kanten."""
    if not me.uv_layers:
        _lagekarte(me)
    if not me.materials:
        for s in (stoffe if isinstance(stoffe, (list, tuple)) else [stoffe]):
            me.materials.append(als_stoff(s))
    o = bpy.data.objects.new(name, me)
    o.matrix_world = _ORT[-1] @ matrix
    bpy.context.scene.collection.objects.link(o)
    if glatt or rund:
        me.polygons.foreach_set("use_smooth", [True] * len(me.polygons))
        me.use_auto_smooth = True
        me.auto_smooth_angle = math.radians(50)
    if rund:
        kante = o.modifiers.new("Kante", "BEVEL")
        kante.width, kante.segments, kante.limit_method = rund, 3, "ANGLE"
        kante.angle_limit, kante.harden_normals = math.radians(35), True
    return o


def aus_bmesh(bm, stoffe, matrix=Matrix.Identity(4), rund=0.0, glatt=False, name="Teil"):
    me = bpy.data.meshes.new(name)
    bmesh.ops.recalc_face_normals(bm, faces=bm.faces)
    bm.to_mesh(me)
    bm.free()
    return _objekt(name, me, stoffe, matrix, rund, glatt)


def quader(x, y, z, b, t, h, stoff_, rund=0.5, drehung=0.0):
    """Kasten: Mitte (x, y), Unterkante z, Breite b, Tiefe t, Höhe h."""
    p = [(sx * b / 2, sy * t / 2, sz * h) for sz in (0, 1) for sy in (-1, 1) for sx in (-1, 1)]
    f = [(0, 2, 3, 1), (4, 5, 7, 6), (0, 1, 5, 4), (1, 3, 7, 5), (3, 2, 6, 7), (2, 0, 4, 6)]
    return _objekt("Quader", _netz_aus(p, f), stoff_, lage(x, y, z, drehung), min(rund, 0.45 * min(b, t, h)))


def prisma(punkte, z, h, stoff_, rund=0.4):
    """Umriss [(x, y), ...] von z um h hochgezogen."""
    n = len(punkte)
    if sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(punkte, punkte[1:] + punkte[:1])) < 0:
        punkte = punkte[::-1]
    p = [(x, y, 0) for x, y in punkte] + [(x, y, h) for x, y in punkte]
    f = [tuple(range(n - 1, -1, -1)), tuple(range(n, 2 * n))]
    f += [(i, (i + 1) % n, n + (i + 1) % n, n + i) for i in range(n)]
    return _objekt("Prisma", _netz_aus(p, f), stoff_, lage(z=z), rund)


def keil(x, y, z, b, t, h, stoff_, rund=0.3, drehung=0.0):
    """Giebelkörper: First längs der Breite b."""
    p = [(-b / 2, -t / 2, 0), (b / 2, -t / 2, 0), (b / 2, t / 2, 0), (-b / 2, t / 2, 0), (-b / 2, 0, h), (b / 2, 0, h)]
    f = [(3, 2, 1, 0), (0, 1, 5, 4), (2, 3, 4, 5), (0, 4, 3), (1, 2, 5)]
    return _objekt("Keil", _netz_aus(p, f), stoff_, lage(x, y, z, drehung), rund)


def drehkörper(x, y, z, profil, stoff_, seiten=32, rund=0.0, glatt=True, mass=1.0):
    """Profil [(r, z), ...] von unten nach oben um die Achse gedreht."""
    p, f = [], []
    for r, h in profil:
        p += [(r * math.cos(2 * math.pi * i / seiten), r * math.sin(2 * math.pi * i / seiten), h) for i in range(seiten)]
    for k in range(len(profil) - 1):
        f += [(k * seiten + i, k * seiten + (i + 1) % seiten, (k + 1) * seiten + (i + 1) % seiten,
               (k + 1) * seiten + i) for i in range(seiten)]
    f += [tuple(range(seiten - 1, -1, -1)), tuple(range((len(profil) - 1) * seiten, len(profil) * seiten))]
    return _objekt("Drehkörper", _netz_aus(p, f), stoff_, lage(x, y, z, 0, mass), rund, glatt)


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
    return _objekt("Kugel", me, stoff_, lage(x, y, z, 0, tuple(r * s for s in streckung)), glatt=True)


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
    o = bpy.data.objects.new("Rohr", kurve)
    o.matrix_world = _ORT[-1].copy()
    bpy.context.scene.collection.objects.link(o)
    return o


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
        f += [(2 * n + i, 3 * n + i, 3 * n + j, 2 * n + j), (i, 2 * n + i, 2 * n + j, j), (n + i, n + j, 3 * n + j, 3 * n + i)]
    if not zu:
        f += [(0, n, 3 * n, 2 * n), (n - 1, 3 * n - 1, 4 * n - 1, 2 * n - 1)]
    bm = bmesh.new()
    bm.from_mesh(_netz_aus(p, f))
    return aus_bmesh(bm, stoff_, lage(z=z), rund, name="Band")


def schrift(text, x, y, z, höhe, stoff_, stehend=True, drehung=0.0, dick=0.15, datei="DejaVuSerif-Bold.ttf"):
    """Text eines Schildes, um x gemittet; stehend: auf einer Wand mit Blick nach vorn."""
    kurve = bpy.data.curves.new("Schrift", "FONT")
    kurve.font = bpy.data.fonts.load("/usr/share/fonts/truetype/dejavu/" + datei, check_existing=True)
    kurve.body, kurve.size, kurve.extrude, kurve.align_x, kurve.align_y = text, höhe, dick, "CENTER", "CENTER"
    kurve.materials.append(als_stoff(stoff_))
    o = bpy.data.objects.new("Schrift", kurve)
    kipp = Matrix.Rotation(math.radians(90 if stehend else 0), 4, "X")
    o.matrix_world = _ORT[-1] @ lage(x, y, z, drehung) @ kipp
    bpy.context.scene.collection.objects.link(o)
    return o


def gemeinsam(schlüssel, bauen, x, y, z=0.0, drehung=0.0, mass=1.0):
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
    return _objekt(str(schlüssel), _NETZE[schlüssel], [], lage(x, y, z, drehung, mass), glatt=True)
