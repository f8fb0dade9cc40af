#pragma once
// Die 30 Felder des Weges: was ein Halt bedeutet, welche Hotels angrenzen, und wo ein Auto dort steht (linke obere Ecke
// in Twips im Brettbild, für beide Größen des Bretts).
#include "include/Reihe.h"

#include <array>
#include <cmath>

namespace velmo {

struct Feldort {
    double Left, Top;
};

struct Feld {
    int Nummer;
    Feldart Art;
    const char *Anlieger; // Kürzel links, Komma, Kürzel rechts; "0" für keins
    Feldort klein, groß;
};

// clang-format off
inline constexpr auto Feldtabelle = [] {
    using F = Feldart;
    return std::to_array<Feld>({
    // Nr Art          Anlieger    klein         groß
    { 1, F::Baugenehmigung, "0,f", {7930, 2520}, {12420, 3810}},
    { 2, F::Kauffeld,       "b,f", {7920, 3000}, {12420, 4665}},
    { 3, F::Baugenehmigung, "b,f", {7560, 3480}, {11820, 5535}},
    { 4, F::Kauffeld,       "b,f", {7080, 3840}, {10950, 5925}},
    { 5, F::Baugenehmigung, "b,f", {6480, 3840}, { 9930, 5910}},
    { 6, F::Eingang,        "0,f", {5760, 3600}, { 9000, 5655}},
    { 7, F::Baugenehmigung, "0,0", {5040, 3600}, { 7905, 5550}},
    { 8, F::Kauffeld,       "0,l", {4560, 3840}, { 7035, 5865}},
    { 9, F::Kauffeld,       "p,l", {3960, 3600}, { 6000, 5685}},
    {10, F::Eingang,        "p,l", {3360, 3240}, { 5235, 5055}},
    {11, F::Kauffeld,       "p,r", {2880, 3000}, { 4335, 4605}},
    {12, F::Baugenehmigung, "p,r", {2280, 2760}, { 3360, 4350}},
    {13, F::Kauffeld,       "p,r", {1560, 2760}, { 2400, 4215}},
    {14, F::Baugenehmigung, "p,r", {1080, 2400}, { 1800, 3720}},
    {15, F::Kauffeld,       "p,r", { 960, 1920}, { 1515, 2985}},
    {16, F::Baugenehmigung, "w,r", {1200, 1440}, { 1740, 2220}},
    {17, F::Kauffeld,       "w,r", {1560, 1080}, { 2400, 1800}},
    {18, F::Eingang,        "w,r", {2160, 1080}, { 3270, 1590}},
    {19, F::Baugenehmigung, "w,r", {2640, 1080}, { 4155, 1785}},
    {20, F::Kauffeld,       "w,r", {3240, 1320}, { 4980, 1980}},
    {21, F::Kauffeld,       "t,l", {3840, 1440}, { 5910, 2190}},
    {22, F::Baugenehmigung, "t,l", {4440, 1440}, { 6840, 2325}},
    {23, F::Kauffeld,       "t,l", {4920, 1200}, { 7665, 1755}},
    {24, F::Bauphase,       "t,l", {4920,  720}, { 7710, 1050}},
    {25, F::Baugenehmigung, "t,0", {5040,  360}, { 7860,  525}},
    {26, F::Baugenehmigung, "s,0", {5640,  240}, { 8850,  375}},
    {27, F::Baugenehmigung, "s,0", {6240,  480}, { 9720,  660}},
    {28, F::Kauffeld,       "s,l", {6360,  960}, { 9900, 1410}},
    {29, F::Eingang,        "s,l", {6360, 1320}, {10050, 2145}},
    {30, F::Baugenehmigung, "s,0", {6720, 1800}, {10500, 2775}},
    });
}();
static_assert(Feldtabelle.size() == 30);
// clang-format on

inline constexpr int RathausFeld = 26;
inline constexpr int BankFeld = 7;

/// Das Feld mit der Nummer; außerhalb von 1 bis 30 ein Laufzeitfehler (Index).
inline const Feld &feld(double nummer) {
    const double ganz = std::nearbyint(nummer);
    if (ganz < 1 || ganz > 30) throw Laufzeitfehler(Fehlerart::Index);
    return Feldtabelle[static_cast<std::size_t>(ganz) - 1];
}

} // namespace velmo
