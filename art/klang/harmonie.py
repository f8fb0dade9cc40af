"""Akkorde: Namen lesen (deutsch: H und B), Griffe mit kleinster Bewegung legen, Unterstimmen finden."""
import itertools
import re

STAMM = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "H": 11, "B": 10}

ARTEN = {  # Art: Griff über dem Grundton (grundtonlos, wo der Bass ihn spielt), alle Akkordtöne
    "": ((0, 4, 7), (0, 4, 7)), "m": ((0, 3, 7), (0, 3, 7)),
    "6": ((4, 7, 9, 0), (0, 4, 7, 9)), "69": ((4, 7, 9, 2), (0, 2, 4, 7, 9)), "add9": ((0, 2, 4, 7), (0, 2, 4, 7)), "madd9": ((0, 2, 3, 7), (0, 2, 3, 7)),
    "maj7": ((4, 7, 11, 0), (0, 4, 7, 11)), "maj9": ((4, 7, 11, 2), (0, 2, 4, 7, 11)),
    "maj7#11": ((4, 6, 11, 2), (0, 2, 4, 6, 7, 11)),
    "m6": ((3, 7, 9, 0), (0, 3, 7, 9)), "m69": ((3, 7, 9, 2), (0, 2, 3, 7, 9)), "mmaj7": ((3, 7, 11, 2), (0, 2, 3, 7, 11)),
    "m7": ((3, 7, 10, 0), (0, 3, 7, 10)), "m9": ((3, 7, 10, 2), (0, 2, 3, 7, 10)), "m11": ((3, 5, 10, 2), (0, 2, 3, 5, 7, 10)),
    "m7b5": ((3, 6, 10, 0), (0, 3, 6, 10)), "dim7": ((0, 3, 6, 9), (0, 3, 6, 9)),
    "7": ((4, 7, 10, 0), (0, 4, 7, 10)), "9": ((4, 7, 10, 2), (0, 2, 4, 7, 10)), "13": ((4, 9, 10, 2), (0, 2, 4, 7, 9, 10)),
    "7b9": ((4, 7, 10, 1), (0, 1, 4, 7, 10)), "7b13": ((4, 8, 10, 0), (0, 4, 8, 10)), "13b9": ((4, 9, 10, 1), (0, 1, 4, 7, 9, 10)),
    "7b9b13": ((4, 8, 10, 1), (0, 1, 4, 8, 10)), "7#9": ((4, 8, 10, 3), (0, 3, 4, 8, 10)), "9#11": ((4, 6, 10, 2), (0, 2, 4, 6, 7, 10)),
    "sus4": ((0, 5, 7), (0, 5, 7)), "7sus": ((5, 7, 10, 0), (0, 5, 7, 10)),
    "9sus": ((5, 7, 10, 2), (0, 2, 5, 7, 10)), "13sus": ((5, 9, 10, 2), (0, 2, 5, 7, 9, 10)),
}


def _stufe(text):
    """Grundton am Anfang von text; gibt Tonklasse und Rest."""
    treffer = re.match(r"([A-H])(is|es|s(?!us))?", text)
    buchstabe, zusatz = treffer.groups()
    return (STAMM[buchstabe] + {"is": 1, None: 0}.get(zusatz, -1)) % 12, text[treffer.end():]


class Akkord:
    def __init__(self, name, versatz=0):
        self.name = name
        haupt, _, tief = name.partition("/")
        self.grund, art = _stufe(haupt)
        self.grund = (self.grund + versatz) % 12
        griff, alle = ARTEN[art]
        self.griff = [(self.grund + t) % 12 for t in griff]
        self.töne = {(self.grund + t) % 12 for t in alle}
        self.stufen = set(alle)
        self.bass = (_stufe(tief)[0] + versatz) % 12 if tief else self.grund

    def stufe(self, nummer):
        """Tonklasse der Akkordstufe 1, 3, 5, 6 oder 7."""
        wahl = {1: (0,), 3: (4, 3, 5), 5: (7, 8, 6), 6: (9, 8, 7), 7: (10, 11, 9)}[nummer]
        return (self.grund + next((t for t in wahl if t in self.stufen), 7)) % 12

    def reibt(self, klasse):
        """Steht ein Ton eine kleine Sekunde über einem Akkordton?"""
        return klasse not in self.töne and (klasse - 1) % 12 in self.töne

    def leiter(self):
        """Sieben bis acht Töne, die zum Akkord laufen: Akkordtöne und Durchgänge, die nicht reiben."""
        klein = 3 in self.stufen and 4 not in self.stufen
        rest = (0, 2, 3, 5, 7, 9, 10) if klein else (0, 2, 4, 5, 7, 9, 10 if 10 in self.stufen else 11)
        return self.töne | {(self.grund + t) % 12 for t in rest
                            if all((self.grund + t + d) % 12 not in self.töne or t in self.stufen for d in (-1, 1))}


def ausgewichen(akkord, melodie):
    """Der Griff ohne Töne, die eine kleine Sekunde unter einem Melodieton lägen; ein anderer Akkordton springt ein."""
    melodie = {h % 12 for h in melodie}
    griff = [k for k in akkord.griff if (k + 1) % 12 not in melodie]
    ersatz = [(akkord.grund + t) % 12 for t in (0, 7, 9, 2) if (akkord.grund + t) % 12 in akkord.töne]
    for k in ersatz:
        if len(griff) < len(akkord.griff) and k not in griff and (k + 1) % 12 not in melodie:
            griff.append(k)
    return griff


def legen(akkord, lage, vorher, melodie=frozenset()):
    """Den Griff in die Lage legen: kleinste Bewegung gegen vorher, nicht zu weit, unten keine Sekunde."""
    tief, hoch = lage
    plätze = [[h for h in range(tief, hoch + 1) if h % 12 == k] for k in ausgewichen(akkord, melodie)]
    mitte = (tief + hoch) / 2

    def kosten(griff):
        schritte = [b - a for a, b in zip(griff, griff[1:])]
        wert = sum(4 for s in schritte[:1] if s < 3) + sum(9 for s in schritte if s == 1) + max(0, griff[-1] - griff[0] - 14)
        wert += sum(20 for a, b in itertools.combinations(griff, 2) if b - a in (13, 1)) + .15 * abs(sum(griff) / len(griff) - mitte)
        wert += sum(12 for h in griff for m in melodie if h - m in (1, -1, 13, -13))
        if vorher:
            wert += sum(min(abs(h - v) for v in vorher) for h in griff) + .6 * abs(griff[-1] - vorher[-1])
        return wert

    wahl = [sorted(g) for g in itertools.product(*plätze)]
    return min((g for g in wahl if len(set(g)) == len(g)), key=lambda g: (kosten(g), g))


def darunter(akkord, höhe, tiefe):
    """Der tiefe-te Ton des Griffs unter einem Melodieton, der erste wenigstens eine kleine Terz tiefer."""
    klassen = set(akkord.griff) - {höhe % 12}
    gefunden = [h for h in range(höhe - 3, höhe - 24, -1) if h % 12 in klassen]
    return gefunden[tiefe - 1]
