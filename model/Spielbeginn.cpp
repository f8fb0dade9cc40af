#include "model/Spielbeginn.h"

#include <array>

namespace velmo {

namespace {

void setzeNoten(Spielzustand &z, const std::array<int, 5> &zahlen) {
    for (std::size_t i = 0; i < Noten.size(); ++i)
        z.Notenbestand[Noten[i]] = zahlen[i];
}

} // namespace

void Spielbeginn(Spielzustand &z) {
    for (Autodaten &a : z.Autos) {
        a.Autofeld = 1;
        for (Flagge &merker : a.Eingangsmerker)
            merker = true;
    }
    z.Wurf = 1;
    z.Rohwurf = 1;
    z.AmZug = 0;
    z.ErsteRundeVorbei = false;
    z.Computerphase = 0;
    z.Wartelauf = 0;
    z.Gesamtgeld = 12000;
    setzeNoten(z, {2, 4, 3, 5, 1});
    for (Hoteldaten &h : z.Hotels) {
        h.Eingangssperre = true;
        h.Eingangszahl = 0;
    }
    z.Baumodus = "n";
}

void SpielZurücksetzen(Spielzustand &z) {
    Spielzustand neu;
    neu.Gesamtgeld = 12000;
    for (Kurz &geld : neu.Computergeld)
        geld = 12000;
    setzeNoten(neu, {2, 2, 3, 5, 1}); // 2 Hunderter mit Absicht: erst das Laden des Bretts gibt 4
    neu.Bildnummer = 0;
    neu.Programmpfad = z.Programmpfad;
    neu.KleineSchrift = z.KleineSchrift;
    neu.Bildschirmbreite = z.Bildschirmbreite;
    neu.Bildschirmhöhe = z.Bildschirmhöhe;
    neu.Schwierigkeit = z.Schwierigkeit;
    neu.AmZug = z.AmZug;
    neu.Satzlänge = z.Satzlänge;
    z = neu;
}

} // namespace velmo
