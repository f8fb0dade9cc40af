#include "property/Tausch.h"

namespace velmo {

void ExchangeÖffnen(Programm &p) { p.zeige("Exchange"); }

} // namespace velmo
