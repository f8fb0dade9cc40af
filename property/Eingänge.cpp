#include "property/Eingänge.h"

namespace velmo {

void Eingangsanzeige(Programm &, const std::string &) {}
void Eingangsauffrischung(Programm &, Flagge) {}
void Eingangsknopf(Programm &, Flagge) {}
void PlatzDragOver(Programm &, int, Ziehzustand) {}
void PlatzDragDrop(Programm &, int) {}
void pfeilTimer_Timer(Programm &) {}

} // namespace velmo
