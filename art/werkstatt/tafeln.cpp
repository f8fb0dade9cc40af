// Schreibt als JSON, was die Bilder von den Tafeln des Spiels wissen: Felder, Eingangsplätze, Baustufen, Wagen, Preise.
// Orte in Twips des Brettbildes, Preise in DM.
#include "model/Autotafel.h"
#include "model/Eingangstafel.h"
#include "model/Feldtabelle.h"
#include "model/Hoteltafel.h"
#include "property/Bauen.h"
#include "property/Grundstück.h"
#include "property/Miete.h"

#include <iostream>

using namespace velmo;

namespace {

/// Die Zeilen der Tafel als Liste; `schreibe` setzt die Felder einer Zeile zwischen die Klammern.
template <class Tafel, class Schreibe> void liste(const char *name, const Tafel &tafel, Schreibe schreibe) {
    std::cout << '"' << name << "\": [";
    const char *trenner = "\n";
    for (const auto &zeile : tafel) {
        std::cout << trenner << '{';
        schreibe(zeile);
        std::cout << '}';
        trenner = ",\n";
    }
    std::cout << ']';
}

void ort(const Rechteck &r, const char *name = "ort") {
    std::cout << '"' << name << "\": [" << r.Left << ", " << r.Top << ", " << r.Width << ", " << r.Height << ']';
}

void preise(const Hotel &h) {
    const Mietzeile &miete = mietzeile(h.Kürzel);
    std::cout << "\"name\": \"" << h.Name << "\", \"karte\": " << miete.Karte
              << ", \"preis\": " << grundstück(h.Kürzel).Preis << ", \"zwang\": " << grundstück(h.Kürzel).Zwangspreis
              << ", \"ausbau\": [";
    const char *komma = "";
    for (const Baukosten &b : Baukostentafel)
        if (b.Hotel == h.Kürzel) {
            const auto stand = static_cast<std::size_t>(b.Stand);
            std::cout << komma << "{\"stand\": " << stand << ", \"kosten\": " << b.Kosten
                      << ", \"satz\": " << miete.Satz[stand] << '}';
            komma = ", ";
        }
    std::cout << ']';
}

} // namespace

int main() {
    std::cout << '{';
    liste("felder", Feldtabelle, [](const Feld &f) {
        std::cout << "\"nummer\": " << f.Nummer << ", \"art\": \"" << static_cast<char>(f.Art) << "\", \"ort\": ["
                  << f.klein.Left << ", " << f.klein.Top << ']';
    });
    std::cout << ",\n";
    liste("eingänge", Eingangsplätze, [](const Eingangsplatz &e) {
        std::cout << "\"nummer\": " << e.Nummer << ", \"hotel\": \"" << hotel(e.Hotel).Name
                  << "\", \"feld\": " << e.Feld << ", \"kosten\": " << e.Kosten << ", ";
        ort(e.Ort);
    });
    std::cout << ",\n";
    liste("stufen", Stufen, [](const Stufe &s) {
        std::cout << "\"bild\": \"" << s.Bild << "\", \"hotel\": \"" << hotel(s.Hotel).Name << "\", ";
        ort(s.Ort);
        std::cout << ", ";
        ort(Schattenort(s.Ort), "schatten");
    });
    std::cout << ",\n";
    liste("wagen", Autotafel, [](const Auto &a) {
        std::cout << "\"farbe\": \"" << a.Farbe << "\", \"bild\": " << a.Grundbild << ", ";
        ort(a.Ort);
    });
    std::cout << ",\n";
    std::cout << "\"brett\": {";
    ort(Brettbild);
    std::cout << "},\n";
    liste("hotels", Hotels, preise);
    std::cout << "}\n";
}
