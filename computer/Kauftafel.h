#pragma once
// Wonach ein Computer auf einem Kauffeld entscheidet: drei Stapel von Zeilen, je nachdem, wie viele Hotels er hat.
// Beträge in DM; seine Preise sind eigene.
#include "include/Reihe.h"

#include <array>
#include <optional>

namespace velmo {

/// Die Münze vor einem Kauf. Fällt eine gegen ihn, endet die ganze Überlegung; nur der Kaufwurf und eine aus acht
/// beenden bloß ihre Zeile.
enum class Münze { Keine, VierAusFünf, EineAusSechs, EineAusAcht, Kaufwurf };

/// Wann ein besetztes Grundstück mit Zwang genommen wird.
enum class Zwang {
    Nie,
    Sofort,     // ohne Hauptgebäude
    MitMünze,   // ohne Hauptgebäude, dann die Münze
    NachSafari, // Ende, wenn Safaris Hauptgebäude steht, dann die Münze; das eigene zählt nicht: mit Absicht so
};

struct Kaufzeile {
    Hotelkürzel Hotel;
    std::array<std::optional<Hotelkürzel>, 3> NichtEigen; // diese dürfen nicht dem Computer gehören
    int Gruppe, Grenze;                                   // Gruppe 1 bis 3 muss unter der Grenze liegen; 0: keine
    int Schwelle;                                         // darunter endet die ganze Überlegung; 0: keine
    Münze Vorab;
    bool NurOhneGruppe1; // ein freies gilt nur als frei, solange Gruppe 1 leer ist: mit Absicht so
    int Freischwelle;    // darunter endet die Überlegung bei einem freien; 0: keine
    Münze Frei;
    int Preis;
    Zwang Besetzt;
};

// clang-format off
inline constexpr auto StapelA = [] {
    using H = Hotelkürzel;
    return std::to_array<Kaufzeile>({ // noch kein Hotel
    // Hotel nicht eigen     Gruppe Schwelle vorab           nur o. G1  frei ab  Münze          Preis  besetzt
    {H::b, {H::f},                0, 0,   600, Münze::Keine,        false,     0, Münze::Keine,         500, Zwang::Sofort},
    {H::p, {H::r},                0, 0,  4500, Münze::Keine,        false,     0, Münze::Kaufwurf,     3500, Zwang::Sofort},
    {H::l, {},                    0, 0,  3900, Münze::Keine,        false,     0, Münze::Keine,        3000, Zwang::Sofort},
    {H::w, {H::r},                0, 0,  2500, Münze::Keine,        false,     0, Münze::VierAusFünf,  2500, Zwang::Sofort},
    {H::r, {H::w},                0, 0,  2500, Münze::Keine,        false,     0, Münze::VierAusFünf,  2500, Zwang::Sofort},
    {H::f, {H::b},                0, 0,  1000, Münze::Keine,        false,     0, Münze::VierAusFünf,  1000, Zwang::Sofort},
    {H::s, {},                    0, 0,  2000, Münze::EineAusSechs, false,     0, Münze::Keine,        2000, Zwang::MitMünze},
    {H::t, {},                    0, 0,  1500, Münze::EineAusSechs, false,     0, Münze::Keine,        1500, Zwang::NachSafari},
    });
}();

inline constexpr auto StapelB = [] {
    using H = Hotelkürzel;
    return std::to_array<Kaufzeile>({ // ein Hotel
    {H::b, {H::f},                0, 0,  1000, Münze::Keine,        true,      0, Münze::Keine,         500, Zwang::Sofort},
    {H::p, {H::r},                0, 0,  5000, Münze::Keine,        true,      0, Münze::Kaufwurf,     3500, Zwang::Sofort},
    {H::l, {H::t},                0, 0,  3000, Münze::Keine,        true,      0, Münze::Keine,        3000, Zwang::Sofort},
    {H::w, {H::r, H::w},          2, 2,     0, Münze::Keine,        false,  5000, Münze::Keine,        2500, Zwang::MitMünze},
    {H::r, {H::p, H::w, H::r},    2, 2,     0, Münze::Keine,        false,  5000, Münze::Keine,        2500, Zwang::MitMünze},
    {H::f, {H::b, H::f},          2, 2,     0, Münze::Keine,        false,  1000, Münze::Keine,        2100, Zwang::MitMünze},
    {H::s, {},                    3, 1,  4000, Münze::Keine,        false,     0, Münze::Keine,        2000, Zwang::MitMünze},
    {H::t, {H::l},                3, 1,  3000, Münze::Keine,        false,     0, Münze::Keine,        1500, Zwang::NachSafari},
    });
}();

inline constexpr auto StapelC = [] {
    using H = Hotelkürzel;
    return std::to_array<Kaufzeile>({ // zwei oder mehr, ab der fünften Runde des Menschen
    {H::b, {H::f},                1, 3,  1100, Münze::Keine,        false,     0, Münze::Keine,         500, Zwang::Nie},
    {H::p, {H::r},                1, 3,  6000, Münze::Keine,        false,     0, Münze::Keine,        3500, Zwang::Nie},
    {H::l, {H::t},                1, 3,  5500, Münze::Keine,        false,     0, Münze::Keine,        3000, Zwang::Nie},
    {H::w, {H::r},                2, 4,  5000, Münze::Keine,        false,     0, Münze::EineAusAcht,  2500, Zwang::Nie},
    {H::r, {H::p, H::w},          2, 4,  4000, Münze::Keine,        false,     0, Münze::EineAusAcht,  2500, Zwang::Nie},
    {H::f, {H::b},                2, 4,  3000, Münze::Keine,        false,     0, Münze::EineAusAcht,  1000, Zwang::Nie},
    });
}();

struct Siedlung {
    Hotelkürzel Hotel;
    const char *Anlieger; // wie der Anliegername es nennt
    int Gruppe;
    int Zwangspreis;
    const char *Meldung;       // der Name in der Meldung eines freien Kaufs
    const char *Zwangsmeldung; // und der eines erzwungenen
};

inline constexpr auto Siedlungen = [] {
    using H = Hotelkürzel;
    return std::to_array<Siedlung>({
    // Hotel Anlieger  Gruppe Zwang  Meldung      erzwungen
    {H::b, "Boomerang", 2,    250, "Boomerang", "Boomerang"},
    {H::p, "President", 1,   1750, "President", "President"},
    {H::w, "Waikiki",   2,   1250, "Waikiki",   "Waikiki"},
    {H::t, "Taj",       3,    750, "Taj Mahal", "Taj"}, // die Zwangsmeldung kennt niemand: mit Absicht so
    {H::s, "Safari",    3,   1000, "Safari",    "Safari"},
    {H::f, "Fujijama",  2,    500, "Fujijama",  "Fujijama"},
    {H::l, "Etoile",    1,   1500, "Etoile",    "Etoile"},
    {H::r, "Royal",     2,  12500, "Royal",     "Royal"}, // mit Absicht nicht 1250
    });
}();
static_assert(Siedlungen.size() == 8);

struct Stufenzeile {
    int GeldÜber, GeldVonC1Bis, Kaufstufe;
};

// Alle Zeilen gelten nacheinander; verglichen wird mit dem Geld von c1, wer auch handelt: mit Absicht so.
inline constexpr auto Kaufstufen = std::to_array<Stufenzeile>({
    {0, 700, 1}, {700, 2150, 2}, {2150, 5000, 3}, {5000, 10000, 5}, {10000, 32767, 5},
});
// clang-format on

constexpr const Siedlung &siedlung(Hotelkürzel k) { return Siedlungen[static_cast<std::size_t>(k)]; }

} // namespace velmo
