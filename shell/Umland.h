#pragma once
// Was rings um die Anzeige ist, wenn das Fenster breiter oder höher ist als sie: die Farbe der Szene, die gezeigt wird.
#include "include/Programm.h"

namespace velmo {

struct Umland {
    const Form *Szene = nullptr; // die vorderste sichtbare Form, die eine Szene ist; null, solange keine da ist
    Farbe Ton;                   // Tisch, Nachthimmel, Saal
    bool operator==(const Umland &) const = default;
};

Umland umland(const Programm &);

} // namespace velmo
