#pragma once
// Ein unruhiger Spieler: er drückt zu jeder Zeit, auch während ein Zug noch wartet, irgendein Element, das sich drücken
// lässt, wählt in Listen und verlässt manchmal das Spiel.
#include "include/Programm.h"

#include <functional>
#include <random>
#include <vector>

namespace velmo {

class Unruhe {
  public:
    Unruhe(Programm &p, unsigned saat, std::function<void(const VisualControl &)> drückt)
        : p(p), laune(saat), drückt(std::move(drückt)) {}

    /// Drückt irgendetwas; falsch, wenn nichts zu drücken war.
    bool stört();
    /// Nichts geht mehr: er will das Spiel verlassen. Falsch, wenn auch das nicht geht.
    bool gibtAuf();
    /// Eins von so vielen Malen.
    bool eins(unsigned von) { return laune() % von == 0; }

  private:
    bool beantworte(bool sicher);
    bool darf(const VisualControl &) const;
    bool betätige(VisualControl &);
    std::vector<VisualControl *> Auswahl() const;

    Programm &p;
    std::mt19937 laune;
    std::function<void(const VisualControl &)> drückt; // erfährt von jedem Druck, ehe er geschieht
};

} // namespace velmo
