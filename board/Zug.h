#pragma once
// Der Zug: die beiden Würfel, WüButton und Fertig, die Reihenfolge der Computer.
#include "include/Programm.h"

namespace velmo {

void WüButton_Click(Programm &);
void Fertig_Click(Programm &);
/// Ein Takt des Fahrwürfels; beginnt auch die Wartezeit eines Computers.
void Timer1_Timer(Programm &);
/// Ein Takt des Bauwürfels.
void Timer2_Timer(Programm &);
/// Die Wartezeit ist um: der Computer, der an der Reihe ist, zieht.
void Timer4_Timer(Programm &);

} // namespace velmo
