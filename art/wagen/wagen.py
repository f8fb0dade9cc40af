"""Die vier Spielzeugautos in vier Ansichten: bilder/auto/125.png bis 140.png.

Reihenfolge der Ansichten: zum Betrachter, links, fort, rechts.
"""
from pathlib import Path

from kasten import *
from tafeln import WAGEN, WAGEN_B, WAGEN_H

LACK = {125: "#f5b921", 129: "#2868c8", 133: "#2f9a48", 137: "#d0302a"}
ANSICHTEN = (0, -90, 180, 90)
B, H = WAGEN_B / TWIPS, WAGEN_H / TWIPS
FUSS = 19.4                         # Mitte der Standfläche, damit der ganze Wagen mittig steht


def querkörper(profil, breite, stoff_, rund, oben=1.0):
    """Seitenriss [(y, z), ...] quer über die Breite; oben: Einzug nach oben."""
    zmin, zmax = min(z for _, z in profil), max(z for _, z in profil)
    p = []
    for s in (-1, 1):
        for y, z in profil:
            a = (z - zmin) / (zmax - zmin)
            p.append((s * breite / 2 * (1 - a * (1 - oben)), y, z))
    n = len(profil)
    f = [tuple(range(n)), tuple(range(2 * n - 1, n - 1, -1))]
    f += [(i, n + i, n + (i + 1) % n, (i + 1) % n) for i in range(n)]
    bm = bmesh.new()
    bm.from_mesh(netz_aus(p, f))
    return aus_bmesh(bm, stoff_, rund=rund)


def rad(x, y):
    reifen, felge = stoff("#26262a", rau=.7, fleck=0), metall("#d8dadd", .25)
    for r, b, s in ((3.0, 2.8, reifen), (1.7, 3.2, felge)):
        lege(zylinder(0, 0, 0, r, b, s, rund=.5), schub(x, y, 3.0) @ dreh(90, "Y") @ schub(0, 0, -b / 2))


def wagen(farbe):
    """Der Wagen um den Ursprung, Bug nach -y; etwa 28 lang, 17 breit, 12,5 hoch."""
    lackiert = stoff(farbe, rau=.22, glanz=.6, fleck=0)
    chrom, dunkel = metall("#e6e8ea", .18), stoff("#4a6274", rau=.1, glanz=.8, fleck=0)
    creme = stoff("#fbf3df", rau=.25, glanz=.5, fleck=0)
    querkörper([(-13.4, 2.4), (-13.6, 5.2), (-11.8, 7.0), (-5.5, 7.9), (9.5, 7.9), (12.8, 6.6), (13.6, 4.6),
                (13.2, 2.4)],
               13.6, lackiert, 1.5, .92)
    for y in (-8.2, 8.2):
        for x in (-6.5, 6.5):
            kugel(x, y, 5.2, 1, lackiert, (2.1, 4.5, 2.7))
            rad(x * 1.07, y)
    querkörper([(-6.6, 7.4), (-3.6, 11.4), (5.8, 11.4), (9.0, 7.4)], 12.6, dunkel, .8, .80)
    querkörper([(-4.3, 11.0), (-3.4, 12.5), (5.6, 12.5), (6.6, 11.0)], 11.2, lackiert, .7, .86)
    for x in (-1, 1):                                     # Dachholme und Mittelstege
        for y0, y1 in ((-6.6, -3.7), (1.0, 1.0), (9.0, 5.9)):
            rohr([(x * 6.1, y0, 7.6), (x * 5.1, y1, 11.4)], .55, lackiert)
    quader(0, 1.2, 12.15, 3.4, 9.4, .5, creme, .2)        # Streifen über Dach und Haube
    querkörper([(-12.4, 6.7), (-5.6, 7.75), (-5.6, 8.1), (-12.4, 7.0)], 3.4, creme, .1)
    for s in (-1, 1):
        quader(0, s * 13.6, 2.6, 14.2, 1.4, 1.5, chrom, .6)
        quader(s * 6.9, 0, 2.2, 1.2, 9, 1.0, chrom, .4)
        kugel(s * 4.6, -13.0, 5.4, 1.55, chrom)
        kugel(s * 4.6, -13.5, 5.45, 1.3, stoff("#fff6d8", rau=.15, leuchten=.35, fleck=0))
        kugel(s * 4.9, 13.2, 5.0, 1.05, stoff("#c9201c", rau=.2, fleck=0))
        kugel(s * 7.2, -4.4, 8.6, .8, chrom)
    quader(0, -13.5, 4.2, 4.8, .5, 1.9, chrom, .2)


def mache(datei):
    nr = int(Path(datei).stem)
    erste = max(w["bild"] for w in WAGEN if w["bild"] <= nr)
    neu()
    schattengrund()
    with am_brett(B / 2, FUSS, drehung=ANSICHTEN[nr - erste]):
        wagen(LACK[erste])
    rendere(datei, 0, 0, B, H, rand=2)
