"""Kleine Sprache zum Schreiben von Stücken.

Melodie: "es5:4. d5:8 <c5 g5>:2 r | g4:8~4 b4' h4! ..." - Tonname deutsch mit Oktave (c4 ist das
eingestrichene c), Dauer als Notenwert (4 Viertel, 4. punktiert, 8t Triole, 4~8 gebunden; ohne
Angabe gilt die letzte), r Pause. Zeichen danach: ' kurz, _ breit, ! betont, , leise, ^ von unten
angeschliffen, % am Ende abfallend, ~ an die nächste Note gleicher Höhe gebunden. Taktstriche
werden nachgezählt. "[ ... ]" am Anfang ist ein Auftakt vor dem Teil.

Harmonie: "Cm9 | F13sus F13 | % | ..." - ein Takt teilt sich gleich auf, % wiederholt den Akkord.

Muster: ein Takt je "|", die Zeichen teilen den Takt gleich. Griffe: X x o , laut bis leise, - hält,
v nimmt den nächsten Akkord vorweg, . Pause. Bass: 1 3 5 6 7 Stufen, 8 Oktave, a Leitton zum
nächsten Grundton, v nächster Grundton. Brechung: Ziffern sind Stimmen des Griffs von unten.
"""
import random
import re
from fractions import Fraction

import harmonie
import vortrag
from harmonie import Akkord

TÖNE = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "h": 11, "b": 10}
KRAFT = {"X": 1.18, "x": 1.0, "o": .78, ",": .55, "v": 1.1}

FÜLLKRAFT = 1.25  # so viel kräftiger ist die Füllung am Ende eines Teils

# Schlagzeug auf Kanal 10 (General MIDI)
TROMMEL = {"bass": 36, "rand": 37, "schnarr": 38, "klatsch": 39, "fell": 40, "hihat": 42, "fuß": 44, "offen": 46,
           "tomtief": 43, "tommitte": 47, "tomhoch": 50, "becken": 49, "ride": 51, "glocke": 53, "tamburin": 54,
           "kuhglocke": 56, "bongohoch": 60, "bongotief": 61, "conga": 62, "congahoch": 63, "congatief": 64,
           "timbalehoch": 65, "timbaletief": 66, "cabasa": 69, "maracas": 70, "guiro": 73, "claves": 75,
           "blockhoch": 76, "blocktief": 77, "triangelzu": 80, "triangel": 81, "schüttel": 82}


def tonhöhe(name):
    treffer = re.fullmatch(r"([a-h])(is|es|s)?(\d)", name)
    buchstabe, zusatz, oktave = treffer.groups()
    return TÖNE[buchstabe] + {"is": 1, None: 0}.get(zusatz, -1) + 12 * (int(oktave) + 1)


def notenwert(text):
    """In Vierteln: "4." ist 3/2, "8t" eine Achteltriole, "2~8" eine Bindung."""
    summe = Fraction(0)
    for teil in text.split("~"):
        wert = Fraction(4, int(re.match(r"\d+", teil)[0]))
        if teil.endswith("."):
            wert *= Fraction(3, 2)
        if teil.endswith("t"):
            wert *= Fraction(2, 3)
        summe += wert
    return summe


class Note:
    def __init__(self, wann, dauer, höhe, kraft, rolle, zeichen=""):
        self.wann, self.dauer, self.höhe, self.kraft, self.rolle, self.zeichen = wann, dauer, höhe, kraft, rolle, zeichen


class Stimme:
    def __init__(self, name, kanal, programm, kraft, laut, ort, hall, chor, spät, vibrato, ausdruck=100, pedal=False):
        self.name, self.kanal, self.programm = name, kanal, programm
        self.kraft = kraft      # mittlere Anschlagstärke
        self.laut, self.ort, self.hall, self.chor = laut, ort, hall, chor  # Regler 7, 10, 91, 93
        self.spät = spät        # Millisekunden, die die Stimme hinter dem Schlag liegt
        self.vibrato = vibrato  # Modulation langer Töne
        self.ausdruck = ausdruck  # Regler 11, solange keine Schwelle läuft
        self.pedal = pedal      # klingt weiter, bis ein Ton in Schrittweite folgt oder der Akkord wechselt
        self.noten, self.schwellen = [], []
        self.griff = self.letzter_bass = None


