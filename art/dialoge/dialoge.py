"""Die Hintergründe der Dialoge: warmes Papier auf Holz, Messing; ihre Dinge, Zeichen und Knöpfe."""
from dialoge.dinge import *
from dialoge.knöpfe import knopf, scheibenknopf
from dialoge.wappen import mulde


def geldfeld():
    b, h = 1444, 620
    return svg(b, h, tafel(b, h), grunddefs())


def baufeld():
    b, h = 1984, 920
    return svg(b, h, tafel(b, h), grunddefs())


def bauplan():
    """Bauplan auf Millimeterpapier; die Linien bleiben blass hinter Text und Knöpfen."""
    b, h = 1844, 564
    netz = "".join(f'<path d="M{x} 0V{h}" stroke="#5f93b8" stroke-width="{1.6 if x % 100 == 0 else .7}" '
                   f'opacity="{.5 if x % 100 == 0 else .3}"/>' for x in range(0, b, 20))
    netz += "".join(f'<path d="M0 {y}H{b}" stroke="#5f93b8" stroke-width="{1.6 if y % 100 == 0 else .7}" '
                    f'opacity="{.5 if y % 100 == 0 else .3}"/>' for y in range(0, h, 20))
    riss = ("M120 470V180H420V90H760V180H1040V470Z M120 330H420 M420 180V470 M760 180V470 M760 330H1040 M560 "
            "90V300H620 M420 300H520 M660 300H760 "
            "M1240 480V250L1420 120L1600 250V480Z M1240 250H1600 M1390 480V380H1450V480 M1290 300H1350V350H1290Z "
            "M1490 300H1550V350H1490Z")
    maß = "M120 505H1040M120 495V515M1040 495V515M1640 120V480M1630 120H1650M1630 480H1650"
    return svg(b, h, f"""<g><rect width="{b}" height="{h}" fill="#eef4f2"/>
<rect width="{b}" height="{h}" fill="url(#papier)" opacity=".35"/><g>{netz}</g>
<path d="{riss}" fill="none" stroke="#2f6fa8" stroke-width="5" opacity=".34"/>
<path d="{maß}" fill="none" stroke="#b0483a" stroke-width="3" opacity=".4"/>
<circle cx="590" cy="390" r="46" fill="none" stroke="#2f6fa8" stroke-width="4" opacity=".34"/>
<g opacity=".16"><rect width="{b}" height="{h}" filter="url(#faser)"/></g><g opacity=".25">
<rect width="{b}" height="{h}" filter="url(#korn)"/></g>
<rect width="{b}" height="{h}" fill="url(#licht)" opacity=".5"/>
<path d="M{b * .333:.0f} 0V{h}M{b * .667:.0f} 0V{h}" stroke="#3a2a1a" stroke-width="7" opacity=".07"/>
<path d="M{b * .333 - 6:.0f} 0V{h}M{b * .667 - 6:.0f} 0V{h}" stroke="#fff" stroke-width="5" opacity=".5"/></g>
{nagel(40, 40, 13)}{nagel(b - 40, 40, 13)}{nagel(40, h - 42, 13)}{nagel(b - 40, h - 42, 13)}""", grunddefs())


def kran(x, y, s):
    """Blasser Baukran als Wasserzeichen."""
    gitter = "".join(f'M{-20} {-40 * k}L20 {-40 * (k + 1)}M20 {-40 * k}L-20 {-40 * (k + 1)}' for k in range(9))
    arm = "".join(f'M{30 + 40 * k} -360L{50 + 40 * k} -396L{70 + 40 * k} -360' for k in range(8))
    return (f'<g transform="translate({x} {y}) scale({s})" fill="none" stroke="#a5763a" stroke-width="7" '
            f'opacity=".30"><path d="M-20 0V-380M20 0V-380{gitter}M-120 -360H360M-100 -396H350M0 -470L-120 -372M0 '
            f'-470L350 -390M0 -470V-380{arm}M300 -360V-230M286 -230H314M300 -230q22 26 0 44q-22 4 -24 -14"/>'
            '<rect x="-140" y="-372" width="60" height="60"/></g>')


