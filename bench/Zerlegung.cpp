#include "bench/Zerlegung.h"

#include <cctype>
#include <cmath>

namespace velmo {

namespace {

bool leerzeichen(char c) { return c == ' ' || c == '\t'; }

/// Der Text ab dem öffnenden Anführungszeichen an der Stelle i; i steht danach hinter dem schließenden.
std::string zitierter(const std::string &zeile, std::size_t &i) {
    std::string text;
    for (++i; i < zeile.size(); ++i) {
        const bool folgt = i + 1 < zeile.size();
        if (zeile[i] == '"' && (!folgt || zeile[i + 1] != '"')) {
            ++i;
            return text;
        }
        const bool umbruch = zeile[i] == '\\' && folgt && zeile[i + 1] == 'n';
        if (zeile[i] == '"' || umbruch) ++i;
        text += umbruch ? '\n' : zeile[i];
    }
    throw Schreibfehler("Anführungszeichen ohne Ende");
}

bool istLeer(const Wert &w) {
    const auto *text = std::get_if<std::string>(&w);
    return std::holds_alternative<Leer>(w) || (text && text->empty());
}

/// Zahl, Flagge oder Ziffern als Zahl; falsch bei allem anderen.
bool alsVergleichszahl(const Wert &w, double &zahl) {
    if (const auto *text = std::get_if<std::string>(&w)) return liesZahl(*text, zahl);
    if (std::holds_alternative<Leer>(w)) return false;
    zahl = alsZahl(w);
    return true;
}

} // namespace

std::vector<Wort> zerlege(const std::string &zeile) {
    std::vector<Wort> wörter;
    std::size_t i = 0;
    for (;;) {
        while (i < zeile.size() && leerzeichen(zeile[i]))
            ++i;
        if (i == zeile.size() || zeile[i] == '#') return wörter;
        if (zeile[i] == '"') {
            wörter.push_back({zitierter(zeile, i), true});
            if (i < zeile.size() && !leerzeichen(zeile[i]) && zeile[i] != '#')
                throw Schreibfehler("nach dem Text fehlt ein Leerzeichen");
            continue;
        }
        const std::size_t anfang = i;
        while (i < zeile.size() && !leerzeichen(zeile[i]) && zeile[i] != '#' && zeile[i] != '"')
            ++i;
        if (i < zeile.size() && zeile[i] == '"') throw Schreibfehler("vor dem Text fehlt ein Leerzeichen");
        wörter.push_back({zeile.substr(anfang, i - anfang)});
    }
}

std::vector<std::vector<Wort>> zerteile(std::span<const Wort> wörter) {
    std::vector<std::vector<Wort>> teile(1);
    for (const Wort &w : wörter) {
        if (w.ist("/"))
            teile.emplace_back();
        else
            teile.back().push_back(w);
    }
    return teile;
}

Wert liesWert(const Wort &w) {
    if (w.zitiert) return w.text;
    if (w.text == "wahr" || w.text == "falsch") return w.text == "wahr";
    if (w.text == "leer") return Leer{};
    return liesZahlwort(w);
}

double liesZahlwort(const Wort &w) {
    double zahl = 0;
    if (!w.zitiert && w.text.find(',') == std::string::npos && liesZahl(w.text, zahl)) return zahl;
    const auto zeichen = w.zitiert ? std::string::npos : w.text.find_last_of("+-");
    if (zeichen == std::string::npos || zeichen == 0 || zeichen + 1 == w.text.size() ||
        !std::isdigit(static_cast<unsigned char>(w.text[zeichen - 1])))
        throw Schreibfehler(w.text + " ist keine Zahl");
    const double davor = liesZahlwort({w.text.substr(0, zeichen)}), danach = liesZahlwort({w.text.substr(zeichen + 1)});
    const double ergebnis = w.text[zeichen] == '+' ? davor + danach : davor - danach;
    if (!std::isfinite(ergebnis)) throw Schreibfehler(w.text + " ist keine Zahl");
    return ergebnis;
}

int liesGanzzahl(const Wort &w) {
    const double zahl = liesZahlwort(w);
    if (zahl != std::floor(zahl) || std::abs(zahl) > 1e9) throw Schreibfehler(w.text + " ist keine ganze Zahl");
    return static_cast<int>(zahl);
}

const std::string &liesText(const Wort &w) {
    if (!w.zitiert) throw Schreibfehler(w.text + " steht nicht in Anführungszeichen");
    return w.text;
}

std::string zitiere(const std::string &text) {
    std::string ergebnis = "\"";
    for (const char c : text) {
        if (c == '\n') {
            ergebnis += "\\n";
            continue;
        }
        if (c == '"') ergebnis += '"';
        ergebnis += c;
    }
    return ergebnis + '"';
}

std::string schreibe(const Wort &w) { return w.zitiert ? zitiere(w.text) : w.text; }

std::string schreibe(const std::vector<Wort> &zeile) {
    std::string text;
    for (const Wort &w : zeile)
        text += (text.empty() ? "" : " ") + schreibe(w);
    return text;
}

std::string schreibe(const Wert &w) {
    if (std::holds_alternative<Leer>(w)) return "leer";
    if (const auto *flagge = std::get_if<bool>(&w)) return *flagge ? "wahr" : "falsch";
    if (const auto *text = std::get_if<std::string>(&w)) return zitiere(*text);
    return Zahltext(alsZahl(w));
}

bool gleich(const Wert &ist, const Wert &erwartet) {
    if (istLeer(ist) || istLeer(erwartet)) return istLeer(ist) && istLeer(erwartet);
    const bool zweiTexte = std::holds_alternative<std::string>(ist) && std::holds_alternative<std::string>(erwartet);
    if (zweiTexte) return alsText(ist) == alsText(erwartet);
    double a = 0, b = 0;
    return alsVergleichszahl(ist, a) && alsVergleichszahl(erwartet, b) && std::abs(a - b) <= 0.001;
}

} // namespace velmo
