"""Die Knöpfe: Ruhe, gedrückt, gesperrt; und der runde Messingknopf der Besitzkarten."""
from zeichenteile import *


def scheibenknopf(zeichen, g=300):
    """Runde Messingscheibe auf Holz mit eingelassenem Zeichen."""
    m = g / 2
    bild = {"links": f"M{m + 34} {m - 66}L{m - 50} {m}L{m + 34} {m + 66}Z",
            "rechts": f"M{m - 34} {m - 66}L{m + 50} {m}L{m - 34} {m + 66}Z",
            "zu": f"M{m - 52} {m - 52}L{m + 52} {m + 52}M{m + 52} {m - 52}L{m - 52} {m + 52}"}[zeichen]
    farbe = "#a8281f" if zeichen == "zu" else "#5a3214"
    strich = ('fill="none" stroke-width="30" stroke-linecap="round"' if zeichen == "zu"
              else f'fill="{farbe}" stroke-width="22" stroke-linejoin="round"')
    return svg(g, g, f"""<ellipse cx="{m + 4}" cy="{m + 10}" rx="{m - 18}" ry="{m - 18}" fill="#1c0c02" opacity=".6"
 filter="url(#sehrweich)"/>
<g filter="url(#prägung)"><circle cx="{m}" cy="{m}" r="{m - 14}" fill="url(#holz)"/></g><clipPath id="k">
<circle cx="{m}" cy="{m}" r="{m - 15}"/></clipPath><g clip-path="url(#k)">
<rect width="{g}" height="{g}" filter="url(#maserung)" opacity=".6"/></g>
<g filter="url(#prägung)"><circle cx="{m}" cy="{m}" r="{m - 32}" fill="{GOLD}"/></g>
<circle cx="{m}" cy="{m}" r="{m - 44}" fill="#fff3cf" opacity=".35"/>
<path d="{bild}" {strich} stroke="#fff3c4" opacity=".8" transform="translate(2.5 3.5)"/>
<path d="{bild}" {strich} stroke="{farbe}"/>
<path d="M{m - 96} {m - 40}A104 104 0 0 1 {m + 40} {m - 96}Q{m - 40} {m - 84} {m - 96} {m - 40}Z" fill="#fff"
 opacity=".3"/>""", grunddefs())


def knopf(zustand):
    """Streckbild 240 mal 120 mit Ecken von 40 Punkten; die Mitte verläuft nur senkrecht."""
    farben = {"ruhe": [(0, "#fff7e2"), (.34, "#fbe6b8"), (.66, "#f0cd8c"), (1, "#dba75a")],
              "gedrückt": [(0, "#c08a45"), (.34, "#d3a35c"), (.66, "#dcb06a"), (1, "#e8c484")],
              "gesperrt": [(0, "#efe9dc"), (.34, "#e6decd"), (.66, "#dcd2bd"), (1, "#cbbfa6")]}[zustand]
    rahmen = ("#b5a68c", "#8f8068") if zustand == "gesperrt" else ("#b9803f", "#6b3d15")
    defs = (verlauf("oben", [(0, "#fffdf2"), (.5, "#fffdf2", .8), (1, "#fffdf2", 0)])
            + verlauf("unten", [(0, "#8a5a20", 0), (1, "#8a5a20")])
            + verlauf("tief", [(0, "#4a2608"), (1, "#4a2608", 0)])
            + verlauf("kante", [(0, "#fff3d0", 0), (1, "#fff3d0")])
            + verlauf("fläche", farben) + verlauf("rahmen", list(enumerate(rahmen))))
    dy = 3 if zustand == "gedrückt" else 0
    s = (f'<rect x="5" y="9" width="230" height="107" rx="26" fill="#2a1204" '
         f'opacity="{.5 if zustand == "ruhe" else .28}" filter="url(#weich)"/>')
    s += f'<rect x="4" y="{3 + dy}" width="232" height="110" rx="27" fill="url(#rahmen)"/>'
    if zustand != "gedrückt":
        s += (f'<rect x="9" y="{7 + dy}" width="222" height="102" rx="23" fill="#7a4a1c" '
              f'opacity="{.9 if zustand == "ruhe" else .4}"/><rect x="9" y="{7 + dy}" width="222" height="97" rx="23" '
              f'fill="url(#fläche)"/>')
        s += (f'<path d="M12 {46 + dy}V{30 + dy}Q12 {10 + dy} 32 {10 + dy}H208Q228 {10 + dy} 228 {30 + dy}V{46 + dy}" '
              f'fill="none" stroke="url(#oben)" stroke-width="4.5" opacity="{.95 if zustand == "ruhe" else .6}"/>')
        s += (f'<path d="M13 {80 + dy}Q13 {101 + dy} 34 {101 + dy}H206Q227 {101 + dy} 227 {80 + dy}" fill="none" '
              f'stroke="url(#unten)" stroke-width="3" opacity=".45"/>')
    else:
        s += (f'<rect x="9" y="{7 + dy}" width="222" height="102" rx="23" fill="url(#fläche)"/>'
              f'<path d="M12 {60 + dy}V{30 + dy}Q12 {10 + dy} 32 {10 + dy}H208Q228 {10 + dy} 228 {30 + dy}V{60 + dy}" '
              f'fill="none" stroke="url(#tief)" stroke-width="7" opacity=".5"/>')
        s += (f'<path d="M14 {84 + dy}Q14 {105 + dy} 34 {105 + dy}H206Q226 {105 + dy} 226 {84 + dy}" fill="none" '
              f'stroke="url(#kante)" stroke-width="3" opacity=".7"/>')
    return svg(240, 120, s, defs)
