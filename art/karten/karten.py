"""Besitzkarten bilder/besitzkarten/117.jpg bis 124.jpg: das ganze Hotel und seine Preise aus den Tafeln des Spiels."""
from collections import Counter

from befehl import zwischen
from hotels import MODULE
from stift import *
from tafeln import HOTELS, PLÄTZE

B, H = 2556, 1740
LINKS, RECHTS, BAU = 1286, 2450, 2140      # Spalten der Tafel
FARBE = {"Boomerang": "#b5492a", "President": "#1f3f8f", "Waikiki": "#0f8a94", "Taj Mahal": "#8a4a86",
         "Safari": "#6f7a24", "Fujijama": "#b3271f", "L'Étoile": "#2f4f86", "Royal": "#8f1d33"}
STUFE = ("Hauptgebäude", "1. Nebengebäude", "2. Nebengebäude", "3. Nebengebäude", "4. Nebengebäude", "Freizeitpark")


def eingang(kosten):
    """Der übliche Preis; einzelne Plätze, die anders kosten, werden genannt."""
    (üblich, _), *andere = Counter(kosten).most_common()
    worte = {1: "ein Platz", 2: "zwei Plätze"}
    return str(üblich), ", ".join(f"{worte.get(n, f'{n} Plätze')} {preis}" for preis, n in andere)


def flächen(farbe):
    """Papier und Rahmen."""
    return [f'<rect width="{B}" height="{H}" fill="{PAPIER}"/>',
            f'<rect width="{B}" height="{H}" fill="{PAPIER_TIEF}" filter="url(#faser)" opacity=".14"/>',
            kasten(26, 26, B - 52, H - 52, 26, "none", farbe, 14),
            kasten(50, 50, B - 100, H - 100, 14, "none", farbe, 3),
            kasten(70, 70, B - 140, 216, 10, farbe), kasten(82, 82, B - 164, 192, 6, "none", "#f3dca0", 4)]


def kasten(x, y, b, h, rund, füllung, rand=None, dick=0, mehr=""):
    strich = f' stroke="{rand}" stroke-width="{dick}"' if rand else ""
    return f'<rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{rund}" fill="{füllung}"{strich}{mehr}/>'


def ausbau(stufen, farbe, y):
    """Die Tabelle der Stufen; zurück kommt auch ihr unteres Ende."""
    breit, hell = RECHTS - LINKS + 48, "#fff4d8"
    t = [kasten(LINKS - 24, y, breit, 92, 8, farbe), text(LINKS, y + 65, "Ausbau", 58, hell),
         text(BAU, y + 65, "Kosten", 58, hell, "end"), text(RECHTS, y + 65, "je Nacht", 58, hell, "end")]
    y += 92
    hoch = min(182, 726 / len(stufen))
    for nr, s in enumerate(stufen):
        if nr % 2 == 0:
            t.append(kasten(LINKS - 24, y, breit, f"{hoch:.1f}", 0, farbe, mehr=' opacity=".10"'))
        grund = y + hoch / 2 + 25
        t += [text(LINKS, grund, STUFE[s["stand"]], 68), text(BAU, grund, str(s["kosten"]), 76, farbe, "end"),
              text(RECHTS, grund, str(s["satz"]), 76, farbe, "end")]
        y += hoch
    return t + [kasten(LINKS - 24, y, breit, 5, 0, farbe)], y


def zierde(farbe, y):
    """Ranken, wo wenige Stufen Platz lassen."""
    mx, my = (LINKS + RECHTS) / 2, (y + 1405) / 2
    t = [f'<path d="M{mx} {my - 46} l46 46 l-46 46 l-46 -46 z" fill="{farbe}"/>']
    for s in (-1, 1):
        t += [f'<path d="M{mx + s * 70} {my} q{s * 70} -34 {s * 150} 0 t{s * 190} 0" fill="none" stroke="{farbe}" '
              f'stroke-width="9" stroke-linecap="round"/>',
              f'<circle cx="{mx + s * 440}" cy="{my}" r="15" fill="{farbe}"/>']
    return t


def karte(h, szene):
    farbe = FARBE[h["name"]]
    t = flächen(farbe) + [text(B / 2, 226, h["name"], 156, "#fff4d8", "middle", mehr='letter-spacing="10"'),
                          bild(szene, 1110, 1290, 92, 332, "xMidYMid slice"),
                          kasten(92, 332, 1110, 1290, 4, "none", farbe, 10),
                          kasten(104, 344, 1086, 1266, 0, "none", "#fff4d8", 5, ' opacity=".85"')]
    for y, wort, zahl in ((412, "Grundstück", h["preis"]), (506, "Zwangskauf", h["zwang"])):
        t += [text(LINKS, y, wort, 76), text(RECHTS, y, f"{zahl} DM", 76, farbe, "end")]
    tafel, y = ausbau(h["ausbau"], farbe, 552)
    t += tafel + (zierde(farbe, y) if y < 1200 else [])
    preis, andere = eingang([e["kosten"] for e in PLÄTZE.values() if e["hotel"] == h["name"]])
    worte, größe = (f"{preis}, {andere}", 66) if andere else (f"{preis} DM", 76)
    t += [text(LINKS, 1480, "Eingang", 76), text(RECHTS, 1480, worte, größe, farbe, "end"),
          text(LINKS, 1560, "Alle Preise in DM. Je Nacht gilt der Satz", 45, fett=False),
          text(LINKS, 1614, "der höchsten Stufe, die steht.", 45, fett=False)]
    return svg(B, H, "".join(t))


def mache(datei):
    h = next(h for h in HOTELS.values() if h["karte"] == int(Path(datei).stem))
    szene = zwischen("karten/szene.py", MODULE[h["name"]] + ".png", außer=("karten.py",))
    ausgeben(datei, karte(h, szene))
