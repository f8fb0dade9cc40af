"""Die Eingänge: ein Tor mit Weg und Hecken, gedreht wie der Platz an der Straße liegt.

bilder/eingangn/702 bis 752 (grün, gekauft), bilder/eingangs/802 bis 852 (blau durchscheinend, möglich), der gelbe
Eingang zum Ziehen und der Pfeil, der auf ihn zeigt.
"""
from pathlib import Path

from befehl import rufe, ziel
from brett.gelände import weich
from kasten import *
from tafeln import FAHRBAHN, PLÄTZE, mitte, punkte, straßenpunkte

DURCHSICHT = 0.66                   # Deckung eines möglichen Eingangs


def tor(farbe, blau):
    """Bogentor um den Ursprung, Blick nach -y."""
    holz_ = lack(farbe)
    hell = blau or "#fff4da"
    for s in (-1, 1):
        quader(s * 5.6, 0, 0, 3.0, 3.0, 1.2, hell, .3)
        quader(s * 5.6, 0, 1.0, 2.3, 2.3, 8.2, holz_, .4)
        quader(s * 5.6, 0, 9.0, 3.0, 3.0, .9, hell, .3)
        kugel(s * 5.6, 0, 11.0, 1.35, blau or metall())
    rohr([(5.6 * math.cos(a), 0, 8.6 + 4.4 * math.sin(a)) for a in [math.pi * i / 16 for i in range(17)]], 1.0, holz_)
    rohr([(5.6 * math.cos(a), -.5, 8.6 + 2.9 * math.sin(a)) for a in [math.pi * i / 16 for i in range(17)]], .45, hell)
    for s in (-1, 1):                                   # zwei offene Flügel
        with bei(s * 4.5, .4, 0, s * -62):
            for i in range(4):
                quader(-s * (.6 + 1.0 * i), 0, .8, .42, .42, 6.4 - .5 * i, holz_, .1)
            quader(-s * 2.1, 0, 2.0, 4.2, .4, .5, holz_, .1)
            quader(-s * 2.1, 0, 5.0, 4.2, .4, .5, holz_, .1)


def klammer(p, d, kasten_):
    """Strecke p + t d innerhalb des Kastens (x0, y0, x1, y1): kleinstes und größtes t."""
    von, bis = -1e9, 1e9
    for achse in (0, 1):
        if abs(d[achse]) > 1e-6:
            a, e = sorted(((kasten_[achse] - p[achse]) / d[achse], (kasten_[achse + 2] - p[achse]) / d[achse]))
            von, bis = max(von, a), min(bis, e)
    return von, bis


def eingang(rechteck, feldmitte, farbe, blau=None):
    """Baut den Eingang eines Platzes in sein Rechteck (Entwurfspunkte)."""
    l, o, b, h = rechteck
    m = min(1.15, (b - 1.0) / 16.5, (h - 1.0) / 11.9)
    grund = [welt(l + .6, o + h - .6).x, welt(0, o + h - .8).y, welt(l + b - .6, 0).x, welt(0, o + .4).y]
    c, s = welt(l + b / 2, o + h / 2).xy, welt(*feldmitte).xy
    d = (c - s).normalized()
    quer = Vector((-d.y, d.x))
    straße = np.array([p[:2] for p in weich(straßenpunkte(), 10)])

    def zurStraße(p):
        return np.hypot(*(straße - np.array(p)).T).min() - FAHRBAHN / 2
    von, bis = klammer(c, d, grund)
    while von < bis - 8 * m and zurStraße(c + d * von) < .3:
        von += .5
    # Das Tor steht so weit vom Feld weg, wie sein Bild noch ganz im Rechteck bleibt
    ort = c + d * (von + .62 * (bis - von))
    ort.x = min(max(ort.x, grund[0] + 8 * m), grund[2] - 8 * m)
    ort.y = min(max(ort.y, grund[1] + 2.4 * m), grund[3] - 14.3 * m)
    weg_stoff = blau or stoff("#efdcae", rau=.85, fleck=.08, muster=("platte", 3.0, 3.0, .16), musterhub=.4)
    # Der Weg läuft gerade durch das Tor, vom Bordstein bis an den Rand des Platzes
    von, bis = klammer(ort, d, grund)
    while von < -3 * m and zurStraße(ort + d * von) < .3:
        von += .5
    linie = [tuple(ort + d * min(von, -3 * m)), tuple(ort + d * max(bis, 3 * m))]
    band(linie, 8.0 * m, weg_stoff, .1, .5, rund=.1)
    for seite in (-1, 1):
        band(linie, .9 * m, blau or "#fbf2dc", .1, .9, rund=.1, versatz=seite * 4.4 * m)
    winkel = math.degrees(math.atan2(quer.y, quer.x))
    winkel = (winkel + 90) % 180 - 90                   # das Tor hat keine Rückseite
    for seite in (-1, 1):                               # Hecken vom Tor bis an die Ränder des Platzes
        a = ort + quer * seite * 7.4 * m
        _, ende = klammer(a, quer * seite, [grund[0] + 1.6, grund[1] + 1.6, grund[2] - 1.6, grund[3] - 4.5])
        e = a + quer * seite * min(ende, 16)
        if ende > 2.5:
            if blau:
                band([tuple(a), tuple(e)], 2.6, lack("#3f86e8"), 0, 3.2, rund=.7)
            else:
                hecke([tuple(a), tuple(e)], 3.2, 2.8, "#43923f")
    winkel = max(-66, min(66, winkel))                  # ganz von der Seite wäre es nur ein Strich
    with bei(ort.x, ort.y, .4, winkel, m):
        tor(farbe, blau)


def platz(datei, nr, blau):
    p = PLÄTZE[nr]
    neu(nr)
    if blau:
        eingang(punkte(p["ort"]), mitte(p["feld"]), "#1f62d8", "#8cc2ff")
    else:
        schattengrund()
        eingang(punkte(p["ort"]), mitte(p["feld"]), "#18a34c")
    rendere_twips(datei, p["ort"], rand=2)
    if blau:
        rufe("convert", ziel(datei), "-channel", "A", "-evaluate", "multiply", DURCHSICHT, ziel(datei))


def zum_ziehen(datei):
    neu()
    schattengrund()
    eingang((0, 0, 38, 15), (19, -40), "#f2b21c")
    rendere(datei, 0, 0, 38, 15, rand=1)


def pfeil(datei):
    neu()
    schattengrund()
    with am_brett(17.5, 19, 0):
        p = [(-5, -18), (5, -18), (5, 2), (12.5, 2), (0, 20), (-12.5, 2), (-5, 2)]
        prisma(p, 1.5, 3.4, stoff("#e2382c", rau=.25, glanz=.55, fleck=0), 1.4)
        prisma([(x * .62, y * .66 + .5) for x, y in p], 4.5, .7, stoff("#ffcf3a", rau=.25, glanz=.5, fleck=0), .2)
    rendere(datei, 0, 0, 35, 38, rand=2)


def mache(datei):
    name = Path(datei).stem
    if name in ("imagee", "pfeil"):
        return (zum_ziehen if name == "imagee" else pfeil)(datei)
    platz(datei, int(name) % 100, blau=int(name) > 800)
