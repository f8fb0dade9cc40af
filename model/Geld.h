#pragma once
// Das Geld des Menschen im Zustand: die Summe und die Noten, im Gleichschritt. Beträge in DM; was sich nicht buchen
// ließ, bleibt im Betrag, stets unter 50.
#include "include/Spielzustand.h"

namespace velmo {

/// Bucht den Betrag Note für Note dazu, die größte zuerst.
void bucheDazu(Spielzustand &, Lose &betrag);
/// Bucht ihn Note für Note ab und wechselt dabei größere.
void bucheAb(Spielzustand &, Lose &betrag);

} // namespace velmo
