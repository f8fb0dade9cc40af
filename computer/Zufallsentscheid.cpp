#include "computer/Zufallsentscheid.h"

namespace velmo {

int Zufallsentscheid(Programm &p, const Lose &Modus) {
    Flagge &merker = p.Zustand.Zufallsmerker;
    if (Modus == 2)
        merker = p.Zufallszahl(5) != 0; // vier von fünf
    else if (Modus == 3)
        merker = p.Zufallszahl(6) + 1 == 5; // einmal in sechs
    else if (Modus == 0)
        merker = p.Zufallszahl(8) + 1 == 5; // einmal in acht
    else if (Modus == "kibaufeld")
        return p.Zufallszahl(2);
    return 0;
}

} // namespace velmo
