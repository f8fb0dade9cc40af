#pragma once
// Die Befehle der Skripte und die Routinen, die "ruf" kennt.
#include "bench/Szene.h"

namespace velmo {

struct Befehlseintrag {
    const char *Name;
    std::size_t mindestens, höchstens; // Wörter nach dem Namen
    void (*führeAus)(Szene &, Wörter);
    bool auchAmEnde = false; // auch nachdem das Programm geendet hat
    bool beginntNeu = false; // braucht ein Programm, in dem niemand mehr wartet
};

/// Der Befehl, mit dem die Zeile beginnt; wirft Schreibfehler, wenn es ihn nicht gibt oder die Wörter nicht passen.
const Befehlseintrag &findeBefehl(Wörter zeile);

// Gruppen von Befehlen in eigenen Dateien.
void erwarte(Szene &, Wörter);
void ruf(Szene &, Wörter);
/// Liest "NAME = WERT" oder "NAME <> WERT"; Gleichheit ist, ob das Zeichen = ist.
struct Vergleich {
    std::string Name;
    bool Gleichheit;
    Wert erwartet;
    bool gilt(Szene &) const;
    std::string Ist(Szene &) const;
    std::string Erwartung() const;
    std::string geschrieben(const Wert &) const;
};
Vergleich liesVergleich(Wörter);
/// Einen Vergleich oder mehrere.
std::vector<Vergleich> liesVergleiche(Wörter);

// Maus und Tastatur.
void würfle(Szene &, Wörter);
void klick(Szene &, Wörter);
void rechts(Szene &, Wörter);
void doppelklick(Szene &, Wörter);
void drückeNochmals(Szene &);
void drück(Szene &, Wörter);
void los(Szene &, Wörter);
void maus(Szene &, Wörter);
void zieh(Szene &, Wörter);
void bild(Szene &, Wörter);
void tippe(Szene &, Wörter);
void taste(Szene &, Wörter);
void wähle(Szene &, Wörter);
void schließe(Szene &, Wörter);

// Dateien.
void datei(Szene &, Wörter);
void bytes(Szene &, Wörter);
void ordner(Szene &, Wörter);
void lösche(Szene &, Wörter);
void gesperrt(Szene &, Wörter);

} // namespace velmo