class Stück:
    def __init__(self, name, titel, tempo, saat, swing=.5, takt=(4, 4)):
        self.name, self.titel, self.swing, self.takt = name, titel, swing, takt
        self.tempi = [(Fraction(0), tempo)]
        self.zufall = random.Random(saat)
        self.stimmen, self.teile = [], []
        self.taktlänge = Fraction(takt[0] * 4, takt[1])
        self.ende = Fraction(0)

    def stimme(self, name, programm, kraft=70, laut=90, ort=64, hall=40, chor=0, spät=0, vibrato=0, ausdruck=100, pedal=False):
        kanal = [k for k in range(16) if k != 9][sum(s.kanal != 9 for s in self.stimmen)]
        self.stimmen.append(Stimme(name, kanal, programm, kraft, laut, ort, hall, chor, spät, vibrato, ausdruck, pedal))
        return self.stimmen[-1]

    def schlagzeug(self, programm, kraft=70, laut=90, hall=30):
        self.stimmen.append(Stimme("Schlagzeug", 9, programm, kraft, laut, 64, hall, 0, 0, 0))
        return self.stimmen[-1]

    def teil(self, name, harmonie, kraft=1., versatz=0):
        self.teile.append(Teil(self, name, harmonie, kraft, versatz))
        self.ende = self.teile[-1].ende
        return self.teile[-1]

    def verlangsamen(self, von, bis, tempo):
        """Ritardando in Viertelschritten."""
        anfang = self.tempi[-1][1]
        schritte = int(bis - von)
        for k in range(schritte):
            self.tempi.append((von + k, anfang + (tempo - anfang) * (k + 1) / schritte))

    def akkord(self, wann):
        """Der Akkord, der zur Zeit gilt (davor der erste, danach der letzte)."""
        bisher = self.teile[0].akkorde[0][2]
        for teil in self.teile:
            for beginn, _, akkord in teil.akkorde:
                if beginn > wann:
                    return bisher
                bisher = akkord
        return bisher

    def tempo(self, wann):
        """Schläge je Minute zur Zeit."""
        return [t for ab, t in self.tempi if ab <= max(wann, 0)][-1]

    def sekunden(self, wann):
        """Zeit seit dem Anfang."""
        grenzen = [ab for ab, _ in self.tempi] + [max(wann, self.tempi[-1][0])]
        return float(sum((min(b, wann) - min(a, wann)) * 60 / t for (a, b), (_, t) in zip(zip(grenzen, grenzen[1:]), self.tempi)))

    def schreiben(self, pfad):
        vortrag.schreiben(self, pfad)


