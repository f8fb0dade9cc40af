#include "shell/Punkte.h"

#include "model/Hoteltafel.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velmo {

namespace {

using H = Hotelkürzel;
using S = Baustufe;

/// Eine Prüfung: eine der beiden Stufen steht.
struct Prüfung {
    S Eine, Andere;
    int Wert;
};
constexpr Prüfung steht1(S s, int wert) { return {s, s, wert}; }

struct Wertzeile {
    H Hotel;
    std::array<Prüfung, 5> Prüfungen; // die erste, die gilt, zählt; Wert 0: keine mehr
    int Sonst, Dazu;
};

// clang-format off
// Die Folge der Prüfungen entscheidet; Waikikis drittes Nebengebäude steht mit Absicht vor dem vierten.
constexpr Wertzeile Werttafel[] = {
    {H::p, {steht1(S::P, 10000), steht1(S::N3, 7500), steht1(S::N2, 7000), steht1(S::N1, 6000), steht1(S::H, 4000)}, 1500, 700},
    {H::b, {steht1(S::P, 7000), steht1(S::H, 4000)}, 1000, 700},
    {H::l, {steht1(S::P, 9000), Prüfung{S::N3, S::N4, 8000}, Prüfung{S::N1, S::N2, 5000}}, 2000, 450},
    {H::t, {steht1(S::P, 3800), Prüfung{S::N1, S::N2, 2700}, steht1(S::H, 1000)}, 300, 150},
    {H::s, {steht1(S::P, 4500), Prüfung{S::N1, S::N2, 3200}, steht1(S::H, 2000)}, 1200, 100},
    {H::r, {steht1(S::P, 5300), steht1(S::N3, 4000), Prüfung{S::N1, S::N2, 3000}, steht1(S::H, 2000)}, 1200, 420},
    {H::f, {steht1(S::P, 5128), steht1(S::N2, 5000), steht1(S::N1, 3200), steht1(S::H, 2000)}, 1000, 120},
    {H::w, {steht1(S::P, 8628), steht1(S::N3, 6200), Prüfung{S::N2, S::N4, 4200}, steht1(S::N1, 3001), steht1(S::H, 2300)}, 1300, 438},
};

struct Rundenzeile {
    int Unter, Punkte;
};
constexpr Rundenzeile Rundentafel[] = {{5, 3600}, {10, 3000}, {15, 1500}, {32768, 15}};
// clang-format on

int hotelwert(const Spielzustand &z, const Wertzeile &zeile) {
    for (const Prüfung &prüfung : zeile.Prüfungen)
        if (prüfung.Wert && (steht(z, zeile.Hotel, prüfung.Eine) || steht(z, zeile.Hotel, prüfung.Andere)))
            return prüfung.Wert + zeile.Dazu;
    return zeile.Sonst + zeile.Dazu;
}

/// Die letzte Stelle der Sekunden seit Mitternacht, wie sie als Text erscheinen.
int letzteUhrstelle(const Programm &p) {
    char text[32];
    const auto ende = std::to_chars(text, text + sizeof text, static_cast<float>(p.oberfläche.Sekunden())).ptr;
    return ende[-1] - '0';
}

} // namespace

std::int32_t Siegpunkte(const Programm &p) {
    const Spielzustand &z = p.Zustand;
    std::int32_t punkte = std::int32_t(z.Gesamtgeld) * z.Schwierigkeit * 2;
    for (const Wertzeile &zeile : Werttafel)
        if (z.Hotels[zeile.Hotel].Besitzer == Mensch) punkte += hotelwert(z, zeile);
    punkte += std::ranges::find_if(Rundentafel, [&](const Rundenzeile &r) { return z.Rundenzähler < r.Unter; })->Punkte;
    if (punkte % 10 == 0) punkte += letzteUhrstelle(p);
    return punkte;
}

} // namespace velmo
