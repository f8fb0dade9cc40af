// Der Befehl "erwarte" in allen seinen Arten.
#include "bench/Befehle.h"

#include "platform/Dateien.h"
#include "platform/Zeichen.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace velmo {

namespace {

/// Ganz gleich, oder, wo die Erwartung auf … endet, ihr Anfang.
bool passt(const std::string &text, const std::string &erwartet) {
    static const std::string Rest = "…";
    if (!erwartet.ends_with(Rest)) return text == erwartet;
    return text.starts_with(erwartet.substr(0, erwartet.size() - Rest.size()));
}

void brauche(bool gilt) {
    if (!gilt) throw Schreibfehler("erwarte: die Wörter passen nicht");
}

constexpr std::array Meldungsworte = {"schlicht", "kritisch"}; // nach Meldungsart

std::optional<Meldungsart> liesMeldungsart(const Wort &w) {
    const auto wort = std::ranges::find_if(Meldungsworte, [&](const char *m) { return w.ist(m); });
    brauche(wort != Meldungsworte.end());
    return static_cast<Meldungsart>(wort - Meldungsworte.begin());
}

void erwarteMeldung(Szene &s, Wörter w) {
    brauche(!w.empty());
    auto &buch = s.fläche.Meldungen;
    while (!w.empty()) {
        const std::string &text = liesText(w[0]);
        const auto art = w.size() > 1 && !w[1].zitiert ? liesMeldungsart(w[1]) : std::nullopt;
        w = w.subspan(art ? 2 : 1);
        const auto beide = [&](const std::string &t, Meldungsart a) {
            return zitiere(t) + (art ? std::string(" ") + Meldungsworte[static_cast<std::size_t>(a)] : "");
        };
        const std::string erwartet = beide(text, art.value_or(Meldungsart::Schlicht));
        if (buch.empty()) {
            s.prüfe(false, "meldung ist leer", erwartet);
            continue;
        }
        const Meldung &alt = buch.front();
        s.prüfe(passt(alt.Text, text) && (!art || alt.Art == *art), "meldung ist " + beide(alt.Text, alt.Art),
                erwartet);
        buch.pop_front();
    }
}

void erwarteEingabe(Szene &s, Wörter w) {
    brauche(w.size() <= 2);
    const std::string &frage = liesText(w[0]);
    const std::string *titel = w.size() == 2 ? &liesText(w[1]) : nullptr;
    const auto beide = [&](const std::string &f, const std::string &t) {
        return zitiere(f) + (titel ? " " + zitiere(t) : "");
    };
    const std::string erwartet = beide(frage, titel ? *titel : "");
    auto &buch = s.fläche.Fragen;
    if (buch.empty()) return s.prüfe(false, "eingabe ist leer", erwartet);
    const Eingabefrage &alt = buch.front();
    s.prüfe(passt(alt.Frage, frage) && (!titel || passt(alt.Titel, *titel)),
            "eingabe ist " + beide(alt.Frage, alt.Titel), erwartet);
    buch.pop_front();
}

void erwarteKeine(Szene &s, Wörter w) {
    brauche(w.size() == 1 && (w[0].ist("meldung") || w[0].ist("eingabe")));
    const auto &fläche = s.fläche;
    const bool meldung = w[0].ist("meldung");
    const bool keine = meldung ? fläche.Meldungen.empty() : fläche.Fragen.empty();
    const std::string &erste = keine ? "" : meldung ? fläche.Meldungen.front().Text : fläche.Fragen.front().Frage;
    s.prüfe(keine, w[0].text + " ist " + zitiere(erste), "leer");
}

/// Auch ein Element, dessen Form es nicht mehr gibt, hat seine Befehle im Buch.
void erwarteTon(Szene &s, Wörter w) {
    brauche(!w.empty() && w.size() % 2 == 0);
    auto &buch = s.fläche.Töne;
    for (; !w.empty(); w = w.subspan(2)) {
        const auto hier = buch.find(w[0].text);
        if (hier == buch.end()) s.namen->control<MMControl>(w[0].text);
        const std::string ist = hier == buch.end() ? "" : std::exchange(hier->second, "");
        s.prüfe(ist == liesText(w[1]), "ton " + w[0].text + " ist " + zitiere(ist), zitiere(w[1].text));
    }
}

Wert liesFehlerart(const Wort &w) {
    static constexpr std::array Worte = {"überlauf", "typ", "index", "argument", "datei", "keiner", "ende"};
    if (std::ranges::none_of(Worte, [&](const char *wort) { return w.ist(wort); }))
        throw Schreibfehler("unbekannte Fehlerart " + w.text);
    return w.text;
}

std::vector<std::string> zeilen(const std::string &text) {
    std::vector<std::string> alle;
    std::size_t anfang = 0;
    while (anfang < text.size()) {
        const auto ende = std::min(text.find("\r\n", anfang), text.size());
        alle.push_back(text.substr(anfang, ende - anfang));
        anfang = ende + 2;
    }
    return alle;
}

std::string aufgereiht(const std::vector<std::string> &zeilen) {
    std::string text;
    for (const std::string &zeile : zeilen)
        text += (text.empty() ? "" : " ") + zitiere(zeile);
    return zeilen.empty() ? "ohne Zeilen" : text;
}

void erwarteDatei(Szene &s, Wörter w) {
    brauche(!w.empty());
    const auto ort = s.ordner.ort(liesText(w[0]));
    std::error_code unlesbar;
    const bool ordner = std::filesystem::is_directory(ort, unlesbar), fehlt = !ordner && !istDatei(ort);
    std::vector<std::string> ist;
    if (!fehlt && !ordner) ist = zeilen(ausWindows1252(liesDatei(ort)));
    const std::string was = "datei " + zitiere(w[0].text) + " ist " +
                            (fehlt    ? "leer"
                             : ordner ? "ein Ordner"
                                      : aufgereiht(ist));
    if (w.size() == 2 && w[1].ist("leer")) return s.prüfe(fehlt, was, "leer");
    std::vector<std::string> soll;
    for (const Wort &zeile : w.subspan(1))
        soll.push_back(liesText(zeile));
    s.prüfe(!fehlt && !ordner && ist == soll, was, aufgereiht(soll));
}

struct Erwartungsart {
    const char *Wort;
    void (*prüfe)(Szene &, Wörter);
};

constexpr Erwartungsart Arten[] = {{"meldung", erwarteMeldung},
                                   {"eingabe", erwarteEingabe},
                                   {"keine", erwarteKeine},
                                   {"ton", erwarteTon},
                                   {"datei", erwarteDatei}};

} // namespace

