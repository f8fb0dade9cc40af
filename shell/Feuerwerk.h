#pragma once
// Das Feuerwerk des Siegers: hundert Teilchen, die als Rakete steigen, sich teilen und verglühen. Orte in Twips.
#include "include/Programm.h"

#include <array>
#include <vector>

namespace velmo {

struct Teilchen {
    Flagge Aktiv;
    Kurz Winkel, Tempo, PosX, PosY; // Winkel in Grad
    std::array<int, 3> Farbe{};     // rot, grün, blau
};

class Feuerwerk {
  public:
    /// Der Platz, auf dem es spielt.
    double ScaleWidth = 0, ScaleHeight = 0;
    int Winkelstreuung = 0, Fallstreuung = 0, Tempostreuung = 0, Teilchengröße = 0;

    /// Schickt alle freien Teilchen als eine Rakete los.
    void starte(Laufzeit &);
    /// Bewegt alle einen Schritt.
    void bewege(Laufzeit &);
    /// Die Quadrate, die gerade leuchten.
    const std::vector<std::pair<Rechteck, velmo::Farbe>> &Bild() const { return bild; }
    void eigeneWerte(const Namensempfänger &);

  private:
    void falle(Teilchen &);
    void steige(Laufzeit &, Teilchen &);
    void male(const Teilchen &, double größe);

    std::array<Teilchen, 101> teilchen; // gezählt ab 1
    std::vector<std::pair<Rechteck, velmo::Farbe>> bild;
};

} // namespace velmo
