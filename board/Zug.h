#pragma once
// Der Zug: die beiden Würfel, WüButton und Fertig, die Reihenfolge der Computer.
#include "include/Programm.h"

namespace velmo {

void Würfelknopf(Programm &);
void Fertigknopf(Programm &);
/// Ein Takt des Fahrwürfels; beginnt auch die Wartezeit eines Computers.
void Fahrwürfeltakt(Programm &);
/// Ein Takt des Bauwürfels.
void Bauwürfeltakt(Programm &);
/// Die Wartezeit ist um: der Computer, der an der Reihe ist, zieht.
void WartezeitUm(Programm &);

} // namespace velmo
