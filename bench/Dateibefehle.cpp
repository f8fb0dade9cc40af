// Befehle, die den Ordner des Programms verändern.
#include "bench/Befehle.h"

#include "platform/Zeichen.h"

#include <charconv>

namespace velmo {

void datei(Szene &s, Wörter w) {
    std::string text;
    for (const Wort &zeile : w.subspan(1))
        text += nachWindows1252(liesText(zeile)) + "\r\n";
    s.ordner.schreibe(liesText(w[0]), text);
}

void bytes(Szene &s, Wörter w) {
    std::string ziffern, inhalt;
    for (const Wort &wort : w.subspan(1))
        ziffern += wort.text;
    if (ziffern.size() % 2) throw Schreibfehler("eine ungerade Zahl von Hexziffern");
    for (std::size_t i = 0; i < ziffern.size(); i += 2) {
        unsigned char byte = 0;
        const char *anfang = ziffern.data() + i;
        const auto [ende, fehler] = std::from_chars(anfang, anfang + 2, byte, 16);
        if (fehler != std::errc{} || ende != anfang + 2) throw Schreibfehler(ziffern + " sind keine Hexziffern");
        inhalt += static_cast<char>(byte);
    }
    s.ordner.schreibe(liesText(w[0]), inhalt);
}

void ordner(Szene &s, Wörter w) { s.ordner.legeOrdnerAn(liesText(w[0])); }

void lösche(Szene &s, Wörter w) { s.ordner.lösche(liesText(w[0])); }

void gesperrt(Szene &s, Wörter w) { s.ordner.sperre(liesText(w[0])); }

} // namespace velmo
