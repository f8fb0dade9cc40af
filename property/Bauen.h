#pragma once
// Bauen: Stufen, Kosten, der Bau des Menschen, das Steigen der Gebäude.
#include "include/Programm.h"
#include <string>

namespace velmo {

/// Führt den Bau am gewählten Hotel aus; Bauergebnis ist gesetzt.
void Baudurchführung(Programm &);
/// Lässt das Gebäude Baubild steigen; der Text "comp" heißt, ein Computer baut.
void Hochbauen(Programm &, const std::string &Text);
/// Ein Takt des Zeitgebers BauTimer: das Gebäude steigt ein Stück.
void BauTimer_Timer(Programm &);

} // namespace velmo
