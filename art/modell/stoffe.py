"""Stoffe und Farben der Modellinsel: Lack, Putz, Holz, Ziegel, Laub, Glas, Wasser ..."""
import math

import bpy

_STOFFE = {}

FARBEN = dict(weiss="#f4efe4", creme="#f0dfb8", sand="#e3c68e", holz="#b9804a", dunkelholz="#7a4e2c",
              rot="#c8392f", gelb="#f2b92c", blau="#2f6fc0", gruen="#3f9a4a", gras="#86b24a",
              asphalt="#5b5d63", stein="#b9b2a4", ziegelrot="#c2603c", laub="#5d9a3a", gold="#d9a441",
              glas="#4b7894", wasser="#2aa3b8", stroh="#d3ad62", grau="#8c8f93", schwarz="#2a2a2e",
              rosa="#e58a9a", orange="#e98232", tuerkis="#3fb5ad", lila="#8a5fa8", rinde="#8a6a4a")


def rgb(farbe):
    """Name aus FARBEN oder "#rrggbb" -> lineare Farbwerte."""
    h = FARBEN.get(farbe, farbe).lstrip("#")
    return tuple((c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4)
                 for c in (int(h[i:i + 2], 16) / 255 for i in (0, 2, 4)))


def heller(farbe, faktor):
    """Farbe mal `faktor` (unter 1 dunkler), als "#rrggbb"."""
    h = FARBEN.get(farbe, farbe).lstrip("#")
    return "#" + "".join("%02x" % min(255, max(0, round(int(h[i:i + 2], 16) * faktor))) for i in (0, 2, 4))


def stoff(farbe, rau=0.55, glanz=0.35, metall=0.0, fleck=0.10, fleckmass=0.06, korn=0.0, kornmass=1.2,
          muster=None, musterhub=0.5, alpha=1.0, leuchten=0.0):
    """Ein Stoff. fleck: Anteil der Helligkeitsflecken; korn: Rauheit der Fläche; muster: siehe _muster."""
    schlüssel = (farbe, rau, glanz, metall, fleck, fleckmass, korn, kornmass, str(muster), musterhub, alpha, leuchten)
    if schlüssel in _STOFFE:
        return _STOFFE[schlüssel]
    m = bpy.data.materials.new(str(farbe))
    m.use_nodes = True
    k, v = m.node_tree.nodes, m.node_tree.links
    p = k["Principled BSDF"]
    p.inputs["Roughness"].default_value = rau
    p.inputs["Specular"].default_value = glanz
    p.inputs["Metallic"].default_value = metall
    p.inputs["Alpha"].default_value = alpha
    farbwert = (*rgb(farbe), 1)
    p.inputs["Base Color"].default_value = farbwert
    if leuchten:
        p.inputs["Emission"].default_value = farbwert
        p.inputs["Emission Strength"].default_value = leuchten
    ort = k.new("ShaderNodeNewGeometry").outputs["Position"]
    höhe = None
    if fleck:
        r = _rauschen(k, v, ort, fleckmass, 2)
        ton = k.new("ShaderNodeMapRange")
        ton.inputs["From Min"].default_value, ton.inputs["From Max"].default_value = 0.3, 0.7
        ton.inputs["To Min"].default_value, ton.inputs["To Max"].default_value = 1 - fleck, 1 + fleck
        v.new(r, ton.inputs["Value"])
        farbaus = _mal(k, v, farbwert, ton.outputs[0])
    else:
        farbaus = None
    if muster:
        höhe, ton = _muster(k, v, *muster)
        farbaus = _mal(k, v, farbaus or farbwert, ton)
    if farbaus:
        v.new(farbaus, p.inputs["Base Color"])
    if korn:
        höhe2 = _rauschen(k, v, ort, kornmass, 2)
        _relief(k, v, p, höhe2, korn, höhe, musterhub)
    elif höhe:
        _relief(k, v, p, höhe, musterhub)
    _STOFFE[schlüssel] = m
    return m


def _rauschen(k, v, ort, mass, stufen):
    n = k.new("ShaderNodeTexNoise")
    n.inputs["Scale"].default_value, n.inputs["Detail"].default_value = mass, stufen
    v.new(ort, n.inputs["Vector"])
    return n.outputs["Fac"]


def _mal(k, v, farbe, wert):
    m = k.new("ShaderNodeVectorMath")
    m.operation = "MULTIPLY"
    if isinstance(farbe, tuple):
        m.inputs[0].default_value = farbe[:3]
    else:
        v.new(farbe, m.inputs[0])
    v.new(wert, m.inputs[1])
    return m.outputs[0]


def _relief(k, v, p, höhe, hub, höhe2=None, hub2=0.0):
    b = k.new("ShaderNodeBump")
    b.inputs["Strength"].default_value = min(1, hub)
    b.inputs["Distance"].default_value = max(1, hub)
    v.new(höhe, b.inputs["Height"])
    if höhe2:
        b2 = k.new("ShaderNodeBump")
        b2.inputs["Strength"].default_value = hub2
        v.new(höhe2, b2.inputs["Height"])
        v.new(b2.outputs[0], b.inputs["Normal"])
    v.new(b.outputs[0], p.inputs["Normal"])


def _rechne(k, v, art, a, b=0.0):
    m = k.new("ShaderNodeMath")
    m.operation = art
    for stelle, wert in enumerate((a, b)):
        if isinstance(wert, (int, float)):
            m.inputs[stelle].default_value = wert
        else:
            v.new(wert, m.inputs[stelle])
    return m.outputs[0]


