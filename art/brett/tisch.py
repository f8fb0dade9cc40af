"""Das Holz des Tischs, auf dem das Brett liegt, für einlagen.py, und das Zeichen des Spiels (formen/velmo.png)."""
from kasten import *
from knoten import stoffbaum
from wagen.wagen import wagen

B, H = 800, 600
BRETT = (10, 70, 741, 427)          # das Brettbild auf der Form, Entwurfspunkte
NOTEN = (114, 506, 532, 120)        # Filz unter den Notenstapeln, läuft unten aus dem Bild
WÜRFEL = (425, 5, 102, 51)          # Mulde der beiden Würfel


def maserung(hell, dunkel):
    """Holz mit feiner Maserung und breiten Dielen, längs x."""
    m, baum, p = stoffbaum("Maserung")
    lang, quer, _ = baum.teile(baum.neu("NewGeometry", aus="Position"))
    diele, fuge = (baum.mathe(art, quer / 66.0) for art in ("FLOOR", "FRACT"))
    fuge = baum.mathe("MINIMUM", 1.0, baum.mathe("MINIMUM", fuge, 1.0 - fuge) * 80.0)
    gedehnt = baum.neu("CombineXYZ", {0: lang * .010 + diele * 7.3, 1: quer * .16, 2: diele})
    fein = baum.rauschen(gedehnt, 1.6, 5, verzerrung=.7)
    farbe = baum.mal(baum.rampe(fein, [(.34, rgb(dunkel)), (.66, rgb(hell))]), .62 + fuge * .38)
    baum.setze(p, {"Roughness": .38, "Specular": .4, "Base Color": farbe})
    return m


def rechteckring(l, o, b, h, innen, außen, z, hoch, stoff_, rund):
    """Leiste um ein Rechteck, von `innen` bis `außen` Punkte davon entfernt."""
    for x, y, bb, tt in ((l + b / 2, o - (innen + außen) / 2, b + 2 * außen, außen - innen),
                         (l + b / 2, o + h + (innen + außen) / 2, b + 2 * außen, außen - innen),
                         (l - (innen + außen) / 2, o + h / 2, außen - innen, h + 2 * innen),
                         (l + b + (innen + außen) / 2, o + h / 2, außen - innen, h + 2 * innen)):
        quader(x, -y, z, bb, tt, hoch, stoff_, rund)


def tisch(datei):
    neu()
    hell = maserung("#dcb988", "#c79c66")
    leiste = maserung("#9a6238", "#774726")
    l, o, b, h = BRETT
    quader(B / 2, -H / 2, -10, B + 200, H + 200, 10, hell, 0)
    rechteckring(l, o, b, h, .8, 7.0, -1, 5.5, leiste, 1.6)
    quader(l + b / 2, -o - h / 2, -1, b + 2, h + 2, 1.2, "#3a2a1e", 0)
    filz = stoff("#31604d", rau=1, glanz=.03, fleck=.07, korn=.5, kornmaß=1.6)
    for l, o, b, h in (NOTEN, WÜRFEL):
        quader(l + b / 2, -o - h / 2, -1, b, h, 1.3, filz, 0)
        rechteckring(l, o, b, h, 0, 3.4, -1, 4.2, leiste, 1.3)
    sonne_aus((-.42, .40, .82))
    bpy.context.scene.camera.rotation_euler = (0, 0, 0)
    rendere(datei, 0, 0, B, H, proben=48, fein=min(AUFTRAG.fein, 2), mitte=Vector((B / 2, -H / 2, 0)))


def zeichen(datei):
    neu(3)
    schattengrund(-3)
    drehkörper(0, 0, -3, [(30, 0), (32, 1.5), (32, 3.2), (30.6, 3.6)],
               stoff("#2aa0c4", rau=.1, glanz=.6, fleck=.05, korn=.12, kornmaß=.25), 72)
    drehkörper(0, 0, 0, [(25, 0), (24, 1.5), (20, 2.4)], stoff("#ecd199", rau=.9, korn=.3), 60)
    drehkörper(0, 3, 1.5, [(19, 0), (17, 1.6), (12, 2.4)], gras("#86b24a"), 48)
    with bei(-9, 9, 2.6):
        palme(0, 0, maß=1.75, drehung=10)
    with bei(8, 9, 3):
        quader(0, 0, 0, 15, 12, 13, putz("#f3ead6"), .6)
        with wand(0, 0, 15, 12, "s"):
            fensterreihe(7.5, 15, 3, 2.4, 3.4)
            fensterreihe(1.8, 15, 3, 2.4, 3.4)
        walmdach(0, 0, 13, 15, 12, 6, ziegel("#c8502f", 2))
        fahne(0, 0, 18, 9, ("gelb", "rot"))
    with bei(-1, -13, 2, -62, .78):
        wagen("#f5b921")
    rendere(datei, 0, 0, 72, 72, rand=1, mitte=Vector((1.5, 4, 6)), fein=AUFTRAG.fein * 64 / 72)


def mache(datei):
    (tisch if datei.endswith("form1.jpg") else zeichen)(datei)
