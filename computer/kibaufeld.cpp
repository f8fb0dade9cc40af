#include "computer/kibaufeld.h"

#include "assistant/Ansagen.h"
#include "computer/Bautafel.h"
#include "computer/Computer.h"
#include "computer/Zufallsentscheid.h"
#include "property/Bauen.h"
#include "property/Hilfeadresse.h"
#include "property/Pleite.h"

namespace velmo {

namespace {

using H = Hotelkürzel;
using S = Baustufe;

// clang-format off
/// Ein Hotel in der Auswahl: ob das letzte übrige sicher gewählt wird, ob ein fehlendes Hauptgebäude eigens drängt.
struct Wahlzeile {
    H Hotel;
    bool LetztesSicher;
    bool DrängtZumHauptgebäude;
};

constexpr Wahlzeile Wahltafel[] = {
    {H::b, false, false}, {H::p, true, true},  {H::l, true, false}, {H::w, true, false},
    {H::r, true,  false}, {H::f, true, false}, {H::t, true, false}, {H::s, true, false},
};

struct Wächter {
    H Hotel;
    Meldungsart Art;
    const char *Text;
};

// Meldungen für einen Stand, den es nicht geben kann: ein Nebengebäude ohne Hauptgebäude.
constexpr Wächter Wächtertafel[] = {
    {H::l, Meldungsart::Kritisch, "fehler:Bis hier kommt er nicht wenn alles stimmt(kibaufeld,let) schicken sie das an "},
    {H::w, Meldungsart::Schlicht, "Bis hier kommt er nicht wenn alles stimmt(kibaufeld, kiki)schicken sie das an "},
    {H::t, Meldungsart::Schlicht, "Bis hier kommt er nicht wenn alles stimmt(kibaufeld, taj)schicken sie das an "},
};

// Der Bauwürfel der Computer: 1 normal, 2 doppelt, 3 nichts, 4 gratis.
constexpr int Bauwürfe[] = {1, 1, 3, 1, 2, 4};
// clang-format on

constexpr int DranggeldDesPresident = 6000;

const Bauzeile *bauzeile(const std::string &name) {
    const auto zeile = std::ranges::find(Bautafel, name, &Bauzeile::Name);
    return zeile == Bautafel.end() ? nullptr : &*zeile;
}

bool Münze(Programm &p) { return Zufallsentscheid(p, "kibaufeld") == 1; }

/// Geht die eigenen Hotels durch; es kann auch keins gewählt werden.
std::optional<H> wähleHotel(Programm &p, int computer) {
    Spielzustand &z = p.Zustand;
    z.Wahlzahl = z.Hotelzahl;
    for (const Wahlzeile &zeile : Wahltafel) {
        if (!gehört(z, zeile.Hotel, computer)) continue;
        if (z.Hotelzahl == 1) return zeile.Hotel;
        if (!steht(z, zeile.Hotel, S::P)) {
            if (zeile.LetztesSicher && z.Wahlzahl == 1) return zeile.Hotel;
            if (Münze(p)) return zeile.Hotel;
            if (zeile.DrängtZumHauptgebäude) {
                // Steht das Hauptgebäude, bleibt die Wahlzahl, und das letzte Hotel ist nicht sicher: mit Absicht so.
                if (steht(z, zeile.Hotel, S::H)) continue;
                if (z.Arbeitsgeld.Zahl() > DranggeldDesPresident) return zeile.Hotel;
            }
        }
        z.Wahlzahl -= 1;
    }
    return std::nullopt;
}

/// Die nächste Stufe, von oben gesucht: über der obersten, die steht. Steht der Park, keine.
const Bauzeile *nächsteStufe(Programm &p, H k) {
    const Spielzustand &z = p.Zustand;
    const Bauzeile *darüber = nullptr;
    for (auto zeile = Bautafel.rbegin(); zeile != Bautafel.rend(); ++zeile) {
        if (zeile->Hotel != k) continue;
        if (steht(z, k, zeile->Stand)) {
            const auto wächter = std::ranges::find(Wächtertafel, k, &Wächter::Hotel);
            const bool ohneHaupt = darüber && darüber->Stand != S::P && !steht(z, k, S::H);
            if (ohneHaupt && wächter != std::end(Wächtertafel)) {
                p.MsgBox(wächter->Text + std::string(Hilfeadresse), wächter->Art);
                return nullptr;
            }
            return darüber;
        }
        darüber = &*zeile;
    }
    return darüber;
}

void baue(Programm &p, const Bauzeile &zeile, int preis, const std::string &satz) {
    Spielzustand &z = p.Zustand;
    z.Arbeitsgeld -= preis;
    z.Baubild = stufe(zeile.Hotel, zeile.Stand)->Bild;
    Hochbauen(p, "comp");
    z.Hotels[zeile.Hotel].Baustufen[zeile.Stand] = "true";
    Ansagen(p, satz, 0);
}

void baueNachWurf(Programm &p, const Bauzeile &zeile, int computer) {
    Spielzustand &z = p.Zustand;
    const std::string wer = "Der Computer " + std::to_string(computer);
    z.Computerbauwurf = Bauwürfe[p.Zufallszahl(6)];
    switch (z.Computerbauwurf) {
    case 1:
        if (z.Arbeitsgeld.Zahl() >= zeile.Test) baue(p, zeile, zeile.Preis, wer + " kauft ein neues Gebäude.");
        break;
    case 2:
        // Genau der doppelte Preis ruiniert schon.
        if (z.Arbeitsgeld.Zahl() <= zeile.Doppelt)
            Pleitegehen(p, std::to_string(computer), zeile.Ruinsumme, "");
        else
            baue(p, zeile, zeile.Doppelt, wer + " muss ein neues Gebäude doppelt bezahlen.");
        break;
    case 3:
        Ansagen(p, "", 0);
        break;
    case 4:
        baue(p, zeile, 0, wer + " bekommt ein neues Gebäude gratis!");
        break;
    default:
        p.MsgBox("kann was nicht stimmen in kibaufeld. Kein würfelzahl");
        break;
    }
}

} // namespace

void kibaufeld(Programm &p) {
    Spielzustand &z = p.Zustand;
    const auto computer = handelnder(z);
    if (!computer) return;
    z.Arbeitsgeld = int(z.Computergeld[*computer]);
    z.Hotelzahl = zähleHotels(z, *computer);
    if (z.Hotelzahl == 0) return;
    if (const auto hotel = wähleHotel(p, *computer))
        if (const Bauzeile *zeile = nächsteStufe(p, *hotel))
            if (z.Arbeitsgeld.Zahl() >= zeile->Schwelle) kibauen(p, zeile->Name);
    schreibeZurück(z, *computer);
}

void kibauen(Programm &p, const std::string &Stufenname) {
    Spielzustand &z = p.Zustand;
    const auto computer = handelnder(z);
    const Bauzeile *zeile = bauzeile(Stufenname);
    if (!computer || !zeile) return;
    z.Stufenname = Stufenname;
    if (zeile->Stand != S::P)
        baueNachWurf(p, *zeile, *computer);
    else if (z.Arbeitsgeld.Zahl() >= zeile->Test)
        baue(p, *zeile, zeile->Preis, "Der Computer " + std::to_string(*computer) + " kauft seinen Freizeitpark");
    schreibeZurück(z, *computer);
}

} // namespace velmo
