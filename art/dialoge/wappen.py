"""Die Wappen der acht Hotels als Emailleschilder für die Bildknöpfe; der Knopf schreibt den Namen darunter."""
from zeichenteile import *


def stern(cx, cy, r, r2, n=5, start=-90):
    p = [(cx + (r if i % 2 == 0 else r2) * math.cos(math.radians(start + 180 * i / n)),
          cy + (r if i % 2 == 0 else r2) * math.sin(math.radians(start + 180 * i / n))) for i in range(2 * n)]
    return "M" + "L".join(f"{x:.1f} {y:.1f}" for x, y in p) + "Z"


def royal():
    return (f'<g filter="url(#prägung)"><path d="M-46 26L-54 -22L-26 2L0 -38L26 2L54 -22L46 26Z" fill="{GOLD}" '
            f'stroke="{GOLD}" stroke-width="6" stroke-linejoin="round"/>'
            + "".join(f'<circle cx="{x}" cy="{y}" r="{r}" fill="{f}"/>' for x, y, r,
                      f in ((-54, -26, 8, "#e04848"), (0, -42, 9, "#e04848"), (54, -26, 8, "#e04848")))
            + f'<rect x="-50" y="26" width="100" height="17" rx="8" fill="{GOLD}"/></g>'
            + "".join(f'<circle cx="{x}" cy="34" r="4.5" fill="{f}" stroke="#7a4a10" stroke-width="1"/>' for x,
                      f in ((-30, "#3f7fd0"), (0, "#e04848"), (30, "#3f7fd0"))))


def fujijama():
    return ('<circle cx="22" cy="-26" r="25" fill="#e2483c"/>'
            '<g filter="url(#prägung)"><path d="M-80 60Q-36 30 -14 -24Q-8 -34 0 -33Q8 -34 14 -24Q36 30 80 60Z" '
            'fill="#5a6fae"/>'
            '<path d="M-31 12Q-20 -8 -14 -24Q-8 -34 0 -33Q8 -34 14 -24Q20 -8 31 12L18 4L10 18L0 6L-10 18L-18 4Z" '
            'fill="#fffdf8"/></g>'
            + "".join(f'<g transform="translate({x} {y}) rotate({w})">'
                      + "".join(f'<ellipse transform="rotate({72 * i})" cx="0" cy="-5.5" rx="4" ry="5.5" '
                                f'fill="#ffd3de"/>' for i in range(5)) + '<circle r="2.4" fill="#c83a62"/></g>' for x,
                      y, w in ((-44, -20, 0), (-52, 22, 20), (47, 34, 40))))


def president():
    s = "".join(f'<rect x="{x}" y="-12" width="12" height="44" rx="3" fill="url(#marmor)"/>'
                for x in (-46, -26, 14, 34))
    return (f'<g filter="url(#prägung)"><path d="M-60 -16L0 -48L60 -16Z" fill="url(#marmor)"/>'
            f'<rect x="-58" y="-18" width="116" height="8" fill="url(#marmor)"/>{s}'
            '<rect x="-58" y="32" width="116" height="8" rx="2" fill="url(#marmor)"/><rect x="-66" y="40" width="132" '
            'height="9" rx="2" fill="url(#marmor)"/>'
            f'<rect x="-10" y="-10" width="20" height="42" rx="3" fill="#7a4a2a"/><path d="{stern(0, -28, 10, 4.2)}" '
            f'fill="{GOLD}"/></g>')


