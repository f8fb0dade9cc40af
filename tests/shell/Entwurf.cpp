// Wie jedes Formular entworfen ist: Orte, Texte, Schriften, Farben, Zeiten, Bilder und die Folge seiner Elemente, in
// einer Zahl je Formular. test_Entwurf FORM zeigt, woraus die Zahl entsteht; zwei Stände lassen sich so vergleichen.
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "include/Programm.h"
#include "shell/Formtafel.h"
#include "tests/Prüfung.h"

#include <cstdint>
#include <map>

using namespace velmo;

namespace {

const std::map<std::string, std::uint32_t> Entwürfe = {
    {"Form1", 2303980006},    {"Baufeld", 3541179059}, {"Bauphase", 4107431448}, {"Exchange", 2651753337},
    {"Karten", 3586425710},   {"eingang", 3464345809}, {"geldfeld", 1562193207}, {"Bezahlen", 2733933050},
    {"Verloren", 3351919215}, {"Gewinn", 272155792},   {"HoF", 3389840027},      {"Assistent", 1854234060},
    {"Sprech", 1350948121},   {"Intro", 3790150884},   {"Menu", 312556406},      {"Menu2", 2157152298},
    {"frmHilfe", 454743722},  {"Überf", 609595035},    {"Dank", 2129810421},
};

/// Alles, was nicht leer, 0 oder falsch ist.
std::string entwurf(Form &form) {
    std::string text;
    const auto unter = [&](const std::string &vor) {
        return [&text, vor](const std::string &name, const Zugang &z) {
            const std::string wert = alsText(z.lies());
            if (!wert.empty() && wert != "0") text += vor + name + " = " + wert + "\n";
        };
    };
    form.zähleAuf(unter(""));
    for (Control *c : form.Controls()) {
        c->zähleAuf(unter(std::string(c->behälter ? c->behälter->Name : "") + "." + c->Name + "."));
        if (const auto *rahmen = dynamic_cast<Shape *>(c))
            text += std::to_string(static_cast<int>(rahmen->gestalt)) + "\n";
    }
    return text;
}

/// FNV-1a mit 32 Bit.
std::uint32_t summe(const std::string &text) {
    std::uint32_t summe = 0x811c9dc5;
    for (const char c : text)
        summe = (summe ^ static_cast<unsigned char>(c)) * 0x01000193;
    return summe;
}

} // namespace

int main(int zahl, char **worte) {
    Prüffläche fläche;
    Programmordner ordner;
    Programm programm(fläche, Formtafel(), ordner.Pfad());
    Prüfung prüfung;
    for (const Formeintrag &eintrag : Formtafel()) {
        const std::string text = entwurf(*eintrag.erzeuge(programm));
        if (zahl > 1 && std::string(worte[1]) == eintrag.Name.Text) std::cout << text;
        const auto zeile = Entwürfe.find(eintrag.Name.Text);
        prüfung.gleich(eintrag.Name.Text, summe(text), zeile == Entwürfe.end() ? 0 : zeile->second);
    }
    return prüfung.ende();
}
