#pragma once
// Miete: was ein Halt vor einem fremden Eingang kostet.
#include "include/Programm.h"

namespace velmo {

/// Der Mensch als Gast: öffnet Bezahlen oder setzt Mietefertig, wenn nichts fällig ist. Wartet nicht.
void Mietdialog(Programm &, Autokürzel);
/// Ein Computer als Gast: würfelt die Nächte und zahlt sogleich.
void Mietzahlen(Programm &, Autokürzel);

} // namespace velmo
