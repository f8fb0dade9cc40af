#pragma once
// Für Prüfungen, die keine Szene sagen kann: zählt, was gilt, und schließt mit "N passed, M failed".
#include <iostream>

namespace velmo {

class Prüfung {
  public:
    template <class A, class B> void gleich(const char *was, const A &ist, const B &erwartet) {
        ++(ist == erwartet ? bestanden : gescheitert);
        if (!(ist == erwartet)) std::cout << was << " ist " << ist << ", erwartet " << erwartet << '\n';
    }
    void gilt(const char *was, bool ja) { gleich(was, ja, true); }

    /// Der Rückgabewert des Programms.
    int ende() const {
        std::cout << bestanden << " passed, " << gescheitert << " failed\n";
        return gescheitert == 0 ? 0 : 1;
    }

  private:
    int bestanden = 0, gescheitert = 0;
};

} // namespace velmo
