"""Die 15 Gäste des Hauses als Büsten: bilder/charakter/141.jpg bis 155.jpg."""
from pathlib import Path

from befehl import maß
from gäste.beiwerk import *
from gäste.rumpf import Rumpf
from knoten import Baum

GRUND = dict(breit=1.0, lang=1.0, kiefer=0.06, wangen=1.0, kinn=0.6, brauenwulst=0.6, augab=0.315, augen=1.0,
             alter=0.0, rot=0.8, nase=(1.0, 1.0, 1.0), mund=("zu", 1.0, 1.0, "#b5584f", 0.8), lid=(34, 44), wimpern=0.3,
             braue=(0.7, 0.8, 0.0, 0.0),
             iris="#6b4426", irisrand="#2e1a0c", ansatz=(0.55, 0.42, 0.05, -0.45), schulter=1.0, drehung=(0, 0, 8),
             hals=1.0)


# Ort, Größe, Kraft und Farbe der Lichter
LICHTER = (((-3.6, -4.4, 4.0), 2.2, 520, (1.0, 0.90, 0.76)), ((4.2, -3.6, 0.6), 4.0, 150, (0.84, 0.88, 1.0)),
           ((3.0, 3.4, 3.6), 2.0, 360, (1.0, 0.86, 0.66)), ((-3.4, 2.6, 1.0), 2.0, 90, (0.85, 0.93, 1.0)))


def gast(nr, **w):
    return nr, {**GRUND, "nr": nr, **w}


