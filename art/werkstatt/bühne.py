"""Die Bühne: Maß, Kamera, Licht, Himmel und das Rendern.

Maß: eine Einheit ist ein Entwurfspunkt (12 Twips) in der Breite. x zeigt nach rechts, y nach
hinten, z nach oben. Die Kamera blickt aus Süden um 45 Grad hinab und rechnet ohne Flucht; darum
misst ein Entwurfspunkt in der Tiefe Wurzel 2 Einheiten, und z = 1 hebt um 0,707 Punkte.
"""
import math
import os
import random
import sys
import tempfile

import befehl
from befehl import AUFTRAG, als_jpeg, brauche, ziel

try:
    import bpy
except ImportError:                    # noch nicht in Blender: derselbe Befehl noch einmal, darin
    brauche("blender", "python3-numpy", "imagemagick", "fonts-dejavu-core", "fonts-urw-base35")
    os.environ["LC_ALL"] = "C.UTF-8"
    os.dup2(os.open(os.devnull, os.O_WRONLY), 1)
    os.execvp("blender", ["blender", "-b", "--python-exit-code", "1", "--python", sys.argv[0], "--", *sys.argv[1:]])

import numpy as np
from mathutils import Matrix, Vector

import körper
import rein
from knoten import Baum
from körper import TIEFE, netz_aus, objekt, welt
from stoffe import leere_stoffe, rgb

TWIPS = 12
SONNE = Vector((-0.50, -0.33, 0.80))   # zur Sonne hin: links, etwas vor dem Brett, hoch


# ---------------------------------------------------------------- Szene, Kamera, Licht

def leer(saat=1, **cycles):
    """Leere Szene; Zwischenspeicher gehören zur Szene. cycles: Abweichungen vom Üblichen."""
    bpy.ops.wm.read_factory_settings(use_empty=True)
    leere_stoffe()
    körper.leere_netze()
    random.seed(saat)
    szene = bpy.context.scene
    szene.render.engine = "CYCLES"
    szene.view_settings.view_transform = "Standard"
    üblich = dict(use_denoising=False, use_adaptive_sampling=True, adaptive_threshold=0.015, max_bounces=5,
                  diffuse_bounces=2, glossy_bounces=2, transmission_bounces=3, transparent_max_bounces=6,
                  caustics_reflective=False, caustics_refractive=False, sample_clamp_indirect=2.0, blur_glossy=1.0)
    for name, wert in (üblich | cycles).items():
        setattr(szene.cycles, name, wert)
    return szene


def neu(saat=1):
    """Leere Szene mit Kamera, Sonne und Himmel des Brettes."""
    szene = leer(saat)
    licht = bpy.data.lights.new("Sonne", "SUN")
    licht.energy, licht.angle, licht.color = 3.0, math.radians(4), (1.0, 0.93, 0.82)
    stelle_auf("Sonne", licht)
    sonne_aus(SONNE)
    baum, grund = himmel("Himmel", 0.62)
    _, _, höhe = baum.teile(baum.neu("TexCoord", aus="Generated"))
    baum.setze(grund, {"Color": baum.rampe(höhe, [(0, (0.95, 0.86, 0.74)), (.55, (0.55, 0.74, 1.0))])})
    kamera(drehung=(math.radians(45), 0, 0)).data.clip_end = 4000
    return szene


def porträt(belichtung):
    """Leere Szene mit filmischem Blick, für Köpfe."""
    szene = leer(adaptive_threshold=0.008, max_bounces=4, sample_clamp_indirect=3, caustics_reflective=True)
    szene.view_settings.view_transform, szene.view_settings.look = "Filmic", "High Contrast"
    szene.view_settings.exposure = belichtung


def stelle_auf(name, inhalt, ort=(0, 0, 0), auf=None):
    """Licht oder Kamera am Ort, mit Blick auf den Punkt `auf`."""
    o = bpy.data.objects.new(name, inhalt)
    o.location = ort
    if auf is not None:
        o.rotation_euler = (Vector(auf) - Vector(ort)).to_track_quat("-Z", "Y").to_euler()
    bpy.context.scene.collection.objects.link(o)
    return o


def sonne_aus(richtung):
    """Dreht die Sonne, dass sie aus `richtung` scheint; zurück kommt ihr Licht."""
    sonne = bpy.data.objects["Sonne"]
    sonne.rotation_euler = Vector(richtung).to_track_quat("Z", "Y").to_euler()
    return sonne.data


