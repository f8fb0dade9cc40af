"""Die Geldscheine von Velmo: fünf Werte, hochkant, als Stapel und als einzelner fliegender Schein."""
from zeichenteile import *

B, H = 292, 404      # ein Schein


def muschel(t, z):
    s = ""
    for i in range(11):
        w = math.radians(-75 + 15 * i)
        s += (f'<path d="M0 62 Q{40 * math.sin(w):.1f} {20 - 30 * math.cos(w):.1f} {72 * math.sin(w):.1f} '
              f'{40 - 84 * math.cos(w):.1f}" fill="none" stroke="{t}" stroke-width="2.2"/>')
    rand = kurve([(72 * math.sin(math.radians(-80 + 8 * i)) * (1.03 if i % 2 else 0.97),
                   40 - 84 * math.cos(math.radians(-80 + 8 * i)) * (1.03 if i % 2 else 0.97)) for i in range(21)])
    return (f'<path d="{rand}L14 66L-14 66Z" fill="url(#bild)" stroke="{t}" stroke-width="3"/>{s}'
            f'<path d="M-26 62Q0 52 26 62L18 78Q0 84 -18 78Z" fill="{z}" stroke="{t}" stroke-width="2.5"/>')


def segler(t, z):
    wellen = "".join(f'<path d="M-90 {62 + 11 * k}' + "".join(f'q9 {-7 if (i + k) % 2 else 7} 18 0' for i in range(10))
                     + f'" fill="none" stroke="{t}" stroke-width="2.4"/>' for k in range(4))
    return (f'<circle cx="46" cy="-44" r="24" fill="{z}" opacity=".75"/>'
            + "".join(f'<path d="M46 -44m{32 * math.cos(a):.1f} {32 * math.sin(a):.1f}l{10 * math.cos(a):.1f} '
                      f'{10 * math.sin(a):.1f}" stroke="{z}" stroke-width="3"/>'
                      for a in [i * math.pi / 6 for i in range(12)])
            + f'<path d="M-6 -78Q50 -20 44 36L-6 36Z" fill="url(#bild)" stroke="{t}" stroke-width="2.6"/>'
            f'<path d="M-14 -62Q-50 -8 -50 34L-14 36Z" fill="{z}" fill-opacity=".55" stroke="{t}" stroke-width="2.6"/>'
            f'<path d="M-10 -84V44" stroke="{t}" stroke-width="4"/>'
            f'<path d="M-64 44H58Q46 66 26 68H-38Q-58 62 -64 44Z" fill="{t}"/>{wellen}')


def leuchtturm(t, z):
    ringe = "".join(f'<path d="M{-24 + 2.1 * k:.1f} {60 - 24 * k}H{24 - 2.1 * k:.1f}L{22.9 - 2.1 * k:.1f} '
                    f'{48 - 24 * k}H{-22.9 + 2.1 * k:.1f}Z" fill="{z}"/>' for k in range(5))
    return (f'<path d="M14 -62L92 -92V-40Z M-14 -62L-92 -92V-40Z" fill="{z}" opacity=".38"/>'
            f'<path d="M-26 66L-12 -46H12L26 66Z" fill="url(#bild)" stroke="{t}" stroke-width="2.6"/>{ringe}'
            f'<path d="M-26 66L-12 -46H12L26 66Z" fill="none" stroke="{t}" stroke-width="2.6"/>'
            f'<rect x="-19" y="-52" width="38" height="7" rx="2" fill="{t}"/><rect x="-11" y="-72" width="22" '
            f'height="20" fill="#fff3c0" stroke="{t}" stroke-width="2.4"/>'
            f'<path d="M-16 -72Q0 -100 16 -72Z" fill="{t}"/><path d="M-78 84Q-60 58 -30 62Q0 54 32 62Q62 60 80 84L80 '
            f'100H-80Z" fill="{t}" opacity=".85"/>'
            f'<rect x="-6" y="34" width="12" height="24" rx="6" fill="{t}"/>')


