"""Die letzte Ansichtskarte: bilder/formen/verloren/verloren.jpg."""
from befehl import zwischen
from zeichenteile import *


def mache(datei):
    """Das Bild als Foto auf dem Papier des Dialogs: oben die Zeile, unten die Knöpfe."""
    roh = zwischen("ende/pleiteszene.py", "pleite.png", außer=("pleite.py",))
    b, h = 1584, 1596
    foto = (f'<g filter="url(#schattengroß)"><rect x="78" y="144" width="{b - 156}" height="1150" rx="6" '
            f'fill="#fffdf4"/></g>'
            f'{bild(roh, 1412, 1134, 86, 152, "xMidYMid slice")}'
            '<rect x="86" y="152" width="1412" height="1134" fill="none" stroke="#3a1e08" stroke-width="2" '
            'opacity=".6"/>')
    ausgeben(datei, svg(b, h, tafel(b, h, 22, innen=foto, oben=7, zierlinie=False), grunddefs()))
