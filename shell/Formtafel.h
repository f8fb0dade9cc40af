#pragma once
// Die Liste aller Formulare des Programms und sein Anfang.
#include "include/Programm.h"

#include <span>

namespace velmo {

std::span<const Formeintrag> Formtafel();
/// Bringt die erste Form auf die Anzeige.
void starte(Programm &);

} // namespace velmo
