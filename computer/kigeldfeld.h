#pragma once
// Der Computer auf einem Kauffeld.
#include "include/Programm.h"
#include <string>

namespace velmo {

/// Entscheidet auf einem Kauffeld über die Anlieger; liest Aktivcomputer und Anliegername.
void kigeldfeld(Programm &);
/// Beschriftet das Schild und meldet den Erwerb; ein unbekannter Name tut nichts.
void Grundstücksmeldung(Programm &, int Computer, const std::string &Hotelname);

} // namespace velmo
