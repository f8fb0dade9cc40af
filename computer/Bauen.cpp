#include "computer/Bauen.h"

#include "assistant/Ansagen.h"
#include "computer/Computer.h"
#include "computer/Zufallsentscheid.h"
#include "property/Bauen.h"
#include "property/Hilfeadresse.h"
#include "property/Pleite.h"

namespace velmo {

namespace {

using H = Hotelkürzel;
using S = Baustufe;

struct Bauzeile {
    H Hotel;
    S Stand;
    const char *Name;
    int Schwelle; // was kibaufeld verlangt
    int Test;     // was kibauen beim einfachen Preis verlangt
    int Preis;
    int Doppelt;   // auch die Grenze des Ruins
    int Ruinsumme; // was der Satz beim Ruin nennt
};

// clang-format off
constexpr std::array<Bauzeile, 36> Bautafel = {{
    // Hotel Stufe Name    Schwelle Test Preis Doppelt Ruinsumme
    {H::b, S::H,  "bo1",    2800, 1950, 1800,  3600,  3600},
    {H::b, S::P,  "bop",    1150, 1000,  250,     0,     0},
    {H::p, S::H,  "presih", 7000, 5200, 5000, 10000, 10000},
    {H::p, S::N1, "presi1", 5000, 3200, 3000,  6000,  6000},
    {H::p, S::N2, "presi2", 3500, 2350, 2250,  4500,  4500},
    {H::p, S::N3, "presi3", 3000, 2200, 1750,  3500,  3500},
    {H::p, S::P,  "presip", 9300, 8000, 5000,     0,     0},
    {H::l, S::H,  "leth",   5500, 3500, 3300,  6600,  6600},
    {H::l, S::N1, "letn1",  4000, 2350, 2200,  4400,  3600}, // der Satz nennt mit Absicht 3600
    {H::l, S::N2, "letn2",  3000, 2000, 1800,  3600,  3600},
    {H::l, S::N3, "letn3",  3000, 2000, 1800,  3600,  3600},
    {H::l, S::N4, "letn4",  2900, 2000, 1800,  3600,  3600},
    {H::l, S::P,  "letp",   7000, 6000, 4000,     0,     0},
    {H::w, S::H,  "kikih",  5500, 3700, 3500,  7000,  7000},
    {H::w, S::N1, "kikin1", 4200, 2650, 2500,  5000,  5000},
    {H::w, S::N2, "kikin2", 4200, 2650, 2500,  5000,  5000},
    {H::w, S::N3, "kikin3", 3000, 1800, 1750,  3600,  3600},
    {H::w, S::N4, "kikin4", 3000, 1800, 1750,  3600,  3600},
    {H::w, S::P,  "kikip",  4000, 4000, 2500,     0,     0},
    {H::r, S::H,  "royh",   5123, 3800, 3600,  7200,  7200},
    {H::r, S::N1, "royn1",  3888, 2750, 2600,  5200,  5200},
    {H::r, S::N2, "royn2",  3101, 2000, 1800,  3600,  3600},
    {H::r, S::N3, "royn3",  3100, 2000, 1800,  3600,  3600},
    {H::r, S::P,  "royp",   5500, 5000, 3000,     0,     0},
    {H::f, S::H,  "fujih",  3200, 2250, 2200,  4400,  4400},
    {H::f, S::N1, "fujin1", 2400, 1500, 1400,  2800,  2800},
    {H::f, S::N2, "fujin2", 2300, 1500, 1400,  2800,  2800},
    {H::f, S::P,  "fujip",  1900, 1000,  500,     0,     0},
    {H::t, S::H,  "tajh",   3999, 2400, 2400,  4800,  4800},
    {H::t, S::N1, "tajn1",  3000, 1000, 1000,  2000,  2000},
    {H::t, S::N2, "tajn2",  2000,  500,  500,  1000,  1000},
    {H::t, S::P,  "tajp",   2500,  500,  500,     0,     0},
    {H::s, S::H,  "safh",   4000, 2600, 2600,  5200,  5200},
    {H::s, S::N1, "safn1",  2777, 1200, 1200,  2400,  2400},
    {H::s, S::N2, "safn2",  2600, 1200, 1200,  2400,  2400},
    {H::s, S::P,  "safp",   3500,  500,  500,     0,     0},
}};

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
    const char *Text;
};

// Meldungen für einen Stand, den es nicht geben kann: ein Nebengebäude ohne Hauptgebäude.
constexpr Wächter Wächtertafel[] = {
    {H::l, "fehler:Bis hier kommt er nicht wenn alles stimmt(kibaufeld,let) schicken sie das an "},
    {H::w, "Bis hier kommt er nicht wenn alles stimmt(kibaufeld, kiki)schicken sie das an "},
    {H::t, "Bis hier kommt er nicht wenn alles stimmt(kibaufeld, taj)schicken sie das an "},
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
                // Steht das Hauptgebäude, bleibt die Wahlzahl: das letzte Hotel ist dann nicht mehr sicher. Mit Absicht
                // so.
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
                p.MsgBox(wächter->Text + std::string(Hilfeadresse));
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
