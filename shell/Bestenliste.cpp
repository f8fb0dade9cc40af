#include "shell/Bestenliste.h"

#include "platform/Dateien.h"
#include "platform/Zeichen.h"

#include <algorithm>
#include <sstream>

namespace velmo {

namespace {

std::string pfad(const Programm &p) { return p.Spielerordner() + "/besten.sav"; }

/// Die nächste Zeile; falsch am Ende der Datei. Ein Wagenrücklauf vor dem Zeilenende gehört nicht zur Zeile.
bool liesZeile(std::istream &datei, std::string &zeile) {
    std::string bytes;
    if (!std::getline(datei, bytes)) return false;
    if (!bytes.empty() && bytes.back() == '\r') bytes.pop_back();
    zeile = ausWindows1252(bytes);
    return true;
}

/// Ein Eintrag weicht, wenn er weniger hat; was keine Zahl ist, hat weniger, was leer ist, hat 0.
bool weicht(const Eintrag &e, std::int32_t punkte) {
    double zahl = 0;
    return e.Punkte.empty() ? 0 < punkte : !liesZahl(e.Punkte, zahl) || zahl < punkte;
}

std::string geschrieben(std::int32_t punkte) { return (punkte < 0 ? "" : " ") + std::to_string(punkte) + " "; }

} // namespace

Bestenliste liesBestenliste(const Programm &p) {
    Bestenliste liste;
    try {
        std::istringstream datei(liesDatei(pfad(p)));
        for (Eintrag e; liste.size() < Bestenplätze && liesZeile(datei, e.Name); e = {}) {
            liesZeile(datei, e.Punkte);
            liste.push_back(e);
        }
    } catch (const Laufzeitfehler &) {
        // keine Datei, kein Recht: die Liste ist leer
    }
    return liste;
}

void trageEin(Programm &p, std::int32_t Punkte) {
    Bestenliste liste = liesBestenliste(p);
    liste.resize(Bestenplätze);
    const auto platz = std::ranges::find_if(liste, [&](const Eintrag &e) { return weicht(e, Punkte); });
    p.LetzterRang = platz == liste.end() ? 0 : static_cast<int>(platz - liste.begin()) + 1;
    if (platz != liste.end()) {
        std::shift_right(platz, liste.end(), 1);
        *platz = {p.Zustand.Spielername, geschrieben(Punkte)};
    }
    std::string text;
    for (const Eintrag &e : liste)
        for (const std::string &zeile : {e.Name, e.Punkte})
            if (!zeile.empty()) text += nachWindows1252(zeile) + "\r\n";
    try {
        schreibeDatei(pfad(p), text);
    } catch (const Laufzeitfehler &) {
        // der Sieg bleibt ohne Eintrag
    }
}

} // namespace velmo
