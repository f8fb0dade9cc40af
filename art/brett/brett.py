"""Das Brettbild: bilder/formen/form1/picture1.jpg."""
import brett.bauten as bauten
import brett.gelände as gelände
import brett.gärten as gärten
from brett.feldzeichen import TON, ZEICHEN
from brett.gelände import KÜSTE, abstand, weich
from brett.gärten import GÄRTEN, flach, kasten_
from kasten import *
from tafeln import BANK, BRETT, FAHRBAHN, FELDER, PLÄTZE, RATHAUS, STUFEN, mitte, punkte, straßenpunkte


def straße():
    linie = weich(straßenpunkte(), 10)
    band(linie, FAHRBAHN, stoff("#d9d3c6", rau=.7, fleck=.06), .1, .75, zu=True, rund=.2)
    band(linie, FAHRBAHN - 4, stoff("#5f6168", rau=.85, fleck=.10, korn=.35, kornmaß=2), .1, .85, zu=True, rund=0)
    return linie


def felder():
    for nummer, feld in FELDER.items():
        art, (x, y) = feld["art"], mitte(nummer)
        flach(kasten_(x, y, 37, 26, 5), .6, .50, stoff("#f7f0df", rau=.6, fleck=.04))
        flach(kasten_(x, y, 34.6, 24, 4), .6, .62, stoff(TON[art], rau=.6, fleck=.05))
        for nr, (p, farbe) in enumerate(ZEICHEN[art]()):
            flach([(x + a, y + b) for a, b in p], .6, .66 + .02 * nr, stoff(farbe, rau=.6, fleck=.03))


def schwelle(linie, feld, davor):
    """Gelbe Doppellinie quer über die Straße zwischen zwei Feldern."""
    (ax, ay), (ex, ey) = mitte(davor), mitte(feld)
    a, e = welt(ax, ay).xy, welt(ex, ey).xy
    o, r = a.lerp(e, .5), (e - a).normalized()
    quer = Vector((-r.y, r.x))
    for s in (-1.7, 1.7):
        p, q = o + r * s + quer * (FAHRBAHN / 2 - 3.4), o + r * s - quer * (FAHRBAHN / 2 - 3.4)
        band([tuple(p), tuple(q)], 1.9, stoff("#ffcf1f", rau=.5, fleck=.02, leuchten=.12), .6, .5, rund=0)


def landschaft(linie):
    """Streut Bäume, wo sie nichts verdecken, das sich bewegt oder gebaut wird."""
    sperren = [punkte(z["ort"]) for tafel in (STUFEN, PLÄTZE) for z in tafel.values()] + [punkte(BANK), punkte(RATHAUS)]
    sperren += [(572, 100, 145, 48), (455, 150, 48, 80)]
    sperren += [(x - len(t) * 4, y - 20, len(t) * 8, 24) for t, (x, y), _, _ in bauten.SCHILDER]
    küste, weg = weich(KÜSTE), np.array([p[:2] for p in linie])
    gründe = [weich(g[2]) for g in gelände.GRÜNDE.values()] + [weich(g, 3) for g in GÄRTEN.values()]
    gesetzt, zufall = [], random.Random(7)
    for _ in range(5200):
        x, y = zufall.uniform(-5, 745), zufall.uniform(0, 432)
        art = zufall.random()
        busch_ = art > .58
        b, h = (4, 5) if busch_ else (7, 16)
        if any(x + b > l and x - b < l + w and y + 2 > o and y - h < o + hh for l, o, w, hh in sperren):
            continue
        p = welt(x, y)
        if np.hypot(*(weg - np.array(p.xy)).T).min() < FAHRBAHN / 2 + (3 if busch_ else 7):
            continue
        ort = (np.array([p.x]), np.array([p.y]))
        if abstand(*ort, küste)[0] < 13 or any(abstand(*ort, g)[0] > -3 for g in gründe):
            continue
        if any(math.hypot(x - a, (y - c) * TIEFE) < (6 if busch_ or k else 9) for a, c, k in gesetzt):
            continue
        if gelände.rauschfeld(*ort, 60, 40)[0] < -.15 and not busch_:
            continue
        gesetzt.append((x, y, busch_))
        with bei(p.x, p.y):
            if busch_:
                busch(0, 0, maß=zufall.uniform(.55, .9), farbe=("#4f8f3a", "#5e9c3e", "#437f3f")[int(art * 97) % 3],
                      blüten=(None, "gelb", "rosa", "weiß", None)[int(art * 991) % 5])
            elif art < .12:
                palme(0, 0, maß=.8)
            elif art < .24:
                nadelbaum(0, 0, maß=zufall.uniform(.6, .8))
            else:
                kugelbaum(0, 0, maß=zufall.uniform(.6, .85), farbe=("#5d9a3a", "#6fa63f", "#4d8c43")[int(art * 97) % 3])


def mache(datei):
    neu(5)
    gelände.land()
    gelände.meer()
    linie = straße()
    felder()
    schwelle(linie, 7, 6)
    schwelle(linie, 26, 25)
    # Leitlinie auf dem langen Stück
    strecke = [p for p in linie if 596 < p[0] < 668 and 178 < -p[1] / TIEFE < 215]
    for p, q in list(zip(strecke, strecke[2:]))[::4]:
        band([p, q], 1.3, stoff("#f4efe2", fleck=0), .6, .5, rund=0)
    for bauen in (bauten.bank, bauten.rathaus, bauten.parkplatz, bauten.schilder, *gärten.ALLE):
        bauen()
    landschaft(linie)
    bauten.leuchtturm(24, 66)
    bauten.steg(360, 412)
    for ort in ((22, 196, 20, "weiß", "rot"), (722, 44, -30, "#f6c84a", "blau"), (372, 422, 80, "weiß", "türkis"),
                (280, 8, 10, "#e9785a", "weiß")):
        bauten.boot(*ort)
    rendere_twips(datei, BRETT, proben=40)
