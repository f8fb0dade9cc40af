#pragma once
// Der Umtausch von Scheinen in kleinere.
#include "include/Programm.h"

namespace velmo {

/// Zeigt Exchange und lässt es von rechts und dann nach unten hereingleiten.
void ExchangeÖffnen(Programm &);

} // namespace velmo
