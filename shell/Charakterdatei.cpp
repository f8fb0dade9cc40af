#include "shell/Charakterdatei.h"

#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"
#include "platform/Zeichen.h"

#include <string_view>

namespace velmo {

namespace {

/// So viele Zeichen fasst ein Textfeld.
constexpr int LängsteZeile = 32767;

/// Nimmt die nächste Zeile vorn vom Rest; ihr Ende ist CR LF, CR oder das Ende der Datei.
std::string nimmZeile(std::string_view &rest) {
    if (rest.empty()) throw Laufzeitfehler::dateiende();
    const auto ende = rest.find('\r');
    const std::string zeile = ausWindows1252(rest.substr(0, ende));
    rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    if (rest.starts_with('\n')) rest.remove_prefix(1);
    if (Zeichenzahl(zeile) > LängsteZeile) throw Laufzeitfehler(Fehlerart::Argument);
    return zeile;
}

/// Die Bildnummer bleibt der gelesene Text, muss aber eine ganze Zahl mit 16 Bit bedeuten.
Lose nimmNummer(std::string_view &rest) {
    const std::string zeile = nimmZeile(rest);
    Kurz nummer;
    ausWert(zeile, nummer);
    return zeile;
}

} // namespace

void schreibeCharakter(const std::string &pfad, const Charakter &c) {
    if (c.Name.find_first_of("/\\") != std::string::npos) throw Laufzeitfehler::pfadFehlt();
    const std::string nummer = c.Bildnummer.Text();
    std::string text;
    for (const std::string &zeile :
         {c.Name, c.Spitzname, c.Farbe, c.Bildnummer.istText() ? nummer : " " + nummer + " "})
        text += zeile + "\r\n";
    schreibeDatei(pfad, nachWindows1252(text));
}

Charakter liesCharakter(const std::string &pfad) {
    const std::string inhalt = liesDatei(pfad);
    std::string_view rest = inhalt;
    Charakter c;
    c.Name = nimmZeile(rest);
    c.Spitzname = nimmZeile(rest);
    c.Farbe = nimmZeile(rest);
    c.Bildnummer = nimmNummer(rest);
    return c;
}

} // namespace velmo
