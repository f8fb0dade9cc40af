"""Dialoge: warmes Papier auf Holz, Messing, kleine Dinge aus dem Hotel; Knöpfe, Pfeile, Zeichen.

Aufruf: python3 dialoge.py [Name ...]
"""
from noten import NOTEN, palme as palmenbild
from stift import *

GOLD = "url(#gold)"


def grunddefs():
    return (verlauf("holz", [(0, "#c98f52"), (.5, "#a96b35"), (1, "#7d4a21")], 0, 0, .4, 1) + verlauf("nuss", [(0, "#7a4a28"), (.5, "#5c3419"), (1, "#3c200e")], 0, 0, .4, 1)
            + verlauf("papier", [(0, "#fffaea"), (.55, "#faeed3"), (1, "#edd9ae")], 0, 0, .7, 1)
            + verlauf("gold", [(0, "#fff0b0"), (.45, "#e9b744"), (1, "#9a651a")], 0, 0, .6, 1)
            + verlauf("stahl", [(0, "#eef3f6"), (.5, "#a8b4bd"), (1, "#66727c")], 0, 0, .4, 1)
            + kugel("licht", [(0, "#fff6d8", .55), (.6, "#fff6d8", 0), (1, "#3a1e08", .30)], .28, .2, 1.0)
            + kugel("rot", [(0, "#f07a62"), (.5, "#c8392f"), (1, "#7d1c1a")], .36, .3, .8)
            + verlauf("marmor", [(0, "#ffffff"), (.6, "#f3ece0"), (1, "#c9bda8")], 0, 0, .5, 1)
            + verlauf("blatt", [(0, "#8cc05a"), (.5, "#4f9440"), (1, "#2a5f2c")], 0, 0, 1, 1))


def holz(b, h, fuellung="url(#holz)"):
    """Brett mit Maserung und gebrochener Kante über die ganze Fläche."""
    return (f'<rect width="{b}" height="{h}" fill="{fuellung}"/><rect width="{b}" height="{h}" filter="url(#maserung)" opacity=".75"/>'
            f'<rect width="{b}" height="{h}" filter="url(#maserungfein)" opacity=".55"/>'
            f'<path d="M0 {h}V0H{b}L{b - 9} 9H9V{h - 9}Z" fill="#ffe3b0" opacity=".45"/><path d="M{b} 0V{h}H0L9 {h - 9}H{b - 9}V9Z" fill="#1c0c02" opacity=".45"/>')


def papier(x, y, b, h, r=16, fuellung="url(#papier)", zierlinie=True):
    """Blatt, das in einer Vertiefung des Holzes liegt."""
    s = (f'<rect x="{x - 5}" y="{y - 5}" width="{b + 10}" height="{h + 10}" rx="{r + 5}" fill="#2a1204" opacity=".75"/>'
         f'<rect x="{x - 5}" y="{y - 5}" width="{b + 11}" height="{h + 11}" rx="{r + 5}" fill="none" stroke="#ffdca0" stroke-width="2" opacity=".35"/>'
         f'<rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" fill="{fuellung}"/>'
         f'<g opacity=".20"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" filter="url(#faser)"/></g>'
         f'<g opacity=".20"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" filter="url(#korn)"/></g>'
         f'<rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{r}" fill="url(#licht)" opacity=".5"/>'
         f'<path d="M{x} {y + h}V{y + r}Q{x} {y} {x + r} {y}H{x + b}" fill="none" stroke="#3a1e08" stroke-width="9" opacity=".22"/>')
    if zierlinie:
        s += (f'<rect x="{x + 13}" y="{y + 13}" width="{b - 26}" height="{h - 26}" rx="{max(2, r - 6)}" fill="none" stroke="#a5763a" stroke-width="3" opacity=".6"/>'
              f'<rect x="{x + 20}" y="{y + 20}" width="{b - 40}" height="{h - 40}" rx="{max(2, r - 10)}" fill="none" stroke="#a5763a" stroke-width="1.3" opacity=".55"/>')
    return s


def nagel(x, y, r=8):
    return f'<g filter="url(#schatten)"><circle cx="{x}" cy="{y}" r="{r}" fill="{GOLD}"/></g><circle cx="{x - r * .3}" cy="{y - r * .35}" r="{r * .3}" fill="#fff" opacity=".8"/>'


def tafel(b, h, rand=26, innen="", oben=None, **wie):
    """Der Rahmen der Familie: Holz, Papier, vier Messingnägel; oben: Breite der oberen Leiste, wenn sie schmaler ist."""
    e, o = rand / 2, oben or rand
    return holz(b, h) + papier(rand, o, b - 2 * rand, h - rand - o, **wie) + innen + "".join(nagel(x, y, e * .62) for x in (e, b - e) for y in (e, h - e))


