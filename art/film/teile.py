"""Die Teile des Vorspanns: Buchstaben, Wagen in der Kehre, Wolken, je mit eigenem Schatten.

Der Schatten liegt im Bild gleichen Namens mit "_s". Maße: ein Entwurfspunkt hat FEINER oder WEICH mal so viele
Bildpunkte wie sonst.
"""
import re

from kasten import *
from wagen.wagen import wagen

NAME = {"V": "rot", "E": "gelb", "L": "grün", "M": "blau", "O": "orange"}
NEIGUNG = 22                           # Grad
FEINER, WEICH = 1.5, .5                # Buchstaben und Wagen stehen groß im Film; Wolken und Schatten sind weich


def buchstabe(zeichen, farbe):
    """Ein Spielzeugbuchstabe mit hellem Rücken, auf dem Boden stehend, leicht zurückgelehnt."""
    fuß = Matrix.Translation(welt(45, 78)) @ dreh(90 - NEIGUNG, "X")
    for versatz, vorn, dick, s in ((2.6, 4.5, 6.5, stoff("weiß", rau=.4, fleck=0)),
                                   (0.0, 0.0, 6.0, stoff(farbe, rau=.3, glanz=.5, fleck=0))):
        kurve = bpy.data.curves.new(zeichen, "FONT")
        kurve.font = bpy.data.fonts.load(GOTISCH, check_existing=True)
        kurve.body, kurve.size, kurve.align_x = zeichen, 92, "CENTER"
        kurve.extrude, kurve.offset = dick, versatz
        kurve.bevel_depth, kurve.bevel_resolution, kurve.resolution_u = 1.8, 4, 24
        kurve.materials.append(s)
        stelle(bpy.data.objects.new(zeichen, kurve), fuß @ schub(0, 4.4, -vorn - dick))


def wolke(saat):
    """Ein Wattebausch um die Bildmitte."""
    zufall = random.Random(saat)
    watte = stoff("#ffffff", rau=.9, glanz=.05, fleck=0, leuchten=.04)
    mitte = welt(120, 66, 20)
    for lage_, zahl, weit, groß in ((0, 16, 70, 21), (1, 9, 42, 22), (2, 4, 20, 18)):
        for i in range(zahl):
            x = (i + zufall.random()) / zahl * 2 - 1
            r = groß * (1 - .45 * abs(x)) * zufall.uniform(.8, 1.15)
            kugel(mitte.x + x * weit, mitte.y + zufall.uniform(-16, 16), mitte.z + lage_ * 15 + r * .4, r, watte,
                  (1.15, 1, .85), fein=4)


def mache(datei):
    """V.png: ein Buchstabe, wagen42.png: der Wagen in der Kehre, wolke1.png; mit _s vor der Endung der Schatten."""
    name, nr, schatten = re.fullmatch(r"([A-Za-z]+)(\d*)(_s)?\.png", datei).groups()
    neu()
    if name in NAME:
        buchstabe(name, NAME[name])
        größe = 130, 90
    elif name == "wagen":
        with am_brett(50, 44, drehung=int(nr), maß=2.7):
            wagen("#d0302a")
        größe = 100, 76
    else:
        wolke(int(nr))
        größe = 240, 132
    if schatten:
        for o in bpy.context.scene.objects:
            if o.type in ("MESH", "CURVE", "FONT"):
                o.visible_camera = False
        schattengrund()
    feiner = WEICH if schatten or name == "wolke" else FEINER
    rendere(datei, 0, 0, *größe, proben=48, rand=3 if schatten else 0, fein=feiner * AUFTRAG.fein)
