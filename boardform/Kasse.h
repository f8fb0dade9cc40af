#pragma once
// Das Geld des Menschen auf dem Brett: buchen, anzeigen, mit Noten zahlen. Beträge in DM.
#include "include/Programm.h"

namespace velmo {

/// Bucht den Betrag Note für Note dazu (Sinn wahr) oder ab (falsch); jeder andere Sinn frischt nur die Anzeige auf.
/// In Betrag bleibt, was sich nicht buchen ließ, stets unter 50.
void Geldbuchen(Programm &, Lose &Betrag, Flagge Sinn);
/// Bucht einen festen Betrag; der Rest unter 50 verfällt.
void Geldbuchen(Programm &, int Betrag, Flagge Sinn);
/// Schreibt die Summe und die Zahl der Scheine auf das Brett.
void Scheinanzeige(Programm &);
/// Der Klick auf den Stapel der Note v.
void Notenzahlung(Programm &, int v);
/// Ein Schritt der Note, die davonfliegt.
void Notenflug(Programm &);

} // namespace velmo
