"""Stoffe und Farben der Modellinsel: Lack, Putz, Holz, Ziegel, Laub, Glas, Wasser ..."""
import math

import bpy

from knoten import stoffbaum

_STOFFE = {}


def leere_stoffe():
    _STOFFE.clear()


FARBEN = dict(weiß="#f4efe4", creme="#f0dfb8", sand="#e3c68e", holz="#b9804a", dunkelholz="#7a4e2c",
              rot="#c8392f", gelb="#f2b92c", blau="#2f6fc0", grün="#3f9a4a", gras="#86b24a",
              asphalt="#5b5d63", stein="#b9b2a4", ziegelrot="#c2603c", laub="#5d9a3a", gold="#d9a441",
              glas="#4b7894", wasser="#2aa3b8", stroh="#d3ad62", grau="#8c8f93", schwarz="#2a2a2e",
              rosa="#e58a9a", orange="#e98232", türkis="#3fb5ad", lila="#8a5fa8", rinde="#8a6a4a")


def rgb(farbe):
    """Name aus FARBEN oder "#rrggbb" -> lineare Farbwerte."""
    h = FARBEN.get(farbe, farbe).lstrip("#")
    return tuple((c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4)
                 for c in (int(h[i:i + 2], 16) / 255 for i in (0, 2, 4)))


def heller(farbe, faktor):
    """Farbe mal `faktor` (unter 1 dunkler), als "#rrggbb"."""
    h = FARBEN.get(farbe, farbe).lstrip("#")
    return "#" + "".join("%02x" % min(255, max(0, round(int(h[i:i + 2], 16) * faktor))) for i in (0, 2, 4))


def stoff(farbe, rau=0.55, glanz=0.35, metall=0.0, fleck=0.10, fleckmaß=0.06, korn=0.0, kornmaß=1.2,
          muster=None, musterhub=0.5, leuchten=0.0):
    """Ein Stoff. fleck: Anteil der Helligkeitsflecken; korn: Rauheit der Fläche; muster: siehe _muster."""
    schlüssel = (farbe, rau, glanz, metall, fleck, fleckmaß, korn, kornmaß, muster, musterhub, leuchten)
    if schlüssel not in _STOFFE:
        m, baum, p = stoffbaum(str(farbe))
        farbwert = (*rgb(farbe), 1)
        baum.setze(p, {"Roughness": rau, "Specular": glanz, "Metallic": metall, "Base Color": farbwert})
        if leuchten:
            baum.setze(p, {"Emission": farbwert, "Emission Strength": leuchten})
        ort = baum.neu("NewGeometry", aus="Position")
        ton, höhe = farbwert, None
        if fleck:
            ton = baum.mal(ton, baum.spanne(baum.rauschen(ort, fleckmaß, 2), (.3, .7), (1 - fleck, 1 + fleck)))
        if muster:
            höhe, zeichnung = _muster(baum, *muster)
            ton = baum.mal(ton, zeichnung)
            m["muster"] = True                  # sein Netz braucht eine Flächenlage
        baum.setze(p, {"Base Color": ton})
        _fläche(baum, p, ort, korn, kornmaß, höhe, musterhub)
        _STOFFE[schlüssel] = m
    return _STOFFE[schlüssel]


def _fläche(baum, p, ort, korn, kornmaß, höhe=None, hub=0.0):
    """Unebenheit aus Korn und Muster."""
    normale = None
    if höhe:
        normale = baum.relief(höhe, hub, 1.0) if korn else baum.relief(höhe, min(1, hub), max(1, hub))
    if korn:
        normale = baum.relief(baum.rauschen(ort, kornmaß, 2), min(1, korn), max(1, korn), normale)
    if normale:
        baum.setze(p, {"Normal": normale})


def punktstoff(name, rau, glanz, korn, kornmaß, fleck):
    """Stoff, der seine Farbe aus den Netzpunkten nimmt (Farbfeld "Farbe")."""
    m, baum, p = stoffbaum(name)
    ort = baum.neu("NewGeometry", aus="Position")
    ton = baum.spanne(baum.rauschen(ort, .45, 3), (.25, .75), (1 - fleck, 1 + fleck))
    farbe = baum.neu("Attribute", aus="Color", attribute_name="Farbe")
    baum.setze(p, {"Roughness": rau, "Specular": glanz, "Base Color": baum.mal(farbe, ton)})
    _fläche(baum, p, ort, korn, kornmaß)
    return m


