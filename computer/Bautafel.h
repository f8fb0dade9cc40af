#pragma once
// Was ein Computer für seine Stufen braucht und zahlt, in DM; seine Preise sind eigene. Parks haben keinen Würfel und
// darum keinen doppelten Preis.
#include "include/Reihe.h"

#include <array>

namespace velmo {

struct Bauzeile {
    Hotelkürzel Hotel;
    Baustufe Stand;
    const char *Name;
    int Schwelle; // was kibaufeld verlangt
    int Test;     // was kibauen beim einfachen Preis verlangt
    int Preis;
    int Doppelt;   // auch die Grenze des Ruins
    int Ruinsumme; // was der Satz beim Ruin nennt
};

// clang-format off
inline constexpr auto Bautafel = [] {
    using H = Hotelkürzel;
    using S = Baustufe;
    return std::to_array<Bauzeile>({
    // Hotel Stufe Name    Schwelle Test Preis Doppelt Ruinsumme
    {H::b, S::H,  "bo1",    2800, 1950, 1800,  3600,  3600},
    {H::b, S::P,  "bop",    1150, 1000,  250,     0,     0},
    {H::p, S::H,  "presih", 7000, 5200, 5000, 10000, 10000},
    {H::p, S::N1, "presi1", 5000, 3200, 3000,  6000,  6000},
    {H::p, S::N2, "presi2", 3500, 2350, 2250,  4500,  4500},
    {H::p, S::N3, "presi3", 3000, 2200, 1750,  3500,  3500},
    {H::p, S::P,  "presip", 9300, 8000, 5000,     0,     0},
    {H::l, S::H,  "leth",   5500, 3500, 3300,  6600,  6600},
    {H::l, S::N1, "letn1",  4000, 2350, 2200,  4400,  3600}, // der Satz nennt mit Absicht 3600
    {H::l, S::N2, "letn2",  3000, 2000, 1800,  3600,  3600},
    {H::l, S::N3, "letn3",  3000, 2000, 1800,  3600,  3600},
    {H::l, S::N4, "letn4",  2900, 2000, 1800,  3600,  3600},
    {H::l, S::P,  "letp",   7000, 6000, 4000,     0,     0},
    {H::w, S::H,  "kikih",  5500, 3700, 3500,  7000,  7000},
    {H::w, S::N1, "kikin1", 4200, 2650, 2500,  5000,  5000},
    {H::w, S::N2, "kikin2", 4200, 2650, 2500,  5000,  5000},
    {H::w, S::N3, "kikin3", 3000, 1800, 1750,  3600,  3600},
    {H::w, S::N4, "kikin4", 3000, 1800, 1750,  3600,  3600},
    {H::w, S::P,  "kikip",  4000, 4000, 2500,     0,     0},
    {H::r, S::H,  "royh",   5123, 3800, 3600,  7200,  7200},
    {H::r, S::N1, "royn1",  3888, 2750, 2600,  5200,  5200},
    {H::r, S::N2, "royn2",  3101, 2000, 1800,  3600,  3600},
    {H::r, S::N3, "royn3",  3100, 2000, 1800,  3600,  3600},
    {H::r, S::P,  "royp",   5500, 5000, 3000,     0,     0},
    {H::f, S::H,  "fujih",  3200, 2250, 2200,  4400,  4400},
    {H::f, S::N1, "fujin1", 2400, 1500, 1400,  2800,  2800},
    {H::f, S::N2, "fujin2", 2300, 1500, 1400,  2800,  2800},
    {H::f, S::P,  "fujip",  1900, 1000,  500,     0,     0},
    {H::t, S::H,  "tajh",   3999, 2400, 2400,  4800,  4800},
    {H::t, S::N1, "tajn1",  3000, 1000, 1000,  2000,  2000},
    {H::t, S::N2, "tajn2",  2000,  500,  500,  1000,  1000},
    {H::t, S::P,  "tajp",   2500,  500,  500,     0,     0},
    {H::s, S::H,  "safh",   4000, 2600, 2600,  5200,  5200},
    {H::s, S::N1, "safn1",  2777, 1200, 1200,  2400,  2400},
    {H::s, S::N2, "safn2",  2600, 1200, 1200,  2400,  2400},
    {H::s, S::P,  "safp",   3500,  500,  500,     0,     0},
    });
}();
static_assert(Bautafel.size() == 36);
// clang-format on

} // namespace velmo
