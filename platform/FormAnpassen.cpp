#include "platform/FormAnpassen.h"
#include "platform/Laufzeit.h"

namespace velmo {

bool IstKleineSchrift(const Laufzeit &) { return false; }
void FormAnpassen(Form &, int) {}

} // namespace velmo
