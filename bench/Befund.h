#pragma once
// Ein Befund: es geschah etwas, was keine Regel erlaubt.
#include <stdexcept>

namespace velmo {

struct Befund : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace velmo
