"""Knotenbäume der Stoffe und Himmel, als Rechnung geschrieben: `wert * 2 + 1` statt vier Zeilen je Knoten."""
import bpy


class Wert:
    """Der Ausgang eines Knotens; Rechnungen mit ihm werden Knoten desselben Baums."""

    def __init__(self, baum, ausgang):
        self.baum, self.ausgang = baum, ausgang

    def __add__(self, b): return self.baum.mathe("ADD", self, b)
    def __radd__(self, a): return self.baum.mathe("ADD", a, self)
    def __sub__(self, b): return self.baum.mathe("SUBTRACT", self, b)
    def __rsub__(self, a): return self.baum.mathe("SUBTRACT", a, self)
    def __mul__(self, b): return self.baum.mathe("MULTIPLY", self, b)
    def __truediv__(self, b): return self.baum.mathe("DIVIDE", self, b)


class Baum:
    """Der Knotenbaum eines Stoffes oder einer Welt."""

    def __init__(self, ding):
        ding.use_nodes = True
        self.knoten, self.links = ding.node_tree.nodes, ding.node_tree.links

    def setze(self, knoten, eingänge):
        """Eingänge nach Namen oder Nummer: Zahlen, Farben oder Werte."""
        for name, wert in eingänge.items():
            if isinstance(wert, Wert):
                self.links.new(wert.ausgang, knoten.inputs[name])
            else:
                knoten.inputs[name].default_value = wert

    def neu(self, art, eingänge={}, aus=0, **eigenschaften):
        """Ein Knoten; zurück kommt sein Ausgang `aus`."""
        knoten = self.knoten.new("ShaderNode" + art)
        for name, wert in eigenschaften.items():
            setattr(knoten, name, wert)
        self.setze(knoten, eingänge)
        return Wert(self, knoten.outputs[aus])

    def mathe(self, art, *werte):
        return self.neu("Math", dict(enumerate(werte)), operation=art)

    def teile(self, vektor):
        """x, y, z eines Vektors."""
        x = self.neu("SeparateXYZ", {0: vektor})
        return [Wert(self, a) for a in x.ausgang.node.outputs]

    def rauschen(self, ort, maß, stufen, verzerrung=0.0):
        return self.neu("TexNoise", {"Scale": maß, "Detail": stufen, "Distortion": verzerrung, "Vector": ort}, "Fac")

    def spanne(self, wert, von, bis):
        """Bildet `von` (kleinster, größter Wert) auf `bis` ab."""
        grenzen = {"From Min": von[0], "From Max": von[1], "To Min": bis[0], "To Max": bis[1]}
        return self.neu("MapRange", {"Value": wert, **grenzen})

    def mal(self, farbe, wert):
        farbe = farbe if isinstance(farbe, Wert) else farbe[:3]
        return self.neu("VectorMath", {0: farbe, 1: wert}, operation="MULTIPLY")

    def rampe(self, wert, stufen, übergang="LINEAR"):
        """Farbverlauf; stufen: [(Ort, lineare Farbe), ...] von klein nach groß."""
        aus = self.neu("ValToRGB", {0: wert})
        r = aus.ausgang.node.color_ramp
        r.interpolation = übergang
        while len(r.elements) < len(stufen):
            r.elements.new(.5)
        for element, (ort, farbe) in zip(r.elements, stufen):
            element.position = ort
            element.color = (*farbe[:3], 1)
        return aus

    def relief(self, höhe, stärke, hub, normale=None):
        eingänge = {"Strength": stärke, "Distance": hub, "Height": höhe}
        return self.neu("Bump", eingänge | ({"Normal": normale} if normale else {}))


def stoffbaum(name):
    """Neuer Stoff, sein Baum und sein Principled-Knoten."""
    m = bpy.data.materials.new(name)
    baum = Baum(m)
    return m, baum, baum.knoten["Principled BSDF"]
