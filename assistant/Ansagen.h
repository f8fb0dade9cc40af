#pragma once
// Der eine Weg, auf dem das Spiel zum Spieler spricht.
#include "include/Programm.h"
#include <string>

namespace velmo {

/// Sagt den Satz; ein leerer Text tut nichts. Art 100 ist die Frage mit "Ja" und "Nein", 10 rollt dazu die Augen.
/// Kehrt zurück, sobald die Figur frei war und losfährt; der Satz läuft dann an ihren Zeitgebern ab.
void Ansagen(Programm &, const std::string &Text, int Art);

} // namespace velmo
