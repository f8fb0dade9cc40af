#pragma once
// Die Fahrt eines Autos: von seinem Feld um Wurf Felder weiter, mit allem, was unterwegs und bei der Ankunft geschieht.
#include "include/Programm.h"

namespace velmo {

/// Fährt das Auto um Wurf und führt die Landung aus; kehrt zurück, wenn sie vorüber ist (beim Menschen: wenn der Dialog
/// des Feldes offen steht). Ein Wurf, der keine Zahl ist, ist ein Laufzeitfehler (Typ), ein Feld außerhalb des Weges
/// einer (Index).
void Autofahrt(Programm &, Autokürzel);

} // namespace velmo
