#pragma once
// Der Computer und seine Eingänge.
#include "include/Programm.h"
#include <optional>

namespace velmo {

/// Setzt höchstens einen Eingang; Frei heißt ohne Preis. Ohne Auto gelten keine Merker der Runde.
void kieingang(Programm &, bool Frei, std::optional<Autokürzel> Auto);

} // namespace velmo
