"""Vortrag: wie aus den Noten eines Stücks Anschläge werden - Swing, kleine Ungenauigkeit, Bögen, Vibrato."""
from fractions import Fraction

import midi

AUSKLANG = 2.2  # s nach dem letzten Ereignis: am Ende der Datei bricht das Spiel den Nachhall ab


def _glocke(stück):
    """Glockenförmig, Streuung eins."""
    return (stück.zufall.random() + stück.zufall.random() + stück.zufall.random() - 1.5) * 2


def _zähler(stück, wann):
    """Viertel in Zähler; gerade Achtel werden geschwungen, Triolen bleiben."""
    ganz, rest = divmod(Fraction(wann), 1)
    if stück.swing != .5 and rest.denominator % 3:
        rest = float(rest)
        rest = rest * 2 * stück.swing if rest < .5 else stück.swing + (rest - .5) * 2 * (1 - stück.swing)
    return round((ganz + rest) * midi.VIERTEL)


def schreiben(stück, pfad):
    kopf = midi.Spur(stück.titel)
    kopf.takt(0, *stück.takt)
    for wann, tempo in stück.tempi:
        kopf.tempo(_zähler(stück, wann), tempo)
    spuren = [kopf] + [_spur(stück, s) for s in stück.stimmen]
    letzter = max(e[0] for s in spuren for e in s.ereignisse)
    midi.schreiben(pfad, spuren, letzter + round(AUSKLANG * stück.tempi[-1][1] / 60 * midi.VIERTEL))


def _spur(stück, stimme):
    spur, kanal = midi.Spur(stimme.name), stimme.kanal
    spur.programm(0, kanal, stimme.programm)
    for nummer, wert in ((7, stimme.laut), (10, stimme.ort), (11, stimme.ausdruck), (91, stimme.hall), (93, stimme.chor), (1, 0)):
        spur.regler(0, kanal, nummer, wert)
    for von, bis, a, b in stimme.schwellen:
        schritte = int((bis - von) * 2)
        for k in range(schritte + 1):
            spur.regler(_zähler(stück, von + Fraction(k, 2)), kanal, 11, a + (b - a) * k / max(1, schritte))
    gespielt = [_gespielt(stück, stimme, n) for n in sorted(stimme.noten, key=lambda n: (n.wann, n.höhe))]
    for k, (an, aus, note, kraft) in enumerate(gespielt):
        # Ein Ton endet, bevor derselbe wieder anschlägt.
        wieder = min((a for a, _, m, _ in gespielt[k + 1:k + 24] if m.höhe == note.höhe and a > an), default=aus)
        aus = max(an + 20, min(aus, wieder - 4))
        spur.note(an, aus, kanal, note.höhe, kraft)
        _verzieren(spur, stimme, note, an, aus)
    if stimme.pedal:
        _pedal(spur, stück, stimme, gespielt)
    return spur


def _pedal(spur, stück, stimme, gespielt):
    """Das Pedal wechselt mit dem Akkord und vor jedem Ton, der neben einem klingenden liegt: Brechungen klingen ineinander."""
    klingend, akkord = set(), None
    for an, _, note, _ in gespielt:
        gilt = stück.akkord(note.wann)
        if gilt is not akkord or any(0 < abs(h - note.höhe) <= 2 for h in klingend):
            spur.regler(max(0, an - 6), stimme.kanal, 64, 0)
            spur.regler(an + 24, stimme.kanal, 64, 127)
            klingend = set()
        klingend.add(note.höhe)
        akkord = gilt
    spur.regler(_zähler(stück, stück.ende), stimme.kanal, 64, 0)


def _gespielt(stück, stimme, note):
    zähler_je_ms = stück.tempo(note.wann) * midi.VIERTEL / 60000
    streuung = 2.5 if stimme.kanal == 9 else 5
    schub = (stimme.spät + streuung * _glocke(stück)) * zähler_je_ms if note.wann > 0 else 0
    länge = {"'": .5, "_": 1.0}.get(next((z for z in note.zeichen if z in "'_"), ""), .93)
    an = max(0, _zähler(stück, note.wann) + round(schub))
    aus = an + max(30, round((_zähler(stück, note.wann + note.dauer) - _zähler(stück, note.wann)) * länge))
    kraft = note.kraft + 14 * ("!" in note.zeichen) - 18 * ("," in note.zeichen) + 3.5 * _glocke(stück)
    return an, aus, note, max(12, min(122, round(kraft)))


def _verzieren(spur, stimme, note, an, aus):
    kanal = stimme.kanal
    if "^" in note.zeichen:
        for k in range(7):
            spur.beugen(max(0, an - 2 + 9 * k), kanal, -.45 * (1 - k / 6))
    if "%" in note.zeichen:
        mitte = an + (aus - an) // 2
        for k in range(9):
            spur.beugen(mitte + (aus - mitte) * k // 8, kanal, -k / 8)
        spur.beugen(aus + 12, kanal, 0)
    if stimme.vibrato and note.dauer >= Fraction(5, 4) and note.rolle == "melodie":
        start = an + min(midi.VIERTEL // 2, (aus - an) // 3)
        for k in range(6):
            spur.regler(start + k * 40, kanal, 1, stimme.vibrato * (k + 1) / 6)
        spur.regler(aus, kanal, 1, 0)
