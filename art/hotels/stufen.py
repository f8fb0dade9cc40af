"""Die 36 Baustufen der acht Hotels: bilder/formen/form1/NAME.png."""
import importlib
import sys
from pathlib import Path

from hotels import MODULE
from hotels.anlage import *
from tafeln import STUFEN


def baue(name, ort):
    """Stellt die Stufe mit ihrem Fußpunkt auf das Brett; ort: ihr Rechteck in Twips."""
    links, oben, breite, höhe = ort
    bauen = importlib.import_module("hotels." + MODULE[STUFEN[name]["hotel"]]).STUFEN[name]
    random.seed(name)
    with am_brett((links + breite / 2) / TWIPS, (oben + höhe) / TWIPS):
        bauen()


def mache(datei):
    name = Path(datei).stem
    ort = STUFEN[name]["ort"]
    neu()
    schattengrund()
    vorher = set(bpy.data.objects)
    baue(name, ort)
    weit = überstand(set(bpy.data.objects) - vorher, ort)
    print("%-7s ragt hinaus: links %5.1f oben %5.1f rechts %5.1f unten %5.1f" % (name, *weit), file=sys.stderr)
    rendere_twips(datei, ort, rand=3)
