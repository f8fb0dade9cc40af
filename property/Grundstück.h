#pragma once
// Grundstücke: Preise und Besitzer.
#include "include/Programm.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace velmo {

struct Grundstück {
    Hotelkürzel Hotel;
    int Preis, Zwangspreis;                  // DM
    const char *Schlüssel, *Zwangsschlüssel; // in Hotelliste nach dem Kauf
    Hotelkürzel Schlusspark;                 // wessen Freizeitpark beim Anbauen als letzte Stufe gilt
    const char *Doppelkaufmeldung = nullptr; // falls es dem Menschen schon gehört; null: mit Absicht ungeprüft
    Baustufe Übergangen = Baustufe::H;       // nach welcher Stufe die Bauphase gratis nicht fragt
};

// Der Bau vergleicht mit der Spalte Schlüssel.
// clang-format off
inline constexpr auto Grundstücke = [] {
    using H = Hotelkürzel;
    const char *const Fehler = "Fehler in geldfeld_sscommand_click. Senden sie dies bitte an ";
    const char *const SafariFehler = "Fehler in geldfeld_sscommand_click safari. Senden sie dies bitte an ";
    return std::to_array<Grundstück>({
    // Hotel Preis Zwang Schlüssel    nach Zwang   Park  Meldung  Übergangen
    {H::b,  500,  250, "Boomrang",  "Boomrang",  H::b},
    {H::p, 3500, 1750, "President", "President", H::p},
    {H::w, 2500, 1250, "Waikiki",   "Waikiki",   H::w},
    {H::t, 1500,  750, "Taj Mahal", "Taj",       H::t},               // zweierlei Schlüssel: mit Absicht so
    {H::s, 2500, 1000, "Safari",    "Safari",    H::s, SafariFehler}, // nicht die Hälfte: mit Absicht so
    {H::f, 1000,  500, "Fujijama",  "Fujijama",  H::p, Fehler},       // ein fremder Park: mit Absicht so
    {H::l, 3000, 1500, "Etoile",    "Etoile",    H::l, Fehler},
    {H::r, 2500, 1250, "Royal",     "Royal",     H::r, nullptr, Baustufe::N3}, // mit Absicht ohne diese Frage
    });
}();
static_assert(Grundstücke.size() == 8);
// clang-format on

constexpr const Grundstück &grundstück(Hotelkürzel k) { return Grundstücke[static_cast<std::size_t>(k)]; }

static_assert(std::all_of(Grundstücke.begin(), Grundstücke.end(),
                          [](const Grundstück &g) { return &g == &grundstück(g.Hotel); }));

/// Das Hotel mit dem Schlüssel, wie ihn ein gewöhnlicher Kauf schreibt; ohne Wert, wenn es keins gibt.
std::optional<Hotelkürzel> HotelZuSchlüssel(const std::string &Schlüssel);
/// Beschriftet die Schilder der Hotels des Menschen mit seinem Namen.
void Besitzanzeige(Programm &);

} // namespace velmo
