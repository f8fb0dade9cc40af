"""Boomerang: Lodge im roten Land, Wellblech und Veranda, Windrad, Felsen, der Bumerang auf dem Dach."""
from hotels.anlage import *

ERDE, FELS, BLECH, WAND = "#b4603a", "#b5492a", "#4fa093", "#f6e3b4"


def bumerang(x, y, z, weit, dick=2.2):
    """Großer bemalter Bumerang als Zeichen, nach hinten gelehnt."""
    w = weit / 2
    außen = glätten([(-w, -.30 * weit), (-.62 * w, .02 * weit), (0, .34 * weit), (.62 * w, .02 * weit),
                     (w, -.30 * weit)], 6, zu=False)
    innen = glätten([(.74 * w, -.34 * weit), (.40 * w, -.06 * weit), (0, .08 * weit), (-.40 * w, -.06 * weit),
                     (-.74 * w, -.34 * weit)], 6, zu=False)
    with bei(x, y, z):
        p = außen + innen
        kippe(prisma(p, -dick / 2, dick, "#f6b52a", .5), 62)
        for s in (-1, 1):
            for k, (lage_, farbe) in enumerate(((.80, "rot"), (.58, "weiß"), (.36, "#7a3a1c"))):
                a = s * lage_ * w
                m = -.16 * weit * (lage_ - .34) / .46 - .035 * weit if lage_ > .5 else .09 * weit
                kippe(zylinder(a, m, dick / 2 - .2, weit * .043, .5, farbe, rund=.1), 62)
        kippe(zylinder(0, .21 * weit, dick / 2 - .2, weit * .075, .6, "rot", rund=.1), 62)


def windrad(x, y, z, hoch, r):
    """Windpumpe der Farmen."""
    for sx in (-1, 1):
        for sy in (-1, 1):
            rohr([(x + sx * 4.5, y + sy * 4.5, z), (x + sx * .8, y + sy * .8, z + hoch)], .55, "#e9e4d8")
    for k in range(1, 5):
        w = 4.5 + (.8 - 4.5) * k / 5
        rohr([(x - w, y - w, z + hoch * k / 5), (x + w, y - w, z + hoch * k / 5), (x + w, y + w, z + hoch * k / 5),
              (x - w, y + w, z + hoch * k / 5)], .35, "#e9e4d8", zu=True)
    with bei(x, y - 2, z + hoch):
        for i in range(10):
            a = 2 * math.pi * i / 10
            lege(quader(0, 0, 0, r * .36, .5, r * .74, "weiß" if i % 2 else "rot", .15), Matrix.Rotation(a, 4, "Y")
                 @ schub(0, 0, r * .22) @ dreh(22, "Z"))
        rohr([(.96 * r * math.cos(2 * math.pi * i / 24), 0, .96 * r * math.sin(2 * math.pi * i / 24))
              for i in range(24)], .4, "#d8d2c4", zu=True)
        kugel(0, -.6, 0, 1.5, "gelb")
        quader(0, 6, -2.2, .6, 5, 4.4, "rot", .2)


def fels(x, y, b, t, h, farbe=FELS):
    """Breiter runder Fels mit Rippen."""
    bm = bmesh.new()
    bmesh.ops.create_icosphere(bm, subdivisions=5, radius=1)
    for v in bm.verts:
        d = v.co.copy()
        rippe = (.05 * math.sin(d.x * 13 + 2 * noise.noise(d * 2)) * (1 - max(0, d.z))
                 + .10 * noise.noise(d * 1.6 + Vector((3, 1, 0))))
        v.co = Vector((d.x * b / 2 * (1 + rippe), d.y * t / 2 * (1 + rippe), max(0, d.z) ** .55 * h * (1 + .8 * rippe)
                       if d.z > 0 else -.2))
    aus_bmesh(bm, stoff(farbe, rau=.85, glanz=.1, fleck=.20, fleckmaß=.10, korn=.5, kornmaß=.5), lage(x, y), glatt=True)


def tank(x, y, r, h):
    """Regentonne aus Wellblech auf Beinen."""
    for i in range(4):
        a = math.radians(45 + 90 * i)
        quader(x + .7 * r * math.cos(a), y + .7 * r * math.sin(a), 0, 1.4, 1.4, h, "dunkelholz", .2)
    drehkörper(x, y, h, [(r * (1 + .04 * (i % 2)), i * 1.3) for i in range(10)], lack("#d9dcd2"), 32)
    kegeldach(x, y, h + 11.8, r * .96, 4, lack("#c8502f"), knauf=None, über=.8)


