#include "property/Bauen.h"

namespace velmo {

void Baudurchführung(Programm &) {}
void Hochbauen(Programm &, const std::string &) {}

} // namespace velmo
