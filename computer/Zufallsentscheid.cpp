#include "computer/Zufallsentscheid.h"

namespace velmo {

int Zufallsentscheid(Programm &, const Lose &) { return 0; }

} // namespace velmo