def palast(t, z):
    säulen = "".join(f'<rect x="{x}" y="2" width="9" height="52" fill="url(#bild)" stroke="{t}" stroke-width="2"/>'
                     for x in range(-68, 66, 18))
    return (f'<path d="M-38 -18A38 42 0 0 1 38 -18Z" fill="{z}" stroke="{t}" stroke-width="2.6"/>'
            + "".join(f'<path d="M0 -60Q{x} -42 {x * 1.25:.0f} -18" fill="none" stroke="{t}" stroke-width="1.8"/>'
                      for x in (-22, -10, 0, 10, 22))
            + f'<path d="M0 -60V-88M0 -88L22 -80L0 -72" stroke="{t}" stroke-width="3" fill="{z}"/>'
            f'<rect x="-76" y="-18" width="152" height="18" fill="url(#bild)" stroke="{t}" stroke-width="2.6"/>{säulen}'
            f'<path d="M-86 54H86V64H-86ZM-92 66H92V76H-92Z" fill="url(#bild)" stroke="{t}" stroke-width="2.4"/>'
            f'<path d="M-12 54V24A12 14 0 0 1 12 24V54Z" fill="{t}"/>'
            f'<circle cx="-76" cy="-28" r="11" fill="{z}" stroke="{t}" stroke-width="2.4"/>'
            f'<circle cx="76" cy="-28" r="11" fill="{z}" stroke="{t}" stroke-width="2.4"/>')


def rosette(cx, cy, r, farbe, zacken, n=9, dick=0.8):
    """Guilloche: verdrehte Blütenkurven."""
    s = ""
    for k in range(n):
        d = k * 2 * math.pi / zacken / n
        p = [(cx + r * (0.74 + 0.26 * math.cos(zacken * (t + d))) * (1 - 0.035 * k) * math.cos(t),
              cy + r * (0.74 + 0.26 * math.cos(zacken * (t + d))) * (1 - 0.035 * k) * math.sin(t))
             for t in [i * 2 * math.pi / (zacken * 10) for i in range(zacken * 10)]]
        s += f'<path d="{kurve(p, True)}" fill="none" stroke="{farbe}" stroke-width="{dick}"/>'
    return s


def wellengrund(farbe, zweite):
    s = ""
    for k in range(26):
        y = 10 + k * 16
        p = [(x, y + 13 * math.sin(x / 27 + k * 0.42) + 5 * math.sin(x / 9.5 - k * 0.8)) for x in range(-4, B + 8, 7)]
        s += f'<path d="{kurve(p)}" fill="none" stroke="{farbe if k % 2 else zweite}" stroke-width="1.1" opacity=".5"/>'
    return s


def schmuck(grund, tief, papier):
    """Verläufe und Umrisse eines Scheins."""
    return (verlauf("papier", [(0, mischen(papier, "#ffffff", .35)), (.45, papier), (1, mischen(papier, grund, .42))],
                    0, 0, 1, 1)
            + kugel("mitte", [(0, "#fffdf2"), (.62, mischen(papier, "#ffffff", .4)), (1, mischen(papier, grund, .6))],
                    .42, .36, .72)
            + verlauf("bild", [(0, "#fffaf0"), (.5, mischen(grund, "#ffffff", .45)), (1, mischen(grund, tief, .35))],
                      0, 0, 1, .6)
            + verlauf("band", [(0, mischen(grund, "#ffffff", .12)), (.5, grund), (1, mischen(grund, tief, .45))], 0, 0,
                      1, 1)
            + verlauf("ziffer", [(0, mischen(tief, grund, .35)), (.5, tief), (1, mischen(tief, "#000000", .3))])
            + verlauf("glanz", [(0, "#ffffff", .42), (.3, "#ffffff", 0), (.72, "#3a2208", 0), (1, "#3a2208", .26)], 0,
                      0, 1, .9)
            + verlauf("silber", [(0, "#8d99a3"), (.35, "#f4f8fa"), (.6, "#a9b6be"), (1, "#eef4f6")], 0, 0, .2, 1)
            + f'<clipPath id="blatt"><rect width="{B}" height="{H}" rx="12"/></clipPath>'
            + '<clipPath id="oval"><ellipse cx="146" cy="232" rx="98" ry="104"/></clipPath>')