def boom():
    erdton = erde(ERDE)
    boden(103, 112, erdton, ecke=16)
    fels(-4, 112, 92, 44, 40)
    fels(34, 103, 34, 26, 19, "#c1552f")
    windrad(-38, 84, 0, 56, 12.5)
    tank(40, 76, 7.5, 15)
    eukalyptus(-23, 90, maß=1.5)
    eukalyptus(43, 92, maß=1.1)
    eukalyptus(-44, 62, maß=1.0)
    veranda()
    obergeschoss()
    for x, y, m in ((-46, 10, 1.0), (47, 8, 1.1), (-30, 6, .8)):
        grasbüschel(x, y, maß=1.4 * m, farbe="#b9a347")
    busch(38, 8, maß=1.1, farbe="#8a9a4a", blüten="gelb")
    busch(-38, 7, maß=1.2, farbe="#8a9a4a", blüten="rot")
    steine(-20, 5, 5, 5, 1.8, FELS)
    steine(24, 6, 5, 5, 1.8, FELS)
    schirm(-27, 9, 0, 6, 8, ("#f6b52a", "#c8392f"))
    liege(-24, 5.5, 0, 0)


def veranda():
    """Deck, Erdgeschoss und Vordach auf Pfosten."""
    quader(0, 42, 0, 88, 54, 4, holz("#c08a52"), .5)
    for i in range(3):
        quader(0, 13.4 - 2.4 * i, 0, 22 + 2 * i, 3.4, 3.4 - 1.1 * i, holz("#b07c48"), .3)
    haus(0, 44, 4, 72, 34, 14, putz(WAND), ((3, 17, 7, 9, dict(läden="#c8502f", sprossen=(1, 1))),))
    with wand(0, 44, 72, 34, "s"), bei(0, 0, 4):
        tür(0, 0, 9, 12, "#c8502f", stufen=0)
    dach = wellblech(BLECH, 2.6)
    walmdach(0, 42, 18, 86, 52, 12, dach, über=3, first=44, dick=1.4)
    for i in range(8):
        quader(-42 + 12 * i, 15.5, 4, 1.7, 1.7, 13.5, "weiß", .3)
    for a, e in ((-42, -12), (12, 42)):
        zaun([(a, 15.5), (e, 15.5)], "weiß", 4.6, 3.0, 4, latten=2)


def obergeschoss():
    """Giebel und Gauben, der Bumerang auf dem Dach."""
    haus(0, 48, 22, 46, 26, 19, putz("#e8b968"), ((10.5, 9.5, 5.2, 6.2, dict(rahmen="weiß")),))
    walmdach(0, 48, 41, 46, 26, 13, wellblech("#5fb3a4", 2.6), über=4, first=22, dick=1.4)
    for s in (-1, 1):                          # Gauben der Veranda
        with bei(s * 27, 28, 21):
            quader(0, 0, 0, 11, 12, 7, putz(WAND), .3)
            with wand(0, 0, 11, 12, "s"):
                fenster(0, 2.4, 5, 4.2)
            satteldach(0, 0, 7, 12, 13, 4, wellblech("#5fb3a4", 2.0), drehung=90, giebel=putz(WAND))
    bumerang(0, 33, 47, 46, 3)
    wimpel(-30, 50, 30, 20, ("#20408a", "weiß", "rot"), 8, 5)


def boomp():
    boden(73, 34, erde(ERDE), ecke=8)
    becken(glätten([(-22, 8), (-4, 6), (8, 11), (20, 9), (24, 18), (8, 23), (-8, 20), (-24, 20)], 6), .5,
           stein("#e0b184"), 2.4, "#2fc0d4", 1.2)
    steine(26, 24, 6, 4, 2.4, FELS)
    eukalyptus(-31, 23, maß=.72)
    eukalyptus(31, 14, maß=.68)
    schirm(-29, 9, .6, 5.2, 7, ("#f6b52a", "#c8392f"))
    liege(-33, 5, .6)
    liege(-26, 5, .6)
    schirm(8, 27, .6, 4.6, 6.5, ("weiß", "#3f8f86"))
    liege(2, 27, .6)
    liege(14, 27, .6)
    bumerang(-10, 28, 5, 15, 1.6)
    busch(33, 4, maß=.9, farbe="#8a9a4a", blüten="gelb")
    grasbüschel(24, 5, maß=1.3, farbe="#b9a347")


STUFEN = dict(boom=boom, boomp=boomp)
