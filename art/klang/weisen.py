"""Misst die Weisen am Notenblatt: wie sie sich bewegen, wo sie sich reiben, wann Bläser atmen.

Eine Bewegung geht von einem Ton zum nächsten anderer Höhe in derselben Phrase; eine Pause von einem Viertel
trennt Phrasen. Betont ist, was auf einem Schlag beginnt, oder ein Viertel und länger davor hineinhängt.
"""
from collections import Counter
from fractions import Fraction

ACHTEL = Fraction(1, 2)
BLÄSER = range(56, 80)  # Programme: Blech, Rohrblatt, Flöten
ATEM = .18              # s Pause, die zum Luftholen reicht


class Schritt:
    """Ein Melodieton mit seinem Akkord und dem Ton, der ihm in der Phrase folgt (oder None)."""

    def __init__(self, stück, note):
        self.note, self.folgt, self.davor = note, None, None
        vor_dem_schlag = (note.wann % 1) != 0 and note.wann + note.dauer > note.wann // 1 + 1
        self.hängt = vor_dem_schlag and note.dauer >= 1
        jetzt, gleich = stück.akkord(note.wann), stück.akkord(note.wann + ACHTEL)
        # Ein vorgezogener Ton gehört zum nächsten Akkord.
        self.akkord = gleich if self.hängt or (note.dauer > ACHTEL and note.höhe % 12 in gleich.töne) else jetzt
        self.eigen = note.höhe % 12 in self.akkord.töne
        self.betont = self.hängt or note.wann % 1 == 0

    @property
    def weg(self):
        return self.folgt.note.höhe - self.note.höhe if self.folgt else 0

    @property
    def löst(self):
        """Ein fremder Ton, der in einem Schritt in einen Akkordton geht."""
        return not self.eigen and 0 < abs(self.weg) <= 2 and self.folgt.eigen

    @property
    def reibt(self):
        """Lang, einen Halbton über einem Akkordton, und nicht abwärts aufgelöst."""
        return (self.note.dauer >= 1 and not self.eigen and self.akkord.reibt(self.note.höhe % 12)
                and not (self.löst and self.weg < 0))


def schritte(stück, stimme, rollen=("melodie",), teil=None):
    """Die Töne einer Stimme als verkettete Schritte; vom Griff zählt der oberste."""
    oben = {}
    for note in stimme.noten:
        if note.rolle in rollen and (teil is None or teil.anfang <= note.wann < teil.ende):
            if note.wann not in oben or note.höhe > oben[note.wann].höhe:
                oben[note.wann] = note
    folge = [Schritt(stück, oben[w]) for w in sorted(oben)]
    for a, b in zip(folge, folge[1:]):
        if b.note.wann - a.note.wann - a.note.dauer < 1:
            a.folgt, b.davor = b, a
    return folge


def figuren(stück, teil=None):
    """Anteile aller führenden Stimmen: Schritte, Terzen, Sprünge, Brechungen; aufgelöste Fremdtöne unter den betonten."""
    zahl = Counter()
    for stimme in stück.stimmen:
        folge = schritte(stück, stimme, teil=teil)
        for s in folge:
            weite = abs(s.weg)
            if weite:
                zahl["schritt" if weite <= 2 else "terz" if weite <= 4 else "sprung"] += 1
                if s.folgt.weg:
                    zahl["dreier"] += 1
                    zahl["brechung"] += (weite >= 3 and abs(s.folgt.weg) >= 3
                                         and all(t.note.höhe % 12 in s.folgt.akkord.töne for t in (s, s.folgt, s.folgt.folgt)))
            zahl["betont"] += s.betont
            zahl["vorhalt"] += s.betont and s.löst
            zahl["töne"] += 1
            zahl["fremd"] += s.betont and not s.eigen and not s.löst
    wege = max(1, zahl["schritt"] + zahl["terz"] + zahl["sprung"])
    anteile = {art: zahl[art] / wege for art in ("schritt", "terz", "sprung")}
    anteile["brechung"] = zahl["brechung"] / max(1, zahl["dreier"])
    anteile["vorhalt"] = zahl["vorhalt"] / max(1, zahl["betont"])
    anteile["fremd"] = zahl["fremd"] / max(1, zahl["betont"])
    return zahl["töne"], anteile


def reibungen(stück):
    for stimme in stück.stimmen:
        for s in schritte(stück, stimme, ("melodie", "gegen", "unterstimme")):
            if s.reibt:
                yield stimme, s.note, s.akkord


def zusammenstöße(stück):
    """Kleine Sekunden und Nonen, die ein Viertel lang zusammenklingen und eine Melodie treffen."""
    alle = sorted((n.wann, n.wann + n.dauer, n.höhe, s.name, n.rolle not in ("griff", "bass"))
                  for s in stück.stimmen if s.kanal != 9 for n in s.noten)
    for i, (_, b, h, wer, führt) in enumerate(alle):
        for a2, b2, h2, wer2, führt2 in alle[i + 1:]:
            if a2 >= b:
                break
            # Griff gegen Griff ist Farbe des Akkords.
            if (führt or führt2) and abs(h - h2) in (1, 13) and min(b, b2) - a2 >= 1 and wer != wer2:
                yield a2, wer, h, wer2, h2, min(b, b2) - a2


def längster_atem(stück, stimme):
    """Sekunden von einem Luftholen zum nächsten, und wo es beginnt."""
    beginn, ende, längste, wo = None, None, 0., 0
    for note in sorted(stimme.noten, key=lambda n: n.wann):
        if beginn is None or stück.sekunden(note.wann) - stück.sekunden(ende) >= ATEM:
            beginn = note.wann
        ende = note.wann + note.dauer if ende is None else max(ende, note.wann + note.dauer)
        dauer = stück.sekunden(ende) - stück.sekunden(beginn)
        if dauer > längste:
            längste, wo = dauer, beginn
    return längste, wo
