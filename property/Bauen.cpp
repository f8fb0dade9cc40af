#include "property/Bauen.h"

#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "media/Ton.h"
#include "property/Grundstück.h"
#include "property/Pleite.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr double Steigschritt = 60; // Twips je Takt

constexpr const char *stufenname(Baustufe s) {
    constexpr std::array namen = {"Hauptgebäude",    "1. Nebengebäude", "2. Nebengebäude",
                                  "3. Nebengebäude", "4. Nebengebäude", "Freizeitpark"};
    return namen[static_cast<std::size_t>(s)];
}

std::string Abzugssatz(const Baukosten &stufe, int preis, bool doppelt) {
    const bool park = stufe.Stand == Baustufe::P;
    const Baustufe genannt = doppelt ? stufe.DoppeltGenannt.value_or(stufe.Stand) : stufe.Stand;
    return "Es wurde " + std::to_string(preis) + (doppelt ? "DM" : stufe.Einheit) + " für " +
           (genannt == Baustufe::P ? "den " : "das ") + stufenname(genannt) + " abgezogen" +
           (!doppelt ? ""
            : park   ? "(sie mussten ihn doppelt bezahlen)"
                     : "(sie mussten es doppelt bezahlen)") +
           "!";
}

/// Zieht den Preis der Stufe ab; falsch, wenn das Geld nicht reicht und der Mensch pleite ist, mit Absicht ohne
/// Warnung.
bool bezahle(Programm &p, const Baukosten &stufe) {
    const bool doppelt = p.Zustand.Bauergebnis == 2;
    const int preis = doppelt ? stufe.Doppelt : stufe.Kosten;
    if (p.Zustand.Gesamtgeld < preis) {
        Pleitegehen(p, "Spieler", preis, "");
        return false;
    }
    Geldbuchen(p, preis, false);
    Scheinanzeige(p);
    brett(p).Label1.Caption = Abzugssatz(stufe, preis, doppelt);
    return true;
}

void baueAn(Programm &p, Hotelkürzel k) {
    const Spielzustand &z = p.Zustand;
    if (ausgebaut(z, k, grundstück(k).Schlusspark)) {
        brett(p).Label1.Caption = "Sie haben schon alles gebaut!";
        return;
    }
    const Baukosten &stufe = nächsteBaustufe(z, k);
    const bool gratis = z.Bauergebnis == 10;
    const bool verkauft = z.Bauergebnis == 1 || z.Bauergebnis == 2;
    if (gratis || (verkauft && bezahle(p, stufe))) errichte(p, stufe);
}

Image &Baubild(Programm &p) {
    Image *bild = brett(p).Gebäude(p.Zustand.Baubild);
    if (!bild) throw Laufzeitfehler(Fehlerart::Argument);
    return *bild;
}

} // namespace

std::span<const Baukosten> Baufolge(Hotelkürzel k) {
    const auto vonHotel = [k](const Baukosten &b) { return b.Hotel == k; };
    const auto anfang = std::ranges::find_if(Baukostentafel, vonHotel);
    return {anfang, std::find_if_not(anfang, Baukostentafel.end(), vonHotel)};
}

const Baukosten &nächsteBaustufe(const Spielzustand &z, Hotelkürzel k) {
    const auto folge = Baufolge(k);
    std::size_t i = folge.size() - 1;
    while (i > 0 && !steht(z, k, folge[i - 1].Stand))
        --i;
    return folge[i];
}

bool ausgebaut(const Spielzustand &z, Hotelkürzel k, Hotelkürzel park, Baustufe übergangen) {
    return steht(z, park, Baustufe::P) && std::ranges::all_of(Baufolge(k), [&](const Baukosten &stufe) {
               return stufe.Stand == Baustufe::H || stufe.Stand == Baustufe::P || stufe.Stand == übergangen ||
                      steht(z, k, stufe.Stand);
           });
}

void errichte(Programm &p, const Baukosten &stufe) {
    p.Zustand.Hotels[stufe.Hotel].Baustufen[stufe.Stand] = "true";
    p.Zustand.LetztesBild = stufe.Bild;
    p.Zustand.Baubild = velmo::stufe(stufe.Hotel, stufe.Stand)->Bild;
    Hochbauen(p, "");
}

void Baudurchführung(Programm &p) {
    p.entlade(formular::Baufeld);
    if (p.Zustand.Gratisbau) p.Zustand.Bauergebnis = 10;
    if (const auto k = HotelZuSchlüssel(p.Zustand.Bauhotel)) baueAn(p, *k);
    brett(p).Fertig.Enabled = true;
}

void Hochbauen(Programm &p, const std::string &Text) {
    Brett &b = brett(p);
    spieleFrisch(b.Hauscontrol1);
    Image &bild = Baubild(p);
    p.Zustand.Endhöhe = bild.Height; // ein halb gestiegenes bleibt so stehen, mit Absicht
    bild.Wächst = true;
    bild.Height = 0;
    bild.Visible = true;
    b.BauTimer.Enabled = true;
    if (Text != "comp") b.Fertig.Enabled = true;
}

void Steigtakt(Programm &p) {
    Image &bild = Baubild(p);
    bild.Height += Steigschritt;
    // Was über die Endhöhe hinausgeht, bleibt: mit Absicht so.
    if (bild.Height < p.Zustand.Endhöhe) return;
    bild.Wächst = false;
    brett(p).BauTimer.Enabled = false;
}

} // namespace velmo
