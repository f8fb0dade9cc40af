#include "platform/Laufzeitfehler.h"

#include <utility>

namespace velmo {

namespace {

struct Fehlerzeile {
    Fehlerart art;
    int nummer;
    const char *beschreibung;
};

constexpr Fehlerzeile Fehlertafel[] = {
    {Fehlerart::Argument, 5, "Ungültiger Prozeduraufruf oder ungültiges Argument"},
    {Fehlerart::Überlauf, 6, "Überlauf"},
    {Fehlerart::Index, 9, "Index außerhalb des gültigen Bereichs"},
    {Fehlerart::Typ, 13, "Typen unverträglich"},
    {Fehlerart::Datei, 75, "Fehler beim Zugriff auf Pfad/Datei"},
};

const Fehlerzeile &zeile(Fehlerart art) { return Fehlertafel[static_cast<int>(art)]; }

} // namespace

Laufzeitfehler::Laufzeitfehler(Fehlerart art) : Laufzeitfehler(art, zeile(art).nummer, zeile(art).beschreibung) {}

Laufzeitfehler::Laufzeitfehler(Fehlerart art, int nummer, std::string text)
    : art(art), beschreibung(std::move(text)),
      bericht("Laufzeitfehler '" + std::to_string(nummer) + "': " + beschreibung) {}

Laufzeitfehler Laufzeitfehler::dateiFehlt() { return {Fehlerart::Datei, 53, "Datei nicht gefunden"}; }
Laufzeitfehler Laufzeitfehler::dateiende() { return {Fehlerart::Datei, 62, "Eingabe hinter Dateiende"}; }
Laufzeitfehler Laufzeitfehler::pfadFehlt() { return {Fehlerart::Datei, 76, "Pfad nicht gefunden"}; }

} // namespace velmo
