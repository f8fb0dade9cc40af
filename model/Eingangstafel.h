#pragma once
// Die 51 Eingangsplätze am Weg: jeder gehört zu einem Feld und einem Hotel. Sie zählen von 2 bis 52.
#include "include/Reihe.h"
#include "platform/Rechteck.h"

#include <algorithm>
#include <array>

namespace velmo {

struct Eingangsplatz {
    int Nummer;
    const char *Control; // sein Bild auf dem Brett
    Hotelkürzel Hotel;
    int Feld;
    int Gegenüber; // der Platz auf der anderen Seite des Weges; 0: keiner
    int Kosten;    // DM für den Menschen
    Rechteck Ort;  // Twips im Brettbild
};

// clang-format off
inline constexpr auto Eingangsplätze = [] {
    using H = Hotelkürzel;
    return std::to_array<Eingangsplatz>({
    // Nr  Bild        Hotel Feld Gegenüber Kosten  links, oben, Breite, Höhe
    { 2, "Image2",  H::r, 15, 26, 200, {1240, 1940, 192, 396}},
    { 3, "Image3",  H::r, 16, 25, 200, {1260, 1560, 360, 396}},
    { 4, "image4",  H::r, 14, 27, 200, {1300, 2290, 384, 360}},
    { 5, "Image5",  H::r, 13, 28, 200, {1600, 2550, 492, 216}},
    { 6, "Image6",  H::r, 12, 29, 200, {2100, 2640, 732, 216}},
    { 7, "Image7",  H::r, 11, 30, 200, {2790, 2720, 720, 384}},
    { 8, "Image8",  H::r, 17, 24, 200, {1560, 1320, 504, 288}},
    { 9, "Image9",  H::r, 18, 23, 200, {2060, 1270, 492, 132}},
    {10, "Image10", H::r, 19, 22, 200, {2520, 1320, 576, 240}},
    {11, "Image11", H::r, 20, 21, 200, {3060, 1450, 624, 276}},
    {12, "Image12", H::l, 21, 20, 250, {3600, 1600, 612, 252}},
    {13, "Image13", H::l, 22, 19, 250, {4190, 1610, 888, 276}},
    {14, "Image14", H::l, 23, 18, 250, {4980, 1110, 420, 576}},
    {15, "Image15", H::l, 24, 17, 250, {5225, 720, 192, 408}},
    {16, "Image16", H::t, 25,  0, 100, {4848, 240, 624, 396}},
    {17, "Image17", H::t, 24, 15, 100, {4800, 620, 168, 480}},
    {18, "Image18", H::t, 23, 14, 100, {4716, 1080, 252, 324}},
    {19, "Image19", H::t, 22, 13, 100, {4320, 1340, 456, 192}},
    {20, "Image20", H::t, 21, 12, 100, {3720, 1280, 588, 240}},
    {21, "Image21", H::w, 20, 11, 100, {3190, 1110, 600, 264}},
    {22, "Image22", H::w, 19, 10, 100, {2680, 980, 564, 240}},
    {23, "Image23", H::w, 18,  9, 100, {2000, 960, 720, 156}},
    {24, "Image24", H::w, 17,  8, 100, {1320, 980, 708, 384}},
    {25, "Image25", H::w, 16,  3, 100, {840, 1320, 540, 588}},
    {26, "Image26", H::p, 15,  2, 250, {770, 1920, 240, 600}},
    {27, "Image27", H::p, 14,  4, 250, {860, 2470, 528, 516}},
    {28, "Image28", H::p, 13,  5, 250, {1320, 2880, 720, 288}},
    {29, "Image29", H::p, 12,  6, 250, {2040, 3020, 612, 204}},
    {30, "Image30", H::p, 11,  7, 250, {2640, 3090, 612, 360}},
    {31, "Image31", H::l, 10, 32, 250, {3480, 3000, 600, 468}},
    {32, "Image32", H::p, 10, 31, 250, {3180, 3360, 504, 408}},
    {33, "Image33", H::p,  9, 34, 250, {3600, 3710, 768, 504}},
    {34, "Image34", H::l,  9, 33, 250, {3980, 3420, 504, 348}},
    {35, "Image35", H::l,  8,  0, 250, {4460, 3560, 468, 240}},
    {36, "Image36", H::f,  6,  0, 100, {5760, 3380, 636, 336}},
    {37, "Image37", H::b,  5, 38, 100, {6180, 4010, 792, 288}},
    {38, "Image38", H::f,  5, 37, 100, {6360, 3600, 552, 240}},
    {39, "Image39", H::f,  4, 40, 100, {6890, 3560, 564, 264}},
    {40, "Image40", H::b,  4, 39, 100, {6960, 3960, 780, 324}},
    {41, "Image41", H::b,  3, 42, 100, {7690, 3540, 588, 540}},
    {42, "Image42", H::f,  3, 41, 100, {7400, 3285, 432, 384}},
    {43, "Image43", H::s, 26,  0, 150, {5840, 250, 564, 180}},
    {44, "Image44", H::s, 27,  0, 150, {6300, 360, 432, 540}},
    {45, "Image45", H::s, 28, 46, 150, {6580, 870, 216, 480}},
    {46, "Image46", H::l, 28, 45, 250, {6140, 860, 216, 480}},
    {47, "Image47", H::l, 29, 48, 250, {6180, 1340, 384, 576}},
    {48, "Image48", H::s, 29, 47, 150, {6650, 1340, 252, 348}},
    {49, "Image49", H::b,  2, 50, 100, {8150, 2976, 312, 624}},
    {50, "Image50", H::f,  2, 49, 100, {7710, 2890, 276, 444}},
    {51, "Image51", H::f,  1,  0, 100, {7700, 2400, 264, 504}},
    {52, "Image52", H::s, 30,  0, 250, {6800, 1640, 348, 204}}, // teurer als die anderen: mit Absicht so
    });
}();
static_assert(Eingangsplätze.size() == 51);
// clang-format on

/// Der Platz mit der Nummer 2 bis 52.
constexpr const Eingangsplatz &eingangsplatz(int nummer) {
    return Eingangsplätze[static_cast<std::size_t>(nummer - 2)];
}

/// Der Platz des Hotels an diesem Feld; null, wenn es dort keinen hat.
constexpr const Eingangsplatz *eingangsplatzVon(Hotelkürzel hotel, int feld) {
    for (const Eingangsplatz &platz : Eingangsplätze)
        if (platz.Hotel == hotel && platz.Feld == feld) return &platz;
    return nullptr;
}

static_assert(std::all_of(Eingangsplätze.begin(), Eingangsplätze.end(), [](const Eingangsplatz &p) {
    return eingangsplatz(p.Nummer).Control == p.Control &&
           (p.Gegenüber == 0 ||
            (eingangsplatz(p.Gegenüber).Gegenüber == p.Nummer && eingangsplatz(p.Gegenüber).Feld == p.Feld));
}));

} // namespace velmo