def kamera(ort=(0, 0, 0), auf=None, drehung=None, brennweite=None, weite=None):
    """Die Kamera der Szene: ohne Flucht (weite: Einheiten im Bild) oder mit Brennweite in mm."""
    szene = bpy.context.scene
    if szene.camera:
        bpy.data.objects.remove(szene.camera)
    c = bpy.data.cameras.new("Kamera")
    if brennweite:
        c.lens, c.sensor_width = brennweite, 36
    else:
        c.type, c.ortho_scale = "ORTHO", weite or c.ortho_scale
    o = stelle_auf("Kamera", c, ort, auf)
    if drehung:
        o.rotation_euler = drehung
    szene.camera = o
    return o


def flächenlicht(ort, auf, größe, kraft, farbe=(1, 1, 1)):
    l = bpy.data.lights.new("Licht", "AREA")
    l.size, l.energy, l.color = größe, kraft, farbe
    return stelle_auf("Licht", l, ort, auf)


def leuchte(x, y, z, kraft, farbe=(1, .72, .42), r=.8):
    l = bpy.data.lights.new("Licht", "POINT")
    l.energy, l.color, l.shadow_soft_size = kraft, farbe, r
    return stelle_auf("Licht", l, (x, y, z))


def himmel(name, kraft, farbe=None):
    """Neue Welt; zurück kommen ihr Baum und ihr Grund."""
    bpy.context.scene.world = w = bpy.data.worlds.new(name)
    baum = Baum(w)
    grund = baum.knoten["Background"]
    baum.setze(grund, {"Strength": kraft} | ({"Color": (*farbe, 1)} if farbe else {}))
    return baum, grund


def umgebung(farbe, kraft, gesehen=None):
    """Gleichmäßiges Umgebungslicht; die Kamera sieht auf Wunsch eine andere Farbe."""
    baum, grund = himmel("Welt", kraft, rgb(farbe))
    if gesehen:
        kamerafarbe(baum, grund, baum.neu("Background", {0: (*rgb(gesehen), 1)}))


def kamerafarbe(baum, licht, bild):
    """Die Kamera sieht `bild`, die Dinge bescheint `licht`."""
    pfad = baum.neu("LightPath", aus="Is Camera Ray")
    misch = baum.neu("MixShader", {0: pfad, 2: bild})
    baum.links.new(licht.outputs[0], misch.ausgang.node.inputs[1])
    baum.setze(baum.knoten["World Output"], {0: misch})


def lichtgrund(z=0.0):
    """Boden, den niemand sieht; er wirft Licht zurück, wie es das Brett täte."""
    ecken = [(-4000, -4000, 0), (4000, -4000, 0), (4000, 4000, 0), (-4000, 4000, 0)]
    grund = objekt("Grund", netz_aus(ecken, [(0, 1, 2, 3)]), "#808080", Matrix.Translation((0, 0, z)))
    grund.visible_camera = False
    return grund


def schattengrund(z=0.0):
    """Unsichtbarer Boden, der nur den Schatten auffängt."""
    grund = lichtgrund(z)
    grund.visible_camera = grund.is_shadow_catcher = True
    return grund


# ---------------------------------------------------------------- Rendern

def belichte(datei, breite, höhe, proben, durchsichtig=True):
    """Rendert, was die Kamera sieht, in Bildpunkten nach `datei` (.png)."""
    szene = bpy.context.scene
    r, c = szene.render, szene.cycles
    r.resolution_x, r.resolution_y, r.film_transparent = round(breite), round(höhe), durchsichtig
    c.samples = befehl.proben(proben)
    r.filepath = datei
    r.image_settings.file_format, r.image_settings.compression = "PNG", 60
    r.image_settings.color_mode = "RGBA" if durchsichtig else "RGB"
    bpy.ops.render.render(write_still=True)


def _schichten(breite, höhe, proben):
    """Bild, Farben und Neigungen dessen, was die Kamera sieht, linear, in Bildpunkten."""
    szene, r = bpy.context.scene, bpy.context.scene.render
    bpy.context.view_layer.cycles.denoising_store_passes = True
    szene.use_nodes = True
    knoten = szene.node_tree.nodes
    knoten.clear()
    schichten, dateien = knoten.new("CompositorNodeRLayers"), knoten.new("CompositorNodeOutputFile")
    dateien.format.file_format, dateien.format.color_depth = "OPEN_EXR", "32"
    dateien.file_slots.clear()
    namen = "Image", "Denoising Albedo", "Denoising Normal"
    for name in namen:
        dateien.file_slots.new(name)
        szene.node_tree.links.new(schichten.outputs[name], dateien.inputs[name])
    r.resolution_x, r.resolution_y, r.film_transparent = round(breite), round(höhe), False
    szene.cycles.samples = befehl.proben(proben)
    with tempfile.TemporaryDirectory() as ordner:
        dateien.base_path = ordner + "/"
        bpy.ops.render.render()
        return [_lies_punkte(os.path.join(ordner, name + "0001.exr"))[..., :3] for name in namen]


