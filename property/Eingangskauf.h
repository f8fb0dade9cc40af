#pragma once
// Eingänge am Weg: was der Mensch an jedem Hotel setzen kann, Anzeige der Plätze, das Ziehen, die Auffrischung, der
// Knopf auf dem Brett.
#include "include/Programm.h"
#include "model/Eingangstafel.h"

#include <array>
#include <span>
#include <string>

namespace velmo {

struct Hoteleingang {
    Hotelkürzel Hotel;
    const char *Text;
    int Mindestgeld;           // DM, die der Mensch am Knopf haben muss
    std::array<int, 10> Folge; // die Plätze in der Folge der Anzeige; 0: keiner mehr
    std::array<int, 2> Fremde; // das Hotel gilt erst als voll, wenn auch einer von diesen gekauft ist; 0: keine

    constexpr std::span<const int> Plätze() const { return {Folge.begin(), std::ranges::find(Folge, 0)}; }
};

// clang-format off
inline constexpr auto Hoteleingänge = [] {
    using H = Hotelkürzel;
    return std::to_array<Hoteleingang>({
    // Hotel Text  Mindestgeld Plätze                       fremde
    {H::r, "roy",   200, {11, 10, 9, 8, 3, 2, 4, 5, 6, 7}, {}},
    {H::f, "fuji",  100, {36, 38, 39, 42, 50, 51},         {}},
    {H::p, "presi", 250, {33, 32, 30, 29, 28, 27, 26},     {}},
    {H::t, "taj",   100, {16, 17, 18, 19, 20},             {}},
    {H::b, "boom",  100, {49, 41, 40, 37},                 {}},
    {H::l, "leth",  250, {47, 46, 15, 14, 13, 12, 31, 34, 35}, {21, 11}}, // voll erst mit fremden: mit Absicht so
    {H::w, "wai",   200, {21, 22, 23, 24, 25},             {}}, // mehr, als die Plätze kosten: mit Absicht so
    {H::s, "saf",   150, {48, 45, 44, 43, 52},             {}},
    });
}();
static_assert(Hoteleingänge.size() == 8);
// clang-format on

static_assert([] {
    std::size_t zahl = 0;
    for (const Hoteleingang &h : Hoteleingänge)
        for (const int platz : h.Plätze()) {
            if (eingangsplatz(platz).Hotel != h.Hotel) return false;
            ++zahl;
        }
    return zahl == Eingangsplätze.size();
}());

/// Bietet die Plätze des Hotels an, das der Text nennt ("roy", "fuji", "presi", "taj", "boom", "leth", "wai", "saf").
void Eingangsanzeige(Programm &, const std::string &Text);
/// Zeigt nur noch die gekauften Plätze; nachKauf gibt außerdem Fertig frei und sperrt WüButton.
void Eingangsauffrischung(Programm &, Flagge nachKauf);
/// Hebt den Knopf "Eingänge Kaufen" hervor, wenn der Mensch Hotels hat, oder nimmt die Hervorhebung zurück.
void Eingangsknopf(Programm &, Flagge);
/// Ist auf dem Platz oder ihm gegenüber ein Eingang?
bool vergeben(const Spielzustand &, int platz);

/// Der Pfeil am gelben Eingang blinkt.
void Pfeiltakt(Programm &);
/// Der gelbe Eingang über einem Platz und auf ihm abgelegt.
void EingangÜberPlatz(Programm &, int Platz, Ziehzustand);
void EingangAufPlatz(Programm &, int Platz);

} // namespace velmo