def bauphase():
    b, h = 1952, 1148
    felder = "".join(mulde(k, (600 + 1200 * (k % 4)) / 3, (840 + 840 * (k // 4)) / 3) for k in range(8))
    return svg(b, h, tafel(b, h, 20, innen=kran(1560, 1090, .55) + felder), grunddefs())


def tor(x, y, s):
    """Blasses Gartentor als Wasserzeichen."""
    stab = "".join(f'M{v} 0V{-150 - 60 * math.cos(v / 130 * 1.5):.0f}' for v in range(-120, 121, 30))
    return (f'<g transform="translate({x} {y}) scale({s})" fill="none" stroke="#a5763a" stroke-width="9" '
            f'opacity=".28"><path d="M-150 0V-230M150 0V-230M-130 -40H130M-130 -140H130{stab}M-132 -160Q0 -290 132 '
            f'-160"/><circle cx="-150" cy="-250" r="18"/><circle cx="150" cy="-250" r="18"/></g>')


def eingang():
    b, h = 2120, 1300
    felder = "".join(mulde(k, (720 + 1200 * (k % 4)) / 3, (1440 + 840 * (k // 4)) / 3) for k in range(8))
    blätter = "".join(palmblatt(x, h - 46, w, l, .95) for x, w, l in (
        (64, -52, 190), (64, -14, 180), (b - 64, -166, 180), (b - 64, -128, 190)))
    return svg(b, h, tafel(b, h, 24, innen=tor(300, 1240, .55) + tor(1800, 1240, .55) + felder + blätter), grunddefs())


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
    return svg(b, h, holz(b, h, "url(#nuss)") + f"""<rect x="84" y="84" width="{b - 168}" height="{h - 168}" rx="70"
 fill="#1c0c02" opacity=".8"/>
<rect x="92" y="92" width="{b - 184}" height="{h - 184}" rx="62" fill="url(#filz)"/><g opacity=".35">
<rect x="92" y="92" width="{b - 184}" height="{h - 184}" rx="62" filter="url(#korn)"/></g>
<g opacity=".10"><rect x="92" y="92" width="{b - 184}" height="{h - 184}" rx="62" filter="url(#faser)"/></g>
<rect x="96" y="96" width="{b - 190}" height="{h - 190}" rx="60" fill="none" stroke="#03140c" stroke-width="26"
 opacity=".35"/>
<rect x="84" y="84" width="{b - 168}" height="{h - 168}" rx="70" fill="none" stroke="url(#gold)" stroke-width="9"/>
<rect x="150" y="150" width="{b - 300}" height="{h - 300}" rx="30" fill="none" stroke="#e2c77a" stroke-width="4"
 opacity=".4"/>""",
               grunddefs() + kugel("filz", [(0, "#4f9a68"), (.55, "#2d7048"), (1, "#143d28")], .36, .28, .85))


def menu2():
    """Anmeldung an der Rezeption."""
    b, h = 2956, 1572
    bild = (f'<rect x="330" y="402" width="802" height="480" rx="36" fill="#5c3419" opacity=".20"/>'
            f'<rect x="330" y="402" width="802" height="480" rx="36" fill="none" stroke="#a5763a" stroke-width="4" '
            f'opacity=".6"/>'
            '<g filter="url(#schattengroß)"><rect x="508" y="416" width="444" height="440" rx="12" fill="url(#nuss)"/>'
            '</g><rect x="520" y="428" width="420" height="416" rx="6" fill="url(#gold)"/>'
            '<rect x="528" y="436" width="404" height="400" fill="#2a1404"/>')
    buch = '<rect x="2310" y="400" width="576" height="730" rx="22" fill="#5c3419" opacity=".13"/>'
    wappen = (f'{palmblatt(690, 1120, 196, 250)}{palmblatt(690, 1100, 156, 240)}'
              f'{palmblatt(770, 1120, -16, 250)}{palmblatt(770, 1100, -56, 240)}'
              f'<g transform="translate(594 940) scale(1.06)">{plakette()}</g>')
    tisch = glocke(2560, 156, 1.05) + schlüssel(260, 180, -14, 1.0)
    return svg(b, h, tafel(b, h, 34, innen=bild + buch + wappen + messingschild(970, 92, 1016, 190, "Anmeldung", 112)
                           + tisch, zierlinie=False), grunddefs() + SEE)


def hof():
    """Wand der Besten: tiefes Holz, Messingleisten, Lorbeer; Weiß bleibt darauf gut zu lesen."""
    b, h = 3200, 2476
    felder = ""
    for x, y, w, k in ((210, 400, 1330, 1850), (1620, 400, 1370, 1850)):
        felder += (f'<rect x="{x}" y="{y}" width="{w}" height="{k}" rx="26" fill="#07090e" opacity=".62"/>'
                   f'<rect x="{x}" y="{y}" width="{w}" height="{k}" rx="26" fill="none" stroke="url(#gold)" '
                   f'stroke-width="7" opacity=".85"/>'
                   f'<rect x="{x + 18}" y="{y + 18}" width="{w - 36}" height="{k - 36}" rx="14" fill="none" '
                   f'stroke="#c9973a" stroke-width="2" opacity=".5"/>')
    def lorbeer(x, y, w):
        t = "".join(f'<ellipse transform="translate({18 * k} {-0.9 * k * k:.1f}) rotate({v - 5 * k})" cx="26" rx="26" '
                    f'ry="9.5" fill="{GOLD}"/>' for k in range(10) for v in (-38, 34))
        return f'<g transform="translate({x} {y}) scale({w} 1)" filter="url(#prägung)">{t}</g>'
    kopf = (f'<g filter="url(#schattengroß)"><rect x="852" y="14" width="1380" height="308" rx="40" fill="#0b1424"/>'
            f'</g><rect x="852" y="14" width="1380" height="308" rx="40" fill="none" stroke="url(#gold)" '
            f'stroke-width="12"/>'
            f'<rect x="880" y="40" width="1324" height="256" rx="24" fill="none" stroke="#e0b048" stroke-width="3" '
            f'opacity=".7"/>')
    pokal = lambda x: (f'<g transform="translate({x} 196) scale(1.15)" filter="url(#schatten)">'
                       f'<g filter="url(#prägung)"><path d="M-54 -84H54Q56 -6 12 12V44H40V64H-40V44H-12V12Q-56 -6 -54 '
                       f'-84Z" fill="{GOLD}"/>'
                       f'<path d="M-56 -70Q-104 -70 -92 -28Q-82 2 -40 2L-46 -12Q-74 -14 -78 -34Q-80 -54 -54 -54ZM56 '
                       f'-70Q104 -70 92 -28Q82 2 40 2L46 -12Q74 -14 78 -34Q80 -54 54 -54Z" fill="{GOLD}"/></g>'
                       f'<path d="M-36 -74Q-36 -20 -14 -4Q-26 -30 -24 -74Z" fill="#fff" opacity=".5"/></g>')
    return svg(b, h, f"""<rect width="{b}" height="{h}" fill="url(#wand)"/><g opacity=".8">
<rect width="{b}" height="{h}" filter="url(#maserung)"/></g><g opacity=".5">
<rect width="{b}" height="{h}" filter="url(#maserungfein)"/></g>
<rect width="{b}" height="{h}" fill="url(#saal)"/>
<rect x="26" y="26" width="{b - 52}" height="{h - 52}" rx="30" fill="none" stroke="url(#gold)" stroke-width="10"
 opacity=".8"/>
{felder}{kopf}{pokal(470)}{pokal(2690)}
{lorbeer(560, 250, 1)}{lorbeer(380, 250, -1)}{lorbeer(2780, 250, 1)}{lorbeer(2600, 250, -1)}""",
               grunddefs() + verlauf("wand", [(0, "#3a2216"), (.5, "#24140c"), (1, "#120a06")], 0, 0, .2, 1)
               + kugel("saal", [(0, "#ffce86", .30), (.5, "#ffb060", .05), (1, "#000000", .55)], .5, .1, .95))


def dank():
    """Schwarzer Sternenabend über dem Meer."""
    b, h = 3316, 2484
    z = random.Random(4)
    sterne = "".join(f'<circle cx="{z.uniform(0, b):.0f}" cy="{z.uniform(0, h * .8) ** 1.0:.0f}" '
                     f'r="{z.choice((1.5, 2, 2.5, 3.5, 5))}" fill="{z.choice(("#ffffff", "#ffe9c0", "#cfe0ff"))}" '
                     f'opacity="{z.uniform(.3, 1):.2f}"/>' for _ in range(420))
    glanz = "".join(f'<path d="M{2660 + z.uniform(-120, 20) - 6 * k:.0f} {h - 330 + 20 * k}h{z.uniform(60, 220):.0f}" '
                    f'stroke="#ffe2a0" stroke-width="5" stroke-linecap="round" opacity="{z.uniform(.15, .5):.2f}"/>'
                    for k in range(14))
    return svg(b, h, f"""<rect width="{b}" height="{h}" fill="url(#nacht)"/>{sterne}<circle cx="2720" cy="430" r="150"
 fill="#ffedbd" opacity=".25" filter="url(#sehrweich)"/><circle cx="2720" cy="430" r="118" fill="url(#mond)"/>
<rect y="{h - 360}" width="{b}" height="360" fill="url(#meer)"/>{glanz}<path
 d="M0 {h - 350}Q260 {h - 480} 520 {h - 470}T1040 {h - 352}Z" fill="#05070c"/>
<g transform="translate(400 {h - 640}) scale(2.2)"
 opacity=".96">{palme("#04060a", "#04060a").replace('url(#bild)', '#04060a')}</g>""",
               kugel("mond", [(0, "#fffbe8"), (.7, "#f6dc9a"), (1, "#d9b060")], .4, .36, .7)
               + verlauf("nacht", [(0, "#05060c"), (.6, "#0a0f20"), (1, "#1c1a38")])
               + verlauf("meer", [(0, "#141a34"), (1, "#04050a")]))


def über():
    """Das Blatt mit den Angaben; das Zeichen des Spiels liegt blass darunter."""
    b, h = 1632, 1524
    return svg(b, h, tafel(b, h, 22,
                           innen=f'<g opacity=".10" transform="translate(436 640) scale(3)">{plakette()}</g>'),
               grunddefs() + SEE)


def hilfe():
    b, h = 3204, 2416
    return svg(b, h, tafel(b, h, 28, zierlinie=False), grunddefs())


ALLE = {
    "geldfeld/geldfeld.jpg": geldfeld, "geldfeld/image1.png": lambda: geldhaufen("noten"),
        "geldfeld/image2.png": lambda: geldhaufen("münzen"),
    "baufeld/baufeld.jpg": baufeld, "baufeld/image1.jpg": bauplan, "baufeld/image2.png": hammer,
    "bauphase/bauphase.jpg": bauphase, "eingang/eingang.jpg": eingang,
    "exchange/exchange.jpg": exchange, "exchange/image1.png": lambda: geldhaufen("tausch"),
    "bezahlen/image3.jpg": bezahlen, "karten/karten.jpg": karten,
    "karten/image1.png": lambda: scheibenknopf("links"), "karten/image2.png": lambda: scheibenknopf("rechts"),
        "karten/image3.png": lambda: scheibenknopf("zu", 296),
    "menu2/menu2.jpg": menu2, "menu2/klickl.png": lambda: pfeil(True), "menu2/klickr.png": lambda: pfeil(False),
    "hof/hof.jpg": hof, "dank/dank.jpg": dank, "frmhilfe/frmhilfe.jpg": hilfe, "Überf/Überf.jpg": über,
    "knopf/ruhe.png": lambda: knopf("ruhe"), "knopf/gedrueckt.png": lambda: knopf("gedrückt"),
        "knopf/gesperrt.png": lambda: knopf("gesperrt"),
}


def mache(datei):
    ausgeben(datei, ALLE[datei.removeprefix("bilder/formen/")]())
