#pragma once
// Was ein Computer für einen Eingang zahlt, in DM, und wie viele er an einem Hotel höchstens setzt; beides ist sein
// eigenes.
#include "include/Reihe.h"

#include <algorithm>
#include <array>

namespace velmo {

struct Eingangszeile {
    Hotelkürzel Hotel;
    int Preis, Grenze;
};

// clang-format off
/// In der Folge, in der er seine Hotels durchsieht.
inline constexpr std::array<Eingangszeile, 8> Eingangszeilen = {{
    // Hotel          Preis Grenze der Eingangszahl
    {Hotelkürzel::b, 100,  4}, {Hotelkürzel::p, 250, 7}, {Hotelkürzel::l, 250, 9}, {Hotelkürzel::w, 200, 5},
    {Hotelkürzel::r, 200, 11}, {Hotelkürzel::f, 100, 6}, {Hotelkürzel::t, 100, 5}, {Hotelkürzel::s, 150, 5},
}};
// clang-format on

constexpr int eingangspreis(Hotelkürzel k) {
    return std::find_if(Eingangszeilen.begin(), Eingangszeilen.end(), [&](const auto &z) { return z.Hotel == k; })
        ->Preis;
}

} // namespace velmo
