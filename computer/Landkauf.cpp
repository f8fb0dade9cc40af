#include "computer/Landkauf.h"

#include "computer/Computer.h"
#include "computer/Zufallsentscheid.h"
#include "model/Brett.h"
#include "property/Grundstück.h"
#include "property/Pleite.h"

#include <optional>
#include <span>

namespace velmo {

namespace {

using H = Hotelkürzel;

/// Die Münze vor einem Kauf. Fällt eine gegen ihn, endet die ganze Überlegung; nur der Kaufwurf und eine aus acht
/// beenden bloß ihre Zeile.
enum class Münze { Keine, VierAusFünf, EineAusSechs, EineAusAcht, Kaufwurf };

/// Wann ein besetztes Grundstück mit Zwang genommen wird.
enum class Zwang {
    Nie,
    Sofort,     // ohne Hauptgebäude
    MitMünze,   // ohne Hauptgebäude, dann die Münze
    NachSafari, // Ende, wenn Safaris Hauptgebäude steht, dann die Münze; das eigene zählt nicht: mit Absicht so
};

struct Kaufzeile {
    H Hotel;
    std::array<std::optional<H>, 3> NichtEigen; // diese dürfen nicht dem Computer gehören
    int Gruppe, Grenze;                         // Gruppe 1 bis 3 muss unter der Grenze liegen; 0: keine
    int Schwelle;                               // darunter endet die ganze Überlegung; 0: keine
    Münze Vorab;
    bool NurOhneGruppe1; // ein freies gilt nur als frei, solange Gruppe 1 leer ist
    int Freischwelle;    // darunter endet die Überlegung bei einem freien; 0: keine
    Münze Frei;
    int Preis;
    Zwang Besetzt;
};

// clang-format off
constexpr Kaufzeile StapelA[] = { // noch kein Hotel
    // Hotel nicht eigen     Gruppe Schwelle vorab           nur o. G1  frei ab  Münze          Preis  besetzt
    {H::b, {H::f},                0, 0,   600, Münze::Keine,        false,     0, Münze::Keine,         500, Zwang::Sofort},
    {H::p, {H::r},                0, 0,  4500, Münze::Keine,        false,     0, Münze::Kaufwurf,     3500, Zwang::Sofort},
    {H::l, {},                    0, 0,  3900, Münze::Keine,        false,     0, Münze::Keine,        3000, Zwang::Sofort},
    {H::w, {H::r},                0, 0,  2500, Münze::Keine,        false,     0, Münze::VierAusFünf,  2500, Zwang::Sofort},
    {H::r, {H::w},                0, 0,  2500, Münze::Keine,        false,     0, Münze::VierAusFünf,  2500, Zwang::Sofort},
    {H::f, {H::b},                0, 0,  1000, Münze::Keine,        false,     0, Münze::VierAusFünf,  1000, Zwang::Sofort},
    {H::s, {},                    0, 0,  2000, Münze::EineAusSechs, false,     0, Münze::Keine,        2000, Zwang::MitMünze},
    {H::t, {},                    0, 0,  1500, Münze::EineAusSechs, false,     0, Münze::Keine,        1500, Zwang::NachSafari},
};

constexpr Kaufzeile StapelB[] = { // ein Hotel
    {H::b, {H::f},                0, 0,  1000, Münze::Keine,        true,      0, Münze::Keine,         500, Zwang::Sofort},
    {H::p, {H::r},                0, 0,  5000, Münze::Keine,        true,      0, Münze::Kaufwurf,     3500, Zwang::Sofort},
    {H::l, {H::t},                0, 0,  3000, Münze::Keine,        true,      0, Münze::Keine,        3000, Zwang::Sofort},
    {H::w, {H::r, H::w},          2, 2,     0, Münze::Keine,        false,  5000, Münze::Keine,        2500, Zwang::MitMünze},
    {H::r, {H::p, H::w, H::r},    2, 2,     0, Münze::Keine,        false,  5000, Münze::Keine,        2500, Zwang::MitMünze},
    {H::f, {H::b, H::f},          2, 2,     0, Münze::Keine,        false,  1000, Münze::Keine,        2100, Zwang::MitMünze},
    {H::s, {},                    3, 1,  4000, Münze::Keine,        false,     0, Münze::Keine,        2000, Zwang::MitMünze},
    {H::t, {H::l},                3, 1,  3000, Münze::Keine,        false,     0, Münze::Keine,        1500, Zwang::NachSafari},
};

constexpr Kaufzeile StapelC[] = { // zwei oder mehr, ab der fünften Runde des Menschen
    {H::b, {H::f},                1, 3,  1100, Münze::Keine,        false,     0, Münze::Keine,         500, Zwang::Nie},
    {H::p, {H::r},                1, 3,  6000, Münze::Keine,        false,     0, Münze::Keine,        3500, Zwang::Nie},
    {H::l, {H::t},                1, 3,  5500, Münze::Keine,        false,     0, Münze::Keine,        3000, Zwang::Nie},
    {H::w, {H::r},                2, 4,  5000, Münze::Keine,        false,     0, Münze::EineAusAcht,  2500, Zwang::Nie},
    {H::r, {H::p, H::w},          2, 4,  4000, Münze::Keine,        false,     0, Münze::EineAusAcht,  2500, Zwang::Nie},
    {H::f, {H::b},                2, 4,  3000, Münze::Keine,        false,     0, Münze::EineAusAcht,  1000, Zwang::Nie},
};

struct Siedlung {
    H Hotel;
    const char *Anlieger; // wie der Anliegername es nennt
    int Gruppe;
    int Zwangspreis;
    const char *Meldung;       // der Name in der Meldung eines freien Kaufs
    const char *Zwangsmeldung; // und der eines erzwungenen
};

// Royals Zwangspreis von 12500 und die Zwangsmeldung "Taj", die niemand kennt, sind mit Absicht so.
constexpr std::array<Siedlung, 8> Siedlungen = {{
    // Hotel Anlieger  Gruppe Zwang  Meldung      erzwungen
    {H::b, "Boomerang", 2,    250, "Boomerang", "Boomerang"},
    {H::p, "President", 1,   1750, "President", "President"},
    {H::w, "Waikiki",   2,   1250, "Waikiki",   "Waikiki"},
    {H::t, "Taj",       3,    750, "Taj Mahal", "Taj"},
    {H::s, "Safari",    3,   1000, "Safari",    "Safari"},
    {H::f, "Fujijama",  2,    500, "Fujijama",  "Fujijama"},
    {H::l, "Etoile",    1,   1500, "Etoile",    "Etoile"},
    {H::r, "Royal",     2,  12500, "Royal",     "Royal"},
}};

struct Stufenzeile {
    int GeldÜber, GeldVonC1Bis, Kaufstufe;
};

// Alle Zeilen gelten nacheinander; verglichen wird mit dem Geld von c1, wer auch handelt: mit Absicht so.
constexpr Stufenzeile Kaufstufen[] = {
    {0, 700, 1}, {700, 2150, 2}, {2150, 5000, 3}, {5000, 10000, 5}, {10000, 32767, 5},
};
// clang-format on

const Siedlung &siedlung(H k) { return Siedlungen[static_cast<std::size_t>(k)]; }

class Landkauf {
  public:
    Landkauf(Programm &p, int computer) : p(p), z(p.Zustand), computer(computer) {}