# --- Dinge ---------------------------------------------------------------------------------------------------------------
def scheine(wert, n=3):
    grund, tief, zwei, hell = NOTEN[wert][:4]
    s = ""
    for k in range(n):
        s += (f'<g transform="translate({-6 + 7 * k} {14 - 11 * k}) rotate({-5 + 2 * k})"><rect x="-66" y="-36" width="132" height="72" rx="7" fill="{mischen(grund, "#2a1404", .25)}" transform="translate(2 4)"/>'
              f'<rect x="-66" y="-36" width="132" height="72" rx="7" fill="{hell}"/><rect x="-66" y="-36" width="132" height="72" rx="7" fill="{grund}" opacity=".8"/>'
              f'<rect x="-59" y="-29" width="118" height="58" rx="4" fill="none" stroke="{hell}" stroke-width="2.5"/><ellipse rx="24" ry="25" fill="{hell}" stroke="{tief}" stroke-width="3"/></g>')
    k = n - 1
    return s + f'<text transform="translate({-6 + 7 * k} {14 - 11 * k}) rotate({-5 + 2 * k})" y="10" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="{30 if wert < 1000 else 21}" fill="{tief}">{wert}</text>'


def muenzen(x, y, n, r=24):
    s = ""
    for k in range(n):
        yy = y - k * r * .36
        s += (f'<path d="M{x - r} {yy}V{yy + r * .32}A{r} {r * .46} 0 0 0 {x + r} {yy + r * .32}V{yy}Z" fill="url(#muenzrand)"/><ellipse cx="{x}" cy="{yy}" rx="{r}" ry="{r * .46}" fill="{GOLD}" stroke="#8c5e1c" stroke-width="1.2"/>')
    return s + f'<ellipse cx="{x}" cy="{y - (n - 1) * r * .36}" rx="{r * .72}" ry="{r * .31}" fill="none" stroke="#8c5e1c" stroke-width="2" opacity=".6"/>'


MUENZRAND = verlauf("muenzrand", [(0, "#7a4f14"), (.25, "#f0c860"), (.5, "#b9821f"), (.8, "#e0b048"), (1, "#6a4210")], 0, 0, 1, 0)


def geldhaufen(art):
    inhalt = {"noten": f'<g transform="translate(92 66)">{scheine(1000, 3)}</g>{muenzen(142, 112, 3, 21)}{muenzen(38, 118, 2, 18)}',
              "muenzen": f'<g transform="translate(84 58) scale(.82)">{scheine(50, 2)}</g>{muenzen(46, 110, 4)}{muenzen(94, 122, 2)}{muenzen(136, 106, 5)}',
              "tausch": f'<g transform="translate(78 54) scale(.86) rotate(-8)">{scheine(100, 2)}</g>{muenzen(128, 116, 4, 23)}{muenzen(72, 124, 2, 20)}'}[art]
    return svg(180, 140, f'<g filter="url(#schatten)">{inhalt}</g>', grunddefs() + MUENZRAND)


def hammer():
    return svg(148, 168, f"""<g filter="url(#schatten)"><g transform="translate(66 92) rotate(38) scale(.92)"><g filter="url(#praegung)"><rect x="-10" y="-48" width="20" height="122" rx="9" fill="url(#holz)"/></g>
<rect x="-10" y="-48" width="20" height="122" rx="9" filter="url(#maserung)" opacity=".4"/><g filter="url(#praegung)"><path d="M-46 -70H30Q48 -68 56 -46Q40 -52 28 -46H-46Q-52 -46 -52 -52V-64Q-52 -70 -46 -70Z" fill="url(#stahl)"/><rect x="-58" y="-74" width="16" height="32" rx="5" fill="url(#stahl)"/></g></g></g>""", grunddefs())


def pfeil(links, b=180, h=404):
    """Messingpfeil zum vorigen oder nächsten Bild."""
    x = (lambda t: b * t) if links else (lambda t: b * (1 - t))
    d = f"M{x(.14)} {h * .5}L{x(.72)} {h * .2}Q{x(.86)} {h * .16} {x(.86)} {h * .28}V{h * .72}Q{x(.86)} {h * .84} {x(.72)} {h * .8}Z"
    return svg(b, h, f'<g filter="url(#schatten)"><path d="{d}" fill="#5c3419" stroke="#5c3419" stroke-width="14" stroke-linejoin="round"/><g filter="url(#praegung)"><path d="{d}" fill="{GOLD}" stroke="{GOLD}" stroke-width="4" stroke-linejoin="round"/></g></g>', grunddefs())


