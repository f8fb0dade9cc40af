#include "board/Landung.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "computer/kibaufeld.h"
#include "computer/kibauphase.h"
#include "computer/kieingang.h"
#include "computer/kigeldfeld.h"
#include "media/Ton.h"
#include "model/Feldtabelle.h"
#include "property/Miete.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr int Bankgeld = 2000;

/// Was ein Feld den beiden Arten von Gästen bringt.
struct Ereignis {
    Feldart Art;
    Formularname Dialog;                      // für den Menschen
    void (*Computer)(Programm &, Autokürzel); // für einen Computer
};

constexpr Ereignis Ereignistafel[] = {
    {Feldart::Kauffeld, formular::geldfeld, [](Programm &p, Autokürzel) { kigeldfeld(p); }},
    {Feldart::Baugenehmigung, formular::Baufeld, [](Programm &p, Autokürzel) { kibaufeld(p); }},
    {Feldart::Bauphase, formular::Bauphase, [](Programm &p, Autokürzel) { kibauphase(p); }},
    {Feldart::Eingang, formular::eingang, [](Programm &p, Autokürzel k) { kieingang(p, true, k); }},
};

const Ereignis &ereignis(Feldart art) {
    return *std::ranges::find(Ereignistafel, art, [](const Ereignis &e) { return e.Art; });
}

struct Anliegerzeile {
    char Buchstabe;
    const char *Name;
};

// Wie die Überlegungen der Computer die Anlieger nennen.
constexpr Anliegerzeile Anliegertafel[] = {
    {'b', "Boomerang"}, {'p', "President"}, {'w', "Waikiki"}, {'t', "Taj"},
    {'s', "Safari"},    {'f', "Fujijama"},  {'l', "Etoile"},  {'r', "Royal"},
};

std::string anliegername(char buchstabe) {
    const auto zeile = std::ranges::find(Anliegertafel, buchstabe, &Anliegerzeile::Buchstabe);
    return zeile == std::end(Anliegertafel) ? "" : zeile->Name;
}

void landeMensch(Programm &p, Autokürzel k, Feldart art) {
    Spielzustand &z = p.Zustand;
    z.Mietefertig = false;
    Mietdialog(p, k);
    p.warteBis([&] { return z.Mietefertig; });
    if (art == Feldart::Eingang) z.Gratiseingang = true;
    p.zeige(ereignis(art).Dialog);
}

void landeComputer(Programm &p, Autokürzel k, const Feld &f) {
    Spielzustand &z = p.Zustand;
    Mietzahlen(p, k);
    kieingang(p, false, k);
    const std::string anlieger = f.Anlieger;
    z.Anlieger = anlieger;
    z.Anliegername[Seite::links] = anliegername(anlieger.front());
    z.Anliegername[Seite::rechts] = anliegername(anlieger.back());
    if (const int computer = Computernummer(z.Autos[k].Autobesitzer)) z.Aktivcomputer = computer;
    ereignis(f.Art).Computer(p, k);
}

} // namespace

void Bankdurchfahrt(Programm &p, Autokürzel k) {
    Spielzustand &z = p.Zustand;
    z.Autos[k].Bankmerker = true;
    if (z.Rundenzähler < 1) return;
    for (const int n : {1, 2, 3}) {
        if (z.Aktivcomputer != n) continue;
        z.Computergeld[n] += Bankgeld;
        kieingang(p, false, std::nullopt);
        return;
    }
    Geldbuchen(p, Bankgeld, true);
    spieleFrisch(brett(p).Kasse);
    Ansagen(p, "Sie bekommen 2000 Mark!", 0);
}

void Landung(Programm &p, Autokürzel k) {
    Spielzustand &z = p.Zustand;
    const Feld &f = feld(z.Autos[k].Autoziel.Zahl());
    z.Autos[k].Landefeldart = static_cast<char>(f.Art);
    if (z.Computerphase == 1)
        landeComputer(p, k, f);
    else
        landeMensch(p, k, f.Art);
}

} // namespace velmo
