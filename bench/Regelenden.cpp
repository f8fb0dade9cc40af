#include "bench/Regelenden.h"

#include "assistant/Sprech.h"
#include "boardform/Brett.h"
#include "model/Autotafel.h"
#include "platform/Zeichen.h"
#include "shell/Menu2.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace velmo {

namespace {

namespace fs = std::filesystem;

constexpr int Kurzgrenze = 32767;
constexpr int GrößteBuchung = 12500; // DM auf einmal: das leere Royal, erzwungen
constexpr int Rollschnitt = 25;      // Zeichen
constexpr std::size_t LängsterDateiname = 255;

bool nahAmÜberlauf(int geld) { return geld > Kurzgrenze - GrößteBuchung; }

bool vielGeld(Programm &p) {
    const Spielzustand &z = p.Zustand;
    return nahAmÜberlauf(z.Gesamtgeld) || std::ranges::any_of(z.Computergeld, nahAmÜberlauf);
}

bool langerName(Programm &p) {
    constexpr int Drumherum = 200; // Zeichen eines Satzes um den Namen
    return Zeichenzahl(p.Zustand.Spielername) + Drumherum > Kurzgrenze ||
           Zeichenzahl(p.Zustand.Spitzname) + Drumherum > Kurzgrenze;
}

bool nächteBeiSafari(Programm &p) {
    return p.Zustand.Miethotel == "Safari" && p.geladene(formular::Bezahlen) != nullptr;
}

bool keineZahl(const Lose &wert) {
    double zahl = 0;
    return wert.istText() && !liesZahl(wert.Text(), zahl);
}

bool wurfOhneZahl(Programm &p) { return keineZahl(p.Zustand.Wurf); }

bool nebenDemBrett(Programm &p) {
    return std::ranges::any_of(AlleAutos, [&](Autokürzel k) {
        const Lose &ziel = p.Zustand.Autos[k].Autoziel;
        return !ziel.leer() && !keineZahl(ziel) && (ziel.Zahl() < 1 || ziel.Zahl() > 30);
    });
}

/// Die Konsole fährt ein fremdes Auto auf ein Kauffeld, ehe das des Menschen auf dem Brett steht: ihm bietet sie den
/// Kauf.
bool nochNichtGefahren(Programm &p) {
    const auto eigenes = AutoDesMenschen(p.Zustand);
    return eigenes && p.Zustand.Autos[*eigenes].Autoziel.leer();
}

bool kurzerSatzGerollt(Programm &p) {
    if (!p.geladene(formular::Sprech)) return false;
    const auto &blase = p.form<Sprech>();
    return blase.VScroll1.Value == 1 && Zeichenzahl(blase.Label1.Caption()) < Rollschnitt;
}

/// Das System nimmt die Datei nicht, unter der der Spieler seinen Charakter speichern will.
bool nichtZuSpeichern(Programm &p) {
    const Form *assistent = p.geladene(formular::Menu2);
    if (!assistent || !assistent->Visible) return false;
    const std::string name = p.form<Menu2>().Text1.Text() + ".cha";
    const fs::path ordner = p.Ordner + "/charakter";
    std::error_code fehler;
    return name.find_first_of("/\\") != std::string::npos || name.size() > LängsterDateiname ||
           !fs::is_directory(ordner, fehler) || fs::is_directory(ordner / name, fehler);
}

struct Ende {
    std::string_view Art;
    const char *Regel;
    bool (*gilt)(Programm &);
};

// clang-format off
constexpr Ende Enden[] = {
    {"überlauf", "Geld über 32767 DM",                        vielGeld},
    {"überlauf", "ein Satz mit mehr als 32767 Zeichen",       langerName},
    {"typ",      "Nächte bei Safari mit bloßem Hauptgebäude", nächteBeiSafari},
    {"typ",      "keine Zahl an der Konsole",                 wurfOhneZahl},
    {"index",    "ein Feld außerhalb des Bretts",             nebenDemBrett},
    {"index",    "ein fremdes Auto vor dem eigenen gefahren", nochNichtGefahren},
    {"argument", "Rollbalken an einem kurzen Satz",           kurzerSatzGerollt},
    {"datei",    "ein Charakter, den das System nicht nimmt", nichtZuSpeichern},
};
// clang-format on

bool nachNein(Programm &p) {
    if (!p.geladene(formular::Form1) || !p.geladene(formular::Sprech)) return false;
    return !brett(p).Enabled && !p.form<Sprech>().Command1.Visible;
}

} // namespace

const char *Regelende(Programm &p, const std::string &art) {
    const auto hier = std::ranges::find_if(Enden, [&](const Ende &e) { return e.Art == art && e.gilt(p); });
    return hier == std::end(Enden) ? nullptr : hier->Regel;
}

const char *Sackgassenregel(Programm &p, bool geschlossen) {
    if (geschlossen) return "ein Dialog ohne Antwort geschlossen";
    return nachNein(p) ? "das Brett nach \"Nein\"" : nullptr;
}

} // namespace velmo
