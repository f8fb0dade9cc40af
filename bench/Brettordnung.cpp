#include "bench/Befund.h"
#include "bench/Richtwerte.h"
#include "bench/Schiedsrichter.h"

#include <algorithm>

namespace velmo {

namespace {

using namespace richtwerte;

bool da(const Spielzustand &z, Hotelkürzel k, Baustufe s) { return !z.Hotels[k].Baustufen[s].empty(); }

void prüfeNoten(const Spielzustand &z) {
    int summe = 0;
    for (const int note : Noten)
        summe += note * z.Notenbestand[note];
    if (summe != z.Gesamtgeld)
        throw Befund("Noten " + std::to_string(summe) + ", Geld " + std::to_string(z.Gesamtgeld));
}

/// Stufen stehen lückenlos, und nur auf einem Grundstück, das jemandem gehört.
void prüfeHotel(const Spielzustand &z, Hotelkürzel k) {
    const Hoteldaten &h = z.Hotels[k];
    const std::string &wer = h.Besitzer.Text();
    if (!wer.empty() && wer != "player1" && !Computernummer(h.Besitzer)) throw Befund(hotelname(k) + " gehört " + wer);
    // Am Taj Mahal, das ihm mit Zwang genommen wurde, baut der Mensch weiter, auch wenn es wieder frei ist.
    bool lücke = wer.empty() && k != Hotelkürzel::t;
    for (const Baustufe s : AlleStufen) {
        const bool steht = da(z, k, s);
        const bool gibtEs = von(Baukosten, k, s) != 0;
        if (steht && (h.Baustufen[s] != "true" || !gibtEs || lücke))
            throw Befund(hotelname(k) + " hat eine Stufe, die nicht stehen kann");
        if (gibtEs && !steht) lücke = true;
    }
}

void prüfePlatz(const Spielzustand &z, int nummer) {
    if (!z.Eingang[nummer]) return;
    const Hotelkürzel k = hotelAm(nummer);
    const int drüben = gegenüber(nummer);
    if (drüben && z.Eingang[drüben])
        throw Befund("die Eingänge " + std::to_string(nummer) + " und " + std::to_string(drüben) +
                     " liegen sich gegenüber");
    if (!da(z, k, Baustufe::H)) throw Befund("Eingang " + std::to_string(nummer) + " führt in kein Hauptgebäude");
    const std::string &wer = z.Eingangsbesitzer[nummer].Text();
    if (wer != "Spieler" && !Computernummer(z.Eingangsbesitzer[nummer]))
        throw Befund("Eingang " + std::to_string(nummer) + " gehört \"" + wer + '"');
}

void prüfeAutos(const Spielzustand &z) {
    for (const Autokürzel k : AlleAutos) {
        const Lose &ziel = z.Autos[k].Autoziel;
        if (ziel.leer()) continue;
        if (ziel.Zahl() < 1 || ziel.Zahl() > Weglänge) throw Befund("ein Auto steht auf " + ziel.Text());
        const auto dort = [&](Autokürzel a) { return z.Autos[a].Autoziel == ziel; };
        if (std::ranges::count_if(AlleAutos, dort) > 1) throw Befund("zwei Autos stehen auf Feld " + ziel.Text());
    }
}

} // namespace

void prüfeBrettordnung(const Spielzustand &z, bool unterwegs) {
    prüfeNoten(z);
    for (const Hotelkürzel k : AlleHotels)
        prüfeHotel(z, k);
    for (int nummer = ErsterPlatz; nummer <= LetzterPlatz; ++nummer)
        prüfePlatz(z, nummer);
    if (!unterwegs) prüfeAutos(z);
    const auto imSpiel =
        std::ranges::count_if(AlleAutos, [&](Autokürzel k) { return Computernummer(z.Autos[k].Autobesitzer) != 0; });
    if (imSpiel != z.Gegnerzahl)
        throw Befund(std::to_string(z.Gegnerzahl) + " Gegner, aber " + std::to_string(imSpiel) + " Computer am Weg");
    if (z.AmZug < 0 || z.AmZug > 3) throw Befund("an der Reihe ist " + std::to_string(z.AmZug));
}

} // namespace velmo
