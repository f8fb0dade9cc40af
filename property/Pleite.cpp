#include "property/Pleite.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "property/Eingangskauf.h"
#include "property/Grundstück.h"
#include "property/Ruinmeldung.h"

#include <algorithm>
#include <array>

namespace velmo {

namespace {

using H = Hotelkürzel;

constexpr std::array Autosuche = {Autokürzel::g, Autokürzel::b, Autokürzel::e, Autokürzel::r};
constexpr std::array Freigabe = {H::b, H::p, H::l, H::w, H::r, H::t, H::f, H::s};

// Boomerangs Freigabe reicht mit Absicht einen Platz zu weit: auch Fujijamas Platz an Feld 4 wird frei.
constexpr struct {
    H Hotel;
    int Platz;
} Mitgerissen = {H::b, 39};

/// Die Form, die den Ruin meldet; der Spieler kann sie während des Satzes geschlossen haben.
Ruinmeldung &ruinmeldung(Programm &p) { return p.form(formular::Verloren); }

void nimmAusDemSpiel(Programm &p, const Autobesitzer &fahrer) {
    const auto wagen =
        std::ranges::find_if(Autosuche, [&](Autokürzel k) { return p.Zustand.Autos[k].Autobesitzer == fahrer; });
    if (wagen == Autosuche.end()) return;
    p.Zustand.Autos[*wagen].Autobesitzer = Autobesitzer("pleite");
    brett(p).Autobild(*wagen).Visible = false;
}

void gibFrei(Programm &p, H k) {
    Spielzustand &z = p.Zustand;
    Brett &b = brett(p);
    Hoteldaten &h = z.Hotels[k];
    b.Schild(k).Caption = "";
    h.Besitzer = {};
    h.Baustufen = {};
    // Nur die Plätze werden frei; die Namen ihrer Besitzer bleiben stehen.
    for (const Eingangsplatz &platz : Eingangsplätze)
        if (platz.Hotel == k || (k == Mitgerissen.Hotel && platz.Nummer == Mitgerissen.Platz))
            z.Eingang[platz.Nummer] = false;
    for (const Stufe &s : Stufen)
        if (s.Hotel == k) b.Gebäude(k, s.Stand).Visible = false;
    h.Vollmerker = false;
    h.Eingangszahl = 0;
}

void ruiniereComputer(Programm &p, const std::string &wer, int summe) {
    Spielzustand &z = p.Zustand;
    p.lade(formular::Verloren);
    nimmAusDemSpiel(p, Computer<Autobesitzer>(wer));
    for (const H k : Freigabe)
        if (z.Hotels[k].Besitzer == Computer<Hotelbesitzer>(wer)) gibFrei(p, k);
    Eingangsauffrischung(p, false);
    z.Verlierermerker = wer;
    z.Siegmerker = z.Gegnerzahl == 1;
    z.Gegnerzahl -= 1; // mit Absicht auch, wenn niemand so heißt
    Ansagen(p, "Er konnte nicht eimal die Summe von " + std::to_string(summe) + " Bezahlen!", 10);
    ruinmeldung(p).melde("Der Computer " + z.Verlierermerker + " hat Verloren!");
    p.zeige(formular::Verloren);
}

void ruiniereMensch(Programm &p, int summe) {
    p.lade(formular::Verloren);
    p.Zustand.Verlierermerker = "Spieler";
    Ansagen(p, "Sie konnten nicht einmal die Summe von " + std::to_string(summe) + " Bezahlen!", 0);
    ruinmeldung(p).melde("Sie haben Verloren!");
    ruinmeldung(p).verbirgAuslachen();
    p.zeige(formular::Verloren);
}

/// Nimmt den Schlüssel aus der Liste, "Taj" mit Absicht vergebens; was an die leere Stelle nachrückt, wird nicht noch
/// einmal verglichen.
void streicheAusListe(Spielzustand &z, const std::string &schlüssel) {
    for (int i = 1; i <= 8; ++i) {
        if (z.Hotelliste[i] != schlüssel) continue;
        for (int j = i; j < 8; ++j)
            z.Hotelliste[j] = z.Hotelliste[j + 1];
        z.Hotelliste[8] = "";
    }
}

/// Der Computer, den der Verkäufer nennt: "c1" genau, sonst nach der letzten Ziffer 2 oder 3.
int verkaufenderComputer(const Hotelbesitzer &verkäufer) {
    if (verkäufer.Text() == "c1") return 1;
    return verkäufer.letztes() == "2" ? 2 : verkäufer.letztes() == "3" ? 3 : 0;
}

} // namespace

void Pleitegehen(Programm &p, const std::string &Wer, Kurz Summe, const std::string &) {
    if (Wer == Spieler.Text())
        ruiniereMensch(p, Summe);
    else
        ruiniereComputer(p, Wer, Summe);
}

void Zwangsverkauf(Programm &p, int Betrag, const Hotelbesitzer &Verkäufer, const std::string &Schlüssel) {
    Spielzustand &z = p.Zustand;
    const std::string aktiv = z.Aktivcomputer.Text();
    const std::string käufer = aktiv.empty() ? "" : aktiv.substr(aktiv.size() - 1);
    for (const Grundstück &g : Grundstücke)
        if (g.Zwangsschlüssel == Schlüssel) brett(p).Schild(g.Hotel).Caption = "Computer " + käufer;
    z.Arbeitsgeld -= Betrag;
    const std::string schluss =
        " Grundstück an Computer " + käufer + " verloren. Er muss nur " + std::to_string(Betrag) + " DM Bezahlen!";
    if (const int computer = verkaufenderComputer(Verkäufer)) {
        z.Computergeld[computer] += Betrag;
        Ansagen(p, "Der Computer " + std::to_string(computer) + " hat aufgrund von Zwangsverkauf sein" + schluss, 1);
    } else if (Verkäufer == Mensch) {
        Ansagen(p, "Sie haben aufgrund von Zwangsverkauf ihr" + schluss, 1);
        Geldbuchen(p, Betrag, true);
        streicheAusListe(z, Schlüssel);
    }
}

} // namespace velmo
