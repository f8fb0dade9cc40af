#pragma once
// Die Schriften des Entwurfs, auf die abgebildet, die es überall gibt.
#include <iterator>
#include <string_view>

namespace velmo {

struct Schriftzeile {
    const char *Entwurf;
    const char *hier;
    int normal, fett; // Strichstärke, 100 bis 900
    double grad;      // gleicht verschieden große Augen der Schriften aus
};

// clang-format off
inline constexpr Schriftzeile Schrifttafel[] = {
    // Entwurf             hier           normal fett Grad
    {"Comic Sans MS",      "Comic Neue",  700,   700, 1.04},
    {"Bookman Old Style",  "URW Bookman", 500,   600, 1},
    {"Arial Black",        "Lato",        900,   900, 1},
    {"",                   "Lato",        500,   700, 1.04}, // alle anderen
};
// clang-format on

/// Bildpunkte des Entwurfs je Grad: Schriftgrade gelten bei 120 DPI.
inline constexpr double PunkteJeGrad = 20.0 / 12;

constexpr const Schriftzeile &schriftzeile(std::string_view name) {
    for (const Schriftzeile &z : Schrifttafel)
        if (name == z.Entwurf) return z;
    return Schrifttafel[std::size(Schrifttafel) - 1];
}

} // namespace velmo
