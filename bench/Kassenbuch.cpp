#include "bench/Kassenbuch.h"

#include "computer/Bautafel.h"
#include "computer/Eingangspreise.h"
#include "computer/Kauftafel.h"
#include "model/Eingangstafel.h"
#include "model/Hoteltafel.h"
#include "property/Bauen.h"

#include <cstdlib>
#include <string>

namespace velmo {

namespace {

constexpr int Bankgeld = 2000;

int summe(const Spielzustand &z) {
    int alles = z.Gesamtgeld;
    for (const Kurz &geld : z.Computergeld)
        alles += geld;
    return alles;
}

int notensumme(const Spielzustand &z) {
    int alles = 0;
    for (const int note : Noten)
        alles += note * z.Notenbestand[note];
    return alles;
}

int rest(const Spielzustand &z) { return z.Restbetrag.empty() ? 0 : std::atoi(z.Restbetrag.c_str()); }

/// Sammelt, um welche Beträge sich die Summe geändert haben kann: jede erlaubte Buchung mit jeder anderen.
class Möglichkeiten {
  public:
    void buchung(const std::set<int> &beträge) {
        std::set<int> neu;
        for (const int a : alle)
            for (const int b : beträge)
                neu.insert(a + b);
        alle = std::move(neu);
    }
    bool erlaubt(int betrag) const { return alle.contains(betrag); }

  private:
    std::set<int> alle{0};
};

/// Was ein Computer für ein Grundstück hergegeben haben kann; eins von einem anderen ist nur umverteilt.
std::set<int> kaufbeträge(Hotelkürzel k, bool warFrei) {
    std::set<int> beträge;
    const auto aus = [&](const auto &stapel) {
        for (const auto &zeile : stapel)
            if (zeile.Hotel == k) beträge.insert(-zeile.Preis);
    };
    if (!warFrei) return {0};
    aus(StapelA);
    aus(StapelB);
    aus(StapelC);
    beträge.insert(-siedlung(k).Zwangspreis);
    return beträge;
}

/// Was die Stufe gekostet haben kann, nach der Tafel der Computer und der des Menschen: wem das Taj Mahal mit Zwang
/// genommen wurde, baut dort weiter.
std::set<int> baubeträge(Hotelkürzel k, Baustufe s) {
    std::set<int> beträge{0};
    for (const auto &zeile : Bautafel)
        if (zeile.Hotel == k && zeile.Stand == s) beträge.insert({-zeile.Preis, -zeile.Doppelt});
    for (const auto &zeile : Baukostentafel)
        if (zeile.Hotel == k && zeile.Stand == s) beträge.insert({-zeile.Kosten, -zeile.Doppelt});
    return beträge;
}

std::set<int> mitNull(std::set<int> beträge) {
    beträge.insert(0);
    return beträge;
}

} // namespace

std::optional<std::string> Kassenbuch::prüfe(const Spielzustand &z) {
    const int änderung = summe(z) - summe(vorher);
    const bool notenStimmen = notensumme(z) == z.Gesamtgeld;
    const bool ruin = z.Gegnerzahl < vorher.Gegnerzahl;
    Möglichkeiten möglich;
    for (const Autokürzel k : AlleAutos) {
        const Autodaten &a = z.Autos[k], &b = vorher.Autos[k];
        const bool neueRunde = !a.Autoziel.leer() && !b.Autoziel.leer() && a.Autoziel.Zahl() < b.Autoziel.Zahl();
        if (z.Rundenzähler >= 1 && a.Bankmerker && (!b.Bankmerker || neueRunde)) möglich.buchung({0, Bankgeld});
    }
    for (const Hotelkürzel k : AlleHotels) {
        const Hoteldaten &a = z.Hotels[k], &b = vorher.Hotels[k];
        const bool computer = Computernummer(a.Besitzer) != 0;
        if (computer && a.Besitzer != b.Besitzer) möglich.buchung(kaufbeträge(k, b.Besitzer.leer()));
        // Wer im selben Zug ruiniert wird, hat vorher gesetzte Eingänge bezahlt und kann ein verlorenes Hotel neu
        // kaufen.
        if (ruin && Computernummer(b.Besitzer)) {
            möglich.buchung({0, -eingangspreis(k), -2 * eingangspreis(k)}); // an der Bank und beim Halt
            if (a.Besitzer == b.Besitzer) möglich.buchung(mitNull(kaufbeträge(k, true)));
        }
        for (const Baustufe s : AlleStufen) {
            if (a.Baustufen[s] == b.Baustufen[s] || a.Baustufen[s].empty()) continue;
            möglich.buchung(baubeträge(k, s));
        }
    }
    for (const Eingangsplatz &platz : Eingangsplätze) {
        if (!z.Eingang[platz.Nummer] || vorher.Eingang[platz.Nummer]) continue;
        const bool mensch = z.Eingangsbesitzer[platz.Nummer] == Spieler;
        möglich.buchung({0, -(mensch ? platz.Kosten : eingangspreis(platz.Hotel))});
    }
    if (rest(z) < rest(vorher)) möglich.buchung({0, rest(z) - rest(vorher)});
    vorher = z;
    if (!notenStimmen) return "Noten " + std::to_string(notensumme(z)) + ", Geld " + std::to_string(z.Gesamtgeld);
    if (!möglich.erlaubt(änderung)) return "Geld ohne Regel: " + std::to_string(änderung) + " DM";
    return std::nullopt;
}

} // namespace velmo
