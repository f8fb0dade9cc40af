"""Die 36 Baustufen der acht Hotels: bilder/formen/form1/NAME.png."""
import importlib
import sys
from pathlib import Path

from hotels import MODULE
from hotels.anlage import *
from tafeln import STUFEN


def baue(name, ort):
    """Stellt die Stufe mit ihrem Fußpunkt auf das Brett; ort: ihr Rechteck in Twips. Zurück kommen ihre Teile."""
    links, oben, breite, höhe = ort
    bauen = importlib.import_module("hotels." + MODULE[STUFEN[name]["hotel"]]).STUFEN[name]
    random.seed(name)
    vorher = set(bpy.data.objects)
    with am_brett((links + breite / 2) / TWIPS, (oben + höhe) / TWIPS):
        bauen()
    return set(bpy.data.objects) - vorher


def mache(datei):
    name = Path(datei).stem
    ort = STUFEN[name]["ort"]
    neu()
    lichtgrund()
    weit = überstand(baue(name, ort), ort)
    print("%-7s ragt hinaus: links %5.1f oben %5.1f rechts %5.1f unten %5.1f" % (name, *weit), file=sys.stderr)
    bpy.context.scene.cycles.adaptive_threshold = .008
    rendere_twips(datei, ort, proben=192, rand=0)
