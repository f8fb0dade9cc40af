#include "computer/Bauphase.h"

namespace velmo {

void kibauphase(Programm &) {}

} // namespace velmo
