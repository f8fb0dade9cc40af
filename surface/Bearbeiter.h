#pragma once
#include "platform/Control.h"

#include <functional>

namespace velmo {

/// Führt eine Behandlung aus, die den Zustand des Spiels ändern darf.
using Bearbeiter = std::function<void(const Handler &)>;

} // namespace velmo
