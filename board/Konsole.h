#pragma once
// Die kleine Konsole der Entwickler hinter der rechten Maustaste auf der Statuszeile.
#include "include/Programm.h"

namespace velmo {

/// Fragt nach einem Befehl und führt ihn aus; jeder andere Text tut nichts.
void Konsole(Programm &);

} // namespace velmo
