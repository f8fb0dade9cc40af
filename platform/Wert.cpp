#include "platform/Wert.h"

#include "platform/Laufzeitfehler.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace velmo {

double alsZahl(const Wert &wert) {
    double zahl = 0;
    if (const auto *z = std::get_if<double>(&wert)) return *z;
    if (const auto *f = std::get_if<bool>(&wert)) return *f ? -1 : 0;
    if (const auto *t = std::get_if<std::string>(&wert); t && !liesZahl(*t, zahl)) throw Laufzeitfehler(Fehlerart::Typ);
    return zahl;
}

bool alsFlagge(const Wert &wert) { return alsZahl(wert) != 0; }

std::string alsText(const Wert &wert) {
    if (const auto *t = std::get_if<std::string>(&wert)) return *t;
    if (std::holds_alternative<Leer>(wert)) return "";
    return Zahltext(alsZahl(wert));
}

int alsGanz(double zahl) {
    const double ganz = std::trunc(zahl);
    if (!(ganz >= std::numeric_limits<int>::min() && ganz <= std::numeric_limits<int>::max()))
        throw Laufzeitfehler(Fehlerart::Überlauf);
    return static_cast<int>(ganz);
}

std::string Zahltext(double zahl) {
    if (zahl == std::floor(zahl) && std::abs(zahl) < 1e15) return std::to_string(static_cast<std::int64_t>(zahl));
    char puffer[32];
    const auto ende = std::to_chars(puffer, puffer + sizeof puffer, zahl).ptr;
    return {puffer, ende};
}

bool liesZahl(const std::string &text, double &zahl) {
    const auto von = text.find_first_not_of(" \t");
    if (von == std::string::npos) return false;
    std::string kern = text.substr(von, text.find_last_not_of(" \t") - von + 1);
    if (const auto komma = kern.find(','); komma != std::string::npos) kern[komma] = '.';
    const char *anfang = kern.data() + (kern[0] == '+' ? 1 : 0);
    const auto [ende, fehler] = std::from_chars(anfang, kern.data() + kern.size(), zahl);
    return fehler == std::errc{} && ende == kern.data() + kern.size() && std::isfinite(zahl);
}

} // namespace velmo
