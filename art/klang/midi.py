"""Schreibt Standard-MIDI-Dateien: Format 1, eine Spur je Stimme. Zeiten in Zählern (Ticks)."""
import struct

VIERTEL = 480  # Zähler je Viertel


def _länge(n):
    teile = [n & 127]
    while n := n >> 7:
        teile.append(n & 127 | 128)
    return bytes(reversed(teile))


class Spur:
    def __init__(self, name=""):
        # (Zähler, Rang, Bytes): bei gleichem Zähler erst Noten aus, dann Regler, dann Noten an.
        self.ereignisse = []
        if name:
            self.meta(0, 3, name.encode())

    def meta(self, wann, art, inhalt):
        self.ereignisse.append((wann, 0, bytes((255, art)) + _länge(len(inhalt)) + inhalt))

    def tempo(self, wann, schläge):
        self.meta(wann, 81, struct.pack(">I", round(60e6 / schläge))[1:])

    def takt(self, wann, zähler, nenner):
        self.meta(wann, 88, bytes((zähler, nenner.bit_length() - 1, 24, 8)))

    def programm(self, wann, kanal, nummer):
        self.ereignisse.append((wann, 2, bytes((0xC0 | kanal, nummer))))

    def regler(self, wann, kanal, nummer, wert):
        self.ereignisse.append((wann, 2, bytes((0xB0 | kanal, nummer, max(0, min(127, round(wert)))))))

    def beugen(self, wann, kanal, wert):
        """Tonhöhe beugen, -1 bis 1 sind zwei Halbtöne ab bis auf."""
        w = max(0, min(16383, round(8192 + 8191 * wert)))
        self.ereignisse.append((wann, 2, bytes((0xE0 | kanal, w & 127, w >> 7))))

    def note(self, an, aus, kanal, höhe, kraft):
        self.ereignisse.append((an, 3, bytes((0x90 | kanal, höhe, kraft))))
        self.ereignisse.append((aus, 1, bytes((0x80 | kanal, höhe, 0))))

    def bytes(self, ende):
        self.ereignisse.sort(key=lambda e: e[:2])
        daten, jetzt = b"", 0
        for wann, _, inhalt in self.ereignisse:
            daten += _länge(wann - jetzt) + inhalt
            jetzt = wann
        daten += _länge(max(0, ende - jetzt)) + b"\xff\x2f\x00"
        return b"MTrk" + struct.pack(">I", len(daten)) + daten


def schreiben(pfad, spuren, ende):
    kopf = b"MThd" + struct.pack(">IHHH", 6, 1, len(spuren), VIERTEL)
    pfad.write_bytes(kopf + b"".join(s.bytes(ende) for s in spuren))
