"""Das Menü: der Vorgarten des Hotels am Abend mit fünf Dingen zum Zeigen: bilder/formen/menu/menu.jpg.

Die Kamera blickt waagrecht und ist nach unten versetzt: alle Senkrechten bleiben senkrecht, und ein
Punkt im Abstand D liegt bei x = 396 + F * X / D, y = 230 + F * (AUGE - z) / D (Entwurfspunkte).
"""
from kasten import *
from menü.dinge import *
from menü.hotel import *


def abendhimmel():
    """Abendhimmel für die Kamera, ruhiges Dämmerlicht für die Dinge."""
    baum, licht = himmel("Abend", .56, (.56, .60, .86))
    _, _, höhe = baum.teile(baum.neu("TexCoord", aus="Generated"))
    stufen = ((0, "#ffd79a"), (.018, "#ffb877"), (.050, "#e58f86"), (.095, "#8d72a8"), (.145, "#4a5a9c"),
              (.19, "#2b3f7f"))
    farbe = baum.rampe(höhe, [(ort, rgb(f)) for ort, f in stufen])
    kamerafarbe(baum, licht, baum.neu("Background", {0: farbe}))


def ferne():
    """Boden, Meer, Berge und Sterne."""
    quader(0, 60, -1, 900, 420, 1, gras("#7fae4c"), 0)
    quader(0, 3230, -2, 9000, 6000, 1.2, wasser("#3f8fb0"), 0)
    for x, y, b, h, f in ((-700, 2600, 420, 95, "#7a76a4"), (-330, 3000, 380, 62, "#9484a8"),
                          (560, 1900, 700, 90, "#5f6c94"), (900, 1500, 300, 60, "#566f8c")):
        kugel(x, y, -4, 1, stoff(f, rau=1, glanz=0, fleck=.12, fleckmaß=.01), (b / 2, 90, h))
    for i in range(60):                       # Sterne
        z = random.Random(i)
        d = 9000
        kugel((z.uniform(10, 780) - 396) * d / F, d, AUGE + (HORIZONT - z.uniform(4, 120) ** 1.0) * d / F,
              z.uniform(3, 7.5), stoff("#fff6dc", leuchten=z.choice((1.2, 2.2))), fein=1)


def weg():
    """Vom Bildrand zum Eingang."""
    orte = [boden(px, py) for px, py in ((330, 660), (372, 600), (420, 545), (462, 490), (512, 438), (560, 404),
                                         (576, 392))]
    linie = glätten(orte, 10, zu=False)
    band(linie, 9.5, platten("#dcc79a", 3.2, .16), 0, .25, rund=.05)
    for s in (-1, 1):
        band(linie, .9, stein("#cbbd9f"), 0, .7, versatz=s * 5.1)


def garten():
    """Palmen, Büsche, Hecken, Laternen, Beete, Bank."""
    for px, py, m in ((30, 425, 1.35), (165, 405, 1.5), (772, 452, 1.45), (95, 392, 1.1)):
        x, y = boden(px, py)
        palme(x, y, maß=m)
    palme(62, Y0 + 34, maß=1.5)
    palme(70, Y0 + 10, maß=1.25)
    palme(-38, Y0 + 30, maß=1.6)
    for px, py, f in ((225, 408, "#e58a9a"), (255, 410, None), (285, 408, "#f2b92c"), (415, 402, "#e58a9a"),
                      (448, 404, None), (705, 404, "#f2b92c"), (738, 406, None), (770, 408, "#e58a9a"),
                      (690, 402, None)):
        x, y = boden(px, py)
        busch(x, y, maß=1.0, blüten=f)
    for px, py in ((396, 398), (203, 402)):
        x, y = boden(px, py)
        zypresse(x, y, maß=.95)
    hecke([boden(690, 470), boden(800, 486)], hoch=2.6, breite=2.4)
    hecke([boden(-20, 470), boden(60, 462), boden(215, 440)], hoch=2.4, breite=2.4)
    for px, py in ((238, 462), (494, 516), (468, 455), (590, 432)):
        x, y = boden(px, py)
        laterne(x, y, 0, 4.6)
    for px, py, b, f in ((250, 575, 8, ("#c8392f", "#f2c23a", "weiß")), (690, 585, 9, ("#e58a9a", "weiß", "#8a5fa8")),
                         (650, 440, 9, ("#c8392f", "weiß", "#f2b92c"))):
        x, y = boden(px, py)
        blumenbeet(x, y, b, 3, f, .9)
    parkbank(*boden(735, 545), drehung=-20)
    x, y = boden(245, 520)
    busch(x, y, maß=.8, blüten="#e58a9a")


def wiese():
    """Gräser, wo kein Weg ist."""
    zg = random.Random(9)
    for _ in range(110):
        px, py = zg.uniform(0, 792), zg.uniform(430, 600)
        if 300 < px < 560 and abs(px - (372 + (600 - py) * 1.0)) < 75:
            continue
        x, y = boden(px, py)
        grasbüschel(x, y, maß=zg.uniform(.10, .22), farbe=zg.choice(("#7fa84a", "#6f9a3f", "#93b455")))


def mache(datei):
    neu(5)
    sonne = sonne_aus((-0.80, -0.55, 0.42))
    sonne.energy, sonne.color, sonne.angle = 3.3, (1.0, 0.72, 0.48), math.radians(5)
    abendhimmel()
    k = kamera((0, 0, AUGE), drehung=(math.pi / 2, 0, 0), brennweite=36 * F / BREIT).data
    k.sensor_fit, k.clip_end = "HORIZONTAL", 20000
    k.shift_y = -(HOCH / 2 - HORIZONT) / BREIT
    ferne()
    weg()
    hotel()
    for bauen, ort in ((blume, (334, 478)), (wegweiser, (114, 553)), (merkstein, (586, 537))):
        with bei(*boden(*ort)):
            bauen()
    mond()
    garten()
    wiese()
    for m in bpy.data.materials:
        m.cycles.sample_as_light = False
    belichte_jpeg(datei, BREIT * AUFTRAG.fein, HOCH * AUFTRAG.fein, 64)
