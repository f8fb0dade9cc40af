#include "computer/kigeldfeld.h"

#include "boardform/Brett.h"
#include "computer/Computer.h"
#include "computer/Kauftafel.h"
#include "computer/Zufallsentscheid.h"
#include "property/Grundstück.h"
#include "property/Pleite.h"

#include <span>

namespace velmo {

namespace {

using H = Hotelkürzel;

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