def _muster(k, v, art, breite, höhe, spiel=0.18):
    """Höhe und Ton eines Musters über die Flächenlage u (waagrecht), v (hinauf), in Einheiten.

    "ziegel": Rinnen mit Stufen, "brett": Bretter längs u, "stein": Verband mit Fugen,
    "platte": Platten ohne Verband."""
    uv = k.new("ShaderNodeTexCoord").outputs["UV"]
    teil = k.new("ShaderNodeSeparateXYZ")
    v.new(uv, teil.inputs[0])
    q = _rechne(k, v, "DIVIDE", teil.outputs["Y"], höhe)
    reihe = _rechne(k, v, "FLOOR", q)
    p = _rechne(k, v, "DIVIDE", teil.outputs["X"], breite)
    if art in ("stein", "brett"):
        p = _rechne(k, v, "ADD", p, _rechne(k, v, "MULTIPLY", reihe, 0.5 if art == "stein" else 0.37))
    spalte = _rechne(k, v, "FLOOR", p)
    pf, qf = _rechne(k, v, "SUBTRACT", p, spalte), _rechne(k, v, "SUBTRACT", q, reihe)
    if art == "ziegel":
        bogen = _rechne(k, v, "SINE", _rechne(k, v, "MULTIPLY", pf, math.pi))
        höhe_ = _rechne(k, v, "ADD", bogen, _rechne(k, v, "MULTIPLY", _rechne(k, v, "SUBTRACT", 1.0, qf), 0.9))
        grund = _rechne(k, v, "ADD", 0.72, _rechne(k, v, "MULTIPLY", bogen, 0.3))
    else:
        def fuge(f, mass):
            d = _rechne(k, v, "MINIMUM", f, _rechne(k, v, "SUBTRACT", 1.0, f))
            return _rechne(k, v, "MINIMUM", 1.0, _rechne(k, v, "MULTIPLY", d, mass / 0.16))
        höhe_ = _rechne(k, v, "MULTIPLY", fuge(pf, breite), fuge(qf, höhe))
        grund = _rechne(k, v, "ADD", 0.72, _rechne(k, v, "MULTIPLY", höhe_, 0.28))
    zelle = k.new("ShaderNodeCombineXYZ")
    v.new(spalte, zelle.inputs[0])
    v.new(reihe, zelle.inputs[1])
    zufall = k.new("ShaderNodeTexWhiteNoise")
    v.new(zelle.outputs[0], zufall.inputs["Vector"])
    ton = _rechne(k, v, "ADD", 1 - spiel / 2, _rechne(k, v, "MULTIPLY", zufall.outputs["Value"], spiel))
    return höhe_, _rechne(k, v, "MULTIPLY", grund, ton)


def lack(farbe):
    """Glatte, matt glänzende Spielzeugfarbe."""
    return stoff(farbe, rau=0.32, glanz=0.5, fleck=0.03)


def putz(farbe):
    return stoff(farbe, rau=0.8, glanz=0.2, fleck=0.06, korn=0.12, kornmass=1.5)


def holz(farbe="holz"):
    """Bretter, längs der Flächenbreite."""
    return stoff(farbe, rau=0.6, glanz=0.25, muster=("brett", 14, 2.2, 0.25), musterhub=0.4)


def ziegel(farbe="ziegelrot", mass=2.6):
    return stoff(farbe, rau=0.6, glanz=0.3, muster=("ziegel", mass, mass * 1.15, 0.30), musterhub=0.9)


def mauer(farbe="stein", mass=3.0):
    return stoff(farbe, rau=0.75, glanz=0.2, muster=("stein", mass * 2, mass, 0.22), musterhub=0.5)


def platten(farbe="stein", mass=6.0, spiel=0.10):
    return stoff(farbe, rau=0.5, glanz=0.35, muster=("platte", mass, mass, spiel), musterhub=0.3)


def stroh(farbe="stroh"):
    return stoff(farbe, rau=0.9, glanz=0.1, muster=("brett", 1.1, 3.2, 0.5), musterhub=0.9, korn=0.4, kornmass=2.0)


def stein(farbe="stein"):
    return stoff(farbe, rau=0.8, glanz=0.2, fleck=0.18, fleckmass=0.2, korn=0.5, kornmass=0.7)


def laub(farbe="laub"):
    return stoff(farbe, rau=0.85, glanz=0.12, fleck=0.22, fleckmass=0.25, korn=0.9, kornmass=0.9)


def gras(farbe="gras"):
    return stoff(farbe, rau=0.9, glanz=0.1, fleck=0.14, fleckmass=0.05, korn=0.7, kornmass=1.4)


def glas(farbe="glas"):
    return stoff(farbe, rau=0.08, glanz=0.9, fleck=0.15, fleckmass=0.04)


def wasser(farbe="wasser"):
    return stoff(farbe, rau=0.06, glanz=0.7, fleck=0.12, fleckmass=0.08, korn=0.10, kornmass=0.35)


def metall(farbe="gold", rau=0.3):
    return stoff(farbe, rau=rau, metall=0.85, fleck=0.03)


def als_stoff(s):
    """Erlaubt überall statt eines Stoffes auch eine Farbe: sie wird Lack."""
    return s if isinstance(s, bpy.types.Material) else lack(s)
