#pragma once
// Die acht Hotels und ihre 36 Baustufen auf dem Brett. Rechtecke in Twips im Brettbild.
#include "include/Reihe.h"
#include "include/Spielzustand.h"
#include "platform/Rechteck.h"

#include <algorithm>
#include <array>

namespace velmo {

struct Hotel {
    Hotelkürzel Kürzel;
    const char *Name;
    Seite Wegseite;     // die Seite des Weges, auf der die Anlieger es nennen
    const char *Schild; // die Besitzerbeschriftung auf dem Brett
    Rechteck Schildort;
};

struct Stufe {
    Hotelkürzel Hotel;
    Baustufe Stand;
    const char *Bild; // das Bild auf dem Brett
    Rechteck Ort;
};

/// Das Brettbild, in Twips.
inline constexpr Rechteck Brettbild{0, 0, 8892, 5124};

/// Worauf der Schatten einer Stufe fällt: die Sonne steht links vorn, also rechts neben sie, desto weiter, je höher sie
/// ist; am Rand des Brettes hört er auf.
constexpr Rechteck Schattenort(const Rechteck &stufe) {
    constexpr double Saum = 72, Länge = 0.6;
    const double links = std::max(0.0, stufe.Left - Saum), oben = std::max(0.0, stufe.Top - Saum);
    const double rechts = std::min(Brettbild.Width, stufe.Left + stufe.Width + Saum + Länge * stufe.Height);
    const double unten = std::min(Brettbild.Height, stufe.Top + stufe.Height + Saum);
    return {links, oben, rechts - links, unten - oben};
}

// clang-format off
inline constexpr auto Hotels = [] {
    using H = Hotelkürzel;
    return std::to_array<Hotel>({
    // Kürzel Name      Seite           Schild      sein Ort
    {H::b, "Boomerang", Seite::links,  "Booml",    {5640, 4590, 1020, 192}},
    {H::p, "President", Seite::links,  "Presil",   {3650, 4590, 1020, 192}},
    {H::w, "Waikiki",   Seite::links,  "Waikikil", { 200,  790,  870, 192}},
    {H::t, "Taj Mahal", Seite::links,  "Tajl",     {2790,  760, 1020, 192}},
    {H::s, "Safari",    Seite::links,  "Safaril",  {7900,  860,  980, 192}},
    {H::f, "Fujijama",  Seite::rechts, "Fujil",    {5600, 3330, 1020, 192}},
    {H::l, "L'Étoile",  Seite::rechts, "Etoill",   {4640, 3424, 1020, 192}},
    {H::r, "Royal",     Seite::rechts, "Royall",   {2738, 2592, 1020, 192}},
    });
}();
static_assert(Hotels.size() == 8);

inline constexpr auto Stufen = [] {
    using H = Hotelkürzel;
    using S = Baustufe;
    return std::to_array<Stufe>({
    // Hotel Stufe  Bild      links, oben, Breite, Höhe
    {H::b, S::H,  "Boom",    {7560, 3548, 1260, 1404}},
    {H::b, S::P,  "Boomp",   {6600, 4320, 900, 336}},
    {H::p, S::H,  "presih",  {-60, 2640, 1092, 2328}},
    {H::p, S::N1, "presi1",  {792, 3216, 840, 1716}},
    {H::p, S::N2, "presi2",  {1476, 3420, 840, 1716}},
    {H::p, S::N3, "presi3",  {2040, 3480, 840, 1716}},
    {H::p, S::P,  "Presip",  {2880, 4320, 900, 336}},
    {H::w, S::H,  "kikih",   {2580, 220, 564, 396}},
    {H::w, S::N1, "kikin1",  {1080, 600, 564, 396}},
    {H::w, S::N2, "kikin2",  {1320, 420, 564, 396}},
    {H::w, S::N3, "kikin3",  {1680, 240, 564, 396}},
    {H::w, S::N4, "kikin4",  {2160, 120, 564, 396}},
    {H::w, S::P,  "kikip",   {2280, 480, 900, 336}},
    {H::t, S::H,  "tajh",    {3980, 0, 396, 696}},
    {H::t, S::N1, "tajn1",   {3720, 120, 312, 624}},
    {H::t, S::N2, "tajn2",   {4350, 120, 300, 612}},
    {H::t, S::P,  "tajp",    {3840, 960, 900, 336}},
    {H::s, S::H,  "safh",    {7480, 490, 504, 540}},
    {H::s, S::N1, "safn1",   {7400, 240, 468, 516}},
    {H::s, S::N2, "safn2",   {6900, 48, 756, 480}},
    {H::s, S::P,  "safp",    {6780, 960, 900, 336}},
    {H::f, S::H,  "fujih",   {6360, 1340, 672, 1800}},
    {H::f, S::N1, "fujin1",  {6000, 1800, 528, 1236}},
    {H::f, S::N2, "fujin2",  {6910, 1490, 456, 1512}},
    {H::f, S::P,  "fujip",   {6600, 3120, 900, 336}},
    {H::l, S::H,  "leth",    {3984, 2460, 852, 864}},
    {H::l, S::N1, "letn1",   {3718, 2160, 408, 888}},
    {H::l, S::N2, "letn2",   {3886, 1920, 576, 648}},
    {H::l, S::N3, "letn3",   {4810, 2260, 576, 900}},
    {H::l, S::N4, "letn4",   {4920, 1920, 480, 504}},
    {H::l, S::P,  "letp",    {4320, 2040, 900, 336}},
    {H::r, S::H,  "royh",    {2400, 1680, 552, 564}},
    {H::r, S::N1, "royn1",   {1956, 960, 624, 1080}},
    {H::r, S::N2, "royn2",   {2916, 1300, 600, 1116}},
    {H::r, S::N3, "royn3",   {2544, 960, 576, 1020}},
    {H::r, S::P,  "Royp",    {2160, 2160, 900, 336}},
    });
}();
static_assert(Stufen.size() == 36);
// clang-format on

constexpr const Hotel &hotel(Hotelkürzel k) { return Hotels[static_cast<std::size_t>(k)]; }

static_assert(std::all_of(Hotels.begin(), Hotels.end(), [](const Hotel &h) { return &h == &hotel(h.Kürzel); }));

/// Die Zeile der Stufe; null, wenn das Hotel sie nicht hat.
constexpr const Stufe *stufe(Hotelkürzel k, Baustufe s) {
    for (const Stufe &zeile : Stufen)
        if (zeile.Hotel == k && zeile.Stand == s) return &zeile;
    return nullptr;
}

/// Das Hotel, dessen Kürzel als Buchstabe in den Anliegern steht; null bei "0".
constexpr const Hotel *hotelZuBuchstabe(char c) {
    for (const Hotel &h : Hotels)
        if ("bpwtsflr"[static_cast<int>(h.Kürzel)] == c) return &h;
    return nullptr;
}

/// Steht die Stufe? Nur der Text "true" zählt.
inline bool steht(const Spielzustand &z, Hotelkürzel k, Baustufe s) { return z.Hotels[k].Baustufen[s] == "true"; }

} // namespace velmo
