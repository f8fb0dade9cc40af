#include "property/Pleite.h"

namespace velmo {

void Pleitegehen(Programm &, const std::string &, Kurz, const std::string &) {}
void Zwangsverkauf(Programm &, int, const Hotelbesitzer &, const std::string &) {}

} // namespace velmo
