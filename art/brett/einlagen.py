"""Was in den Tisch eingelassen ist und auf ihm liegt (formen/form1/form1.jpg): Papier, Messing, Täfelchen.

Das Holz darunter kommt aus Blender (tisch.py).
"""
from befehl import zwischen
from zeichenteile import *

FEIN = 4
# Entwurfspunkte: links, oben, Breite, Höhe
ZETTEL = (7, 6, 256, 51)          # unter der Statuszeile
SCHILD = (652, 6, 138, 51)        # unter dem Geld
EINGANG = (752.5, 282, 43, 104)   # oben die Zahl der Eingänge, unten der gelbe Eingang und sein Pfeil
KASSE = (752.5, 435, 43, 50)      # worin der Knopf der Wechselkasse sitzt


def punkte(ort):
    return [w * FEIN for w in ort]


def brettchen(x, y, b, h):
    """Dunkles Holz, aufgeschraubt."""
    r = 16
    return (f'<rect x="{x + 4}" y="{y + 12}" width="{b}" height="{h}" rx="{r}" fill="#1c0c02" opacity=".5" '
            f'filter="url(#weich)"/><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" fill="url(#nuss)"/>'
            f'<g opacity=".6"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" filter="url(#maserung)"/></g>'
            f'<rect x="{x + 3}" y="{y + 3}" width="{b - 6}" height="{h - 6}" rx="{r - 3}" fill="none" '
            f'stroke="#e9b97c" stroke-width="3" opacity=".45"/>')


def filz(x, y, b, h, r=8):
    return (f'<rect x="{x - 3}" y="{y - 3}" width="{b + 6}" height="{h + 6}" rx="{r + 3}" fill="#1c0c02" opacity=".7"/>'
            f'<rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" fill="#2f6a52"/>'
            f'<g opacity=".35"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" filter="url(#korn)"/></g>'
            f'<path d="M{x} {y + h}V{y + r}Q{x} {y} {x + r} {y}H{x + b}" fill="none" stroke="#04140c" '
            f'stroke-width="9" opacity=".35"/>')


def messing(x, y, b, h):
    r = 22
    return (f'<g filter="url(#schatten)"><g filter="url(#prägung)"><rect x="{x}" y="{y}" width="{b}" height="{h}" '
            f'rx="{r}" fill="url(#blech)"/></g></g>'
            f'<rect x="{x + 10}" y="{y + 10}" width="{b - 20}" height="{h - 20}" rx="{r - 8}" fill="none" '
            f'stroke="#8c5e1c" stroke-width="2.5" opacity=".6"/>'
            + "".join(nagel(px, py, 6) for px in (x + 22, x + b - 22) for py in (y + 22, y + h - 22)))


def eingang():
    x, y, b, h = punkte(EINGANG)
    return (brettchen(x, y, b, h) + papier(x + 10, y + 10, b - 20, 130, 10, zierlinie=False)
            + filz(x + 10, y + 150, b - 20, h - 160))


def kasse():
    x, y, b, h = punkte(KASSE)
    return brettchen(x, y, b, h) + filz(x + 9, y + 9, b - 18, h - 18, 10)


def mache(datei):
    holz_ = zwischen("brett/tisch.py", datei, außer=("einlagen.py",))
    bild = (papier(*punkte(ZETTEL), 14) + messing(*punkte(SCHILD)) + eingang() + kasse())
    defs = grunddefs() + verlauf("blech", [(0, "#fff3c8"), (.45, "#f2cf7c"), (1, "#d6a64a")], 0, 0, .5, 1)
    with tempfile.TemporaryDirectory() as d:
        quelle, oben = Path(d) / "q.svg", Path(d) / "q.png"
        quelle.write_text(svg(800 * FEIN, 600 * FEIN, bild, defs), encoding="utf-8")
        rufe("rsvg-convert", "--unlimited", "-o", oben, quelle)
        als_jpeg(holz_, datei, oben, "-composite")