def scheibenknopf(zeichen, g=300):
    """Runde Messingscheibe auf Holz mit eingelassenem Zeichen."""
    m = g / 2
    bild = {"links": f"M{m + 34} {m - 66}L{m - 50} {m}L{m + 34} {m + 66}Z", "rechts": f"M{m - 34} {m - 66}L{m + 50} {m}L{m - 34} {m + 66}Z",
            "zu": f"M{m - 52} {m - 52}L{m + 52} {m + 52}M{m + 52} {m - 52}L{m - 52} {m + 52}"}[zeichen]
    farbe = "#a8281f" if zeichen == "zu" else "#5a3214"
    strich = 'fill="none" stroke-width="30" stroke-linecap="round"' if zeichen == "zu" else f'fill="{farbe}" stroke-width="22" stroke-linejoin="round"'
    return svg(g, g, f"""<ellipse cx="{m + 4}" cy="{m + 10}" rx="{m - 18}" ry="{m - 18}" fill="#1c0c02" opacity=".6" filter="url(#sehrweich)"/>
<g filter="url(#praegung)"><circle cx="{m}" cy="{m}" r="{m - 14}" fill="url(#holz)"/></g><clipPath id="k"><circle cx="{m}" cy="{m}" r="{m - 15}"/></clipPath><g clip-path="url(#k)"><rect width="{g}" height="{g}" filter="url(#maserung)" opacity=".6"/></g>
<g filter="url(#praegung)"><circle cx="{m}" cy="{m}" r="{m - 32}" fill="{GOLD}"/></g><circle cx="{m}" cy="{m}" r="{m - 44}" fill="#fff3cf" opacity=".35"/>
<path d="{bild}" {strich} stroke="#fff3c4" opacity=".8" transform="translate(2.5 3.5)"/><path d="{bild}" {strich} stroke="{farbe}"/>
<path d="M{m - 96} {m - 40}A104 104 0 0 1 {m + 40} {m - 96}Q{m - 40} {m - 84} {m - 96} {m - 40}Z" fill="#fff" opacity=".3"/>""", grunddefs())


def glocke(x, y, s=1.0):
    """Klingel der Rezeption."""
    return f"""<g transform="translate({x} {y}) scale({s})"><ellipse cx="6" cy="64" rx="104" ry="20" fill="#2a1204" opacity=".45" filter="url(#weich)"/>
<g filter="url(#praegung)"><rect x="-92" y="40" width="184" height="24" rx="12" fill="#3a2a22"/><path d="M-80 42Q-80 -46 0 -48Q80 -46 80 42Z" fill="{GOLD}"/><rect x="-7" y="-66" width="14" height="22" fill="{GOLD}"/><circle cy="-70" r="13" fill="{GOLD}"/></g>
<path d="M-60 20Q-56 -26 -20 -36Q-44 -14 -46 22Z" fill="#fff" opacity=".65"/></g>"""


def schluessel(x, y, w=0, s=1.0):
    """Zimmerschlüssel mit rotem Anhänger."""
    return f"""<g transform="translate({x} {y}) rotate({w}) scale({s})" ><g filter="url(#schatten)"><path d="M0 -30Q40 -60 78 -34" fill="none" stroke="#c9973a" stroke-width="5"/>
<g filter="url(#praegung)"><path d="M0 -78A44 44 0 1 1 -0.1 -78ZM0 -58A24 24 0 1 0 0.1 -58Z" fill="{GOLD}" fill-rule="evenodd"/><path d="M-8 8H8V118H40V134H26V146H40V162H-8Z" fill="{GOLD}"/></g></g>
<g transform="translate(118 6) rotate(24)" filter="url(#schatten)"><path d="M-26 -52Q0 -66 26 -52L34 62Q0 80 -34 62Z" fill="url(#rot)"/><circle cy="-44" r="8" fill="#fff1cc"/><text y="34" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="46" fill="#fff1cc">7</text></g></g>"""


def palmblatt(x, y, w, l, s=1.0):
    """Fächerndes Palmblatt für die Ecken."""
    t = ""
    for k in range(1, 15):
        f = k / 15
        q = l * .36 * math.sin(math.pi * min(f * .92 + .1, 1)) + 6
        for seite in (-1, 1):
            a = seite * (1.0 - .45 * f)
            ex, ey = l * f + q * math.cos(a), q * math.sin(a) + 26 * f * f
            t += f'<path d="M{l * f:.1f} {26 * f * f:.1f}Q{l * f + q * .6 * math.cos(a) - seite * 0:.1f} {q * .35 * math.sin(a) + 26 * f * f - seite * 2:.1f} {ex:.1f} {ey:.1f}Q{l * f + q * .45 * math.cos(a) + 9:.1f} {q * .62 * math.sin(a) + 26 * f * f:.1f} {l * f + 12:.1f} {26 * f * f:.1f}Z" fill="url(#blatt)" stroke="#2a5f2c" stroke-width=".8"/>'
    return f'<g transform="translate({x} {y}) rotate({w}) scale({s})" filter="url(#schatten)">{t}<path d="M0 0Q{l * .5} 4 {l} 26" fill="none" stroke="#cfe08a" stroke-width="3"/></g>'


