#include "property/Miete.h"

namespace velmo {

void Mietdialog(Programm &p, Autokürzel) { p.Zustand.Mietefertig = true; }
void Mietzahlen(Programm &, Autokürzel) {}

} // namespace velmo