def schein(wert):
    """Ein Schein als Gruppe von 292 mal 404 Punkten samt seinen Verläufen."""
    grund, tief, zwei, papier, bild, wort = NOTEN[wert]
    defs = schmuck(grund, tief, papier)
    ziffer = {2: 112, 3: 108, 4: 88}[len(str(wert))]
    schraffur = "".join(f'<path d="M40 {y}q54 {6 * math.sin(y):.1f} 106 0t106 0" stroke="{tief}" stroke-width=".9" '
                        f'opacity=".3" fill="none"/>' for y in range(126, 340, 5))
    perlen = "".join(f'<circle cx="{146 + 103 * math.cos(a):.1f}" cy="{232 + 109 * math.sin(a):.1f}" r="2.6" '
                     f'fill="{papier}"/>' for a in [i * math.pi / 30 for i in range(60)])
    g = f"""<g clip-path="url(#blatt)">
<rect width="{B}" height="{H}" fill="url(#papier)"/>
{wellengrund(grund, zwei)}
<g opacity=".55">{rosette(146, 232, 176, grund, 14, 10, 1)}</g>
<g opacity=".5">{rosette(28, 372, 62, zwei, 9, 7)}{rosette(264, 40, 66, zwei, 9, 7)}</g>
<ellipse cx="146" cy="232" rx="108" ry="114" fill="url(#band)" stroke="{tief}" stroke-width="2"/>
<g opacity=".8">{perlen}</g>
<ellipse cx="146" cy="232" rx="98" ry="104" fill="url(#mitte)" stroke="{tief}" stroke-width="2.5"/>
<g clip-path="url(#oval)">{schraffur}<g transform="translate(146 240) scale(1.02)">{BILDER[bild](tief, zwei)}</g></g>
<path d="M0 118V0H{B}V118Q{B // 2} 100 0 118Z" fill="url(#papier)" opacity=".78"/>
<text x="146" y="98" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" font-size="{ziffer}"
 fill="url(#ziffer)" stroke="#fffdf4" stroke-width="7" stroke-linejoin="round" paint-order="stroke">{wert}</text>
<path d="M0 346H{B}V{H}H0Z" fill="url(#band)" opacity=".92"/>
<text x="146" y="380" text-anchor="middle" font-family="{SCHRIFT}" font-weight="bold"
 font-size="{22 if len(wort) < 15 else 20}" letter-spacing="1" fill="#fffbe8" stroke="{tief}" stroke-width="4"
 paint-order="stroke">{wort}</text>
<rect x="255" y="118" width="11" height="228" fill="url(#silber)" opacity=".85"/>
<text transform="translate(20 340) rotate(-90)" font-family="{SCHRIFT}" font-weight="bold" font-size="19"
 letter-spacing="3" fill="{tief}">BANK VON VELMO</text>
<rect x="7" y="7" width="{B - 14}" height="{H - 14}" rx="8" fill="none" stroke="{tief}" stroke-width="2.4"
 opacity=".75"/>
<rect x="12" y="12" width="{B - 24}" height="{H - 24}" rx="5" fill="none" stroke="{tief}" stroke-width=".9"
 opacity=".6"/>
<rect width="{B}" height="{H}" filter="url(#korn)" opacity=".5"/>
<rect width="{B}" height="{H}" fill="url(#glanz)"/>
</g>
<rect x="1" y="1" width="{B - 2}" height="{H - 2}" rx="11" fill="none" stroke="#fffdf0" stroke-width="2" opacity=".8"/>
<path d="M{B} 12V{H - 12}Q{B} {H} {B - 12} {H}H12" fill="none" stroke="{mischen(tief, '#000000', .2)}"
 stroke-width="2.5" opacity=".55"/>"""
    return g, defs


def stapel(wert):
    """Hochkant gereihte Scheine, wie die Brettkamera sie sieht: vorn der ganze, dahinter die Oberkanten."""
    g, defs = schein(wert)
    zufall = random.Random(wert)
    s, n = "", 9
    for k in range(n):
        f = k / (n - 1)
        x = 16 + zufall.uniform(-9, 9) * (1 - f)
        y = 14 + 138 * f ** 1.05
        w = zufall.uniform(-2.6, 2.6) * (1 - f)
        dunkel = 0.30 * (1 - f)
        s += (f'<g transform="translate({x:.1f} {y:.1f}) rotate({w:.2f} {B / 2} {H})">'
              f'<rect x="5" y="-3" width="{B}" height="{H}" rx="12" fill="#1d1006" opacity=".5" filter="url(#weich)"/>'
              f'<use xlink:href="#schein"/><rect width="{B}" height="{H}" rx="12" fill="#2a1404" '
              f'opacity="{dunkel:.2f}"/></g>')
    # unten steht der Stapel in einer Holzleiste
    leiste = (f'<g transform="translate(0 556)"><rect x="4" y="0" width="316" height="130" rx="16" '
              f'fill="url(#leiste)"/>'
              f'<rect x="4" y="0" width="316" height="130" rx="16" filter="url(#maserung)" opacity=".8"/>'
              f'<rect x="6" y="2" width="312" height="14" rx="9" fill="#ffe9bd" opacity=".55"/>'
              f'<rect x="4" y="96" width="316" height="34" rx="16" fill="#2a1404" opacity=".35"/></g>')
    defs += f'<g id="schein">{g}</g>' + verlauf("leiste", [(0, "#d39a5c"), (.2, "#b97b3f"), (1, "#6f4119")])
    return svg(324, 684, f'<g>{s}</g><ellipse cx="162" cy="558" rx="158" ry="14" fill="#1d1006" opacity=".45" '
               f'filter="url(#weich)"/>{leiste}', defs)