def messingschild(x, y, b, h, text, groesse):
    return (f'<g filter="url(#schatten)"><g filter="url(#praegung)"><rect x="{x}" y="{y}" width="{b}" height="{h}" rx="{h * .24}" fill="{GOLD}"/></g></g>'
            f'<rect x="{x + 9}" y="{y + 9}" width="{b - 18}" height="{h - 18}" rx="{h * .17}" fill="none" stroke="#8c5e1c" stroke-width="2.5" opacity=".7"/>'
            f'<text x="{x + b / 2 + 1.5}" y="{y + h * .5 + groesse * .36 + 2}" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="{groesse}" letter-spacing="3" fill="#fff4cc">{text}</text>'
            f'<text x="{x + b / 2}" y="{y + h * .5 + groesse * .36}" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="{groesse}" letter-spacing="3" fill="#5a3210">{text}</text>'
            + nagel(x + 26, y + h / 2, 7) + nagel(x + b - 26, y + h / 2, 7))


# --- Dialoge ---------------------------------------------------------------------------------------------------------------
def geldfeld():
    b, h = 1444, 620
    return svg(b, h, tafel(b, h), grunddefs())


def baufeld():
    b, h = 1984, 920
    return svg(b, h, tafel(b, h), grunddefs())


def bauplan():
    """Bauplan auf Millimeterpapier; die Linien bleiben blass hinter Text und Knöpfen."""
    b, h = 1844, 564
    netz = "".join(f'<path d="M{x} 0V{h}" stroke="#5f93b8" stroke-width="{1.6 if x % 100 == 0 else .7}" opacity="{.5 if x % 100 == 0 else .3}"/>' for x in range(0, b, 20))
    netz += "".join(f'<path d="M0 {y}H{b}" stroke="#5f93b8" stroke-width="{1.6 if y % 100 == 0 else .7}" opacity="{.5 if y % 100 == 0 else .3}"/>' for y in range(0, h, 20))
    riss = ("M120 470V180H420V90H760V180H1040V470Z M120 330H420 M420 180V470 M760 180V470 M760 330H1040 M560 90V300H620 M420 300H520 M660 300H760 "
            "M1240 480V250L1420 120L1600 250V480Z M1240 250H1600 M1390 480V380H1450V480 M1290 300H1350V350H1290Z M1490 300H1550V350H1490Z")
    mass = "M120 505H1040M120 495V515M1040 495V515M1640 120V480M1630 120H1650M1630 480H1650"
    return svg(b, h, f"""<g><rect width="{b}" height="{h}" fill="#eef4f2"/><rect width="{b}" height="{h}" fill="url(#papier)" opacity=".35"/><g>{netz}</g>
<path d="{riss}" fill="none" stroke="#2f6fa8" stroke-width="5" opacity=".34"/><path d="{mass}" fill="none" stroke="#b0483a" stroke-width="3" opacity=".4"/>
<circle cx="590" cy="390" r="46" fill="none" stroke="#2f6fa8" stroke-width="4" opacity=".34"/>
<g opacity=".16"><rect width="{b}" height="{h}" filter="url(#faser)"/></g><g opacity=".25"><rect width="{b}" height="{h}" filter="url(#korn)"/></g>
<rect width="{b}" height="{h}" fill="url(#licht)" opacity=".5"/><path d="M{b * .333:.0f} 0V{h}M{b * .667:.0f} 0V{h}" stroke="#3a2a1a" stroke-width="7" opacity=".07"/><path d="M{b * .333 - 6:.0f} 0V{h}M{b * .667 - 6:.0f} 0V{h}" stroke="#fff" stroke-width="5" opacity=".5"/></g>
{nagel(40, 40, 13)}{nagel(b - 40, 40, 13)}{nagel(40, h - 42, 13)}{nagel(b - 40, h - 42, 13)}""", grunddefs())


