"""Besitzkarten bilder/besitzkarten/117.jpg bis 124.jpg: das ganze Hotel und seine Preise.

python3 art/karten/karten.py --szenen ORDNER [--ziel bilder] [--nur HOTEL ...]

Die Preise kommen aus den Tafeln des Spiels (preise.cpp); ORDNER enthält die Bilder von szene.py.
"""
import argparse
import base64
import json
import os
import subprocess
import sys
import tempfile
from collections import Counter
from xml.sax.saxutils import escape

HIER = os.path.dirname(os.path.abspath(__file__))
WURZEL = os.path.normpath(os.path.join(HIER, "..", ".."))
from stift import PAPIER, PAPIER_TIEF, SCHRIFT_EDEL, TINTE, svg   # noqa: E402

B, H = 2556, 1740
SZENE = {"Boomerang": "boomerang", "President": "president", "Waikiki": "waikiki", "Taj Mahal": "tajmahal",
         "Safari": "safari", "Fujijama": "fujijama", "L'Étoile": "etoile", "Royal": "royal"}
FARBE = {"Boomerang": "#b5492a", "President": "#1f3f8f", "Waikiki": "#0f8a94", "Taj Mahal": "#8a4a86",
         "Safari": "#6f7a24", "Fujijama": "#b3271f", "L'Étoile": "#2f4f86", "Royal": "#8f1d33"}
STUFE = ("Hauptgebäude", "1. Nebengebäude", "2. Nebengebäude", "3. Nebengebäude", "4. Nebengebäude", "Freizeitpark")


def preise():
    with tempfile.TemporaryDirectory() as d:
        programm = os.path.join(d, "preise")
        subprocess.run(["g++", "-std=c++20", "-I", WURZEL, os.path.join(HIER, "preise.cpp"), "-o", programm], check=True)
        return json.loads(subprocess.run([programm], check=True, capture_output=True, text=True).stdout)


def text(x, y, s, größe, farbe=TINTE, anker="start", fett=True, mehr=""):
    return (f'<text x="{x}" y="{y}" font-family="{SCHRIFT_EDEL}" font-size="{größe}" fill="{farbe}" text-anchor="{anker}" '
            f'font-weight="{"bold" if fett else "normal"}" {mehr}>{escape(s)}</text>')


def eingang(kosten):
    """Der übliche Preis; einzelne Plätze, die anders kosten, werden genannt."""
    (üblich, _), *andere = Counter(kosten).most_common()
    worte = {1: "ein Platz", 2: "zwei Plätze"}
    return str(üblich), ", ".join(f"{worte.get(n, f'{n} Plätze')} {preis}" for preis, n in andere)


