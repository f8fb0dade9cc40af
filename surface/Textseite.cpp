#include "surface/Textseite.h"

#include "platform/Zeichen.h"
#include "surface/Farbtöne.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr Zeilensatz Text{0.12, 0, 1, farbe::Tinte}, Abschnitt{1.2, 0, 1.25, farbe::Holz},
    Punktzeile{0.7, 0, 1.06, farbe::Überschrift}, Aufzählung{0.12, 1.4, 1, farbe::Tinte};

bool istKlein(char c) { return c >= 'a' && c <= 'z'; }
bool istGroß(char c) { return c >= 'A' && c <= 'Z'; }

} // namespace

const Zeilensatz &zeilensatz(std::string_view zeile) {
    constexpr int Kurz = 50; // Zeichen
    if (zeile.empty()) return Text;
    if (zeile[0] == '-') return Zeichenzahl(zeile) <= Kurz ? Punktzeile : Aufzählung;
    if (zeile[0] >= '0' && zeile[0] <= '9') return Aufzählung;
    return istGroß(zeile[0]) && std::none_of(zeile.begin(), zeile.end(), istKlein) ? Abschnitt : Text;
}

} // namespace velmo
