#include "computer/kieingang.h"

#include "computer/Computer.h"
#include "computer/Eingangspreise.h"
#include "model/Eingangstafel.h"
#include "property/Eingangskauf.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace velmo {

namespace {

using H = Hotelkürzel;

constexpr int Rücklage = 2000; // darunter kauft ein Computer keinen Eingang
constexpr int Durchläufe = 8;  // so oft sucht er einen freien Platz für einen Gratiseingang

// clang-format off
/// In welcher Folge ein Hotel seine Felder probiert; von mehreren Zeilen gilt die erste, deren Rivale fremd ist.
struct Folge {
    H Hotel;
    std::optional<H> Rivale;
    std::array<int, 10> Felder; // 0 beendet die Folge
};

constexpr Folge Folgen[] = {
    {H::b, {},   {2, 3, 4, 5}},
    {H::p, H::l, {9, 10, 13, 15, 12, 14, 11}},
    {H::p, H::r, {13, 15, 12, 14, 11, 9, 10}},
    {H::p, {},   {11, 13, 9, 15, 14, 10, 12}},
    {H::l, H::p, {10, 9, 21, 22, 23, 24, 28, 29, 8}},
    {H::l, H::t, {21, 22, 23, 24, 9, 28, 29, 10, 8}},
    {H::l, H::s, {28, 29, 10, 21, 22, 23, 24, 9, 8}},
    {H::l, {},   {10, 24, 9, 21, 29, 22, 23, 28, 8}},
    {H::w, {},   {16, 19, 17, 20, 18}},
    {H::r, H::p, {12, 15, 11, 20, 17, 13, 16, 14, 18, 19}},
    {H::r, H::w, {16, 17, 19, 13, 20, 18, 12, 15, 11, 14}},
    {H::r, {},   {16, 15, 11, 20, 12, 17, 13, 14, 18, 19}},
    {H::f, {},   {3, 2, 5, 4, 6, 1}},
    {H::t, {},   {24, 21, 22, 23, 25}},
    {H::s, {},   {28, 29, 27, 26, 30}},
};
// clang-format on

class Eingangssuche {
  public:
    Eingangssuche(Programm &p, int computer, bool frei) : p(p), z(p.Zustand), computer(computer), frei(frei) {}

    /// Sucht mit den Merkern des Autos und schreibt sie fort.
    void suche(Reihe<Flagge, NachHotel> &merker) {
        const auto vorher = merker;
        if (frei) merker = {};
        do
            z.Durchlauf += 1;
        while (!endetNach(merker));
        if (!frei) return;
        // Ein Gratiseingang lässt die Merker, wie sie waren; nur Fujijamas ist danach gelöscht, und Safaris behält, was
        // die Suche daraus gemacht hat: mit Absicht so.
        const Flagge safari = merker[H::s];
        merker = vorher;
        merker[H::f] = false;
        merker[H::s] = safari;
    }

  private:
    /// Ein Durchlauf durch die eigenen Hotels; wahr, wenn kein weiterer folgt.
    bool endetNach(Reihe<Flagge, NachHotel> &merker) {
        z.Wahlzahl = zähleHotels(z, computer);
        if (z.Wahlzahl == 0) return true;
        for (const Eingangszeile &zeile : Eingangszeilen) {
            if (!gehört(z, zeile.Hotel, computer)) continue;
            z.Wahlzahl -= 1;
            if (!kommtInFrage(zeile, merker)) continue;
            // Das letzte eigene Hotel unterliegt keiner Ziehung.
            if (z.Wahlzahl.Zahl() >= 1 && p.Zufallszahl(3) == 2) continue;
            merker[zeile.Hotel] = true;
            if (setzeEingang(zeile)) return true;
            z.Hotels[zeile.Hotel].Vollmerker = true;
            return false;
        }
        return !frei || z.Durchlauf.Zahl() >= Durchläufe;
    }

    bool kommtInFrage(const Eingangszeile &zeile, const Reihe<Flagge, NachHotel> &merker) const {
        const Hoteldaten &h = z.Hotels[zeile.Hotel];
        return !merker[zeile.Hotel] && h.Eingangszahl.Zahl() <= zeile.Grenze && !h.Vollmerker &&
               steht(z, zeile.Hotel, Baustufe::H);
    }

    bool setzeEingang(const Eingangszeile &zeile) {
        const Eingangsplatz *platz = freierPlatz(zeile.Hotel);
        if (!platz) return false;
        z.Eingang[platz->Nummer] = true;
        z.Eingangsbesitzer[platz->Nummer] = Computer<Eingangsbesitzer>(computer);
        z.Hotels[zeile.Hotel].Eingangszahl += 1;
        Eingangsauffrischung(p, false);
        if (!frei) z.Arbeitsgeld -= zeile.Preis;
        return true;
    }

    const Eingangsplatz *freierPlatz(H hotel) const {
        const auto folge = std::ranges::find_if(
            Folgen, [&](const Folge &f) { return f.Hotel == hotel && (!f.Rivale || fremd(*f.Rivale)); });
        for (const int feld : folge->Felder) {
            if (feld == 0) break;
            const Eingangsplatz *platz = eingangsplatzVon(hotel, feld);
            // Zwei Eingänge liegen sich nie gegenüber.
            if (!vergeben(z, platz->Nummer)) return platz;
        }
        return nullptr;
    }

    bool fremd(H rivale) const { return !z.Hotels[rivale].Besitzer.leer() && !gehört(z, rivale, computer); }

    Programm &p;
    Spielzustand &z;
    const int computer;
    const bool frei;
};

} // namespace

void kieingang(Programm &p, bool Frei, std::optional<Autokürzel> Auto) {
    Spielzustand &z = p.Zustand;
    const auto computer = handelnder(z);
    z.Durchlauf = 0;
    if (!computer) return;
    z.Arbeitsgeld = int(z.Computergeld[*computer]);
    if (z.Arbeitsgeld.Zahl() < Rücklage && !Frei) return;
    auto merker = Auto ? z.Autos[*Auto].Eingangsmerker : Reihe<Flagge, NachHotel>{};
    if (!Frei && std::ranges::all_of(merker, [](Flagge f) { return bool(f); })) return;
    Eingangssuche(p, *computer, Frei).suche(merker);
    if (Auto) z.Autos[*Auto].Eingangsmerker = merker;
    schreibeZurück(z, *computer);
}

} // namespace velmo
