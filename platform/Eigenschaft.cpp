#include "platform/Eigenschaft.h"

#include "platform/Laufzeitfehler.h"

#include <charconv>
#include <cstdio>

namespace velmo {

Wert alsWert(double zahl) { return zahl; }
Wert alsWert(bool flagge) { return flagge; }
Wert alsWert(const std::string &text) { return text; }
Wert alsWert(Farbe farbe) {
    char text[7];
    std::snprintf(text, sizeof text, "%06X", static_cast<unsigned>(farbe.rgb & 0xFFFFFF));
    return std::string(text);
}
Wert alsWert(const Picture &bild) { return bild.leer() ? Wert(Leer{}) : Wert(bild.Name); }

void ausWert(const Wert &wert, double &zahl) { zahl = alsZahl(wert); }
void ausWert(const Wert &wert, bool &flagge) { flagge = alsFlagge(wert); }
void ausWert(const Wert &wert, std::string &text) { text = alsText(wert); }
void ausWert(const Wert &wert, Farbe &farbe) {
    const std::string text = alsText(wert);
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), farbe.rgb, 16);
    if (fehler != std::errc{} || ende != text.data() + text.size()) throw Laufzeitfehler(Fehlerart::Typ);
}
void ausWert(const Wert &wert, Picture &bild) {
    if (!alsText(wert).empty()) throw Laufzeitfehler(Fehlerart::Typ); // ein Bild lässt sich nur leeren
    bild = {};
}

} // namespace velmo
