"""Dinge aus dem Hotel, die auf den Dialogen liegen: Geld, Klingel, Schlüssel, Palmblatt, Schild und Zeichen."""
from zeichenteile import *



def scheine(wert, n=3):
    grund, tief, _, hell = NOTEN[wert][:4]
    s = ""
    for k in range(n):
        s += (f'<g transform="translate({-6 + 7 * k} {14 - 11 * k}) rotate({-5 + 2 * k})">'
              f'<rect x="-66" y="-36" width="132" height="72" rx="7" fill="{mischen(grund, "#2a1404", .25)}" '
              f'transform="translate(2 4)"/>'
              f'<rect x="-66" y="-36" width="132" height="72" rx="7" fill="{hell}"/><rect x="-66" y="-36" width="132" '
              f'height="72" rx="7" fill="{grund}" opacity=".8"/>'
              f'<rect x="-59" y="-29" width="118" height="58" rx="4" fill="none" stroke="{hell}" stroke-width="2.5"/>'
              f'<ellipse rx="24" ry="25" fill="{hell}" stroke="{tief}" stroke-width="3"/></g>')
    k, grad = n - 1, {2: 30, 3: 21}.get(len(str(wert)), 16)
    return (s + f'<text transform="translate({-6 + 7 * k} {14 - 11 * k}) rotate({-5 + 2 * k})" y="{grad / 3:.1f}" '
            f'text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" '
            f'font-size="{grad}" fill="{tief}">{wert}</text>')


def münzen(x, y, n, r=24):
    s = ""
    for k in range(n):
        yy = y - k * r * .36
        s += (f'<path d="M{x - r} {yy}V{yy + r * .32}A{r} {r * .46} 0 0 0 {x + r} {yy + r * .32}V{yy}Z" '
              f'fill="url(#münzrand)"/><ellipse cx="{x}" cy="{yy}" rx="{r}" ry="{r * .46}" fill="{GOLD}" '
              f'stroke="#8c5e1c" stroke-width="1.2"/>')
    return (s + f'<ellipse cx="{x}" cy="{y - (n - 1) * r * .36}" rx="{r * .72}" ry="{r * .31}" fill="none" '
            f'stroke="#8c5e1c" stroke-width="2" opacity=".6"/>')


MÜNZRAND = verlauf("münzrand", [(0, "#7a4f14"), (.25, "#f0c860"), (.5, "#b9821f"), (.8, "#e0b048"), (1, "#6a4210")], 0,
                   0, 1, 0)


def geldhaufen(art):
    inhalt = {"noten": f'<g transform="translate(92 '
              f'66)">{scheine(1000, 3)}</g>{münzen(142, 112, 3, 21)}{münzen(38, 118, 2, 18)}',
              "münzen": f'<g transform="translate(84 58) '
              f'scale(.82)">{scheine(50, 2)}</g>{münzen(46, 110, 4)}{münzen(94, 122, 2)}{münzen(136, 106, 5)}',
              "tausch": f'<g transform="translate(78 54) scale(.86) '
              f'rotate(-8)">{scheine(100, 2)}</g>{münzen(128, 116, 4, 23)}{münzen(72, 124, 2, 20)}'}[art]
    groß = 1 if art == "tausch" else 16 / 9      # neben den Grundstücken liegt es größer
    return svg(round(180 * groß), round(140 * groß),
               f'<g transform="scale({groß:.4f}) translate(6 -5) scale(.93)">'
               f'<g filter="url(#schatten)">{inhalt}</g></g>', grunddefs() + MÜNZRAND)


def hammer():
    return svg(148, 168, f"""<g filter="url(#schatten)"><g transform="translate(66 92) rotate(38) scale(.92)">
<g filter="url(#prägung)"><rect x="-10" y="-48" width="20" height="122" rx="9" fill="url(#holz)"/></g>
<rect x="-10" y="-48" width="20" height="122" rx="9" filter="url(#maserung)" opacity=".4"/><g filter="url(#prägung)">
<path d="M-46 -70H30Q48 -68 56 -46Q40 -52 28 -46H-46Q-52 -46 -52 -52V-64Q-52 -70 -46 -70Z" fill="url(#stahl)"/>
<rect x="-58" y="-74" width="16" height="32" rx="5" fill="url(#stahl)"/></g></g></g>""", grunddefs())


def pfeil(links, b=180, h=404):
    """Messingpfeil zum vorigen oder nächsten Bild."""
    x = (lambda t: b * t) if links else (lambda t: b * (1 - t))
    d = (f"M{x(.14)} {h * .5}L{x(.72)} {h * .2}Q{x(.86)} {h * .16} {x(.86)} {h * .28}V{h * .72}Q{x(.86)} {h * .84} "
         f"{x(.72)} {h * .8}Z")
    return svg(b, h, f'<g filter="url(#schatten)"><path d="{d}" fill="#5c3419" stroke="#5c3419" stroke-width="14" '
               f'stroke-linejoin="round"/><g filter="url(#prägung)"><path d="{d}" fill="{GOLD}" stroke="{GOLD}" '
               f'stroke-width="4" stroke-linejoin="round"/></g></g>', grunddefs())


