"""Die Teile des Vorspanns: Buchstaben, Wagen in der Kehre, Wolken, je mit eigenem Schatten.

blender -b --python art/film/teile.py -- --ziel /tmp/film [--vorschau] [--nur buchstaben wagen wolken]

Alle Teile stehen in Bildern gleichen Maßes; der Schatten liegt im Bild gleichen Namens mit "_s".
"""
import random

from kasten import *
from auto import wagen     # noqa: E402

FONT = "/usr/share/fonts/opentype/urw-base35/URWGothic-Demi.otf"
NAME = (("V", "rot"), ("E", "gelb"), ("L", "grün"), ("M", "blau"), ("O", "orange"))
NEIGUNG = 22                           # Grad
KEHRE = range(90, 41, -6)              # Grad; 90 zeigt nach rechts, 0 zum Betrachter


def buchstabe(zeichen, farbe):
    """Ein Spielzeugbuchstabe mit hellem Rücken, auf dem Boden stehend, leicht zurückgelehnt."""
    fuß = Matrix.Translation(welt(45, 78)) @ Matrix.Rotation(math.radians(90 - NEIGUNG), 4, "X")
    for versatz, vorn, dick, s in ((2.6, 4.5, 6.5, stoff("weiß", rau=.4, fleck=0)),
                                   (0.0, 0.0, 6.0, stoff(farbe, rau=.3, glanz=.5, fleck=0))):
        kurve = bpy.data.curves.new(zeichen, "FONT")
        kurve.font = bpy.data.fonts.load(FONT, check_existing=True)
        kurve.body, kurve.size, kurve.align_x = zeichen, 92, "CENTER"
        kurve.extrude, kurve.offset = dick, versatz
        kurve.bevel_depth, kurve.bevel_resolution, kurve.resolution_u = 1.8, 4, 24
        kurve.materials.append(s)
        o = bpy.data.objects.new(zeichen, kurve)
        o.matrix_world = fuß @ Matrix.Translation((0, 4.4, -vorn - dick))
        bpy.context.scene.collection.objects.link(o)


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


def rendere_mit_schatten(datei, bauen, breite, höhe, args, schatten=True):
    """Das Ding allein, dann nur sein Schatten auf dem Boden."""
    neu()
    bauen()
    rendere(datei + ".png", 0, 0, breite, höhe, args.fein, args.proben, rand=0)
    if not schatten:
        return
    for o in bpy.context.scene.objects:
        if o.type in ("MESH", "CURVE", "FONT"):
            o.visible_camera = False
    schattengrund()
    rendere(datei + "_s.png", 0, 0, breite, höhe, args.fein, args.proben, rand=3)


def soll(args, gruppe):
    return not args.nur or gruppe in args.nur


if __name__ == "__main__":
    args = argumente()

    def ziel(name):
        return os.path.join(args.ziel, name)
    if soll(args, "buchstaben"):
        for zeichen, farbe in NAME:
            rendere_mit_schatten(ziel(zeichen), lambda: buchstabe(zeichen, farbe), 130, 90, args)
    if soll(args, "wagen"):
        for grad in KEHRE:
            def bauen():
                with am_brett(50, 44, drehung=grad, mass=2.7):
                    wagen("#d0302a")
            rendere_mit_schatten(ziel("wagen%02d" % grad), bauen, 100, 76, args)
    if soll(args, "wolken"):
        for saat in (1, 2, 3):
            rendere_mit_schatten(ziel("wolke%d" % saat), lambda: wolke(saat), 240, 132, args, schatten=False)
