#pragma once
// Die gewichtete Münze der Computer.
#include "include/Programm.h"

namespace velmo {

/// Modus 0, 2, 3 setzt Zufallsmerker und gibt 0; "kibaufeld" gibt 0 oder 1; jeder andere gibt 0.
int Zufallsentscheid(Programm &, const Lose &Modus);

} // namespace velmo