def kran(x, y, s):
    """Blasser Baukran als Wasserzeichen."""
    gitter = "".join(f'M{-20} {-40 * k}L20 {-40 * (k + 1)}M20 {-40 * k}L-20 {-40 * (k + 1)}' for k in range(9))
    arm = "".join(f'M{30 + 40 * k} -360L{50 + 40 * k} -396L{70 + 40 * k} -360' for k in range(8))
    return (f'<g transform="translate({x} {y}) scale({s})" fill="none" stroke="#a5763a" stroke-width="7" opacity=".30"><path d="M-20 0V-380M20 0V-380{gitter}M-120 -360H360M-100 -396H350M0 -470L-120 -372M0 -470L350 -390M0 -470V-380{arm}M300 -360V-230M286 -230H314M300 -230q22 26 0 44q-22 4 -24 -14"/>'
            '<rect x="-140" y="-372" width="60" height="60"/></g>')


def bauphase():
    b, h = 1952, 1148
    felder = "".join(f'<rect x="{x / 3 - 8}" y="{y / 3 - 8}" width="340" height="260" rx="14" fill="#5c3419" opacity=".14"/>' for x in (600, 1800, 3000, 4200) for y in (840, 1680))
    return svg(b, h, tafel(b, h, 20, innen=kran(1560, 1090, .55) + felder, oben=7, zierlinie=False), grunddefs())          # die Überschrift beginnt ganz oben


def tor(x, y, s):
    """Blasses Gartentor als Wasserzeichen."""
    stab = "".join(f'M{v} 0V{-150 - 60 * math.cos(v / 130 * 1.5):.0f}' for v in range(-120, 121, 30))
    return f'<g transform="translate({x} {y}) scale({s})" fill="none" stroke="#a5763a" stroke-width="9" opacity=".28"><path d="M-150 0V-230M150 0V-230M-130 -40H130M-130 -140H130{stab}M-132 -160Q0 -290 132 -160"/><circle cx="-150" cy="-250" r="18"/><circle cx="150" cy="-250" r="18"/></g>'


def eingang():
    b, h = 2120, 1300
    felder = "".join(f'<rect x="{x / 3 - 8}" y="{y / 3 - 8}" width="340" height="260" rx="14" fill="#5c3419" opacity=".14"/>' for x in (720, 1920, 3120, 4320) for y in (1440, 2280))
    blaetter = palmblatt(64, h - 46, -52, 190, .95) + palmblatt(64, h - 46, -14, 180, .95) + palmblatt(b - 64, h - 46, -166, 180, .95) + palmblatt(b - 64, h - 46, -128, 190, .95)
    return svg(b, h, tafel(b, h, 24, innen=tor(300, 1240, .55) + tor(1800, 1240, .55) + felder + blaetter), grunddefs())


def exchange():
    b, h = 980, 692
    return svg(b, h, tafel(b, h, 20), grunddefs())


def bezahlen():
    b, h = 2484, 2324
    kopf = papier(26, 26, b - 52, 488)
    return svg(b, h, holz(b, h) + kopf + "".join(nagel(x, y, 8) for x in (13, b - 13) for y in (13, 527)), grunddefs())


def karten():
    """Spieltisch: Nussbaum mit grünem Filz, auf den die Karte fällt."""
    b, h = 3072, 2180
    return svg(b, h, holz(b, h, "url(#nuss)") + f"""<rect x="84" y="84" width="{b - 168}" height="{h - 168}" rx="70" fill="#1c0c02" opacity=".8"/>
<rect x="92" y="92" width="{b - 184}" height="{h - 184}" rx="62" fill="url(#filz)"/><g opacity=".35"><rect x="92" y="92" width="{b - 184}" height="{h - 184}" rx="62" filter="url(#korn)"/></g>
<g opacity=".10"><rect x="92" y="92" width="{b - 184}" height="{h - 184}" rx="62" filter="url(#faser)"/></g>
<rect x="96" y="96" width="{b - 190}" height="{h - 190}" rx="60" fill="none" stroke="#03140c" stroke-width="26" opacity=".35"/>
<rect x="84" y="84" width="{b - 168}" height="{h - 168}" rx="70" fill="none" stroke="url(#gold)" stroke-width="9"/>
<rect x="150" y="150" width="{b - 300}" height="{h - 300}" rx="30" fill="none" stroke="#e2c77a" stroke-width="4" opacity=".4"/>""",
               grunddefs() + kugel("filz", [(0, "#4f9a68"), (.55, "#2d7048"), (1, "#143d28")], .36, .28, .85))


