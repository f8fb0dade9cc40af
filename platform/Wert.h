#pragma once
// Ein Wert, wie er unter einem Namen gelesen und gesetzt wird: Eigenschaften der Steuerelemente und Felder des Spiels.
#include <functional>
#include <string>
#include <variant>

namespace velmo {

struct Leer {
    bool operator==(const Leer &) const = default;
};

using Wert = std::variant<Leer, double, bool, std::string>;

/// Lesen und Schreiben eines benannten Werts. Schreiben wirft Laufzeitfehler wie die Zuweisung im Programm;
/// ohne setze ist der Wert nur lesbar.
struct Zugang {
    std::function<Wert()> lies;
    std::function<void(const Wert &)> setze;
};

/// Nimmt beim Aufzählen jeden Namen mit seinem Zugang entgegen; ein Feld mit Index heißt "Name(Index)".
using Namensempfänger = std::function<void(const std::string &Name, Zugang)>;

/// Der Wert als Zahl, Flagge oder Text; wirft Laufzeitfehler (Typ), wenn er sich nicht umwandeln lässt.
double alsZahl(const Wert &);
bool alsFlagge(const Wert &);
std::string alsText(const Wert &);
/// Der ganze Teil der Zahl; was in keine 32 Bit passt, ist ein Laufzeitfehler (Überlauf). Jede gebrochene Zahl wird
/// hier zur ganzen: sie kann aus einem Kasten oder einer Datei stammen.
int alsGanz(double zahl);

/// Eine Zahl, wie sie als Text geschrieben wird: ganze ohne Komma, sonst mit Punkt.
std::string Zahltext(double zahl);
/// Liest eine ganze oder gebrochene Zahl (Punkt oder Komma, Leerzeichen ringsum); falsch, wenn es keine ist.
bool liesZahl(const std::string &text, double &zahl);

} // namespace velmo
