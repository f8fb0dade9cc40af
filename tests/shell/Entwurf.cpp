// Wie jedes Formular entworfen ist: Orte, Texte, Schriften, Farben, Zeiten, Bilder und die Folge seiner Elemente, in
// einer Zahl je Formular. test_Entwurf FORM zeigt, woraus die Zahl entsteht; zwei Stände lassen sich so vergleichen.
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "include/Programm.h"
#include "platform/Zeichenliste.h"
#include "shell/Formtafel.h"

#include <cstdint>
#include <map>

using namespace velmo;

namespace {

const std::map<std::string, std::uint32_t> Entwürfe = {
    {"Form1", 1509482267},    {"Baufeld", 2320897887}, {"Bauphase", 3402272201}, {"Exchange", 1354425760},
    {"Karten", 3522906824},   {"eingang", 134259359},  {"geldfeld", 2744400131}, {"Bezahlen", 315639588},
    {"Verloren", 1822796178}, {"Gewinn", 4128664492},  {"HoF", 3859453},         {"Assistent", 806231121},
    {"Sprech", 2712180336},   {"Intro", 1737451433},   {"Menu", 3428257786},     {"Menu2", 76962643},
    {"frmHilfe", 4226977602}, {"Überf", 3210803664},   {"Dank", 1395079134},
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
    for (const Stück &s : zeichenliste(form)) // von hinten nach vorn
        if (s.sorte != Sorte::Schatten) text += std::string(s.control->Name) + "\n";
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