    void überlege() {
        z.Gruppe1 = z.Gruppe2 = z.Gruppe3 = 0;
        z.Gekauftmerker = 0;
        z.Arbeitsgeld = int(z.Computergeld[computer]);
        bestimmeKaufstufe();
        if (z.Kaufstufe == 0 || z.Kaufstufe == 1) return;
        zähleGruppen();
        for (const Kaufzeile &zeile : stapel())
            if (gilt(zeile) && !geheWeiterNach(zeile)) break;
        schreibeZurück(z, computer);
    }

  private:
    void bestimmeKaufstufe() {
        const double geld = z.Arbeitsgeld.Zahl();
        if (geld <= 0) z.Kaufstufe = 0;
        for (const Stufenzeile &zeile : Kaufstufen)
            if (geld > zeile.GeldÜber && z.Computergeld[1] <= zeile.GeldVonC1Bis) z.Kaufstufe = zeile.Kaufstufe;
    }

    void zähleGruppen() {
        for (const Siedlung &s : Siedlungen)
            if (eigen(s.Hotel)) gruppe(s.Gruppe) += 1;
        z.Hotelzahl = z.Gruppe1 + z.Gruppe2 + z.Gruppe3;
    }

    std::span<const Kaufzeile> stapel() const {
        if (z.Hotelzahl == 0) return StapelA;
        if (z.Hotelzahl == 1) return StapelB;
        if (z.Rundenzähler < 5) return {};
        return StapelC;
    }

    bool gilt(const Kaufzeile &zeile) {
        const Siedlung &s = siedlung(zeile.Hotel);
        const bool angrenzend = std::ranges::find(z.Anliegername, s.Anlieger) != z.Anliegername.end();
        return angrenzend && std::ranges::none_of(zeile.NichtEigen, [&](auto k) { return k && eigen(*k); }) &&
               (zeile.Gruppe == 0 || gruppe(zeile.Gruppe) < zeile.Grenze);
    }

