"""Die letzte Ansichtskarte: bilder/formen/verloren/verloren.jpg."""
from befehl import zwischen
from zeichenteile import *


KOPF = (500, 34, 998, 94)       # das Messing unter der Zeile: links, oben, Breite, Höhe
MARKE = (290, 81, 50)           # Mitte und Halbmesser der Münze links davon, wo Dorvin spricht


def marke():
    """Die Inselmünze zwischen zwei Zierlinien."""
    x, y, r = MARKE
    linien = "".join(f'<path d="M{x + s * (r + 26)} {y}H{x + s * 178}" stroke="#a5763a" stroke-width="4" '
                     f'stroke-linecap="round" opacity=".8"/><path d="M{x + s * (r + 17)} {y}l{s * 9} -9l{s * 9} 9'
                     f'l{-s * 9} 9z" fill="#a5763a" opacity=".8"/>' for s in (-1, 1))
    return (linien + f'<g filter="url(#schatten)"><circle cx="{x}" cy="{y}" r="{r}" fill="url(#gold)"/></g>'
            f'<circle cx="{x}" cy="{y}" r="{r - 7}" fill="url(#blech)" stroke="#8c5e1c" stroke-width="2.5"/>'
            f'<clipPath id="münze"><circle cx="{x}" cy="{y}" r="{r - 9}"/></clipPath><g clip-path="url(#münze)">'
            f'<g transform="translate({x} {y + 2}) scale(.43)">{palme("#7a4f14", "#b98a35")}</g></g>')


def kopf():
    x, y, b, h = KOPF
    return (f'<g filter="url(#schatten)"><g filter="url(#prägung)"><rect x="{x}" y="{y}" width="{b}" height="{h}" '
            f'rx="18" fill="url(#blech)"/></g></g>'
            f'<rect x="{x + 8}" y="{y + 8}" width="{b - 16}" height="{h - 16}" rx="11" fill="none" stroke="#8c5e1c" '
            f'stroke-width="2.5" opacity=".6"/>')


def mache(datei):
    """Das Bild als Foto auf dem Papier des Dialogs: oben die Zeile, unten die Knöpfe."""
    roh = zwischen("ende/pleiteszene.py", "pleite.png", außer=("pleite.py",))
    b, h = 1584, 1596
    foto = (f'<g filter="url(#schattengroß)"><rect x="78" y="144" width="{b - 156}" height="1150" rx="6" '
            f'fill="#fffdf4"/></g>'
            f'{bild(roh, 1412, 1134, 86, 152, "xMidYMid slice")}'
            '<rect x="86" y="152" width="1412" height="1134" fill="none" stroke="#3a1e08" stroke-width="2" '
            'opacity=".6"/>' + marke() + kopf())
    defs = (grunddefs() + verlauf("blech", [(0, "#fff3c8"), (.45, "#f2cf7c"), (1, "#d6a64a")], 0, 0, .5, 1)
            + verlauf("bild", [(0, "#c79a45"), (1, "#8c5e1c")]))
    ausgeben(datei, svg(b, h, tafel(b, h, 22, innen=foto, oben=7, zierlinie=False), defs))
