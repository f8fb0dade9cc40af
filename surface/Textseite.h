#pragma once
// Ein langer Text als Seite: Überschriften abgesetzt, Aufzählungen eingerückt.
#include "platform/Farbe.h"

#include <string_view>

namespace velmo {

/// Wie eine Zeile gesetzt wird; Längen in Schriftgrößen der Seite.
struct Zeilensatz {
    double darüber, links, groß;
    Farbe farbe;
    bool überschrift() const { return groß != 1; }
};

/// So hoch verblasst der Text am Rand, hinter dem er weitergeht, in Schriftgrößen: keine Zeile steht halb da.
inline constexpr double Schleier = 1.6;

/// Ein Abschnitt steht ganz in Großbuchstaben; was mit einem Strich beginnt, ist kurz ein Punkt, lang aufgezählt.
const Zeilensatz &zeilensatz(std::string_view zeile);

} // namespace velmo
