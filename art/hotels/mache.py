"""Die 36 Baustufen der acht Hotels: bilder/formen/form1/NAME.png.

blender -b --python art/hotels/mache.py -- [--nur HOTEL oder STUFE ...] [--vorschau] [--fein N] [--proben N] [--ziel ORDNER]
"""
import importlib
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from anlage import *       # noqa: E402,F403

HOTELS = ("boomerang", "president", "waikiki", "tajmahal", "safari", "fujijama", "etoile", "royal")


def baue(stufen, orte):
    """Stellt jede Stufe an ihren Platz; gibt je Stufe ihre Teile zurück."""
    teile = {}
    for name, bauen in stufen.items():
        links, oben, breite, höhe = orte[name]
        vorher = set(bpy.data.objects)
        random.seed(name)
        with am_brett((links + breite / 2) / TWIPS, (oben + höhe) / TWIPS):
            bauen()
        teile[name] = set(bpy.data.objects) - vorher
    return teile


def stufenbilder(args):
    orte = rechtecke()
    for hotel in HOTELS:
        try:
            modul = importlib.import_module(hotel)
        except ModuleNotFoundError:
            continue
        stufen = {n: s for n, s in modul.STUFEN.items() if not args.nur or hotel in args.nur or n in args.nur}
        if not stufen:
            continue
        neu()
        schattengrund()
        teile = baue(stufen, orte)
        for name in stufen:
            print("%-7s ragt hinaus: links %5.1f oben %5.1f rechts %5.1f unten %5.1f" % (name, *überstand(teile[name], orte[name])))
        for name in stufen:
            for anderer, dinge in teile.items():
                for o in dinge:
                    o.hide_render = anderer != name
            rendere_twips(os.path.join(args.ziel, "formen", "form1", name + ".png"), orte[name], fein=args.fein, proben=args.proben, rand=3)


if __name__ == "__main__":
    stufenbilder(argumente())