    /// Führt die Zeile aus; falsch, wenn die ganze Überlegung damit endet.
    bool geheWeiterNach(const Kaufzeile &zeile) {
        if (z.Gekauftmerker == 1 || z.Arbeitsgeld.Zahl() < zeile.Schwelle) return false;
        if (!fällt(zeile.Vorab)) return false;
        const bool frei = z.Hotels[zeile.Hotel].Besitzer.leer();
        return frei && !(zeile.NurOhneGruppe1 && z.Gruppe1 >= 1) ? kaufeFreies(zeile) : nimmBesetztes(zeile);
    }

    bool kaufeFreies(const Kaufzeile &zeile) {
        if (z.Arbeitsgeld.Zahl() < zeile.Freischwelle) return false;
        if (!fällt(zeile.Frei)) return zeile.Frei == Münze::Kaufwurf || zeile.Frei == Münze::EineAusAcht;
        z.Arbeitsgeld -= zeile.Preis;
        übernimm(zeile, siedlung(zeile.Hotel).Meldung);
        return true;
    }

    bool nimmBesetztes(const Kaufzeile &zeile) {
        const auto &s = siedlung(zeile.Hotel);
        if (zeile.Besetzt == Zwang::NachSafari) {
            if (steht(z, H::s, Baustufe::H)) return false;
        } else if (zeile.Besetzt == Zwang::Nie || steht(z, zeile.Hotel, Baustufe::H)) {
            return true;
        }
        if (eigen(zeile.Hotel)) return true;
        if (zeile.Besetzt != Zwang::Sofort && !fällt(Münze::VierAusFünf)) return false;
        Zwangsverkauf(p, s.Zwangspreis, z.Hotels[zeile.Hotel].Besitzer, grundstück(zeile.Hotel).Zwangsschlüssel);
        übernimm(zeile, s.Zwangsmeldung);
        return true;
    }

    /// L'Étoile heißt in der Meldung beim ersten Hotel eines Computers "Étoile", danach "Etoile".
    void übernimm(const Kaufzeile &zeile, const std::string &name) {
        const bool ersteEtoile = zeile.Hotel == H::l && z.Hotelzahl == 0;
        z.Hotels[zeile.Hotel].Besitzer = Computer<Hotelbesitzer>(computer);
        Grundstücksmeldung(p, computer, ersteEtoile ? "Étoile" : name);
        z.Gekauftmerker = 1;
        z.Hotelzahl += 1;
    }

    bool fällt(Münze münze) {
        switch (münze) {
        case Münze::Keine:
            return true;
        case Münze::VierAusFünf:
            Zufallsentscheid(p, 2);
            return z.Zufallsmerker;
        case Münze::EineAusSechs:
            Zufallsentscheid(p, 3);
            return z.Zufallsmerker;
        case Münze::EineAusAcht:
            Zufallsentscheid(p, 0);
            return z.Zufallsmerker;
        case Münze::Kaufwurf: {
            const int r = p.Zufallszahl(5);
            return r != 2 && r != 3;
        }
        }
        return false;
    }

    bool eigen(H k) const { return gehört(z, k, computer); }
    Kurz &gruppe(int nummer) { return nummer == 1 ? z.Gruppe1 : nummer == 2 ? z.Gruppe2 : z.Gruppe3; }

    Programm &p;
    Spielzustand &z;
    const int computer;
};

struct Meldename {
    const char *Name;
    H Hotel;
};

constexpr Meldename Meldenamen[] = {
    {"Boomerang", H::b}, {"President", H::p}, {"Royal", H::r},    {"Étoile", H::l},  {"Etoile", H::l},
    {"Taj Mahal", H::t}, {"Safari", H::s},    {"Fujijama", H::f}, {"Waikiki", H::w},
};

} // namespace

void kigeldfeld(Programm &p) {
    if (const auto computer = handelnder(p.Zustand)) Landkauf(p, *computer).überlege();
}

void Grundstücksmeldung(Programm &p, int Computer, const std::string &Hotelname) {
    const auto zeile = std::ranges::find(Meldenamen, Hotelname, &Meldename::Name);
    if (zeile == std::end(Meldenamen)) return;
    const std::string nummer = std::to_string(Computer);
    Label &schild = brett(p).Schild(zeile->Hotel);
    schild.Visible = true;
    schild.Caption = "Computer " + nummer;
    brett(p).Label1.Caption = "Der Computer " + nummer + " hat das Grundstück von " + Hotelname + " erworben.";
}

} // namespace velmo