def matt(farbe, rau=0.55, glanz=0.35, metall=0.0, korn=0.0, kornmaß=60.0, leuchten=0.0, deck=1.0, ton=None):
    """Ebenmäßiger Stoff der Figuren: ohne Flecken, feines Korn. ton: Name eines Farbfelds der Netzpunkte."""
    m, baum, p = stoffbaum(str(farbe))
    farbwert = (*rgb(farbe), 1)
    baum.setze(p, {"Roughness": rau, "Specular": glanz, "Metallic": metall, "Alpha": deck, "Base Color": farbwert})
    if leuchten:
        baum.setze(p, {"Emission": farbwert, "Emission Strength": leuchten})
    if ton:
        baum.setze(p, {"Base Color": baum.neu("VertexColor", layer_name=ton)})
    if korn:
        baum.setze(p, {"Normal": baum.relief(baum.neu("TexNoise", {"Scale": kornmaß}), korn, .02)})
    return m


def _muster(baum, art, breite, höhe, spiel=0.18):
    """Höhe und Ton eines Musters über die Flächenlage u (waagrecht), v (hinauf), in Einheiten.

    "ziegel": Rinnen mit Stufen, "brett": Bretter längs u, "stein": Verband mit Fugen,
    "platte": Platten ohne Verband."""
    u, v, _ = baum.teile(baum.neu("TexCoord", aus="UV"))
    q = v / höhe
    reihe = baum.mathe("FLOOR", q)
    p = u / breite
    if art in ("stein", "brett"):
        p = p + reihe * (0.5 if art == "stein" else 0.37)
    spalte = baum.mathe("FLOOR", p)
    pf, qf = p - spalte, q - reihe
    if art == "ziegel":
        bogen = baum.mathe("SINE", pf * math.pi)
        hub, grund = bogen + (1.0 - qf) * 0.9, 0.72 + bogen * 0.3
    else:
        def fuge(f, maß):
            return baum.mathe("MINIMUM", 1.0, baum.mathe("MINIMUM", f, 1.0 - f) * (maß / 0.16))
        hub = fuge(pf, breite) * fuge(qf, höhe)
        grund = 0.72 + hub * 0.28
    zelle = baum.neu("CombineXYZ", {0: spalte, 1: reihe})
    zufall = baum.neu("TexWhiteNoise", {"Vector": zelle})
    return hub, grund * ((1 - spiel / 2) + zufall * spiel)


def lack(farbe):
    """Glatte, matt glänzende Spielzeugfarbe."""
    return stoff(farbe, rau=0.32, glanz=0.5, fleck=0.03)


def putz(farbe):
    return stoff(farbe, rau=0.8, glanz=0.2, fleck=0.06, korn=0.12, kornmaß=1.5)


def holz(farbe="holz"):
    """Bretter, längs der Flächenbreite."""
    return stoff(farbe, rau=0.6, glanz=0.25, muster=("brett", 14, 2.2, 0.25), musterhub=0.4)


def ziegel(farbe="ziegelrot", maß=2.6):
    return stoff(farbe, rau=0.6, glanz=0.3, muster=("ziegel", maß, maß * 1.15, 0.30), musterhub=0.9)


def mauer(farbe="stein", maß=3.0):
    return stoff(farbe, rau=0.75, glanz=0.2, muster=("stein", maß * 2, maß, 0.22), musterhub=0.5)


def platten(farbe="stein", maß=6.0, spiel=0.10):
    return stoff(farbe, rau=0.5, glanz=0.35, muster=("platte", maß, maß, spiel), musterhub=0.3)


def stroh(farbe="stroh"):
    return stoff(farbe, rau=0.9, glanz=0.1, muster=("brett", 1.1, 3.2, 0.5), musterhub=0.9, korn=0.4, kornmaß=2.0)


def stein(farbe="stein"):
    return stoff(farbe, rau=0.8, glanz=0.2, fleck=0.18, fleckmaß=0.2, korn=0.5, kornmaß=0.7)


def laub(farbe="laub"):
    return stoff(farbe, rau=0.85, glanz=0.12, fleck=0.22, fleckmaß=0.25, korn=0.9, kornmaß=0.9)


def gras(farbe="gras"):
    return stoff(farbe, rau=0.9, glanz=0.1, fleck=0.14, fleckmaß=0.05, korn=0.7, kornmaß=1.4)


def glas(farbe="glas"):
    return stoff(farbe, rau=0.08, glanz=0.9, fleck=0.15, fleckmaß=0.04)


def wasser(farbe="wasser"):
    return stoff(farbe, rau=0.06, glanz=0.7, fleck=0.12, fleckmaß=0.08, korn=0.10, kornmaß=0.35)


def metall(farbe="gold", rau=0.3):
    return stoff(farbe, rau=rau, metall=0.85, fleck=0.03)


def als_stoff(s):
    """Erlaubt überall statt eines Stoffes auch eine Farbe: sie wird Lack."""
    return s if isinstance(s, bpy.types.Material) else lack(s)
