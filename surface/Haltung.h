#pragma once
// Wie sich Gezeigtes bewegt, während sein Wert schon dort ist, wo die Regel ihn haben will: ein Würfel purzelt, ein
// Wagen legt sich in die Fahrt, um ein steigendes Haus wirbelt Staub. Zeiten in ms, Drehungen in Grad.
#include "platform/Eingabe.h"
#include "platform/Zeichenliste.h"

#include <string>

namespace velmo {

/// Wie ein Stück gerade gezeigt wird, gegen seinen Ort.
struct Haltung {
    Punkt versatz{0, 0}; // Twips
    double drehung = 0, breite = 1, maß = 1;
    std::string bild; // statt seines eigenen; leer: seines
};

/// Ein Wagen zwischen zwei Feldern; weg: Twips von seinem neuen Ort zum alten, altesBild: das er dort trug.
Haltung fahrt(Punkt weg, double anteil, const std::string &altesBild, const std::string &bild);

/// So lang rollt ein Würfel: wie sein Takt; liegt er, so liegt er still.
constexpr double Wurfzeit = 100;
/// Wie weit er anfangs gedreht ist; vorher: wie weit beim letzten Wurf, 0 ohne einen.
double wurfdrehung(double nun, double vorher);
Haltung wurf(double anteil, double drehung);

/// Der Staub um ein steigendes Haus: alle Wölkchenabstand ms das nächste, jedes lebt Wölkchenzeit.
constexpr double Wölkchenzeit = 520, Wölkchenabstand = 18;
/// Wie weit er über das Stück hinausreicht, in Twips.
constexpr double Staubweite = 520;
struct Wölkchen {
    Punkt mitte{0, 0}; // Twips auf der Form
    double größe = 0, deckung = 0;
};
/// Das n-te, in diesem Anteil seines Lebens.
Wölkchen wölkchen(const Stück &, int n, double alter);

} // namespace velmo