def taj():
    turm = (lambda x: f'<rect x="{x - 4}" y="-22" width="8" height="62" fill="url(#marmor)"/>'
            f'<path d="M{x - 7} -22Q{x - 8} -34 {x} -42Q{x + 8} -34 {x + 7} -22Z" fill="url(#marmor)"/>')
    bogen = (lambda x, b, h: f'<path d="M{x - b} 40V{40 - h + b}Q{x - b} {40 - h} {x} {40 - h - b * .7:.1f}Q{x + b} '
             f'{40 - h} {x + b} {40 - h + b}V40Z" fill="#4d8fa8"/>')
    return (f'<g filter="url(#prägung)">{turm(-56)}{turm(56)}<path d="M-24 -4Q-34 -26 0 -52Q34 -26 24 -4Z" '
            f'fill="url(#marmor)"/><rect x="-2" y="-62" width="4" height="14" fill="{GOLD}"/>'
            '<path d="M-42 -2Q-45 -14 -34 -20Q-24 -14 -27 -2ZM42 -2Q45 -14 34 -20Q24 -14 27 -2Z" fill="url(#marmor)"/>'
            '<rect x="-46" y="-4" width="92" height="44" rx="2" fill="url(#marmor)"/>'
            f'{bogen(0, 12, 28)}{bogen(-31, 7, 16)}{bogen(31, 7, 16)}<rect x="-66" y="40" width="132" height="10" '
            f'rx="3" fill="url(#marmor)"/></g>')


def boomerang():
    return ('<circle cx="26" cy="-22" r="24" fill="#ffd35a"/><path d="M-80 34Q-30 16 10 30T80 26V80H-80Z" '
            'fill="#a83f22"/>'
            '<g filter="url(#prägung)" transform="rotate(-14)"><path d="M-50 34Q-58 30 -55 22Q-34 -38 4 -40Q44 -36 58 '
            '18Q58 28 48 27Q30 -8 4 -10Q-22 -8 -40 32Q-44 37 -50 34Z" fill="#8a4f24"/></g>'
            '<g transform="rotate(-14)" fill="none" stroke="#ffe2a0" stroke-width="4" stroke-linecap="round">'
            '<path d="M-44 18L-36 22M-38 6L-29 11M33 -6L42 -12M40 4L50 -1"/>'
            '</g><g transform="rotate(-14)" fill="#fff3d0">'
            + "".join(f'<circle cx="{x}" cy="{y}" r="3.4"/>' for x,
                      y in ((-22, -12), (-12, -19), (0, -24), (12, -22), (23, -16))) + '</g>')


def etoile():
    return (f'<g filter="url(#prägung)"><path d="{stern(0, 2, 54, 22)}" fill="{GOLD}" stroke="{GOLD}" '
            f'stroke-width="5" stroke-linejoin="round"/></g>'
            f'<path d="{stern(0, 2, 34, 14)}" fill="none" stroke="#fff6cf" stroke-width="2.5" opacity=".8"/>'
            + "".join(f'<path d="{stern(x, y, 9, 3.6)}" fill="#fff3c0"/>' for x,
                      y in ((-46, -34), (47, -32), (-50, 30), (50, 32))))


def waikiki():
    return ('<circle cx="-26" cy="-20" r="22" fill="#ffd35a"/><g filter="url(#prägung)"><path d="M-80 30Q-58 6 -36 '
            '22Q-14 38 8 20Q30 4 52 20Q66 28 80 20V80H-80Z" fill="#1d86b8"/>'
            '<path d="M-80 42Q-58 24 -36 36Q-14 48 8 36Q30 24 52 36Q66 42 80 36V80H-80Z" fill="#5cc4d8"/></g>'
            f'<g transform="translate(20 4) scale(.62)"><path d="M-8 70Q-2 10 12 -34L22 -31Q10 20 10 72Z" '
            f'fill="#8a5a30"/>' + "".join(wedel(16, -34, math.radians(w), l, "#2f8a3c") for w,
                                          l in ((-172, 60), (-138, 58), (-98, 44), (-60, 48), (-28, 58), (4, 58)))
            + '</g><path d="M-80 42Q-58 24 -36 36Q-14 48 8 36Q30 24 52 36Q66 42 80 36" fill="none" stroke="#fff" '
            'stroke-width="4" opacity=".85"/>')