# Felder: Kopfform, Farben, nase (Länge, Breite, Höhe), mund (Art, Breite, Lächeln, Farbe, Fülle),
# lid (oben, unten in Grad), braue (Dicke, Bogen, Schräge, Höhe), ansatz des Haars, Kleid, Hut, Hintergrund
GÄSTE = dict([
    gast(141, haut="#e0ab88", haarfarbe="#c9c6c0", breit=0.98, lang=1.04, kiefer=0.07, kinn=0.9, alter=1,
         nase=(1.15, 1.1, 1.15), mund=("zu", 0.95, 0.7, "#a85a4c", 0.55),
         lid=(26, 38), braue=(1.25, 0.5, -0.2, 0), iris="#4f7187", irisrand="#253a4a", ansatz=(0.72, 0.50, 0.05, -0.45),
         frisur="zurück", bart="schnauz", kleid=("anzug", "#3b4a63", "#f4efe4", "#9c2f35", "fliege"),
         grund=("#d9c08a", "#8d6a3f"), drehung=(0, 0, -12)),
    gast(142, haut="#7a4a2e", haarfarbe="#2a1a14", breit=0.96, kinn=0.4, nase=(0.9, 1.35, 0.75),
         mund=("offen", 1.15, 1.15, "#a3403f", 1.25), lid=(32, 40), wimpern=0.9,
         braue=(0.6, 1.1, 0.2, 0.4), iris="#4a2a16", ansatz=(0.50, 0.36, 0.02, -0.40), frisur="afro", schulter=0.84,
         ohrring="#f0c040",
         kleid=("kleid", "#f2b632", "#f7d679"), grund=("#7fc8c0", "#2f8288"), drehung=(0, 4, 12), hals=0.88),
    gast(143, haut="#e6a883", haarfarbe="#b9541c", breit=1.05, kiefer=0.10, kinn=0.7, rot=1.15, nase=(0.95, 1.2, 1.0),
         mund=("offen", 0.95, 0.9, "#b4574c", 0.7), lid=(30, 36),
         braue=(1.2, 0.7, 0.1, 0.2), iris="#4d8a53", irisrand="#1f4426", ansatz=(0.62, 0.46, 0.02, -0.45),
         frisur="strubbel", bart="voll",
         kleid=("hemd", "#3f7f4c", "#2e6239"), grund=("#f0d7a0", "#c48f4a"), drehung=(0, -3, 14), schulter=1.1),
    gast(144, haut="#e6b491", haarfarbe="#e6e1ea", breit=0.95, lang=0.97, kiefer=0.05, wangen=1.35, kinn=0.4, alter=1,
         rot=1.1, nase=(0.95, 0.95, 0.85), mund=("zu", 0.95, 1.3, "#b8404e", 0.9),
         lid=(26, 34), wimpern=0.6, braue=(0.5, 1.0, 0.0, 0.5), brauenfarbe="#a89c96", iris="#5b82a8",
         irisrand="#2b4560", ansatz=(0.62, 0.46, 0.08, -0.42), frisur="dutt", brille=("rund", "#8a2f4a"),
         schulter=0.84, ohrring="#f3ead8", kleid=("rolli", "#8f6fae", "#a487c0"), kette="#f6efe2",
         grund=("#f3d3cf", "#b97a80"), drehung=(0, -4, -12), hals=0.86),
    gast(145, haut="#e6b98d", haarfarbe="#1c1718", breit=0.99, kiefer=0.07, kinn=0.6, brauenwulst=0.3,
         nase=(0.85, 1.15, 0.7), mund=("offen", 1.05, 1.0, "#b56a5a", 0.6), lid=(24, 24),
         braue=(0.9, 0.5, 0.35, 0.2), iris="#3b2314", ansatz=(0.55, 0.44, 0.02, -0.40), frisur="stachel",
         kleid=("tshirt", "#e8743a", "#fbe9d2"), grund=("#a9d7ee", "#3f86b5"), drehung=(0, 5, 14)),
    gast(146, haut="#eab68e", haarfarbe="#e3b75f", breit=0.93, kinn=0.45, kiefer=0.03, rot=1.0, nase=(0.9, 0.9, 0.9),
         mund=("offen", 1.0, 1.2, "#cf4f55", 1.0), lid=(33, 42), wimpern=0.9,
         braue=(0.5, 0.9, 0.1, 0.4), brauenfarbe="#a8793a", iris="#3f8fc4", irisrand="#1d4d75", frisur="lang",
         hut=("sonnenhut", "#ecd9a4", "#2f6fa8"), schulter=0.80,
         kleid=("kleid", "#3f86c0", "#dcecf4"), grund=("#fbe6b3", "#e0a24e"), drehung=(0, 6, -12), hals=0.82),
    gast(147, haut="#d99f7b", haarfarbe="#b9b4ac", breit=1.06, kiefer=0.10, wangen=1.3, kinn=0.8, alter=1, rot=1.4,
         nase=(1.0, 1.4, 1.15), mund=("zu", 0.9, 1.2, "#a5524a", 0.8), lid=(22, 34),
         braue=(1.5, 0.6, -0.1, 0), brauenfarbe="#cfc9bf", iris="#4a86b0", irisrand="#234a66",
         ansatz=(0.60, 0.46, 0.0, -0.45), frisur="kurz", bart="seebär", hut=("kapitän", "#f5f1e6", "#1e2b46"),
         kleid=("anzug", "#22345a", "#f1ece0", "#22345a", "rolli"), grund=("#a7d4e6", "#3a7ea6"), drehung=(0, 0, 12),
         schulter=1.1),
    gast(148, haut="#a8703f", haarfarbe="#1d1413", breit=0.93, kiefer=0.03, kinn=0.45, nase=(1.0, 1.0, 0.95),
         mund=("zu", 1.05, 1.3, "#9c3440", 1.15), lid=(30, 42), wimpern=1.0, braue=(0.75, 1.1, 0.1, 0.2),
         iris="#3a2010", frisur="zopf", ansatz=(0.58, 0.44, 0.06, -0.45), ohrring="#f2c14a", stirnpunkt="#c22338",
         schulter=0.80, kleid=("sari", "#c2286e", "#f0b83c"), kette="#f0c14a",
         grund=("#f6cf8b", "#cf7a36"), drehung=(0, -4, 12), hals=0.82, lidschatten="#8f5a38"),
    gast(149, haut="#5f3a26", haarfarbe="#1a1210", breit=1.08, lang=0.98, kiefer=0.12, wangen=1.35, kinn=0.6,
         nase=(0.95, 1.45, 0.95), mund=("offen", 1.15, 1.15, "#8e4640", 1.05), lid=(28, 32),
         braue=(1.1, 0.8, 0.0, 0.3), iris="#2e1a0f", frisur="glatze", bart="kinn", brille=("eckig", "#2a2a30"),
         kleid=("hawaii", "#1f8f86", "#f6d65a"), grund=("#f7c98a", "#d9743f"), drehung=(0, 0, -12), schulter=1.12,
         hals=1.15),
    gast(150, haut="#efbf9c", haarfarbe="#7a3f1f", breit=0.97, lang=0.95, kiefer=0.03, wangen=1.2, kinn=0.3,
         brauenwulst=0.2, rot=1.2, nase=(0.75, 0.9, 0.75), mund=("offen", 1.05, 1.25, "#cf746c", 0.7), lid=(38, 46),
         augen=1.10, wimpern=0.55, braue=(0.55, 0.9, 0.2, 0.5), iris="#6d8a3a", irisrand="#39491c", frisur="pagenkopf",
         ansatz=(0.55, 0.42, 0.05, -0.45), sprossen=True, schulter=0.78, kleid=("ringel", "#f6f1e4", "#2c4f8f"),
         grund=("#c6e6b6", "#5c9c5a"), drehung=(0, -6, -12), hals=0.78),
    gast(151, haut="#c48a5c", haarfarbe="#221714", breit=0.98, lang=1.03, kiefer=0.09, kinn=0.95, brauenwulst=0.9,
         nase=(1.1, 1.0, 1.2), mund=("offen", 1.05, 0.9, "#a3604f", 0.65), lid=(26, 34), braue=(1.15, 0.7, 0.35, 0),
         iris="#4a2b14", ansatz=(0.66, 0.50, -0.06, -0.45), frisur="pomade", stoppeln=0.42, bart="dünn",
         kleid=("offen", "#f6f1e6", "#dfd5c2"), kette="#e8b83c", grund=("#f2b37a", "#b5483f"), drehung=(0, 4, 14)),
    gast(152, haut="#d69c6c", haarfarbe="#d9a648", breit=1.0, kiefer=0.13, kinn=1.0, nase=(1.0, 1.0, 1.0),
         mund=("offen", 1.15, 1.0, "#b4705c", 0.55), lid=(27, 34), braue=(1.1, 0.4, 0.25, -0.1), brauenfarbe="#8f6426",
         iris="#3f9aa8", irisrand="#1d5560", frisur="surfer", ansatz=(0.60, 0.46, 0.04, -0.45), stoppeln=0.55,
         brauenwulst=1.0, kleid=("tshirt", "#2fa8a0", "#f3efe0"), kettchen="#6b4426", grund=("#fbe1a4", "#4fb0c6"),
         drehung=(0, -5, -13)),
    gast(153, haut="#dfa67c", haarfarbe="#53291a", breit=0.94, kiefer=0.03, kinn=0.45, nase=(0.9, 0.95, 0.9),
         mund=("offen", 1.1, 1.25, "#c23b46", 1.1), lid=(32, 42), wimpern=0.95, braue=(0.65, 1.0, 0.1, 0.3),
         iris="#6f4a20", frisur="wellen", ansatz=(0.57, 0.44, 0.05, -0.45), blume="#e8414f", schulter=0.80,
         kleid=("hawaii", "#ef7d5b", "#fff0d6"), grund=("#a5dccb", "#2f8f93"), drehung=(0, -6, 12), hals=0.82),
    gast(154, haut="#553421", haarfarbe="#e9e5de", breit=0.98, lang=1.02, kiefer=0.08, kinn=0.8, alter=1,
         nase=(1.05, 1.35, 1.0), mund=("zu", 1.05, 1.2, "#7e423a", 0.95), lid=(24, 34), braue=(1.15, 0.6, -0.1, 0.1),
         iris="#2e1a0f", frisur="krauskurz", bart="weiß", hut=("fedora", "#e9d6a6", "#5a3420"),
         kleid=("anzug", "#e3d6b6", "#f7f3ea", "#3f7f86", "krawatte"), grund=("#c9dba0", "#6b8f4a"),
         drehung=(0, 4, -12)),
    gast(155, haut="#e3b48c", haarfarbe="#2a1a12", breit=0.93, kiefer=0.02, kinn=0.4, rot=0.9, nase=(1.0, 0.9, 1.0),
         mund=("zu", 1.0, 1.4, "#b24850", 1.0), lid=(31, 42), wimpern=1.0, braue=(0.7, 0.9, 0.1, 0.3),
         iris="#5a3a1a", frisur="keine", hut=("kopftuch", "#3f9c97", "#e9c46a"), schulter=0.82,
         kleid=("rolli", "#e9dcc6", "#f3e9d8"), lidschatten="#bd8f70", grund=("#f2d9c0", "#c28f74"),
         drehung=(0, 4, 12), hals=0.8),
])


