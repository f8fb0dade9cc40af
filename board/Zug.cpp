#include "board/Zug.h"

#include "board/Autofahrt.h"
#include "boardform/Brett.h"
#include "media/Bilder.h"
#include "media/Ton.h"
#include "property/Bauen.h"

#include <algorithm>
#include <iterator>

namespace velmo {

namespace {

constexpr int Wartezeiten[] = {2000, 3080, 2195, 1590}; // ms

struct Bauwurf {
    int Bauwürfel;
    const char *Text;
    int Bauergebnis;
};

// clang-format off
constexpr Bauwurf Bauwürfe[] = {
    {1, "Alles klar, das Hotel wird gebaut.", 1},
    {2, "Der Würfel ist auf rot, sie dürfen nicht bauen!", 0},
    {3, "Super, das Hotel ist gratis!", 10},
    {4, "Leider müssen sie das Hotel zum doppelten Preis bezahlen!", 2},
    {5, "Alles klar, das Hotel wird gebaut.", 1},
    {6, "Alles klar, das Hotel wird gebaut.", 1},
};
// clang-format on

void zeigeWurf(Programm &p) { brett(p).Picture8.Picture = Bildladen(p, 200 + p.Zustand.Wurf.Ganz(), "Wuerfel"); }

void rolleFahrwürfel(Programm &p) {
    Brett &b = brett(p);
    b.Fertig.Enabled = false;
    if (!b.Timer1.Enabled) {
        b.Timer1.Enabled = true;
        b.WüButton.Caption = "Stopp";
        b.Label1.Caption = "Drücken Sie auf Stopp, um den Würfel zu stoppen";
        p.Zustand.Computerphase = 0;
        return;
    }
    b.Timer1.Enabled = false;
    b.Fertig.Enabled = true;
    b.WüButton.Caption = "Würfeln";
    b.WüButton.Enabled = false;
    // In der ersten Runde fährt das Auto einen Schritt weniger, als hier steht: mit Absicht so.
    const std::string wurf = p.Zustand.Wurf.Text();
    b.Label1.Caption = "Sie haben " + wurf + " gewürfelt, ihr Fahrzeug wurde um " + wurf + " Felder weitergeschoben.";
    if (const auto wagen = AutoDesMenschen(p.Zustand)) Autofahrt(p, *wagen);
}

void rolleBauwürfel(Programm &p) {
    Spielzustand &z = p.Zustand;
    Brett &b = brett(p);
    if (!b.Timer2.Enabled) {
        spieleFrisch(b.Trommel);
        b.Timer2.Enabled = true;
        b.WüButton.Caption = "Stopp";
        b.Label1.Caption = "Drücken sie auf Stopp, um den Würfel zu stoppen";
        return;
    }
    b.Timer2.Enabled = false;
    b.WüButton.Caption = "Würfeln";
    b.WüButton.Enabled = false;
    z.Baumodus = "nichts";
    const auto wurf = std::ranges::find_if(Bauwürfe, [&](const Bauwurf &w) { return z.Bauwürfel == w.Bauwürfel; });
    if (wurf == std::end(Bauwürfe)) {
        // Vor dem allerersten Takt gestoppt: mit Absicht so.
        p.MsgBox("Fehler in wübutton");
        p.MsgBox("Programmfehler in Wübutton2");
        return;
    }
    b.Label1.Caption = wurf->Text;
    z.Bauergebnis = wurf->Bauergebnis;
    Baudurchführung(p);
}

/// Das Auto, das der Computer bei dieser Farbe des Menschen fährt, wenn er noch im Spiel ist.
std::optional<Autokürzel> wagenVon(const Spielzustand &z, int computer) {
    const auto mensch = AutoDesMenschen(z);
    if (!mensch) return std::nullopt;
    const Autokürzel wagen = auto_(*mensch).Computer[static_cast<std::size_t>(computer - 1)];
    if (z.Autos[wagen].Autobesitzer != Computer<Autobesitzer>(computer)) return std::nullopt;
    return wagen;
}

void Computerzug(Programm &p, int computer, Autokürzel wagen) {
    brett(p).Label1.Caption = "Der Computer " + std::to_string(computer) + " würfelt und fährt.";
    // c1 behält den Wurf, den der Spieler hat flackern sehen; c2 und c3 ziehen selbst.
    if (computer > 1) {
        p.Zustand.Computerphase = 1;
        p.Zustand.Wurf = p.Zufallszahl(6) + 1;
        zeigeWurf(p);
    }
    Autofahrt(p, wagen);
}

} // namespace

void Würfelknopf(Programm &p) {
    if (p.Zustand.Baumodus == "s")
        rolleBauwürfel(p);
    else
        rolleFahrwürfel(p);
}

void Fertigknopf(Programm &p) {
    Brett &b = brett(p);
    // Solange ein Computer zieht, gilt kein Druck: sein gratis Bau hat den Knopf schon eingeschaltet. In der Wartezeit
    // davor gilt er, mit Absicht: wer da einen Eingang setzt, kann den Computer übergehen.
    if (b.Timer4.inArbeit) return;
    p.Zustand.AmZug += 1;
    p.Zustand.Wartelauf = 0;
    b.Label1.Caption = "Der Computer würfelt und fährt.";
    b.Timer1.Enabled = true;
    p.Zustand.Computerphase = 1;
    b.Fertig.Enabled = false;
}

void Fahrwürfeltakt(Programm &p) {
    Spielzustand &z = p.Zustand;
    Brett &b = brett(p);
    if (z.Wartelauf == 0 && z.Computerphase == 1 && !b.Timer4.Enabled) {
        b.Timer4.Interval = Wartezeiten[p.Zufallszahl(static_cast<int>(std::size(Wartezeiten)))];
        b.Timer4.Enabled = true;
        z.Wartelauf = 1;
    }
    z.Rohwurf = p.Zufallszahl(6);
    z.Wurf = z.Rohwurf == 0 ? Lose(6) : Lose(z.Rohwurf.Text());
    zeigeWurf(p);
    z.Rohwurf = 1;
}

void Bauwürfeltakt(Programm &p) {
    p.Zustand.Bauwürfel = p.Zufallszahl(6) + 1;
    brett(p).Picture7.Picture = Bildladen(p, 300 + p.Zustand.Bauwürfel.Ganz(), "Wuerfel");
}

void WartezeitUm(Programm &p) {
    Spielzustand &z = p.Zustand;
    z.Wartelauf = 0;
    brett(p).Timer1.Enabled = false;
    for (const int computer : {1, 2, 3}) {
        if (z.AmZug != computer) continue;
        if (const auto wagen = wagenVon(z, computer)) {
            Computerzug(p, computer, *wagen);
            break;
        }
        // Wer ausgeschieden ist, reicht im selben Takt weiter; nach c3 ist niemand mehr.
        if (computer < 3) z.AmZug += 1;
    }
    Brett &b = brett(p);
    b.Fertig.Enabled = true;
    b.Timer4.Enabled = false;
    // Verglichen wird der Platz in der festen Reihe mit der Zahl der Überlebenden: ist c1 ruiniert, endet die Runde
    // nach c2, und c3 zieht nie mehr. Mit Absicht so.
    if (z.AmZug < z.Gegnerzahl) return;
    b.Fertig.Enabled = false;
    b.WüButton.Enabled = true;
    z.AmZug = 0;
    z.ErsteRundeVorbei = true;
}

} // namespace velmo
