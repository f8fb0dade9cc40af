#pragma once
// Bauen: Stufen, Kosten, der Bau des Menschen, das Steigen der Gebäude.
#include "include/Programm.h"
#include "model/Hoteltafel.h"

#include <array>
#include <optional>
#include <span>
#include <string>

namespace velmo {

struct Baukosten {
    Hotelkürzel Hotel;
    Baustufe Stand;
    int Kosten, Doppelt; // DM
    const char *Bild;    // Name im Zustand, nachdem sie gebaut ist
    // Wie der Satz über das Bezahlte vom Üblichen abweicht.
    const char *Einheit = "DM";                  // beim einfachen Preis
    std::optional<Baustufe> DoppeltGenannt = {}; // beim doppelten Preis
};

/// In derselben Folge wie Stufen.
// clang-format off
inline constexpr auto Baukostentafel = [] {
    using H = Hotelkürzel;
    using S = Baustufe;
    return std::to_array<Baukosten>({
    // Hotel Stufe  Kosten Doppelt Bild
    {H::b, S::H,   1800,  3600, "bo1"},
    {H::b, S::P,    250,   500, "bop"},
    {H::p, S::H,   5000, 10000, "presih"},
    {H::p, S::N1,  3000,  6000, "presin1"},
    {H::p, S::N2,  2500,  5000, "presin2"},
    {H::p, S::N3,  1750,  3500, "presin3"},
    {H::p, S::P,   5000, 10000, "presip", ""},           // ohne "DM": mit Absicht so
    {H::w, S::H,   3500,  7000, "kikih"},
    {H::w, S::N1,  2500,  5000, "kikin1"},
    {H::w, S::N2,  2500,  5000, "kikin2"},
    {H::w, S::N3,  1750,  3500, "kikin3"},
    {H::w, S::N4,  1750,  3500, "kikin4"},
    {H::w, S::P,   2500,  5000, "kikip", "DM", S::N4},   // das falsche Gebäude: mit Absicht so
    {H::t, S::H,   2400,  4800, "tajh"},
    {H::t, S::N1,  1000,  2000, "tajn1"},
    {H::t, S::N2,   500,  1000, "tajn2"},
    {H::t, S::P,   1000,  2000, "tajp"},
    {H::s, S::H,   2600,  5200, "safh"},
    {H::s, S::N1,  1200,  2400, "safn1"},
    {H::s, S::N2,  1200,  2400, "safn2"},
    {H::s, S::P,   2000,  4000, "safp"},
    {H::f, S::H,   2200,  4400, "fujih"},
    {H::f, S::N1,  1400,  2800, "fujin1"},
    {H::f, S::N2,  1400,  2800, "fujin2"},
    {H::f, S::P,    500,  1000, "fujip"},
    {H::l, S::H,   3300,  6600, "leth"},
    {H::l, S::N1,  2000,  4000, "letn1"},
    {H::l, S::N2,  1800,  3600, "letn2"},
    {H::l, S::N3,  1800,  3600, "letn3"},
    {H::l, S::N4,  1800,  3600, "letn4"},
    {H::l, S::P,   4000,  8000, "letp"},
    {H::r, S::H,   3600,  7200, "royh"},
    {H::r, S::N1,  2000,  4000, "royn1"},
    {H::r, S::N2,  1800,  3600, "royn2"},
    {H::r, S::N3,  1800,  3600, "royn3"},
    {H::r, S::P,   3000,  6000, "royp"},
    });
}();
static_assert(Baukostentafel.size() == Stufen.size());
// clang-format on

static_assert([] {
    for (std::size_t i = 0; i < Baukostentafel.size(); ++i) {
        const Baukosten &b = Baukostentafel[i];
        if (b.Hotel != Stufen[i].Hotel || b.Stand != Stufen[i].Stand || b.Doppelt != 2 * b.Kosten) return false;
    }
    return true;
}());

/// Die Stufen des Hotels vom Hauptgebäude bis zum Freizeitpark.
std::span<const Baukosten> Baufolge(Hotelkürzel);
/// Die Stufe, die als nächste an der Reihe ist.
const Baukosten &nächsteBaustufe(const Spielzustand &, Hotelkürzel);
/// Stehen alle Nebengebäude und der Freizeitpark des Hotels, das "park" nennt? Das Hauptgebäude zählt nicht, und auch
/// nicht die übergangene Stufe.
bool ausgebaut(const Spielzustand &, Hotelkürzel, Hotelkürzel park, Baustufe übergangen = Baustufe::H);
/// Die Stufe steht von nun an, und ihr Gebäude steigt.
void errichte(Programm &, const Baukosten &);

/// Führt den Bau am gewählten Hotel aus; Bauergebnis ist gesetzt.
void Baudurchführung(Programm &);
/// Lässt das Gebäude Baubild steigen; der Text "comp" heißt, ein Computer baut.
void Hochbauen(Programm &, const std::string &Text);
/// Ein Takt des Steigens.
void Steigtakt(Programm &);

} // namespace velmo
