#include "property/Grundstück.h"

namespace velmo {

void Besitzanzeige(Programm &) {}

} // namespace velmo