bool Vergleich::gilt(Szene &s) const {
    Wert ist = s.finde(Name).lies(), soll = erwartet;
    // Dateinamen gelten in jeder Schreibung.
    if (Name.ends_with(".FileName")) ist = klein(alsText(ist)), soll = klein(alsText(soll));
    return gleich(ist, soll) == Gleichheit;
}

std::string Vergleich::geschrieben(const Wert &w) const { return Name == "fehler" ? alsText(w) : schreibe(w); }

std::string Vergleich::Ist(Szene &s) const { return Name + " ist " + geschrieben(s.finde(Name).lies()); }

std::string Vergleich::Erwartung() const { return (Gleichheit ? "" : "<> ") + geschrieben(erwartet); }

Vergleich liesVergleich(Wörter w) {
    if (w.size() != 3 || w[0].zitiert || !(w[1].ist("=") || w[1].ist("<>")))
        throw Schreibfehler("es heißt NAME = WERT oder NAME <> WERT");
    return {w[0].text, w[1].ist("="), w[0].text == "fehler" ? liesFehlerart(w[2]) : liesWert(w[2])};
}

std::vector<Vergleich> liesVergleiche(Wörter w) {
    std::vector<Vergleich> alle;
    for (; w.size() > 3; w = w.subspan(3))
        alle.push_back(liesVergleich(w.first(3)));
    alle.push_back(liesVergleich(w));
    return alle;
}

void erwarte(Szene &s, Wörter w) {
    for (const Erwartungsart &art : Arten)
        if (w[0].ist(art.Wort)) return art.prüfe(s, w.subspan(1));
    for (const Vergleich &v : liesVergleiche(w)) {
        const bool gilt = v.gilt(s);
        s.prüfe(gilt, v.Ist(s), v.Erwartung());
    }
}

} // namespace velmo
