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
inline constexpr auto Eingangszeilen = [] {
    using H = Hotelkürzel;
    return std::to_array<Eingangszeile>({
    // Hotel Preis Grenze der Eingangszahl
    {H::b, 100,  4},
    {H::p, 250,  7},
    {H::l, 250,  9},
    {H::w, 200,  5},
    {H::r, 200, 11},
    {H::f, 100,  6},
    {H::t, 100,  5},
    {H::s, 150,  5},
    });
}();
static_assert(Eingangszeilen.size() == 8);
// clang-format on

constexpr int eingangspreis(Hotelkürzel k) {
    return std::find_if(Eingangszeilen.begin(), Eingangszeilen.end(), [&](const auto &z) { return z.Hotel == k; })
        ->Preis;
}

} // namespace velmo
