#include "property/Eingänge.h"

namespace velmo {

void Eingangsanzeige(Programm &, const std::string &) {}
void Eingangsauffrischung(Programm &, Flagge) {}
void Eingangsknopf(Programm &, Flagge) {}

} // namespace velmo
