"""Die eigenen Mauszeiger: Dorvins weißer Pagenhandschuh. Die Fingerspitze liegt in der Mitte des Bildes."""
from stift import *

BREIT = 256  # 64 Bildpunkte des Entwurfs, die Mitte ist die Spitze

# Der Zeigefinger weist nach oben; (0, 0) ist seine Spitze.
HAND = ("M-11 12Q-11 0 0 0Q11 0 11 12V46Q14 40 22 42Q29 43 30 51Q34 47 40 49Q47 51 47 59Q51 56 56 59Q62 62 62 70"
        "V84Q62 98 55 108H-6Q-16 96 -22 86L-36 66Q-41 58 -35 53Q-29 49 -23 55L-11 67Z")
FALTEN = "M11 46V62M30 51V64M47 59V68"


def handschuh(drehung, hand=1):
    defs = (verlauf("stoff", [(0, "#ffffff"), (.6, "#fbf4e4"), (1, "#d8c6a2")], 0, 0, .7, 1)
            + verlauf("tuch", [(0, "#e0524a"), (1, "#8c1f1c")], 0, 0, .4, 1)
            + verlauf("gold", [(0, MESSING_HELL), (1, MESSING_TIEF)], 0, 0, .3, 1))
    handbild = (f'<path d="{HAND}" fill="url(#stoff)" stroke="{TINTE}" stroke-width="5" stroke-linejoin="round"/>'
            f'<path d="{FALTEN}" fill="none" stroke="{TINTE}" stroke-width="3.4" stroke-linecap="round" opacity=".55"/>'
            f'<rect x="-12" y="100" width="72" height="22" rx="6" fill="url(#tuch)" stroke="{TINTE}" stroke-width="5"/>'
            '<circle cx="24" cy="111" r="6" fill="url(#gold)"/>')
    lage = f'translate(128 128) scale({.88 * hand} .88) rotate({drehung})'
    return svg(BREIT, BREIT, f'<g transform="{lage}" filter="url(#schatten)">{handbild}</g>', defs)


# Form und Element: wohin der Finger weist, in Grad von oben; -1 ist die andere Hand
ZEIGER = {"assistent/image1": (-24,), "karten/image1": (90, -1), "karten/image2": (90,), "karten/image3": (0,)}


def mache(datei):
    ausgeben(datei, handschuh(*ZEIGER["/".join(Path(datei).parts[-2:]).removesuffix("zeiger.png")]))
