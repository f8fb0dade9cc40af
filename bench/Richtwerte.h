#pragma once
// Wonach der Schiedsrichter urteilt: Felder, Preise, Mieten und Plätze noch einmal, unabhängig von den Tafeln der
// Regeln aufgeschrieben. Hotels in der Folge b p w t s f l r, Beträge in DM.
#include "include/Reihe.h"

#include <array>
#include <string>
#include <string_view>

namespace velmo::richtwerte {

// clang-format off
/// Feldart und Anlieger der Felder 1 bis 30.
inline constexpr std::array<std::string_view, 30> Felder = {
    "b0f", "gbf", "bbf", "gbf", "bbf", "e0f", "b00", "g0l", "gpl", "epl", "gpr", "bpr", "gpr", "bpr", "gpr",
    "bwr", "gwr", "ewr", "bwr", "gwr", "gtl", "btl", "gtl", "atl", "bt0", "bs0", "bs0", "gsl", "esl", "bs0",
};
inline constexpr int Bankfeld = 7, Rathausfeld = 26, Weglänge = 30, Bankgeld = 2000;

/// Welche Autos c1, c2, c3 fahren, wenn der Mensch g, e, b, r fährt.
inline constexpr std::array<std::string_view, 4> Computerautos = {"ber", "gbr", "ger", "gbe"};

// Grundstücke:                                          b     p     w     t     s     f     l     r
inline constexpr std::array<int, 8> Landpreis        = { 500, 3500, 2500, 1500, 2500, 1000, 3000,  2500};
inline constexpr std::array<int, 8> Zwangspreis      = { 250, 1750, 1250,  750, 1000,  500, 1500,  1250};
inline constexpr std::array<int, 8> LandpreisComp    = { 500, 3500, 2500, 1500, 2000, 1000, 3000,  2500};
inline constexpr std::array<int, 8> ZweitpreisComp   = { 500, 3500, 2500, 1500, 2000, 2100, 3000,  2500};
inline constexpr std::array<int, 8> ZwangspreisComp  = { 250, 1750, 1250,  750, 1000,  500, 1500, 12500};
inline constexpr std::array<int, 8> EingangspreisComp= { 100,  250,  200,  100,  150,  100,  250,   200};
inline constexpr std::array<int, 8> Nebengebäude     = {   0,    3,    4,    2,    2,    2,    4,     3};

/// Je Stufe H, N1 bis N4, P; 0: gibt es nicht.
using Stufenreihe = std::array<int, 6>;
inline constexpr std::array<Stufenreihe, 8> Baukosten = {{
    {1800,    0,    0,    0,    0,  250}, {5000, 3000, 2500, 1750,    0, 5000}, {3500, 2500, 2500, 1750, 1750, 2500},
    {2400, 1000,  500,    0,    0, 1000}, {2600, 1200, 1200,    0,    0, 2000}, {2200, 1400, 1400,    0,    0,  500},
    {3300, 2000, 1800, 1800, 1800, 4000}, {3600, 2000, 1800, 1800,    0, 3000},
}};
inline constexpr std::array<Stufenreihe, 8> BaukostenComp = {{
    {1800,    0,    0,    0,    0,  250}, {5000, 3000, 2250, 1750,    0, 5000}, {3500, 2500, 2500, 1750, 1750, 2500},
    {2400, 1000,  500,    0,    0,  500}, {2600, 1200, 1200,    0,    0,  500}, {2200, 1400, 1400,    0,    0,  500},
    {3300, 2200, 1800, 1800, 1800, 4000}, {3600, 2600, 1800, 1800,    0, 3000},
}};
/// Was ein Computer beim doppelten Preis zahlt; Parks haben keinen.
inline constexpr std::array<Stufenreihe, 8> DoppeltComp = {{
    {3600,    0,    0,    0,    0,    0}, {10000, 6000, 4500, 3500,   0,    0}, {7000, 5000, 5000, 3600, 3600,    0},
    {4800, 2000, 1000,    0,    0,    0}, {5200, 2400, 2400,    0,    0,    0}, {4400, 2800, 2800,    0,    0,    0},
    {6600, 4400, 3600, 3600, 3600,    0}, {7200, 5200, 3600, 3600,    0,    0},
}};
inline constexpr std::array<Stufenreihe, 8> Miete = {{
    {400,    0,    0,    0,    0,  600}, {200, 400, 600, 800,   0, 1100}, {200, 350, 500, 500, 650, 1000},
    {100,  100,  200,    0,    0,  300}, {100, 100, 250,   0,   0,  500}, {100, 200, 200,   0,   0,  400},
    {150,  300,  300,  300,  450,  750}, {150, 300, 300, 450,   0,  600},
}};

/// Die Bauwürfel: Mal Preis je Gesicht; -1: nicht bauen. Der Mensch von 1 an, ein Computer von 0 an.
inline constexpr std::array<int, 7> Bauwurf     = {-1, 1, -1, 0, 2, 1, 1};
inline constexpr std::array<int, 6> BauwurfComp = {1, 1, -1, 1, 2, 0};

/// Die Plätze 2 bis 52: ihr Hotel, ihr Feld und was sie den Menschen kosten.
struct Platz { char Hotel; int Feld, Kosten; };
inline constexpr std::array<Platz, 51> Plätze = {{
    {'r', 15, 200}, {'r', 16, 200}, {'r', 14, 200}, {'r', 13, 200}, {'r', 12, 200}, {'r', 11, 200}, {'r', 17, 200},
    {'r', 18, 200}, {'r', 19, 200}, {'r', 20, 200}, {'l', 21, 250}, {'l', 22, 250}, {'l', 23, 250}, {'l', 24, 250},
    {'t', 25, 100}, {'t', 24, 100}, {'t', 23, 100}, {'t', 22, 100}, {'t', 21, 100}, {'w', 20, 100}, {'w', 19, 100},
    {'w', 18, 100}, {'w', 17, 100}, {'w', 16, 100}, {'p', 15, 250}, {'p', 14, 250}, {'p', 13, 250}, {'p', 12, 250},
    {'p', 11, 250}, {'l', 10, 250}, {'p', 10, 250}, {'p',  9, 250}, {'l',  9, 250}, {'l',  8, 250}, {'f',  6, 100},
    {'b',  5, 100}, {'f',  5, 100}, {'f',  4, 100}, {'b',  4, 100}, {'b',  3, 100}, {'f',  3, 100}, {'s', 26, 150},
    {'s', 27, 150}, {'s', 28, 150}, {'l', 28, 250}, {'l', 29, 250}, {'s', 29, 150}, {'b',  2, 100}, {'f',  2, 100},
    {'f',  1, 100}, {'s', 30, 250},
}};
inline constexpr int ErsterPlatz = 2, LetzterPlatz = 52, PlatzMitBoomerang = 39;

/// In welcher Folge ein Gast an einem Feld nachsieht, wenn zwei Hotels dort liegen.
struct Nachsehen { int von, bis; std::string_view Hotels; };
inline constexpr Nachsehen Folge[] = {
    {1, 3, "fb"}, {4, 5, "bf"}, {6, 6, "f"}, {8, 10, "lp"}, {11, 15, "pr"}, {16, 20, "wr"}, {21, 25, "tl"}, {26, 30, "sl"},
};
// clang-format on

inline std::string hotelname(Hotelkürzel k) { return "Hotel " + NachHotel::name(NachHotel::stelle(k)); }
constexpr int stelle(char hotel) { return static_cast<int>(std::string_view("bpwtsflr").find(hotel)); }
constexpr int stelle(Hotelkürzel k) { return static_cast<int>(k); }
template <class T> constexpr const T &von(const std::array<T, 8> &tafel, Hotelkürzel k) {
    return tafel[static_cast<std::size_t>(k)];
}
constexpr int von(const std::array<Stufenreihe, 8> &tafel, Hotelkürzel k, Baustufe s) {
    return von(tafel, k)[static_cast<std::size_t>(s)];
}
constexpr const Platz &platz(int nummer) { return Plätze[static_cast<std::size_t>(nummer - ErsterPlatz)]; }
constexpr std::string_view feld(int nummer) { return Felder[static_cast<std::size_t>(nummer - 1)]; }
constexpr char Art(int nummer) { return feld(nummer)[0]; }
constexpr bool grenztAn(int nummer, Hotelkürzel k) {
    return feld(nummer).substr(1).find("bpwtsflr"[stelle(k)]) != feld(1).npos;
}
constexpr Hotelkürzel hotelAm(int nummer) { return AlleHotels[static_cast<std::size_t>(stelle(platz(nummer).Hotel))]; }
/// Der andere Platz am selben Feld; 0, wenn es keinen gibt.
constexpr int gegenüber(int nummer) {
    for (int n = ErsterPlatz; n <= LetzterPlatz; ++n)
        if (n != nummer && platz(n).Feld == platz(nummer).Feld) return n;
    return 0;
}

} // namespace velmo::richtwerte
