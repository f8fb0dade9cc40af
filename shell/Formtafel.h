#pragma once
// Die Liste aller Formulare des Programms und sein Anfang.
#include "include/Programm.h"

#include <span>

namespace velmo {

std::span<const Formeintrag> Formtafel();
/// Bringt die erste Form auf die Anzeige.
void starte(Programm &);
/// Was ganz oben aus einem Laufzeitfehler wird: sein Bericht, und die Anzeige ist wieder die vorgefundene.
void brichAb(Programm &, const Laufzeitfehler &);

} // namespace velmo