class Teil:
    """Ein Abschnitt des Stücks mit eigener Harmonie; die Stimmen werden hineingeschrieben."""

    def __init__(self, stück, name, harmonie, kraft, versatz):
        self.stück, self.name, self.kraft, self.versatz = stück, name, kraft, versatz
        self.anfang, self.takt = stück.ende, stück.taktlänge
        self.akkorde = []  # (Beginn, Ende, Akkord)
        self.füllt = False  # führt das Schlagzeug im letzten Takt in den nächsten Teil?
        takte = [t.split() for t in harmonie.split("|")]
        for nummer, takt in enumerate(takte):
            dauer = self.takt / len(takt)
            for k, name in enumerate(takt):
                beginn = self.anfang + nummer * self.takt + k * dauer
                akkord = self.akkorde[-1][2] if name == "%" else Akkord(name, versatz)
                self.akkorde.append((beginn, beginn + dauer, akkord))
        self.takte = len(takte)
        self.ende = self.anfang + self.takte * self.takt

    def bei(self, takt, schlag=1):
        """Zeit in Vierteln: Takt und Viertel ab eins gezählt."""
        return self.anfang + (takt - 1) * self.takt + (schlag - 1)

    def akkord(self, wann):
        return next((a for beginn, ende, a in self.akkorde if beginn <= wann < ende), self.akkorde[-1][2])

    def _nächster(self, wann):
        """Der erste Akkord nach der Zeit, auch schon der des nächsten Teils; am Ende des Stücks der letzte."""
        ab_hier = self.stück.teile[self.stück.teile.index(self):][:2]
        return next((a for teil in ab_hier for beginn, _, a in teil.akkorde if beginn > wann), self.akkorde[-1][2])

    # Melodien

    def lesen(self, text, ab=1):
        """Melodietext zu (wann, dauer, [höhen], zeichen); prüft die Takte."""
        auftakt, text = re.match(r"\s*(?:\[(.*?)\])?(.*)", text, re.S).groups()
        start = self.bei(ab)
        folge, wert, gebunden = [], Fraction(1), False

        def lies(stück, wann):
            nonlocal wert, gebunden
            for wort in re.findall(r"<[^>]*>\S*|\S+", stück):
                griff, dauer, zeichen = re.fullmatch(r"(<[^>]*>|\w+?)(?::(\d[\d.t]*(?:~\d[\d.t]*)*))?(['_!,^%~]*)", wort).groups()
                # Nach einer Bindung gilt ihr letzter Notenwert weiter.
                länge = notenwert(dauer) if dauer else wert
                wert = notenwert(dauer.split("~")[-1]) if dauer else wert
                höhen = [] if griff == "r" else [tonhöhe(t) + self.versatz for t in griff.strip("<>").split()]
                if gebunden and folge[-1][2] == höhen:
                    folge[-1][1] += länge
                elif höhen:
                    folge.append([wann, länge, höhen, zeichen.replace("~", "")])
                gebunden = "~" in zeichen
                wann += länge
            return wann

        if auftakt:
            gesamt = lies(auftakt, Fraction(0))
            for note in folge:
                note[0] += start - gesamt
            gebunden = False
        for nummer, takt in enumerate(text.split("|")):
            soll = start + nummer * self.takt
            ist = lies(takt, soll) - soll
            if ist != self.takt:
                raise ValueError(f"{self.stück.name} {self.name} Takt {ab + nummer}: {ist} statt {self.takt} Viertel: {takt}")
        return folge

    def spiele(self, stimme, text, ab=1, kraft=1., rolle="melodie", oktave=0):
        """Melodie: hohe Töne, Schwerpunkte und vorgezogene Töne etwas stärker."""
        folge = self.lesen(text, ab)
        mitte = sum(h[-1] for _, _, h, _ in folge) / len(folge)
        for wann, dauer, höhen, zeichen in folge:
            k = stimme.kraft * self.kraft * kraft + max(-7, min(7, .7 * (höhen[-1] - mitte)))
            schlag = (wann - self.anfang) % self.takt
            k += 4 if schlag == 0 else 2 if schlag.denominator == 1 else 3 if dauer > 1 else -3
            for h in höhen:
                stimme.noten.append(Note(wann, dauer, h + 12 * oktave, k, rolle, zeichen))

    def unterstimme(self, stimme, text, tiefe=1, ab=1, kraft=.85):
        """Dieselbe Melodie, ausgesetzt auf den tiefe-ten Akkordton darunter."""
        for wann, dauer, höhen, zeichen in self.lesen(text, ab):
            gilt = self.akkord(wann)
            später = self.akkord(wann + Fraction(1, 2))
            akkord = später if später is not gilt and dauer > Fraction(1, 2) else gilt
            stimme.noten.append(Note(wann, dauer, harmonie.darunter(akkord, höhen[-1], tiefe),
                                     stimme.kraft * self.kraft * kraft, "unterstimme", zeichen))

    # Begleitung: erst die Melodien schreiben, dann die Griffe, denn diese weichen langen Melodietönen aus.

    def _griff(self, stimme, akkord, lage, von, bis):
        """Den nächsten Griff der Stimme legen, der von `von` bis `bis` klingt."""
        melodie = {n.höhe for s in self.stück.stimmen for n in s.noten
                   if n.rolle in ("melodie", "gegen", "unterstimme") and n.dauer >= 1 and n.wann < bis and n.wann + n.dauer > von}
        stimme.griff = harmonie.legen(akkord, lage, stimme.griff, melodie)
        return stimme.griff

    def _raster(self, muster, takte, füllungen):
        """(Zeit, Dauer bis zum Ende des Haltens, Zeichen) für jedes Zeichen, das klingt."""
        folge = [m.replace(" ", "") for m in muster.split("|")]
        zeichen = []
        for nummer in range(takte[0] - 1, takte[1]):
            takt = (füllungen or {}).get(nummer + 1, folge[(nummer - takte[0] + 1) % len(folge)]).replace(" ", "")
            schritt = self.takt / len(takt)
            zeichen += [(self.anfang + nummer * self.takt + k * schritt, schritt, z) for k, z in enumerate(takt)]
        for k, (wann, schritt, z) in enumerate(zeichen):
            if z not in ".-":
                dauer = schritt
                for _, s, w in zeichen[k + 1:]:
                    if w != "-":
                        break
                    dauer += s
                yield wann, dauer, z

    def _takte(self, von, bis):
        return von, bis or self.takte

    def greife(self, stimme, muster, lage, von=1, bis=None, kraft=1., füllungen=None, roll=0, töne=None):
        """Akkordgriffe nach Muster; `roll` Millisekunden von Ton zu Ton, `töne` nur die obersten so vielen."""
        for wann, dauer, z in self._raster(muster, self._takte(von, bis), füllungen):
            akkord = self._nächster(wann) if z == "v" else self.akkord(wann)
            griff = self._griff(stimme, akkord, lage, wann, wann + dauer)
            for k, höhe in enumerate(griff[-töne:] if töne else griff):
                versatz = Fraction(round(k * roll * self.stück.tempo(wann) / 60), 1000)
                stimme.noten.append(Note(wann + versatz, dauer - versatz, höhe,
                                         stimme.kraft * self.kraft * kraft * KRAFT[z] - 2 * (k == 0), "griff"))

    def breche(self, stimme, muster, lage, von=1, bis=None, kraft=1., füllungen=None):
        """Gebrochene Akkorde: Ziffern zählen die Töne des Griffs von unten, 5 ist der unterste eine Oktave höher."""
        for wann, dauer, z in self._raster(muster, self._takte(von, bis), füllungen):
            griff = self._griff(stimme, self.akkord(wann), lage, wann, wann + dauer)
            nummer = int(z) - 1
            höhe = griff[nummer % len(griff)] + 12 * (nummer // len(griff))
            stimme.noten.append(Note(wann, dauer, höhe, stimme.kraft * self.kraft * kraft, "griff", "_"))

    def fläche(self, stimme, lage, von=1, bis=None, kraft=1., töne=None):
        """Liegende Akkorde; gemeinsame Töne bleiben liegen."""
        liegend = {}
        schluss = self.bei((bis or self.takte) + 1)
        for beginn, ende, akkord in self.akkorde:
            if not self.bei(von) <= beginn < schluss:
                continue
            griff = self._griff(stimme, akkord, lage, beginn, ende)
            neu = griff[-töne:] if töne else griff
            for höhe in [h for h in liegend if h not in neu]:
                del liegend[höhe]
            for höhe in neu:
                if höhe in liegend:
                    liegend[höhe].dauer = ende - liegend[höhe].wann
                else:
                    liegend[höhe] = Note(beginn, ende - beginn, höhe, stimme.kraft * self.kraft * kraft, "griff", "_")
                    stimme.noten.append(liegend[höhe])

    def schwelle(self, stimme, *punkte):
        """Regler 11 über den Teil: (Takt, Wert), dazwischen gerade Linien."""
        for (t1, w1), (t2, w2) in zip(punkte, punkte[1:]):
            stimme.schwellen.append((self.bei(t1), self.bei(t2), w1, w2))

    # Bass

    def _nah(self, klasse, stimme, lage):
        """Die Tonklasse in der Lage, dem letzten Basston am nächsten."""
        tief, hoch = lage
        ziel = stimme.letzter_bass or (tief + hoch) // 2 - 2
        stimme.letzter_bass = min((h for h in range(tief, hoch + 1) if h % 12 == klasse), key=lambda h: (abs(h - ziel), h))
        return stimme.letzter_bass

    def bass(self, stimme, muster, lage=(31, 50), von=1, bis=None, kraft=1., füllungen=None):
        for wann, dauer, z in self._raster(muster, self._takte(von, bis), füllungen):
            akkord, nächster = self.akkord(wann), self._nächster(wann)
            if z in "35678" and (wann - self.anfang) % self.takt and any(b == wann for b, _, _ in self.akkorde):
                z = "1"  # wo im Takt der Akkord wechselt, steht sein Grundton
            if z in "1v":
                höhe = self._nah((akkord if z == "1" else nächster).bass, stimme, lage)
            elif z == "8":
                höhe = self._nah(akkord.bass, stimme, lage) + 12
                höhe -= 24 * (höhe > lage[1] + 5)
            elif z == "a":
                ziel = self._nah(nächster.bass, stimme, lage)
                höhe = ziel - 1 if (ziel - 1) % 12 in akkord.leiter() or self.stück.zufall.random() < .6 else ziel + 1
            else:
                höhe = self._nah(akkord.stufe(int(z)), stimme, lage)
            stimme.noten.append(Note(wann, dauer, höhe, stimme.kraft * self.kraft * kraft - 4 * (z in "a357"), "bass"))

    def wandere(self, stimme, lage=(31, 52), von=1, bis=None, kraft=1.):
        """Gehender Bass: Grundton, ein Weg aus Leiter- und Akkordtönen, Leitton zum nächsten Akkord."""
        spannen = [(b, e, a) for b, e, a in self.akkorde if self.bei(von) <= b < self.bei((bis or self.takte) + 1)]
        wurf = self.stück.zufall.random
        for beginn, ende, akkord in spannen:
            schritte = int(ende - beginn)
            nächster = self._nächster(beginn)
            start = self._nah(akkord.bass, stimme, lage)
            ziel = min((h for h in range(lage[0], lage[1] + 1) if h % 12 == nächster.bass), key=lambda h: abs(h - start) + 3 * wurf())
            weg = self._weg(akkord, start, ziel, schritte, lage)
            for k, höhe in enumerate(weg):
                k_kraft = stimme.kraft * self.kraft * kraft + (3, -2, 2, -1)[k % 4]
                stimme.noten.append(Note(beginn + k, Fraction(1), höhe, k_kraft, "bass"))
                if k in (1, 3) and wurf() < .1:  # ein Nachschlag, wie er den Fingern entgleitet
                    stimme.noten.append(Note(beginn + k + Fraction(1, 2), Fraction(1, 2), höhe, k_kraft - 16, "bass", "'"))
            stimme.letzter_bass = ziel

    def _weg(self, akkord, start, ziel, schritte, lage):
        if schritte == 1:
            return [start]
        leiter = akkord.leiter()
        wurf = self.stück.zufall.random
        bereich = [h for h in range(lage[0], lage[1] + 1) if h % 12 in leiter]
        wege = [[start]]
        for k in range(1, schritte):
            letzter = k == schritte - 1
            wahl = [ziel - 1, ziel + 1, ziel + 2, ziel - 2, ziel + 7, ziel - 5] if letzter else bereich
            wege = [w + [h] for w in wege for h in wahl
                    if h != w[-1] and abs(h - w[-1]) <= 7 and lage[0] - 2 <= h <= lage[1] + 2]

        def kosten(weg):
            ganz = weg + [ziel]
            sprünge = [b - a for a, b in zip(ganz, ganz[1:])]
            wert = sum((0, .2, 0, .3, .5, .9, 2.0, 1.4)[min(7, abs(s))] for s in sprünge)
            wert += sum(1.2 for h in weg[2:3] if h % 12 not in akkord.töne)
            wert += sum(1.5 for a, b in zip(ganz, ganz[2:]) if a == b)
            wert += sum(.5 for a, b in zip(sprünge, sprünge[1:]) if a * b < 0)
            wert += (0 if abs(ziel - weg[-1]) == 1 else .5 if weg[-1] % 12 in leiter else 2)
            return wert + 1.6 * wurf()
        return min(wege, key=kosten)

    # Schlagzeug

    def trommle(self, stimme, muster, füllungen=None, von=1, bis=None, kraft=1.):
        """`muster`: Instrument zu Muster. `füllungen`: Takt (ab eins) zu einem solchen Muster, das ihn ersetzt."""
        füllungen = füllungen or {}
        self.füllt |= self.takte in füllungen
        for instrument, zeile in muster.items():
            stumm = {takt: "." for takt in füllungen}
            self._schläge(stimme, instrument, zeile, (von, bis or self.takte), stumm, kraft)
        for takt, füllung in füllungen.items():
            stärker = FÜLLKRAFT if takt == self.takte else 1
            for instrument, zeile in füllung.items():
                self._schläge(stimme, instrument, zeile, (takt, takt), None, kraft * stärker)

    def tusch(self, stimme, takt=1):
        """Beckenschlag auf der Eins."""
        stimme.noten.append(Note(self.bei(takt), Fraction(1), TROMMEL["becken"], stimme.kraft * 1.25, "schlag"))

    def _schläge(self, stimme, instrument, zeile, takte, stumm, kraft):
        if not set(zeile) & set(KRAFT):
            raise ValueError(f"{self.stück.name} {self.name}: {instrument} schlägt nie: {zeile}")
        for wann, dauer, z in self._raster(zeile, takte, stumm):
            stimme.noten.append(Note(wann, min(dauer, Fraction(1, 4)), TROMMEL[instrument],
                                     stimme.kraft * self.kraft * kraft * KRAFT[z], "schlag"))