def menu2():
    """Anmeldung an der Rezeption."""
    b, h = 2956, 1572
    bild = (f'<rect x="330" y="402" width="802" height="480" rx="36" fill="#5c3419" opacity=".20"/><rect x="330" y="402" width="802" height="480" rx="36" fill="none" stroke="#a5763a" stroke-width="4" opacity=".6"/>'
            '<g filter="url(#schattengross)"><rect x="508" y="416" width="444" height="440" rx="12" fill="url(#nuss)"/></g><rect x="520" y="428" width="420" height="416" rx="6" fill="url(#gold)"/><rect x="528" y="436" width="404" height="400" fill="#2a1404"/>')
    buch = '<rect x="2310" y="400" width="576" height="730" rx="22" fill="#5c3419" opacity=".13"/>'
    wappen = (f'{palmblatt(690, 1120, 196, 250, 1.0)}{palmblatt(690, 1100, 156, 240, 1.0)}{palmblatt(770, 1120, -16, 250, 1.0)}{palmblatt(770, 1100, -56, 240, 1.0)}'
              f'<g transform="translate(594 940) scale(1.06)">{plakette()}</g>')
    tisch = glocke(2560, 156, 1.05) + schluessel(260, 180, -14, 1.0)
    return svg(b, h, tafel(b, h, 34, innen=bild + buch + wappen + messingschild(970, 92, 1016, 190, "Anmeldung", 112) + tisch), grunddefs() + SEE)


def hof():
    """Wand der Besten: tiefes Holz, Messingleisten, Lorbeer; Weiß bleibt darauf gut zu lesen."""
    b, h = 3200, 2476
    felder = ""
    for x, y, w, k in ((210, 400, 1330, 1850), (1620, 400, 1370, 1850)):
        felder += (f'<rect x="{x}" y="{y}" width="{w}" height="{k}" rx="26" fill="#07090e" opacity=".62"/><rect x="{x}" y="{y}" width="{w}" height="{k}" rx="26" fill="none" stroke="url(#gold)" stroke-width="7" opacity=".85"/>'
                   f'<rect x="{x + 18}" y="{y + 18}" width="{w - 36}" height="{k - 36}" rx="14" fill="none" stroke="#c9973a" stroke-width="2" opacity=".5"/>')
    def lorbeer(x, y, w, s):
        t = "".join(f'<ellipse transform="translate({18 * k} {-0.9 * k * k:.1f}) rotate({v - 5 * k})" cx="26" rx="26" ry="9.5" fill="{GOLD}"/>' for k in range(10) for v in (-38, 34))
        return f'<g transform="translate({x} {y}) scale({w * s} {s})" filter="url(#praegung)">{t}</g>'
    kopf = (f'<g filter="url(#schattengross)"><rect x="852" y="14" width="1380" height="308" rx="40" fill="#0b1424"/></g><rect x="852" y="14" width="1380" height="308" rx="40" fill="none" stroke="url(#gold)" stroke-width="12"/>'
            f'<rect x="880" y="40" width="1324" height="256" rx="24" fill="none" stroke="#e0b048" stroke-width="3" opacity=".7"/>')
    pokal = lambda x: (f'<g transform="translate({x} 196) scale(1.15)" filter="url(#schatten)"><g filter="url(#praegung)"><path d="M-54 -84H54Q56 -6 12 12V44H40V64H-40V44H-12V12Q-56 -6 -54 -84Z" fill="{GOLD}"/>'
                       f'<path d="M-56 -70Q-104 -70 -92 -28Q-82 2 -40 2L-46 -12Q-74 -14 -78 -34Q-80 -54 -54 -54ZM56 -70Q104 -70 92 -28Q82 2 40 2L46 -12Q74 -14 78 -34Q80 -54 54 -54Z" fill="{GOLD}"/></g><path d="M-36 -74Q-36 -20 -14 -4Q-26 -30 -24 -74Z" fill="#fff" opacity=".5"/></g>')
    return svg(b, h, f"""<rect width="{b}" height="{h}" fill="url(#wand)"/><g opacity=".8"><rect width="{b}" height="{h}" filter="url(#maserung)"/></g><g opacity=".5"><rect width="{b}" height="{h}" filter="url(#maserungfein)"/></g>
<rect width="{b}" height="{h}" fill="url(#saal)"/><rect x="26" y="26" width="{b - 52}" height="{h - 52}" rx="30" fill="none" stroke="url(#gold)" stroke-width="10" opacity=".8"/>
{felder}{kopf}{pokal(470)}{pokal(2690)}{lorbeer(560, 250, 1, 1.0)}{lorbeer(380, 250, -1, 1.0)}{lorbeer(2780, 250, 1, 1.0)}{lorbeer(2600, 250, -1, 1.0)}""",
               grunddefs() + verlauf("wand", [(0, "#3a2216"), (.5, "#24140c"), (1, "#120a06")], 0, 0, .2, 1) + kugel("saal", [(0, "#ffce86", .30), (.5, "#ffb060", .05), (1, "#000000", .55)], .5, .1, .95))