def glocke(x, y, s=1.0):
    """Klingel der Rezeption."""
    return f"""<g transform="translate({x} {y}) scale({s})">
<ellipse cx="6" cy="64" rx="104" ry="20" fill="#2a1204" opacity=".45" filter="url(#weich)"/>
<g filter="url(#prägung)"><rect x="-92" y="40" width="184" height="24" rx="12" fill="#3a2a22"/>
<path d="M-80 42Q-80 -46 0 -48Q80 -46 80 42Z" fill="{GOLD}"/>
<rect x="-7" y="-66" width="14" height="22" fill="{GOLD}"/><circle cy="-70" r="13" fill="{GOLD}"/></g>
<path d="M-60 20Q-56 -26 -20 -36Q-44 -14 -46 22Z" fill="#fff" opacity=".65"/></g>"""


def schlüssel(x, y, w=0, s=1.0):
    """Zimmerschlüssel mit rotem Anhänger."""
    return f"""<g transform="translate({x} {y}) rotate({w}) scale({s})" ><g filter="url(#schatten)">
<path d="M0 -30Q40 -60 78 -34" fill="none" stroke="#c9973a" stroke-width="5"/>
<g filter="url(#prägung)">
<path d="M0 -78A44 44 0 1 1 -0.1 -78ZM0 -58A24 24 0 1 0 0.1 -58Z" fill="{GOLD}" fill-rule="evenodd"/>
<path d="M-8 8H8V118H40V134H26V146H40V162H-8Z" fill="{GOLD}"/></g></g>
<g transform="translate(118 6) rotate(24)" filter="url(#schatten)">
<path d="M-26 -52Q0 -66 26 -52L34 62Q0 80 -34 62Z" fill="url(#rot)"/><circle cy="-44" r="8" fill="#fff1cc"/>
<text y="34" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="46"
 fill="#fff1cc">7</text></g></g>"""


def palmblatt(x, y, w, l, s=1.0):
    """Fächerndes Palmblatt für die Ecken."""
    t = ""
    for k in range(1, 15):
        f = k / 15
        q = l * .36 * math.sin(math.pi * min(f * .92 + .1, 1)) + 6
        for seite in (-1, 1):
            a = seite * (1.0 - .45 * f)
            ex, ey = l * f + q * math.cos(a), q * math.sin(a) + 26 * f * f
            t += (f'<path d="M{l * f:.1f} {26 * f * f:.1f}Q{l * f + q * .6 * math.cos(a) - seite * 0:.1f} '
                  f'{q * .35 * math.sin(a) + 26 * f * f - seite * 2:.1f} {ex:.1f} '
                  f'{ey:.1f}Q{l * f + q * .45 * math.cos(a) + 9:.1f} {q * .62 * math.sin(a) + 26 * f * f:.1f} '
                  f'{l * f + 12:.1f} {26 * f * f:.1f}Z" fill="url(#blatt)" stroke="#2a5f2c" stroke-width=".8"/>')
    return (f'<g transform="translate({x} {y}) rotate({w}) scale({s})" filter="url(#schatten)">{t}<path d="M0 '
            f'0Q{l * .5} 4 {l} 26" fill="none" stroke="#cfe08a" stroke-width="3"/></g>')


def messingschild(x, y, b, h, text, größe):
    return (f'<g filter="url(#schatten)"><g filter="url(#prägung)"><rect x="{x}" y="{y}" width="{b}" height="{h}" '
            f'rx="{h * .24}" fill="{GOLD}"/></g></g>'
            f'<rect x="{x + 9}" y="{y + 9}" width="{b - 18}" height="{h - 18}" rx="{h * .17}" fill="none" '
            f'stroke="#8c5e1c" stroke-width="2.5" opacity=".7"/>'
            f'<text x="{x + b / 2 + 1.5}" y="{y + h * .5 + größe * .36 + 2}" text-anchor="middle" '
            f'font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="{größe}" letter-spacing="3" '
            f'fill="#fff4cc">{text}</text>'
            f'<text x="{x + b / 2}" y="{y + h * .5 + größe * .36}" text-anchor="middle" font-family="{SCHRIFT_EDEL}" '
            f'font-weight="bold" font-size="{größe}" letter-spacing="3" fill="#5a3210">{text}</text>'
            + nagel(x + 26, y + h / 2, 7) + nagel(x + b - 26, y + h / 2, 7))


SEE = kugel("see", [(0, "#bfe8f4"), (1, "#4fa4d0")], .4, .2, .9)


def plakette():
    """Das Zeichen des Spiels: Palme am Strand auf Emaille."""
    return f"""<ellipse cx="132" cy="138" rx="112" ry="112" fill="#1c0c02" opacity=".5" filter="url(#weich)"/>
<g filter="url(#prägung)"><circle cx="128" cy="128" r="118" fill="{GOLD}"/></g>
<circle cx="128" cy="128" r="104" fill="url(#see)"/><clipPath id="r"><circle cx="128" cy="128" r="104"/></clipPath>
<g clip-path="url(#r)"><circle cx="176" cy="84" r="34" fill="#ffd35a"/>
<path d="M0 196Q60 150 128 186T256 178V256H0Z" fill="#e9c47a"/>
<path d="M0 220Q60 196 128 216T256 206V256H0Z" fill="#2f9ab8"/>
<g transform="translate(112 122) scale(1.12)">{palme("#2b6b34", "#e9c47a").replace('url(#bild)', '#9a6a3a')}</g>
<path d="M24 24H232V84Q128 110 24 66Z" fill="#fff" opacity=".16"/></g>
<g filter="url(#prägung)"><path d="M78 206H178L168 236H88Z" fill="url(#rot)"/></g>
<text x="128" y="231" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="24"
 fill="#fff3d0">VELMO</text>"""
