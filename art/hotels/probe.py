"""Legt die Baustufen zum Ansehen auf das Brett: art/machen --skript hotels/probe.py --ziel ORDNER brett.png

Gezeigt wird, was im Ziel liegt, sonst das Ausgelieferte; hinten steht, was weiter oben fußt.
"""
from befehl import AUFTRAG, rufe, vorhanden, ziel
from tafeln import BRETT, STUFEN, punkte


def mache(datei):
    def größe(ort):
        return [round(w * AUFTRAG.fein) for w in punkte(ort)]
    _, _, b, h = größe(BRETT)
    worte = [vorhanden("bilder/formen/form1/picture1.jpg"), "-resize", f"{b}x{h}!"]
    for name, stufe in sorted(STUFEN.items(), key=lambda s: s[1]["ort"][1] + s[1]["ort"][3]):
        l, o, b, h = größe(stufe["ort"])
        worte += ["(", vorhanden(f"bilder/formen/form1/{name}.png"), "-resize", f"{b}x{h}!", ")",
                  "-geometry", f"{l:+d}{o:+d}", "-composite"]
    rufe("convert", *worte, ziel(datei))
