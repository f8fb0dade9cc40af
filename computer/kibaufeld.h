#pragma once
// Der Computer auf einem Baufeld.
#include "include/Programm.h"
#include <string>

namespace velmo {

/// Wählt Hotel und Stufe und baut, wenn das Geld über der Schwelle liegt.
void kibaufeld(Programm &);
/// Würfelt, zahlt und baut die Stufe mit diesem Namen, etwa "royn1".
void kibauen(Programm &, const std::string &Stufenname);

} // namespace velmo
