#include "computer/Eingänge.h"

namespace velmo {

void kieingang(Programm &, bool, std::optional<Autokürzel>) {}

} // namespace velmo
