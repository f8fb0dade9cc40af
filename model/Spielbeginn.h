#pragma once
// Anfang und Ende eines Spiels im Zustand.
#include "include/Spielzustand.h"

namespace velmo {

/// Die Anfangswerte, die das Laden des Bretts schreibt. Das Geld der Computer gehört dem Assistenten vor dem Spiel.
void Spielbeginn(Spielzustand &);
/// Leert den Zustand am Ende eines Spiels.
void SpielZurücksetzen(Spielzustand &);

} // namespace velmo
