"""Das ganze Hotel auf seinem Land, wie es auf der Besitzkarte steht; aus dem Bild wird die Karte."""
from pathlib import Path

from hotels import MODULE
from hotels.anlage import *
from hotels.stufen import baue
from tafeln import STUFEN, punkte

SEITE = (1110, 1290)                    # Bildpunkte des Bildes auf der fertigen Karte

# Wo die Karte vom Brett abweicht: Fußpunkte der Stufen in Entwurfspunkten, damit das Hotel ein Bild füllt.
ORTE = {
    "boomerang": dict(boom=(0, 0), boomp=(-4, 34)),
    "waikiki": dict(kikin3=(-27, -31), kikin4=(27, -31), kikin1=(-30, 2), kikin2=(30, 2), kikih=(0, 30), kikip=(0, 63)),
    "tajmahal": dict(tajh=(0, 0), tajn1=(-31, 2), tajn2=(31, 2), tajp=(0, 34)),
    "safari": dict(safn2=(-8, -22), safh=(27, 0), safn1=(-26, 5), safp=(0, 38)),
    "president": dict(presip=(104, 466)),
    "royal": dict(royp=(212, 230)),
    "etoile": dict(letp=(368, 306)),
}

# Land: Stoff des Bodens, Bäume ringsum (Art, Maß)
LAND = {
    "boomerang": (lambda: erde("#c9643a"), (lambda x, y: eukalyptus(x, y, maß=1.2), lambda x,
                                            y: grasbüschel(x, y, maß=1.8, farbe="#b9a347"))),
    "president": (lambda: gras("#8fbf5a"), (lambda x, y: kugelbaum(x, y, maß=1.0, farbe="#4b9438"), lambda x,
                                            y: zypresse(x, y, maß=1.0))),
    "waikiki": (lambda: erde("#f0d59a"), (lambda x, y: palme(x, y, maß=1.1), lambda x,
                                          y: busch(x, y, maß=1.3, blüten="#e8558a"))),
    "tajmahal": (lambda: gras("#86bb4e"), (lambda x, y: zypresse(x, y, maß=.8), lambda x,
                                           y: busch(x, y, maß=1.0, blüten="rosa"))),
    "safari": (lambda: erde("#dcb766"), (lambda x, y: schirmakazie(x, y, maß=1.2), lambda x,
                                         y: grasbüschel(x, y, maß=1.8, farbe="#a79a3c"))),
    "fujijama": (lambda: gras("#7fa646"), (lambda x, y: ahorn(x, y, maß=1.2, farbe="#d2572a"), lambda x,
                                           y: nadelbaum(x, y, maß=1.1), lambda x,
                                           y: kugelbaum(x, y, maß=.8, farbe="#e79ab4"))),
    "etoile": (lambda: gras("#86bb50"), (lambda x, y: kugelbaum(x, y, maß=.9, farbe="#4b9438"), lambda x,
                                         y: busch(x, y, maß=1.2, blüten="rosa"))),
    "royal": (lambda: gras("#7cb646"), (lambda x, y: kugelbaum(x, y, maß=1.0, farbe="#3f8a3c"), lambda x,
                                        y: busch(x, y, maß=1.2, farbe="#3f8a34", blüten="rot"))),
}


def schneeberg(x, y):
    """Der Berg hinter den Pagoden, mit zackiger Schneehaube."""
    with am_brett(x, y):
        drehkörper(0, 0, -1, [(46, 0), (30, 12), (19, 27), (10, 44), (5, 56), (3.4, 57)],
                   stoff("#7d90b0", rau=.9, fleck=.15, fleckmaß=.1), 64)
        n = 40
        p, f = [], []
        for k, (r, z) in enumerate(((15.8, 34), (10.4, 44.5), (5.4, 56.4), (3.4, 57.8), (.1, 56.6))):
            for i in range(n):
                zacke = (4.5 * (i % 4 in (1, 2)) + 2.2 * (i % 7 == 3)) if k == 0 else 0
                q = r - zacke * .55 if k == 0 else r
                p.append(((q + .5) * math.cos(2 * math.pi * i / n), (q + .5) * math.sin(2 * math.pi * i / n),
                          z - 1 + zacke))
        for k in range(4):
            f += [(k * n + i, k * n + (i + 1) % n, (k + 1) * n + (i + 1) % n, (k + 1) * n + i) for i in range(n)]
        objekt("Schnee", netz_aus(p, f), "#f7f9fc", lage(), 0, glatt=True)