def karte(h, bild):
    farbe, links, rechts, nacht, bau = FARBE[h["name"]], 1286, 2450, 2450, 2140
    with open(bild, "rb") as f:
        daten = base64.b64encode(f.read()).decode()
    t = [f'<rect width="{B}" height="{H}" fill="{PAPIER}"/>',
         f'<rect width="{B}" height="{H}" fill="{PAPIER_TIEF}" filter="url(#faser)" opacity=".14"/>',
         f'<rect x="26" y="26" width="{B - 52}" height="{H - 52}" rx="26" fill="none" stroke="{farbe}" stroke-width="14"/>',
         f'<rect x="50" y="50" width="{B - 100}" height="{H - 100}" rx="14" fill="none" stroke="{farbe}" stroke-width="3"/>',
         f'<rect x="70" y="70" width="{B - 140}" height="216" rx="10" fill="{farbe}"/>',
         f'<rect x="82" y="82" width="{B - 164}" height="192" rx="6" fill="none" stroke="#f3dca0" stroke-width="4"/>',
         text(B / 2, 226, h["name"], 156, "#fff4d8", "middle", mehr='letter-spacing="10"'),
         f'<image x="92" y="332" width="1110" height="1290" preserveAspectRatio="xMidYMid slice" xlink:href="data:image/png;base64,{daten}"/>',
         f'<rect x="92" y="332" width="1110" height="1290" rx="4" fill="none" stroke="{farbe}" stroke-width="10"/>',
         f'<rect x="104" y="344" width="1086" height="1266" fill="none" stroke="#fff4d8" stroke-width="5" opacity=".85"/>']
    for y, wort, zahl in ((412, "Grundstück", h["preis"]), (506, "Zwangskauf", h["zwang"])):
        t += [text(links, y, wort, 76), text(rechts, y, f"{zahl} DM", 76, farbe, "end")]
    y = 552
    t.append(f'<rect x="{links - 24}" y="{y}" width="{rechts - links + 48}" height="92" rx="8" fill="{farbe}"/>')
    t += [text(links, y + 65, "Ausbau", 58, "#fff4d8"), text(bau, y + 65, "Kosten", 58, "#fff4d8", "end"), text(nacht, y + 65, "je Nacht", 58, "#fff4d8", "end")]
    y += 92
    hoch = min(182, 726 / len(h["stufen"]))
    for nr, s in enumerate(h["stufen"]):
        if nr % 2 == 0:
            t.append(f'<rect x="{links - 24}" y="{y}" width="{rechts - links + 48}" height="{hoch:.1f}" fill="{farbe}" opacity=".10"/>')
        grund = y + hoch / 2 + 25
        t += [text(links, grund, STUFE[s["stand"]], 68), text(bau, grund, str(s["kosten"]), 76, farbe, "end"), text(nacht, grund, str(s["satz"]), 76, farbe, "end")]
        y += hoch
    t.append(f'<rect x="{links - 24}" y="{y}" width="{rechts - links + 48}" height="5" fill="{farbe}"/>')
    if y < 1200:                                   # Zierde, wo wenige Stufen Platz lassen
        mx, my = (links + rechts) / 2, (y + 1405) / 2
        for s in (-1, 1):
            t.append(f'<path d="M{mx + s * 70} {my} q{s * 70} -34 {s * 150} 0 t{s * 190} 0" fill="none" stroke="{farbe}" stroke-width="9" stroke-linecap="round"/>')
            t.append(f'<circle cx="{mx + s * 440}" cy="{my}" r="15" fill="{farbe}"/>')
        t.append(f'<path d="M{mx} {my - 46} l46 46 l-46 46 l-46 -46 z" fill="{farbe}"/>')
    preis, andere = eingang(h["eingänge"])
    y = 1480
    t += [text(links, y, "Eingang", 76), text(rechts, y, f"{preis} DM" if not andere else f"{preis}, {andere}", 76 if not andere else 66, farbe, "end")]
    t += [text(links, 1560, "Alle Preise in DM. Je Nacht gilt der Satz", 45, TINTE, fett=False),
          text(links, 1614, "der höchsten Stufe, die steht.", 45, TINTE, fett=False)]
    return svg(B, H, "".join(t))


def main():
    lese = argparse.ArgumentParser()
    lese.add_argument("--szenen", required=True)
    lese.add_argument("--ziel", default=os.path.join(WURZEL, "bilder"))
    lese.add_argument("--nur", nargs="*", default=[])
    args = lese.parse_args()
    for h in preise():
        szene = SZENE[h["name"]]
        bild = os.path.join(args.szenen, szene + ".png")
        if (args.nur and szene not in args.nur) or not os.path.exists(bild):
            continue
        ziel = os.path.join(args.ziel, "besitzkarten", f"{h['karte']}.jpg")
        os.makedirs(os.path.dirname(ziel), exist_ok=True)
        with tempfile.TemporaryDirectory() as d:
            quelle, roh = os.path.join(d, "k.svg"), os.path.join(d, "k.png")
            with open(quelle, "w", encoding="utf-8") as f:
                f.write(karte(h, bild))
            subprocess.run(["rsvg-convert", "--unlimited", "-o", roh, quelle], check=True)
            subprocess.run(["convert", roh, "-strip", "-quality", "90", ziel], check=True)
        print(h["name"], ziel)


if __name__ == "__main__":
    main()
