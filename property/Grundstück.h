#pragma once
// Grundstücke: Preise und Besitzer.
#include "include/Programm.h"

namespace velmo {

/// Beschriftet die Schilder der Hotels des Menschen mit seinem Namen.
void Besitzanzeige(Programm &);

} // namespace velmo