def dank():
    """Schwarzer Sternenabend über dem Meer."""
    b, h = 3316, 2484
    z = random.Random(4)
    sterne = "".join(f'<circle cx="{z.uniform(0, b):.0f}" cy="{z.uniform(0, h * .8) ** 1.0:.0f}" r="{z.choice((1.5, 2, 2.5, 3.5, 5))}" fill="{z.choice(("#ffffff", "#ffe9c0", "#cfe0ff"))}" opacity="{z.uniform(.3, 1):.2f}"/>' for _ in range(420))
    glanz = "".join(f'<path d="M{2660 + z.uniform(-120, 20) - 6 * k:.0f} {h - 330 + 20 * k}h{z.uniform(60, 220):.0f}" stroke="#ffe2a0" stroke-width="5" stroke-linecap="round" opacity="{z.uniform(.15, .5):.2f}"/>' for k in range(14))
    return svg(b, h, f"""<rect width="{b}" height="{h}" fill="url(#nacht)"/>{sterne}<circle cx="2720" cy="430" r="150" fill="#ffedbd" opacity=".25" filter="url(#sehrweich)"/><circle cx="2720" cy="430" r="118" fill="url(#mond)"/>
<rect y="{h - 360}" width="{b}" height="360" fill="url(#meer)"/>{glanz}<path d="M0 {h - 350}Q260 {h - 480} 520 {h - 470}T1040 {h - 352}Z" fill="#05070c"/>
<g transform="translate(400 {h - 640}) scale(2.2)" opacity=".96">{palmenbild("#04060a", "#04060a").replace('url(#bild)', '#04060a')}</g>""",
               kugel("mond", [(0, "#fffbe8"), (.7, "#f6dc9a"), (1, "#d9b060")], .4, .36, .7) + verlauf("nacht", [(0, "#05060c"), (.6, "#0a0f20"), (1, "#1c1a38")]) + verlauf("meer", [(0, "#141a34"), (1, "#04050a")]))


def ueber():
    """Das Blatt mit den Angaben; das Zeichen des Spiels liegt blass darunter."""
    b, h = 1632, 1524
    return svg(b, h, tafel(b, h, 22, innen=f'<g opacity=".10" transform="translate(436 640) scale(3)">{plakette()}</g>'), grunddefs() + SEE)


def hilfe():
    b, h = 1602, 1208          # halb so fein: das Textfeld deckt fast alles zu
    return svg(b, h, tafel(b, h, 14, oben=3, zierlinie=False), grunddefs())


# --- Knöpfe -----------------------------------------------------------------------------------------------------------------
def knopf(zustand):
    """Streckbild 240 mal 120 mit Ecken von 40 Punkten; die Mitte verläuft nur senkrecht."""
    farben = {"ruhe": [(0, "#fff7e2"), (.34, "#fbe6b8"), (.66, "#f0cd8c"), (1, "#dba75a")], "gedrueckt": [(0, "#c08a45"), (.34, "#d3a35c"), (.66, "#dcb06a"), (1, "#e8c484")],
              "gesperrt": [(0, "#efe9dc"), (.34, "#e6decd"), (.66, "#dcd2bd"), (1, "#cbbfa6")]}[zustand]
    defs = (verlauf("oben", [(0, "#fffdf2"), (.5, "#fffdf2", .8), (1, "#fffdf2", 0)]) + verlauf("unten", [(0, "#8a5a20", 0), (1, "#8a5a20")])
            + verlauf("tief", [(0, "#4a2608"), (1, "#4a2608", 0)]) + verlauf("kante", [(0, "#fff3d0", 0), (1, "#fff3d0")])) + verlauf("flaeche", farben) + verlauf("rahmen", [(0, "#b9803f"), (1, "#6b3d15")] if zustand != "gesperrt" else [(0, "#b5a68c"), (1, "#8f8068")])
    dy = 3 if zustand == "gedrueckt" else 0
    s = f'<rect x="5" y="9" width="230" height="107" rx="26" fill="#2a1204" opacity="{.5 if zustand == "ruhe" else .28}" filter="url(#weich)"/>'
    s += f'<rect x="4" y="{3 + dy}" width="232" height="110" rx="27" fill="url(#rahmen)"/>'
    if zustand != "gedrueckt":
        s += f'<rect x="9" y="{7 + dy}" width="222" height="102" rx="23" fill="#7a4a1c" opacity="{.9 if zustand == "ruhe" else .4}"/><rect x="9" y="{7 + dy}" width="222" height="97" rx="23" fill="url(#flaeche)"/>'
        s += f'<path d="M12 {46 + dy}V{30 + dy}Q12 {10 + dy} 32 {10 + dy}H208Q228 {10 + dy} 228 {30 + dy}V{46 + dy}" fill="none" stroke="url(#oben)" stroke-width="4.5" opacity="{.95 if zustand == "ruhe" else .6}"/>'
        s += f'<path d="M13 {80 + dy}Q13 {101 + dy} 34 {101 + dy}H206Q227 {101 + dy} 227 {80 + dy}" fill="none" stroke="url(#unten)" stroke-width="3" opacity=".45"/>'
    else:
        s += f'<rect x="9" y="{7 + dy}" width="222" height="102" rx="23" fill="url(#flaeche)"/><path d="M12 {60 + dy}V{30 + dy}Q12 {10 + dy} 32 {10 + dy}H208Q228 {10 + dy} 228 {30 + dy}V{60 + dy}" fill="none" stroke="url(#tief)" stroke-width="7" opacity=".5"/>'
        s += f'<path d="M14 {84 + dy}Q14 {105 + dy} 34 {105 + dy}H206Q226 {105 + dy} 226 {84 + dy}" fill="none" stroke="url(#kante)" stroke-width="3" opacity=".7"/>'
    return svg(240, 120, s, defs)


