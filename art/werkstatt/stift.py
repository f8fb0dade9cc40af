"""Der Stift der Zeichnungen: Palette, Filter, Verläufe, Kurven, Ausgabe.

Eine Zeichnung ist ein SVG-Text in Bildpunkten der fertigen Größe (ein Drittel der Twips).
"""
import base64
import math                                        # noqa: F401
import random                                      # noqa: F401
import tempfile
from pathlib import Path
from xml.sax.saxutils import escape

from befehl import als_jpeg, brauche, rufe, ziel

brauche("librsvg2-bin", "imagemagick", "fonts-urw-base35", "fonts-dejavu-core")

# Palette der Insel: Papier, Tinte, Messing
PAPIER, PAPIER_TIEF, TINTE = "#f6ead0", "#e4cfa4", "#4a3320"
MESSING_HELL, MESSING_TIEF = "#ffe3a0", "#8c5e1c"
GOLD = "url(#gold)"

SCHRIFT = "URW Gothic"          # klar, rund: Zahlen und Schilder
SCHRIFT_EDEL = "URW Bookman"    # Überschriften, Noten

FILTER = Path(__file__).with_name("filter.svg").read_text(encoding="utf-8")    # führt jede Zeichnung mit


def svg(b, h, inhalt, defs=""):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            f'width="{b}" height="{h}" viewBox="0 0 {b} {h}"><defs>{FILTER}{defs}</defs>{inhalt}</svg>')


def ausgeben(datei, text, grund="#6b4423"):
    """Zeichnet ans Ziel; die Endung entscheidet: png mit Durchsicht oder jpg mit Güte 90 auf `grund`."""
    with tempfile.TemporaryDirectory() as d:
        quelle, roh = Path(d) / "q.svg", Path(d) / "q.png"
        quelle.write_text(text, encoding="utf-8")
        rufe("rsvg-convert", "--unlimited", "-o", roh, quelle)
        if datei.endswith(".jpg"):
            als_jpeg(roh, datei, "-background", grund, "-flatten")
        else:
            rufe("convert", roh, "-strip", "-define", "png:compression-level=9", ziel(datei))


def _stufen(farben):
    """Stufen eines Verlaufs: (Ort, Farbe) oder (Ort, Farbe, Deckkraft)."""
    return "".join(f'<stop offset="{ort}" stop-color="{farbe}" stop-opacity="{deck[0] if deck else 1}"/>'
                   for ort, farbe, *deck in farben)


def bild(datei, b, h, x=0, y=0, anpassen="none"):
    """Ein Bild aus einer Datei, auf das Rechteck gestreckt oder nach preserveAspectRatio angepasst."""
    return (f'<image x="{x}" y="{y}" width="{b}" height="{h}" preserveAspectRatio="{anpassen}" '
            f'xlink:href="data:image/png;base64,{base64.b64encode(Path(datei).read_bytes()).decode()}"/>')


def text(x, y, worte, größe, farbe=TINTE, anker="start", fett=True, mehr=""):
    gewicht = "bold" if fett else "normal"
    return (f'<text x="{x}" y="{y}" font-family="{SCHRIFT_EDEL}" font-size="{größe}" fill="{farbe}" '
            f'text-anchor="{anker}" font-weight="{gewicht}" {mehr}>{escape(worte)}</text>')


def verlauf(name, farben, x1=0, y1=0, x2=0, y2=1):
    """Linearer Verlauf; farben: siehe _stufen."""
    return f'<linearGradient id="{name}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}">{_stufen(farben)}</linearGradient>'


def kugel(name, farben, cx=0.36, cy=0.3, r=0.75):
    """Runder Verlauf, Licht von links oben."""
    return (f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}" fx="{cx}" '
            f'fy="{cy}">{_stufen(farben)}</radialGradient>')


def kurve(punkte, zu=False):
    """Glatte Kurve (Catmull-Rom) durch die Punkte als Pfadtext."""
    n = len(punkte)
    def p(i):
        return punkte[i % n] if zu else punkte[min(max(i, 0), n - 1)]
    s = f"M{punkte[0][0]:.2f} {punkte[0][1]:.2f}"
    for i in range(n if zu else n - 1):
        a, b, c, d = p(i - 1), p(i), p(i + 1), p(i + 2)
        s += (f"C{b[0] + (c[0] - a[0]) / 6:.2f} {b[1] + (c[1] - a[1]) / 6:.2f} "
              f"{c[0] - (d[0] - b[0]) / 6:.2f} {c[1] - (d[1] - b[1]) / 6:.2f} {c[0]:.2f} {c[1]:.2f}")
    return s + ("Z" if zu else "")


def mischen(a, b, t):
    """Farbe zwischen a und b (#rrggbb)."""
    za = [int(a[i:i + 2], 16) for i in (1, 3, 5)]
    zb = [int(b[i:i + 2], 16) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(x + (y - x) * t):02x}" for x, y in zip(za, zb))