def hintergrund(hell, dunkel):
    """Weiches Licht, von der Mitte oben nach außen dunkler."""
    m = bpy.data.materials.new("Hintergrund")
    baum = Baum(m)
    ort = baum.neu("Mapping", {"Vector": baum.neu("TexCoord", aus="Object"), "Location": (0.12, -0.18, 0),
                               "Scale": (0.30, 0.30, 0.30)})
    verlauf = baum.neu("TexGradient", {"Vector": ort}, "Color", gradient_type="SPHERICAL")
    farbe = baum.rampe(verlauf, [(0, rgb(dunkel)), (1, rgb(hell))], "EASE")
    schein = baum.neu("Emission", {"Color": farbe, "Strength": 0.85})
    baum.setze(baum.knoten["Material Output"], {"Surface": schein})
    ecken = [(-8, -8, 0), (8, -8, 0), (8, 8, 0), (-8, 8, 0)]
    e = netz(ecken, [(0, 1, 2, 3)], m, platz((0, 3.5, 0), (math.pi / 2, 0, 0)))
    e.visible_diffuse = e.visible_glossy = e.visible_shadow = False


def mache(datei):
    g = GÄSTE[int(Path(datei).stem)]
    porträt(0.42)
    with rahmen(platz(drehung=[math.radians(a) for a in g["drehung"]])):
        k = Haarkopf(g)
        frisieren(k)
        hut(k)
        brille(k)
        beigaben(k)
    Rumpf(g)
    himmel("Welt", 0.32, (0.62, 0.72, 0.86))
    for ort, größe, kraft, farbe in LICHTER:
        flächenlicht(ort, (0, 0, -0.3), größe, kraft, farbe)
    kamera((0, -9.6, 0.35), (0, 0, -0.17), brennweite=98)
    hintergrund(*g["grund"])
    belichte_jpeg(datei, 396 * maß(), 392 * maß(), 512)
