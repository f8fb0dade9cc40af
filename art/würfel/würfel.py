"""Die Würfel von oben: bilder/wuerfel/201 bis 206 (Augen) und 301 bis 306 (Bauwürfel)."""
from pathlib import Path

from kasten import *

B = 41                     # das Steuerelement in Entwurfspunkten
K = 27.5                   # Kantenlänge
AUGEN = {1: [(0, 0)], 2: [(-1, 1), (1, -1)], 3: [(-1, 1), (0, 0), (1, -1)],
         4: [(-1, -1), (-1, 1), (1, -1), (1, 1)], 5: [(-1, -1), (-1, 1), (1, -1), (1, 1), (0, 0)],
         6: [(-1, -1), (-1, 0), (-1, 1), (1, -1), (1, 0), (1, 1)]}
# Die Seiten, die man neben der oberen noch sieht: vorn und links bei oben = n
NEBEN = {1: (2, 3), 2: (6, 3), 3: (1, 2), 4: (1, 5), 5: (6, 4), 6: (5, 3)}
GRÜN, ROT, WEISS = "#2f9f4c", "#d23a2e", "#efe7d6"
BAUWÜRFEL = {301: GRÜN, 302: ROT, 303: "H", 304: "2", 305: GRÜN, 306: GRÜN}       # was oben liegt


def klotz(farbe):
    o = quader(0, 0, 0, K, K, K, stoff(farbe, rau=.25, glanz=.55, fleck=0), 5.0)
    o.modifiers["Kante"].segments = 8


def fläche(seite):
    """Rahmen einer Würfelfläche: x nach rechts, y hinauf, z nach außen."""
    lagen = {"oben": schub(0, 0, K),
             "vorn": schub(0, -K / 2, K / 2) @ dreh(90, "X"),
             "links": schub(-K / 2, 0, K / 2) @ dreh(-90, "Z")
             @ dreh(90, "X")}
    return rahmen(lagen[seite])


def augen(seite, zahl):
    farbe = stoff("#2d3f77" if zahl > 1 else "#c8372f", rau=.3, glanz=.4, fleck=0)
    r = 3.2 if zahl > 1 else 4.4
    with fläche(seite):
        for x, y in AUGEN[zahl]:
            kugel(x * 7.0, y * 7.0, 0.15 - r * .35, r, farbe, (1, 1, .5))


def zeichen(seite, text):
    with fläche(seite):
        schrift(text, 0, -.4, 0, 26, stoff("#2d3f77", rau=.3, fleck=0), stehend=False, dick=.25, datei=DEJAVU % "Sans")


def tafel(seite, farbe):
    with fläche(seite):
        zylinder(0, 0, -.3, 10.0, .7, stoff(farbe, rau=.3, fleck=0), seiten=48)


def auge(zahl):
    klotz(WEISS)
    for seite, n in (("oben", zahl), ("vorn", NEBEN[zahl][0]), ("links", NEBEN[zahl][1])):
        augen(seite, n)


def bau(oben):
    klotz(WEISS)
    if oben in ("H", "2"):
        zeichen("oben", oben)
    else:
        tafel("oben", oben)
    tafel("vorn", GRÜN if oben != GRÜN else ROT)
    tafel("links", GRÜN)


def mache(datei):
    nr = int(Path(datei).stem)
    neu()
    schattengrund()
    with bei(drehung=-9):
        auge(nr - 200) if nr < 300 else bau(BAUWÜRFEL[nr])
    sonne_aus((-.30, -.12, .95))                              # höher als auf dem Brett: kurzer Schatten
    bpy.context.scene.camera.rotation_euler = (math.radians(13), 0, 0)    # fast senkrecht: man liest die obere Fläche
    rendere(datei, -B / 2, -B / 2, B, B, mitte=Vector((1.2, -.2, K * .5)))
