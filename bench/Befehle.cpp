#include "bench/Befehle.h"

#include <algorithm>
#include <iostream>
#include <limits>

namespace velmo {

namespace {

constexpr std::size_t Beliebig = std::numeric_limits<std::size_t>::max();
constexpr Zeit LängsteRuhe = 120'000;
constexpr Zeit LängstesBis = 60'000;

void start(Szene &s, Wörter) { s.starte(); }

void menü(Szene &s, Wörter) { s.schiebeEin({"start", "klick Intro"}); }

void spiel(Szene &s, Wörter w) {
    const auto zeile = [](const Wort &zahl) {
        const int n = liesGanzzahl(zahl);
        if (n < 1 || n > 3) throw Schreibfehler(zahl.text + " ist nicht 1 bis 3");
        return std::to_string(n - 1);
    };
    s.schiebeEin({"menü", "klick Menu.Spieln", "wähle Menu2.List1 " + zitiere(w[0].text),
                  "wähle Menu2.List2 " + zeile(w[1]), "wähle Menu2.List3 " + zeile(w[2]), "klick Menu2.Command2",
                  "ruhe"});
}

/// Setzt das Auto so, dass der Wurf es auf das Feld bringt, und fährt.
void lande(Szene &s, Wörter w) {
    const int feld = liesGanzzahl(w[1]), wurf = w.size() > 2 ? liesGanzzahl(w[2]) : 1;
    if (feld < 1 || feld > 30 || wurf < 0 || wurf > 6) throw Schreibfehler("es heißt lande AUTO FELD [WURF]");
    const std::string von = std::to_string(feld > wurf ? feld - wurf : feld - wurf + 30);
    s.schiebeEin(
        {"setze ErsteRundeVorbei = wahr Autofeld(" + w[0].text + ") = " + von + " Wurf = " + std::to_string(wurf),
         "ruf Autofahrt " + zitiere(w[0].text), "ruhe"});
}

void tafel(Szene &s, Wörter w) { s.beginneTafel(w); }

void zeile(Szene &s, Wörter w) {
    if (!s.tafel) throw Schreibfehler("eine Zeile ohne Tafel");
    s.schiebeEin(s.tafel->zeilen(w));
}

int positiv(const Wort &w) {
    const int n = liesGanzzahl(w);
    if (n <= 0) throw Schreibfehler(w.text + " ist nicht größer als 0");
    return n;
}

void anzeige(Szene &s, Wörter w) {
    if (s.gestartet) throw Schreibfehler("anzeige gilt vor start");
    if (w.size() == 2) throw Schreibfehler("es heißt anzeige DPI [BREITE HÖHE]");
    s.fläche.Gefunden.DPI = positiv(w[0]);
    if (w.size() == 1) return;
    s.fläche.Gefunden.Breite = positiv(w[1]);
    s.fläche.Gefunden.Höhe = positiv(w[2]);
}

void antwort(Szene &s, Wörter w) {
    for (const Wort &wort : w) {
        if (wort.ist("abbrechen"))
            s.fläche.Antworten.push_back(std::nullopt);
        else
            s.fläche.Antworten.push_back(liesText(wort));
    }
}

Zeit liesDauer(const Wort &w) {
    const int ms = liesGanzzahl(w);
    if (ms < 0) throw Schreibfehler(w.text + " ist keine Dauer");
    return ms;
}

void warte(Szene &s, Wörter w) { s.beginne({.grenze = s.fläche.Uhr + liesDauer(w[0])}); }

void ruhe(Szene &s, Wörter) {
    s.beginne({.grenze = s.fläche.Uhr + LängsteRuhe,
               .erfüllt = [&s] { return s.ruhig(); },
               .gescheitert = [&s] { s.prüfe(false, "ruhe ist nicht erreicht, es läuft " + s.unruhe(), "ruhe"); }});
}

void bis(Szene &s, Wörter w) {
    const Vergleich v = liesVergleich(w.first(3));
    Zeit grenze = s.fläche.Uhr + (w.size() > 3 ? liesDauer(w[3]) : LängstesBis);
    s.finde(v.Name);
    // Die Uhr springt; den Zeitpunkt, auf den gewartet wird, darf sie nicht überspringen.
    if (v.Name == "zeit") grenze = std::clamp(static_cast<Zeit>(alsZahl(v.erwartet)), s.fläche.Uhr, grenze);
    s.beginne({.grenze = grenze,
               .erfüllt = [&s, v] { return v.gilt(s); },
               .gescheitert = [&s, v] { s.prüfe(false, v.Ist(s), v.Erwartung()); }});
}

void zufall(Szene &s, Wörter w) {
    if (w[0].ist("leer") && w.size() == 1) return s.fläche.Vorgaben.clear();
    for (const Wort &wort : w) {
        const double v = liesZahlwort(wort);
        if (v < 0 || v >= 1) throw Schreibfehler(wort.text + " liegt nicht in [0, 1)");
        s.fläche.Vorgaben.push_back(v);
    }
}

void saat(Szene &s, Wörter w) { s.fläche.Erzeuger.seed(static_cast<std::uint64_t>(liesGanzzahl(w[0]))); }

void setze(Szene &s, Wörter w) {
    for (const Vergleich &v : liesVergleiche(w)) {
        const Zugang ziel = s.finde(v.Name);
        if (!v.Gleichheit) throw Schreibfehler("es heißt setze NAME = WERT");
        if (!ziel.setze) throw Schreibfehler(v.Name + " lässt sich nicht setzen");
        s.p().behandle([&] { ziel.setze(v.erwartet); });
    }
}

void zeige(Szene &s, Wörter w) {
    const std::string wert = schreibe(s.finde(w[0].text).lies());
    std::cout << w[0].text << " = " << wert << '\n';
}

// clang-format off
constexpr Befehlseintrag Befehlstafel[] = {
    // Name          Wörter       Befehl       auch am Ende, beginnt neu
    {"start",        0, 0,        start,       true, true},
    {"menü",         0, 0,        menü,        true},
    {"spiel",        3, 3,        spiel,       true},
    {"anzeige",      1, 3,        anzeige},
    {"klick",        1, Beliebig, klick},
    {"rechts",       1, 3,        rechts},
    {"doppelklick",  1, 3,        doppelklick},
    {"würfle",       1, 2,        würfle},
    {"drück",        1, 3,        drück},
    {"los",          1, 3,        los},
    {"maus",         1, 3,        maus},
    {"zieh",         2, Beliebig, zieh},
    {"tippe",        2, 2,        tippe},
    {"taste",        2, 2,        taste},
    {"wähle",        2, 2,        wähle},
    {"schließe",     1, 1,        schließe},
    {"antwort",      1, Beliebig, antwort},
    {"warte",        1, 1,        warte},
    {"bis",          3, 4,        bis},
    {"ruhe",         0, 0,        ruhe},
    {"zufall",       1, Beliebig, zufall},
    {"saat",         1, 1,        saat},
    {"setze",        3, Beliebig, setze},
    {"lande",        2, 3,        lande},
    {"ruf",          1, Beliebig, ruf},
    {"zeige",        1, 1,        zeige,       true},
    {"bild",         1, 6,        bild},
    {"erwarte",      2, Beliebig, erwarte,     true},
    {"tafel",        1, Beliebig, tafel,       true},
    {"|",            1, Beliebig, zeile,       true},
    {"datei",        1, Beliebig, datei},
    {"bytes",        2, Beliebig, bytes},
    {"ordner",       1, 1,        ordner},
    {"lösche",       1, 1,        lösche},
    {"gesperrt",     1, 1,        gesperrt},
};
// clang-format on

} // namespace

const Befehlseintrag &findeBefehl(Wörter zeile) {
    if (zeile.empty()) throw Schreibfehler("neben dem Schrägstrich fehlt ein Befehl");
    const auto befehl = std::ranges::find_if(Befehlstafel, [&](const auto &b) { return zeile[0].ist(b.Name); });
    if (befehl == std::end(Befehlstafel)) throw Schreibfehler("unbekannter Befehl " + zeile[0].text);
    const std::size_t zahl = zeile.size() - 1;
    if (zahl < befehl->mindestens) throw Schreibfehler(std::string(befehl->Name) + ": da fehlt etwas");
    if (zahl > befehl->höchstens) throw Schreibfehler(std::string(befehl->Name) + ": da steht zu viel");
    return *befehl;
}

} // namespace velmo