SEE = kugel("see", [(0, "#bfe8f4"), (1, "#4fa4d0")], .4, .2, .9)


def plakette():
    """Das Zeichen des Spiels: Palme am Strand auf Emaille."""
    return f"""<ellipse cx="132" cy="138" rx="112" ry="112" fill="#1c0c02" opacity=".5" filter="url(#weich)"/><g filter="url(#praegung)"><circle cx="128" cy="128" r="118" fill="{GOLD}"/></g>
<circle cx="128" cy="128" r="104" fill="url(#see)"/><clipPath id="r"><circle cx="128" cy="128" r="104"/></clipPath><g clip-path="url(#r)"><circle cx="176" cy="84" r="34" fill="#ffd35a"/>
<path d="M0 196Q60 150 128 186T256 178V256H0Z" fill="#e9c47a"/><path d="M0 220Q60 196 128 216T256 206V256H0Z" fill="#2f9ab8"/>
<g transform="translate(112 122) scale(1.12)">{palmenbild("#2b6b34", "#e9c47a").replace('url(#bild)', '#9a6a3a')}</g><path d="M24 24H232V84Q128 110 24 66Z" fill="#fff" opacity=".16"/></g>
<g filter="url(#praegung)"><path d="M78 206H178L168 236H88Z" fill="url(#rot)"/></g><text x="128" y="231" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="24" fill="#fff3d0">VELMO</text>"""


ALLE = {
    "formen/geldfeld/geldfeld.jpg": geldfeld, "formen/geldfeld/image1.png": lambda: geldhaufen("noten"), "formen/geldfeld/image2.png": lambda: geldhaufen("muenzen"),
    "formen/baufeld/baufeld.jpg": baufeld, "formen/baufeld/image1.jpg": bauplan, "formen/baufeld/image2.png": hammer,
    "formen/bauphase/bauphase.jpg": bauphase, "formen/eingang/eingang.jpg": eingang,
    "formen/exchange/exchange.jpg": exchange, "formen/exchange/image1.png": lambda: geldhaufen("tausch"),
    "formen/bezahlen/image3.jpg": bezahlen, "formen/karten/karten.jpg": karten,
    "formen/karten/image1.png": lambda: scheibenknopf("links"), "formen/karten/image2.png": lambda: scheibenknopf("rechts"), "formen/karten/image3.png": lambda: scheibenknopf("zu", 296),
    "formen/menu2/menu2.jpg": menu2, "formen/menu2/klickl.png": lambda: pfeil(True), "formen/menu2/klickr.png": lambda: pfeil(False),
    "formen/hof/hof.jpg": hof, "formen/dank/dank.jpg": dank, "formen/frmhilfe/frmhilfe.jpg": hilfe, "formen/Überf/Überf.jpg": ueber,
    "formen/knopf/ruhe.png": lambda: knopf("ruhe"), "formen/knopf/gedrueckt.png": lambda: knopf("gedrueckt"), "formen/knopf/gesperrt.png": lambda: knopf("gesperrt"),
}

if __name__ == "__main__":
    for pfad, zeichnen in ALLE.items():
        if len(sys.argv) == 1 or any(a in pfad for a in sys.argv[1:]):
            ausgeben(pfad, zeichnen())
