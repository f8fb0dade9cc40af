#pragma once
// Der Computer auf dem Feld der freien Bauphase.
#include "include/Programm.h"

namespace velmo {

/// Baut die nächste freie Stufe des ersten Hotels, das noch eine hat.
void kibauphase(Programm &);

} // namespace velmo