def einzeln(wert):
    g, defs = schein(wert)
    return svg(324, 433, f'<g transform="translate(14 12) rotate(-1.2 146 202)"><g filter="url(#schatten)">'
               f'<rect width="{B}" height="{H}" rx="12" fill="{NOTEN[wert][3]}"/></g>{g}</g>', defs)


def tauschen():
    """Zwei Scheine und der Kreis der Pfeile: Geld umtauschen."""
    teile = ""
    for wert, x, y, w in ((5000, 8, 6, -14), (100, 62, 34, 11)):
        grund, tief, zwei, papier, _, _ = NOTEN[wert]
        teile += (f'<g transform="translate({x} {y}) rotate({w} 46 56)" filter="url(#schatten)">'
                  f'<rect width="84" height="112" rx="9" fill="{papier}"/>'
                  f'<rect width="84" height="112" rx="9" fill="{grund}" opacity=".75"/>'
                  f'<ellipse cx="42" cy="68" rx="29" ry="32" fill="{papier}"/>'
                  f'<ellipse cx="42" cy="68" rx="29" ry="32" fill="none" stroke="{tief}" stroke-width="4"/>'
                  f'<path d="M42 46l6 15h16l-13 10 5 16-14-10-14 10 5-16-13-10h16z" fill="{zwei}" stroke="{tief}" '
                  f'stroke-width="2"/>'
                  f'<text x="42" y="29" text-anchor="middle" font-family="{SCHRIFT_EDEL}" font-weight="bold" '
                  f'font-size="{27 if wert == 5000 else 31}" fill="{tief}" stroke="{papier}" stroke-width="4" '
                  f'paint-order="stroke">{wert}</text>'
                  f'<rect x="1" y="1" width="82" height="110" rx="8" fill="none" stroke="#fff" stroke-width="2" '
                  f'opacity=".7"/></g>')
    pfeil = "M-30 -4A31 31 0 0 1 19 -24L25 -34L38 -6L8 -4L14 -14A18 18 0 0 0 -16 -2Z"
    teile += (f'<g transform="translate(80 112)" filter="url(#schatten)"><circle r="43" fill="url(#mz)"/>'
              f'<circle r="43" fill="none" stroke="#8c5e1c" stroke-width="2.5"/><circle r="38" fill="none" '
              f'stroke="#fff0bd" stroke-width="2" opacity=".8"/>'
              f'<g fill="#3f7d2b" stroke="#fffbe0" stroke-width="3" stroke-linejoin="round" paint-order="stroke">'
              f'<path transform="scale(.92) translate(0 -2)" d="{pfeil}"/><path transform="rotate(180) scale(.92) '
              f'translate(0 -2)" d="{pfeil}"/></g></g>')
    return svg(160, 160, tastenkörper() + f'<g transform="translate(27 24) scale(.68)">{teile}</g>',
               kugel("mz", [(0, "#fff3c4"), (.45, "#efc258"), (1, "#b4781f")])
               + verlauf("taste", [(0, "#fff7e2"), (.34, "#fbe6b8"), (.66, "#f0cd8c"), (1, "#dba75a")])
               + verlauf("kante", [(0, "#b9803f"), (1, "#6b3d15")]))


def tastenkörper():
    """Eine Taste wie die Knöpfe der Dialoge."""
    return ('<rect x="8" y="12" width="146" height="144" rx="28" fill="#1c0c02" opacity=".55" filter="url(#weich)"/>'
            '<rect x="5" y="4" width="150" height="150" rx="28" fill="url(#kante)"/>'
            '<rect x="10" y="8" width="140" height="138" rx="24" fill="#7a4a1c"/>'
            '<rect x="10" y="8" width="140" height="132" rx="24" fill="url(#taste)"/>'
            '<path d="M15 38Q15 13 38 13H122Q145 13 145 38" fill="none" stroke="#fffdf2" stroke-width="4" '
            'stroke-linecap="round" '
            'opacity=".8"/>')


BILDER = dict(muschel=muschel, palme=palme, segler=segler, leuchtturm=leuchtturm, palast=palast)


def mache(datei):
    name = Path(datei).stem
    if name == "picture2":
        return ausgeben(datei, tauschen())
    ausgeben(datei, (stapel if name[0] == "g" else einzeln)(int(name[1:])))
