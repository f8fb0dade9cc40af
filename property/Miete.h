#pragma once
// Miete: was ein Halt vor einem fremden Eingang kostet. Sätze in DM je Nacht.
#include "include/Programm.h"

#include <array>
#include <optional>
#include <string>

namespace velmo {

struct Mietzeile {
    Hotelkürzel Hotel;
    const char *Name;        // in den Sätzen über die Miete
    int Karte;               // Bildnummer der Besitzkarte
    std::array<int, 6> Satz; // nach der höchsten Stufe, die steht: H, N1 bis N4, P; 0: gibt es nicht
};

// clang-format off
inline constexpr auto Miettafel = [] {
    using H = Hotelkürzel;
    return std::to_array<Mietzeile>({
    // Hotel Name        Karte   H    N1   N2   N3   N4    P
    {H::b, "Boomerang", 124, {400,   0,   0,   0,   0,  600}},
    {H::p, "President", 120, {200, 400, 600, 800,   0, 1100}},
    {H::w, "Waikiki",   123, {200, 350, 500, 500, 650, 1000}},
    {H::t, "Taj Mahal", 117, {100, 100, 200,   0,   0,  300}},
    {H::s, "Safari",    122, {100, 100, 250,   0,   0,  500}},
    {H::f, "Fujijama",  118, {100, 200, 200,   0,   0,  400}},
    {H::l, "Étoile",    119, {150, 300, 300, 300, 450,  750}},
    {H::r, "Royal",     121, {150, 300, 300, 450,   0,  600}},
    });
}();
static_assert(Miettafel.size() == 8);
// clang-format on

constexpr const Mietzeile &mietzeile(Hotelkürzel k) { return Miettafel[static_cast<std::size_t>(k)]; }

/// Die Zeile des Hotels, das Miethotel nennt; null, wenn es keins nennt.
const Mietzeile *miethotel(const Spielzustand &);
/// Der Satz der höchsten Stufe, die steht; ohne Wert, wenn keine steht.
std::optional<int> Tagessatz(const Spielzustand &, const Mietzeile &);

/// Der Mensch als Gast: öffnet Bezahlen oder setzt Mietefertig, wenn nichts fällig ist. Wartet nicht.
void Mietdialog(Programm &, Autokürzel);
/// Ein Computer als Gast: würfelt die Nächte und zahlt sogleich.
void Mietzahlen(Programm &, Autokürzel);

} // namespace velmo
