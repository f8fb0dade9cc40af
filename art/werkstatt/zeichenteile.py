"""Was mehrere Zeichnungen teilen: Farben der Scheine, Palme, und die Familie der Dialoge aus Holz, Papier, Messing."""
from stift import *

# Wert: Grundfarbe, tiefe Druckfarbe, zweite Druckfarbe, Papierton, Bild, Wort
NOTEN = {
    50:   ("#86b35a", "#234d1d", "#b9862c", "#eef3d6", "muschel", "FÜNFZIG MARK"),
    100:  ("#5f9fd0", "#123f6e", "#2f9a8f", "#e2eff6", "palme", "HUNDERT MARK"),
    500:  ("#c1699d", "#6a1650", "#d77c3a", "#f8e4ee", "segler", "FÜNFHUNDERT MARK"),
    1000: ("#d9913f", "#6d3206", "#a5283a", "#fbeccd", "leuchtturm", "TAUSEND MARK"),
    5000: ("#4aa39b", "#0d4650", "#a77a1e", "#e0f2e6", "palast", "FÜNFTAUSEND MARK"),
}


def wedel(x, y, w, l, t):
    """Ein gefiederter Palmwedel."""
    s = ""
    for k in range(1, 13):
        f = k / 12
        px, py = x + l * f * math.cos(w), y + l * f * math.sin(w) + 34 * f * f
        for seite in (-1, 1):
            a = w + seite * 0.9 + 0.5 * f
            q = l * 0.34 * math.sin(math.pi * min(f + 0.12, 1)) + 4
            s += (f'<path d="M{px:.1f} {py:.1f}l{q * math.cos(a):.1f} {q * math.sin(a) + 5:.1f}" stroke="{t}" '
                  f'stroke-width="3" stroke-linecap="round"/>')
    return (s + f'<path d="M{x} {y}Q{x + l * .5 * math.cos(w):.1f} {y + l * .5 * math.sin(w):.1f} '
            f'{x + l * math.cos(w):.1f} {y + l * math.sin(w) + 34:.1f}" stroke="{t}" stroke-width="3" fill="none"/>')


def palme(t, z):
    ringe = "".join(f'<path d="M{-7 + 0.16 * k * k:.1f} {80 - 10 * k}q7 5 {14 - 0.4 * k:.1f} -1" fill="none" '
                    f'stroke="{t}" stroke-width="2"/>' for k in range(11))
    return (f'<path d="M-80 84Q0 58 80 84L80 100L-80 100Z" fill="{z}"/>'
            f'<path d="M-10 86Q-4 20 8 -34L18 -32Q8 24 10 86Z" fill="url(#bild)" stroke="{t}" '
            f'stroke-width="2.5"/>{ringe}'
            + "".join(wedel(12, -36, math.radians(w), l, t) for w,
                      l in ((-172, 66), (-140, 62), (-100, 46), (-62, 50), (-30, 62), (2, 66)))
            + "".join(f'<circle cx="{x}" cy="{y}" r="7" fill="{z}" stroke="{t}" stroke-width="2"/>' for x,
                      y in ((5, -26), (17, -24), (11, -17))))


def grunddefs():
    return (verlauf("holz", [(0, "#c98f52"), (.5, "#a96b35"), (1, "#7d4a21")], 0, 0, .4, 1)
            + verlauf("nuss", [(0, "#7a4a28"), (.5, "#5c3419"), (1, "#3c200e")], 0, 0, .4, 1)
            + verlauf("papier", [(0, "#fffaea"), (.55, "#faeed3"), (1, "#edd9ae")], 0, 0, .7, 1)
            + verlauf("gold", [(0, "#fff0b0"), (.45, "#e9b744"), (1, "#9a651a")], 0, 0, .6, 1)
            + verlauf("stahl", [(0, "#eef3f6"), (.5, "#a8b4bd"), (1, "#66727c")], 0, 0, .4, 1)
            + kugel("licht", [(0, "#fff6d8", .55), (.6, "#fff6d8", 0), (1, "#3a1e08", .30)], .28, .2, 1.0)
            + kugel("rot", [(0, "#f07a62"), (.5, "#c8392f"), (1, "#7d1c1a")], .36, .3, .8)
            + verlauf("marmor", [(0, "#ffffff"), (.6, "#f3ece0"), (1, "#c9bda8")], 0, 0, .5, 1)
            + verlauf("blatt", [(0, "#8cc05a"), (.5, "#4f9440"), (1, "#2a5f2c")], 0, 0, 1, 1))


def holz(b, h, füllung="url(#holz)"):
    """Brett mit Maserung und gebrochener Kante über die ganze Fläche."""
    return (f'<rect width="{b}" height="{h}" fill="{füllung}"/><rect width="{b}" height="{h}" filter="url(#maserung)" '
            f'opacity=".75"/>'
            f'<rect width="{b}" height="{h}" filter="url(#maserungfein)" opacity=".55"/>'
            f'<path d="M0 {h}V0H{b}L{b - 9} 9H9V{h - 9}Z" fill="#ffe3b0" opacity=".45"/>'
            f'<path d="M{b} 0V{h}H0L9 {h - 9}H{b - 9}V9Z" fill="#1c0c02" opacity=".45"/>')


def papier(x, y, b, h, r=16, füllung="url(#papier)", zierlinie=True):
    """Blatt, das in einer Vertiefung des Holzes liegt."""
    s = (f'<rect x="{x - 5}" y="{y - 5}" width="{b + 10}" height="{h + 10}" rx="{r + 5}" fill="#2a1204" opacity=".75"/>'
         f'<rect x="{x - 5}" y="{y - 5}" width="{b + 11}" height="{h + 11}" rx="{r + 5}" fill="none" stroke="#ffdca0" '
         f'stroke-width="2" opacity=".35"/>'
         f'<rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" fill="{füllung}"/>'
         f'<g opacity=".20"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" filter="url(#faser)"/></g>'
         f'<g opacity=".20"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" filter="url(#korn)"/></g>'
         f'<rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" fill="url(#licht)" opacity=".5"/>'
         f'<path d="M{x} {y + h}V{y + r}Q{x} {y} {x + r} {y}H{x + b}" fill="none" stroke="#3a1e08" stroke-width="9" '
         f'opacity=".22"/>')
    if zierlinie:
        s += (f'<rect x="{x + 13}" y="{y + 13}" width="{b - 26}" height="{h - 26}" rx="{max(2, r - 6)}" fill="none" '
              f'stroke="#a5763a" stroke-width="3" opacity=".6"/>'
              f'<rect x="{x + 20}" y="{y + 20}" width="{b - 40}" height="{h - 40}" rx="{max(2, r - 10)}" fill="none" '
              f'stroke="#a5763a" stroke-width="1.3" opacity=".55"/>')
    return s


def nagel(x, y, r=8):
    return (f'<g filter="url(#schatten)"><circle cx="{x}" cy="{y}" r="{r}" fill="{GOLD}"/></g>'
            f'<circle cx="{x - r * .3}" cy="{y - r * .35}" r="{r * .3}" fill="#fff" opacity=".8"/>')


def tafel(b, h, rand=26, innen="", oben=None, **wie):
    """Der Rahmen der Familie: Holz, Papier, vier Messingnägel; oben: eine schmalere obere Leiste."""
    e, o = rand / 2, oben or rand
    return (holz(b, h) + papier(rand, o, b - 2 * rand, h - rand - o, **wie) + innen
            + "".join(nagel(x, y, e * .62) for x in (e, b - e) for y in (e, h - e)))