def belichte_rein(datei, breite, höhe, proben):
    """Wie `belichte`, ohne Durchsicht, mit wenigen Proben und ohne Korn; nicht für den filmischen Blick."""
    bild = rein.fürs_auge(rein.reinige(*_schichten(breite, höhe, proben)))
    _schreibe_punkte(datei, np.dstack([bild, np.ones(bild.shape[:2])]))


def belichte_jpeg(datei, breite, höhe, proben, *mehr):
    """Wie `belichte`, ohne Durchsicht, als JPEG ans Ziel; mehr: Worte für convert."""
    roh = ziel(datei) + ".roh.png"
    if bpy.context.scene.view_settings.view_transform == "Standard":
        belichte_rein(roh, breite, höhe, proben)
    else:
        belichte(roh, breite, höhe, proben, durchsichtig=False)
    als_jpeg(roh, datei, *mehr)
    os.remove(roh)


def rendere(datei, links, oben, breite, höhe, proben=96, durchsichtig=True, rand=4.0, mitte=None, fein=None):
    """Zeichnet das Rechteck des Brettes (Entwurfspunkte) nach `datei` (.png oder .jpg).

    `rand`: so viele Punkte vor dem Bildrand läuft ein freier Schatten weich aus. `mitte`: Raumpunkt
    der Bildmitte, wenn die Kamera anders gedreht ist als auf dem Brett. `fein`: statt der verlangten Feinheit;
    ein gröber gezeichnetes JPEG wird auf sie gebracht."""
    k, soll = bpy.context.scene.camera, AUFTRAG.fein
    fein = fein or soll
    k.data.ortho_scale = max(breite, höhe)
    blick = k.rotation_euler.to_matrix() @ Vector((0, 0, -1))
    k.location = (mitte or welt(links + breite / 2, oben + höhe / 2)) - blick * 1500
    if datei.endswith(".jpg"):
        größer = ["-filter", "Lanczos", "-resize", "%dx%d!" % (breite * soll, höhe * soll)] if fein < soll else []
        return belichte_jpeg(datei, breite * fein, höhe * fein, proben, *größer)
    if not durchsichtig:
        return belichte_rein(ziel(datei), breite * fein, höhe * fein, proben)
    belichte(ziel(datei), breite * fein, höhe * fein, proben)
    if rand:
        _schatten_auslaufen(ziel(datei), rand * fein)


def rendere_twips(datei, rechteck, **wie):
    """Wie `rendere`, das Rechteck (links, oben, breite, höhe) in Twips des Brettes."""
    rendere(datei, *(w / TWIPS for w in rechteck), **wie)


def _lies_punkte(datei):
    bild = bpy.data.images.load(datei)
    b, h = bild.size
    p = np.empty(b * h * 4, np.float32)
    bild.pixels.foreach_get(p)
    bpy.data.images.remove(bild)
    return p.reshape(h, b, 4)


def _schreibe_punkte(datei, p):
    h, b = p.shape[:2]
    bild = bpy.data.images.new("Punkte", b, h, alpha=True)
    bild.pixels.foreach_set(p.ravel().astype(np.float32))
    bild.filepath_raw, bild.file_format = datei, "PNG"
    bild.save()
    bpy.data.images.remove(bild)


def _schatten_auslaufen(datei, weit):
    p = _lies_punkte(datei)
    h, b = p.shape[:2]
    x = np.minimum(np.arange(b) + 0.5, b - np.arange(b) - 0.5)
    y = np.minimum(np.arange(h) + 0.5, h - np.arange(h) - 0.5)
    abstand = np.clip(np.minimum(x[None, :], y[:, None]) / weit, 0, 1)
    schatten = (p[..., :3].max(axis=2) < 0.04) & (p[..., 3] < 0.8)
    p[..., 3] *= np.where(schatten, abstand * abstand * (3 - 2 * abstand), 1)
    _schreibe_punkte(datei, p)
