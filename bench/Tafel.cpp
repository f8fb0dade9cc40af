#include "bench/Tafel.h"

#include "bench/Befehle.h"

#include <algorithm>

namespace velmo {

namespace {

bool istPlatzhalter(const Wort &w) { return !w.zitiert && w.text.starts_with('{') && w.text.ends_with('}'); }

void prüfeZahl(const std::vector<Wort> &werte, const std::vector<Wort> &spalten, const char *wo) {
    if (werte.size() == spalten.size()) return;
    throw Schreibfehler("die Zeile hat " + std::to_string(werte.size()) + " Werte " + wo +
                        " dem Schrägstrich, die Tafel " + std::to_string(spalten.size()));
}

} // namespace

Tafel::Tafel(std::span<const Wort> kopf) {
    auto alle = zerteile(kopf);
    if (alle.size() < 3) throw Schreibfehler("es heißt tafel SPALTE… / BEFEHL… / NAME…");
    spalten = alle.front();
    erwartete = alle.back();
    befehle.assign(alle.begin() + 1, alle.end() - 1);
    for (const Glied &befehl : befehle) {
        findeBefehl(befehl);
        if (istTafelzeile(befehl[0])) throw Schreibfehler("eine Tafel enthält keine Tafel");
    }
    prüfeSpalten();
}

/// Jedes {Wort} im Kopf ist eine Spalte, und jede solche Spalte kommt vor.
void Tafel::prüfeSpalten() const {
    std::vector<std::string> kommtVor;
    const auto sammle = [&](const Wort &w) {
        for (auto auf = w.text.find('{'); auf != std::string::npos; auf = w.text.find('{', auf + 1))
            kommtVor.push_back(w.text.substr(auf, w.text.find('}', auf) - auf + 1));
    };
    for (const Glied &befehl : befehle)
        std::ranges::for_each(befehl, sammle);
    std::ranges::for_each(erwartete, sammle);
    for (const Wort &s : spalten) {
        if (!istPlatzhalter(s))
            sammle(s);
        else if (std::ranges::count(spalten, s.text, &Wort::text) > 1)
            throw Schreibfehler("die Spalte " + s.text + " steht zweimal da");
    }
    for (const std::string &name : kommtVor)
        if (std::ranges::find(spalten, name, &Wort::text) == spalten.end())
            throw Schreibfehler("unbekannte Spalte " + name);
    for (const Wort &s : spalten)
        if (istPlatzhalter(s) && std::ranges::find(kommtVor, s.text) == kommtVor.end())
            throw Schreibfehler("die Spalte " + s.text + " wird nicht gebraucht");
}

/// Das Wort mit den Werten der Zeile an der Stelle ihrer Spalten; im Text in Anführungszeichen nur ihr Inhalt.
std::string Tafel::eingesetzt(const Wort &w, const Glied &werte) const {
    Wort ergebnis = w;
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        if (!istPlatzhalter(spalten[i])) continue;
        if (w.ist(spalten[i].text.c_str())) return schreibe(werte[i]);
        for (auto ort = ergebnis.text.find(spalten[i].text); ort != std::string::npos;
             ort = ergebnis.text.find(spalten[i].text, ort + werte[i].text.size()))
            ergebnis.text.replace(ort, spalten[i].text.size(), werte[i].text);
    }
    return schreibe(ergebnis);
}

/// "BEFEHL NAME = WERT…"; leer, wenn kein Name übrig bleibt.
std::string Tafel::liste(const char *befehl, const Glied &namen, const Glied &werte, const Glied &eingaben) const {
    std::string text;
    for (std::size_t i = 0; i < namen.size(); ++i) {
        if (istPlatzhalter(namen[i]) || werte[i].ist("-")) continue;
        text += (text.empty() ? befehl : "") + (" " + eingesetzt(namen[i], eingaben)) + " = " + schreibe(werte[i]);
    }
    return text;
}

std::vector<std::string> Tafel::zeilen(std::span<const Wort> werte) {
    const auto teile = zerteile(werte);
    if (teile.size() != (erwartete.empty() ? 1u : 2u)) throw Schreibfehler("es heißt | WERT… / WERT…");
    prüfeZahl(teile.front(), spalten, "vor");
    if (!erwartete.empty()) prüfeZahl(teile.back(), erwartete, "nach");
    for (std::size_t i = 0; i < spalten.size(); ++i)
        if (istPlatzhalter(spalten[i]) && teile[0][i].ist("-"))
            throw Schreibfehler("die Spalte " + spalten[i].text + " braucht einen Wert");
    gebraucht = true;
    std::vector<std::string> ergebnis{liste("setze", spalten, teile[0], teile[0])};
    for (const Glied &befehl : befehle) {
        std::string zeile;
        for (const Wort &w : befehl)
            zeile += (zeile.empty() ? "" : " ") + eingesetzt(w, teile[0]);
        ergebnis.push_back(zeile);
    }
    if (!erwartete.empty()) ergebnis.push_back(liste("erwarte", erwartete, teile[1], teile[0]));
    return ergebnis;
}

} // namespace velmo
