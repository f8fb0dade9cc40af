#pragma once
// Die Töne eines Medienelements: öffnen, spielen, schließen, und wie weit das Stück ist.
#include "platform/Control.h"

namespace velmo {

/// Spielt die Klänge und Stücke aller Medienelemente. Was sich nicht öffnen lässt, bleibt still.
class Ton {
  public:
    void befehl(const MMControl &, Befehl) {}
    /// Klingt das Element noch?
    bool klingt(const MMControl &) const { return false; }
    /// Ort und Ende des Stücks in ms; ohne Ton beide 0.
    long Position(const MMControl &) const { return 0; }
    long Length(const MMControl &) const { return 0; }
    void vergiss(const Control &) {}
};

} // namespace velmo
