"""Was die 36 Baustufen auf das Brett werfen: bilder/formen/form1/NAMEschatten.png, ein Bildpunkt je Entwurfspunkt.

Der Umriss der Stufe wird im Licht des Brettes auf den Grund gelegt. Ein Hotel wächst in fester Folge; darum ist der
Schatten einer Stufe, was sie zu dem der früheren hinzutut, und alle übereinander geben den Schatten des Ganzen.
"""
import math
from functools import cache
from pathlib import Path

from befehl import brauche, vorhanden, ziel
from tafeln import BRETT, STUFEN, punkte

brauche("python3-numpy", "python3-pil")

import numpy as np
from PIL import Image, ImageFilter

SONNE = (-.50, -.33, .80)                # wie in bühne.py
RECHTS, HINTEN = -SONNE[0] / SONNE[2], -SONNE[1] / SONNE[2]      # Weg des Schattens je Einheit Höhe
TIEFE = math.sqrt(2)
FEIN = 2                                 # gerechnet wird in Hälften eines Entwurfspunkts
SONNENSCHATTEN = .50                     # wie dunkel
FUSSSCHATTEN, LANDSCHATTEN = .42, .13    # am Fuß der Mauern; am Rand des Landes, das eine Stufe mitbringt
LANDLOS = ("presih", "presi1", "presi2", "presi3", "tajh", "tajn1", "tajn2")
FARBE = (6, 12, 20)                      # das Blau des Himmels, das im Schatten bleibt
SCHICHTEN = ((0, 45, .7), (30, 110, 1.7), (90, 400, 3.2))        # Höhe von, bis; Unschärfe in Entwurfspunkten
SAUM = 5                                 # Entwurfspunkte; vor dem Bildrand verliert sich der Schatten
TIEFEN = {"boom": (15, 110)}             # wo der Körper der Stufe beginnt und endet, wenn nicht wie üblich; Einheiten


def größe(rechteck):
    return tuple(round(w * FEIN) for w in punkte(rechteck))


def weich(a, entwurfspunkte):
    bild = Image.fromarray((np.clip(a, 0, 1) * 255).astype(np.uint8))
    return np.asarray(bild.filter(ImageFilter.GaussianBlur(entwurfspunkte * FEIN))).astype(np.float32) / 255


def körper(name, breite):
    """Vorder- und Hinterkante in Einheiten Tiefe."""
    return TIEFEN.get(name, (6, 10 + .5 * breite / FEIN))


@cache
def wurf(name):
    """Der Schatten der einen Stufe auf dem ganzen Brett: Anteile."""
    _, _, bb, bh = größe(BRETT)
    links, oben, b, h = größe(STUFEN[name]["ort"])
    bild = Image.open(vorhanden(f"bilder/formen/form1/{name}.png")).getchannel("A").resize((b, h))
    fest = np.asarray(bild) > 215
    vorn, hinten = körper(name, b)
    park = h / FEIN < 30                 # flaches Land: nur sein Rand liegt auf
    brett = np.zeros((len(SCHICHTEN), bh, bb), np.float32)
    for zeile in range(0 if not park else h, h):
        über = (h - zeile) / FEIN        # Entwurfspunkte über dem Fuß
        halb = (hinten - vorn) / 2 * (1 - .6 * über * FEIN / h)
        for y in np.linspace((vorn + hinten) / 2 - halb, (vorn + hinten) / 2 + halb, 12):
            z = TIEFE * über - y
            if z <= 0:
                continue
            ziel_y = oben + h - round((y + HINTEN * z) / TIEFE * FEIN)
            ab = links + round(RECHTS * z * FEIN)
            l, r = max(ab, 0), min(ab + b, bb)
            if not 0 <= ziel_y < bh or l >= r:
                continue
            for i, (von, bis, _) in enumerate(SCHICHTEN):
                if von <= z <= bis:
                    np.maximum(brett[i, ziel_y, l:r], fest[zeile, l - ab:r - ab], out=brett[i, ziel_y, l:r])
    sonne = np.max([weich(brett[i], s) for i, (_, _, s) in enumerate(SCHICHTEN)], axis=0)
    fuß = np.zeros((bh + 80, bb + 80), np.float32)
    tief = min(h, round(hinten / TIEFE * FEIN))
    l, r = max(links, 0), min(links + b, bb)
    fuß[oben + h - tief:oben + h, l:r] = fest[h - tief:, l - links:r - links]
    fuß = np.maximum(weich(fuß, 1.2), .7 * weich(fuß, 4))[:bh, :bb]
    return 1 - (1 - SONNENSCHATTEN * sonne) * (1 - (FUSSSCHATTEN if name in LANDLOS else LANDSCHATTEN) * fuß)


def auslauf(h, b):
    """1 im Inneren, 0 am Rand."""
    x = np.minimum(np.arange(b) + .5, b - np.arange(b) - .5)
    y = np.minimum(np.arange(h) + .5, h - np.arange(h) - .5)
    a = np.clip(np.minimum(x[None, :], y[:, None]) / SAUM / FEIN, 0, 1)
    return a * a * (3 - 2 * a)


def mache(datei):
    name = Path(datei).stem.removesuffix("schatten")
    hotel = [n for n, s in STUFEN.items() if s["hotel"] == STUFEN[name]["hotel"]]
    ohne = np.max([np.zeros_like(wurf(name))] + [wurf(n) for n in hotel[:hotel.index(name)]], axis=0)
    deckung = 1 - (1 - np.maximum(ohne, wurf(name))) / (1 - ohne)
    l, o, b, h = größe(STUFEN[name]["schatten"])
    deckung = deckung[o:o + h, l:l + b] * auslauf(h, b)
    bild = Image.new("RGBA", (b, h), FARBE)
    bild.putalpha(Image.fromarray((deckung * 255).astype(np.uint8)))
    bild.resize((round(b / FEIN), round(h / FEIN)), Image.Resampling.BOX).save(ziel(datei), optimize=True)
