"""Besitzkarten bilder/besitzkarten/117.jpg bis 124.jpg: das ganze Hotel und seine Preise aus den Tafeln des Spiels."""
from collections import Counter

from befehl import zwischen
from hotels import MODULE
from stift import *
from tafeln import HOTELS, PLÄTZE

B, H = 2556, 1740
FARBE = {"Boomerang": "#b5492a", "President": "#1f3f8f", "Waikiki": "#0f8a94", "Taj Mahal": "#8a4a86",
         "Safari": "#6f7a24", "Fujijama": "#b3271f", "L'Étoile": "#2f4f86", "Royal": "#8f1d33"}
STUFE = ("Hauptgebäude", "1. Nebengebäude", "2. Nebengebäude", "3. Nebengebäude", "4. Nebengebäude", "Freizeitpark")


def eingang(kosten):
    """Der übliche Preis; einzelne Plätze, die anders kosten, werden genannt."""
    (üblich, _), *andere = Counter(kosten).most_common()
    worte = {1: "ein Platz", 2: "zwei Plätze"}
    return str(üblich), ", ".join(f"{worte.get(n, f'{n} Plätze')} {preis}" for preis, n in andere)


def karte(h, szene):
    farbe, links, rechts, nacht, bau = FARBE[h["name"]], 1286, 2450, 2450, 2140
    t = [f'<rect width="{B}" height="{H}" fill="{PAPIER}"/>',
         f'<rect width="{B}" height="{H}" fill="{PAPIER_TIEF}" filter="url(#faser)" opacity=".14"/>',
         f'<rect x="26" y="26" width="{B - 52}" height="{H - 52}" rx="26" fill="none" stroke="{farbe}" '
         f'stroke-width="14"/>',
         f'<rect x="50" y="50" width="{B - 100}" height="{H - 100}" rx="14" fill="none" stroke="{farbe}" '
         f'stroke-width="3"/>',
         f'<rect x="70" y="70" width="{B - 140}" height="216" rx="10" fill="{farbe}"/>',
         f'<rect x="82" y="82" width="{B - 164}" height="192" rx="6" fill="none" stroke="#f3dca0" stroke-width="4"/>',
         text(B / 2, 226, h["name"], 156, "#fff4d8", "middle", mehr='letter-spacing="10"'),
         bild(szene, 1110, 1290, 92, 332, "xMidYMid slice"),
         f'<rect x="92" y="332" width="1110" height="1290" rx="4" fill="none" stroke="{farbe}" stroke-width="10"/>',
         f'<rect x="104" y="344" width="1086" height="1266" fill="none" stroke="#fff4d8" stroke-width="5" '
         f'opacity=".85"/>']
    for y, wort, zahl in ((412, "Grundstück", h["preis"]), (506, "Zwangskauf", h["zwang"])):
        t += [text(links, y, wort, 76), text(rechts, y, f"{zahl} DM", 76, farbe, "end")]
    y = 552
    t.append(f'<rect x="{links - 24}" y="{y}" width="{rechts - links + 48}" height="92" rx="8" fill="{farbe}"/>')
    t += [text(links, y + 65, "Ausbau", 58, "#fff4d8"), text(bau, y + 65, "Kosten", 58, "#fff4d8", "end"),
          text(nacht, y + 65, "je Nacht", 58, "#fff4d8", "end")]
    y += 92
    hoch = min(182, 726 / len(h["ausbau"]))
    for nr, s in enumerate(h["ausbau"]):
        if nr % 2 == 0:
            t.append(f'<rect x="{links - 24}" y="{y}" width="{rechts - links + 48}" height="{hoch:.1f}" '
                     f'fill="{farbe}" opacity=".10"/>')
        grund = y + hoch / 2 + 25
        t += [text(links, grund, STUFE[s["stand"]], 68), text(bau, grund, str(s["kosten"]), 76, farbe, "end"),
              text(nacht, grund, str(s["satz"]), 76, farbe, "end")]
        y += hoch
    t.append(f'<rect x="{links - 24}" y="{y}" width="{rechts - links + 48}" height="5" fill="{farbe}"/>')
    if y < 1200:                                   # Zierde, wo wenige Stufen Platz lassen
        mx, my = (links + rechts) / 2, (y + 1405) / 2
        for s in (-1, 1):
            t.append(f'<path d="M{mx + s * 70} {my} q{s * 70} -34 {s * 150} 0 t{s * 190} 0" fill="none" '
                     f'stroke="{farbe}" stroke-width="9" stroke-linecap="round"/>')
            t.append(f'<circle cx="{mx + s * 440}" cy="{my}" r="15" fill="{farbe}"/>')
        t.append(f'<path d="M{mx} {my - 46} l46 46 l-46 46 l-46 -46 z" fill="{farbe}"/>')
    preis, andere = eingang([e["kosten"] for e in PLÄTZE.values() if e["hotel"] == h["name"]])
    y = 1480
    t += [text(links, y, "Eingang", 76), text(rechts, y, f"{preis} DM" if not andere else f"{preis}, {andere}",
                                              76 if not andere else 66, farbe, "end")]
    t += [text(links, 1560, "Alle Preise in DM. Je Nacht gilt der Satz", 45, TINTE, fett=False),
          text(links, 1614, "der höchsten Stufe, die steht.", 45, TINTE, fett=False)]
    return svg(B, H, "".join(t))


def mache(datei):
    h = next(h for h in HOTELS.values() if h["karte"] == int(Path(datei).stem))
    szene = zwischen("karten/szene.py", MODULE[h["name"]] + ".png", außer=("karten.py",))
    ausgeben(datei, karte(h, szene))
