#include "computer/Landkauf.h"

namespace velmo {

void kigeldfeld(Programm &) {}
void Grundstücksmeldung(Programm &, int, const std::string &) {}

} // namespace velmo
