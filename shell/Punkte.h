#pragma once
// Was ein Sieg wert ist.
#include "include/Programm.h"

#include <cstdint>

namespace velmo {

/// Geld nach Schwierigkeit, dazu die Hotels des Menschen und seine wenigen Runden.
std::int32_t Siegpunkte(const Programm &);

} // namespace velmo
