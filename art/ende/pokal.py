"""Der Pokal im Rampenlicht, rechts der Rahmen für das Bild des Siegers, unten die Tafel für seinen Namen:
bilder/formen/gewinn/picture1.jpg."""
from befehl import zwischen
from zeichenteile import *

NACHT = "#020208", "#060612"      # der Himmel der Form hinter der oberen und der unteren Kante


def mache(datei):
    """Hängt den goldenen Rahmen an Kordeln in das Bild und stellt die Namenstafel davor; am Rand wird es Nacht."""
    roh = zwischen("ende/pokalszene.py", "pokal.png", außer=("pokal.py",))
    b, h = 2004, 1877
    x, y, w, k = 1600, 1040, 376, 400      # das Bild des Siegers
    kordel = "".join(f'<path d="M{x + v * w} {y - 22}V0" stroke="#5a3a10" stroke-width="11"/>'
                     f'<path d="M{x + v * w} {y - 22}V0" stroke="#e9b744" stroke-width="8" stroke-dasharray="9 5"/>'
                     for v in (.2, .8))
    rahmen = (f'<g filter="url(#schattengroß)">{kordel}<rect x="{x - 24}" y="{y - 24}" width="{w + 48}" '
              f'height="{k + 48}" rx="14" fill="#8c5e1c"/></g><g filter="url(#prägung)">'
               f'<path d="M{x - 24} {y - 24}H{x + w + 24}V{y + k + 24}H{x - 24}ZM{x} {y}V{y + k}H{x + w}V{y}Z" '
              f'fill="url(#gold)" fill-rule="evenodd"/></g><rect x="{x}" y="{y}" width="{w}" height="{k}" '
              f'fill="#1a1224"/>')
    tafel_ = (f'<g filter="url(#schattengroß)"><rect x="536" y="1592" width="892" height="168" rx="20" '
              f'fill="#5c3419"/></g><g transform="translate(536 1592)"><clipPath id="t">'
              f'<rect width="892" height="168" rx="20"/></clipPath>'
             f'<g clip-path="url(#t)">{holz(892, 168)}</g>{papier(18, 16, 856, 136, 12, zierlinie=False)}</g>'
              + nagel(546, 1676, 6) + nagel(1418, 1676, 6))
    ränder = (("vl", 0, 0, 200, h), ("vr", b - 200, 0, 200, h), ("vo", 0, 0, b, 160), ("vu", 0, h - 160, b, 160))
    blenden = ("vl", (0, 0, 1, 0)), ("vr", (1, 0, 0, 0)), ("vo", (0, 0, 0, 1)), ("vu", (0, 1, 0, 0))
    defs = grunddefs() + verlauf("nacht", [(0, NACHT[0]), (1, NACHT[1])]) + "".join(
        verlauf(n, [(0, "#fff"), (.35, "#fff", .72), (1, "#fff", 0)], *v) for n, v in blenden)
    oben = ("vo", 0, 0, b, 360),      # Ballons und Kordeln verlieren sich im Dunkel
    bild_ = bild(roh, b, h) + nacht("rand", b, h, ränder) + rahmen + tafel_ + nacht("oben", b, h, oben)
    ausgeben(datei, svg(b, h, bild_, defs), "black")


def nacht(name, b, h, ränder):
    """Der Nachthimmel der Form, so weit die Verläufe reichen."""
    weiß = "".join(f'<rect x="{x}" y="{y}" width="{w}" height="{t}" fill="url(#{n})"/>' for n, x, y, w, t in ränder)
    return (f'<mask id="{name}">{weiß}</mask>'
            f'<rect width="{b}" height="{h}" fill="url(#nacht)" mask="url(#{name})"/>')
