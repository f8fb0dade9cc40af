#pragma once
// Ein Lauf über Szenen in Dateien.
#include "bench/Szene.h"

#include <functional>
#include <string>
#include <vector>

namespace velmo {

struct Laufbilanz {
    Bilanz bilanz;
    int gelesen = 0; // Szenen, die sich lesen ließen
    /// Schließt mit "N passed, M failed" und gibt den Rückgabewert des Programms.
    int ende() const;
};

/// Spielt die Szenen der Dateien; "-" ist die Eingabe. Jede geht vorher durch richteEin, wenn es das gibt.
Laufbilanz spieleDateien(const std::vector<std::string> &namen, const std::function<void(Szene &)> &richteEin = {});

} // namespace velmo