def safari():
    return ('<circle cx="-14" cy="4" r="34" fill="#ffb03a"/><path d="M-80 38Q-20 24 80 36V80H-80Z" fill="#8a6a24"/>'
            '<g filter="url(#prägung)" fill="#4a3a14"><path d="M34 40Q36 10 30 -8L18 -22L24 -20L33 -12L36 -28L40 '
            '-10L54 -24L44 -6Q42 14 44 40Z"/>'
            '<path d="M-4 -22Q6 -42 34 -40Q66 -40 72 -22Q52 -16 34 -18Q12 -14 -4 -22Z" fill="#5f7a2a"/></g>'
            '<g fill="#5a3512"><path d="M-52 42L-50 16Q-50 8 -44 6L-34 8L-26 -18Q-26 -24 -21 -26L-20 -32L-18 -27Q-8 '
            '-24 -6 -19L-14 -17Q-18 -14 -20 -6L-24 14L-26 42H-30L-31 20L-42 20L-44 42H-48Z"/></g>'
            + "".join(f'<circle cx="{x}" cy="{y}" r="2" fill="#f0c070"/>' for x,
                      y in ((-44, 12), (-38, 14), (-30, 10), (-26, 2), (-24, -8), (-33, 16))))


# Schlüssel des Knopfes: Bild, Feldfarbe hell, Feldfarbe tief
WAPPEN = [(royal, "#7a4fb0", "#3d2168"), (fujijama, "#cfe6f2", "#7fb0d0"), (president, "#4f7fc4", "#1f3f7a"),
          (taj, "#f2b98a", "#c9784a"),
          (boomerang, "#f29a5a", "#c4522a"), (etoile, "#3f5fa8", "#16265a"), (waikiki, "#a9e2ef", "#4fb4d4"),
          (safari, "#ffe0a0", "#e0963a")]
NAMEN = ("Royal", "Fujijama", "President", "Taj Mahal", "Boomerang", "L'Étoile", "Waikiki", "Safari")


def mulde(k, x, y):
    """Der leere Platz eines Bildknopfs auf dem Papier: blass, welches Hotel hier fehlt."""
    return (f'<rect x="{x - 8}" y="{y - 8}" width="340" height="260" rx="14" fill="#5c3419" opacity=".14"/>'
            f'<g transform="translate({x + 162} {y + 92})" opacity=".26"><ellipse rx="94" ry="70" fill="none" '
            f'stroke="#5c3419" stroke-width="7"/>{WAPPEN[k][0]()}</g>'
            f'<text x="{x + 162}" y="{y + 216}" text-anchor="middle" font-family="{SCHRIFT}" font-size="46" '
            f'fill="#5c3419" opacity=".75">{NAMEN[k]}</text>')


def schild(k):
    zeichnen, hell, tief = WAPPEN[k]
    defs = (verlauf("gold", [(0, "#fff0b0"), (.45, "#eebb45"), (1, "#a8701c")], 0, 0, .6, 1)
            + verlauf("marmor", [(0, "#ffffff"), (.6, "#f3ece0"), (1, "#c9bda8")], 0, 0, .5, 1)
            + kugel("feld", [(0, hell), (1, tief)], .38, .3, .8) + '<clipPath id="rund"><ellipse rx="94" ry="70"/>'
            '</clipPath>'
            + verlauf("glas", [(0, "#ffffff", .5), (.5, "#ffffff", .06), (.55, "#ffffff", 0)]))
    return svg(232, 176, f"""<g transform="translate(114 84)">
<ellipse cx="4" cy="8" rx="103" ry="78" fill="#2a1404" opacity=".5" filter="url(#weich)"/>
<g filter="url(#prägung)"><ellipse rx="104" ry="79" fill="{GOLD}"/></g><ellipse rx="94" ry="70" fill="#3a2208"/>
<ellipse rx="93" ry="69" fill="url(#feld)"/>
<g clip-path="url(#rund)"><g transform="translate(0 5) scale(1.13)">{zeichnen()}</g>
<ellipse rx="94" ry="70" fill="none" stroke="#2a1404" stroke-width="9" opacity=".28" transform="translate(3 4)"/>
<path d="M-94 -70H94V-20Q0 -2 -94 -30Z" fill="url(#glas)"/></g></g>""", defs)


def mache(datei):
    ausgeben(datei, schild(int(Path(datei).stem.removeprefix("sscommand")) - 1))
