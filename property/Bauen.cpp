#include "property/Bauen.h"

namespace velmo {

void Baudurchführung(Programm &) {}
void Hochbauen(Programm &, const std::string &) {}
void BauTimer_Timer(Programm &) {}

} // namespace velmo
