#include "include/Werte.h"

#include "platform/Laufzeitfehler.h"

#include <cmath>
#include <limits>

namespace velmo {

namespace {

/// Rundet wie eine Zuweisung an eine ganze Zahl: zur nächsten, Hälften zur geraden.
template <class Ganz> int ganz(const Wert &w) {
    const double zahl = std::nearbyint(alsZahl(w));
    if (zahl < std::numeric_limits<Ganz>::min() || zahl > std::numeric_limits<Ganz>::max())
        throw Laufzeitfehler(Fehlerart::Überlauf);
    return static_cast<int>(zahl);
}

} // namespace

std::int16_t Kurz::geprüft(int neu) {
    if (neu < -32768 || neu > 32767) throw Laufzeitfehler(Fehlerart::Überlauf);
    return static_cast<std::int16_t>(neu);
}

bool Lose::leer() const {
    const auto *text = std::get_if<std::string>(&wert);
    return std::holds_alternative<Leer>(wert) || (text && text->empty());
}

double Lose::Zahl() const { return alsZahl(wert); }
std::string Lose::Text() const { return alsText(wert); }

bool operator==(const Lose &a, const Lose &b) {
    if (a.leer() || b.leer()) return a.leer() && b.leer();
    double x = 0, y = 0;
    if (liesZahl(a.Text(), x) && liesZahl(b.Text(), y)) return x == y;
    return a.Text() == b.Text();
}

Wert alsWert(Kurz k) { return double(k); }
Wert alsWert(Flagge f) { return bool(f); }
Wert alsWert(int n) { return double(n); }

Wert alsWert(const Lose &l) {
    double zahl = 0;
    if (l.leer()) return Leer{};
    return liesZahl(l.Text(), zahl) ? Wert(zahl) : Wert(l.Text());
}

void ausWert(const Wert &w, Kurz &k) { k = ganz<std::int16_t>(w); }
void ausWert(const Wert &w, Flagge &f) { f = Flagge::ausZahl(ganz<std::int16_t>(w)); }
void ausWert(const Wert &w, int &n) { n = ganz<std::int32_t>(w); }

void ausWert(const Wert &w, Lose &l) {
    if (std::holds_alternative<Leer>(w))
        l = {};
    else if (std::holds_alternative<std::string>(w))
        l = alsText(w);
    else
        l = alsZahl(w);
}

} // namespace velmo