def bausteine(hotel):
    """Name -> Rechteck jeder Stufe in Twips, dicht gestellt."""
    orte = {n: s["ort"] for n, s in STUFEN.items() if MODULE[s["hotel"]] == hotel}
    for name, (x, y) in ORTE.get(hotel, {}).items():
        _, _, breite, höhe = orte[name]
        orte[name] = (x * TWIPS - breite / 2, y * TWIPS - höhe, breite, höhe)
    return orte


def ausschnitt(kästen):
    """Mitte, Breite, Höhe des Bildes um die Kästen und Entwurfspunkte je Bildpunkt, in Entwurfspunkten."""
    links, oben = min(k[0] for k in kästen), min(k[1] for k in kästen)
    rechts, unten = max(k[0] + k[2] for k in kästen), max(k[1] + k[3] for k in kästen)
    seite = max((rechts - links + 14) / SEITE[0], (unten - oben + 16) / SEITE[1])
    return (links + rechts) / 2, (oben + unten) / 2 + 1, SEITE[0] * seite, SEITE[1] * seite, seite


def insel(mx, my, b, h, grund):
    """Insel im Meer: das Meer kommt nur hinten ins Bild; zurück kommt die Tiefe des Ufers."""
    mitte = welt(mx, my)
    quader(mitte.x, mitte.y, -6, 2000, 2000, 3, wasser("#2f9fc4"), 0)
    ufer = welt(0, my - h * .40).y
    küste = [(mitte.x - 900, mitte.y - 900), (mitte.x + 900, mitte.y - 900)] + \
            [(mitte.x + 900 - 5 * i, ufer + b * (.035 * math.sin(22 * i / b) + .02 * math.sin(51 * i / b)))
             for i in range(361)]
    prisma([(x, y + 9) for x, y in küste], -3, 1.6, stoff("#bfe6e8", rau=.3), .2)
    prisma(küste, -3, 2.4, erde("#ecd49a"), .6)
    prisma([(x, y - 12) for x, y in küste], -1, .9, grund(), .4)
    return ufer


def pflanze(mx, my, b, h, ufer, kästen, bäume):
    """Bäume, wo sie kein Haus verdecken."""
    gepflanzt = []
    for _ in range(420):
        x, y = mx + random.uniform(-.55, .55) * b, my + random.uniform(-.34, .62) * h
        ort = welt(x, y)
        if ort.y > ufer - 18 or any(k[0] - 5 < x < k[0] + k[2] + 5 and k[1] + k[3] - 34 < y < k[1] + k[3] + 17
                                    for k in kästen):
            continue
        if any(k[0] - 4 < x < k[0] + k[2] + 4 and k[1] + k[3] < y < k[1] + k[3] + 15 for k in kästen):
            continue
        if all((ort - o).length > max(15, .09 * b) for o in gepflanzt):
            gepflanzt.append(ort)
            random.choice(bäume)(ort.x, ort.y)


def mache(datei):
    hotel = Path(datei).stem
    neu()
    orte = bausteine(hotel)
    for name, ort in orte.items():
        baue(name, ort)
    kästen = [punkte(ort) for ort in orte.values()]
    mx, my, b, h, seite = ausschnitt(kästen)
    grund, bäume = LAND[hotel]
    ufer = insel(mx, my, b, h, grund)
    random.seed(hotel)
    pflanze(mx, my, b, h, ufer, kästen, bäume)
    if hotel == "fujijama":
        schneeberg(mx - b * .34, my - h * .27)
    rendere(datei, mx - b / 2, my - h / 2, b, h, 32, fein=AUFTRAG.fein / 4 / seite, durchsichtig=False)
