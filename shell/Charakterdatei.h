#pragma once
// Die Charakterdateien: vier Zeilen Text im Ordner charakter. Fehler sind Laufzeitfehler.
#include "include/Werte.h"

#include <string>

namespace velmo {

struct Charakter {
    std::string Name, Spitzname, Farbe;
    /// Als Zahl steht sie mit je einem Leerzeichen davor und dahinter; als gelesener Text, wie er dastand.
    Lose Bildnummer;
};

/// Ersetzt die Datei. Einen Namen mit Pfadtrenner nimmt das Dateisystem nicht: keiner führt aus dem Ordner hinaus.
void schreibeCharakter(const std::string &pfad, const Charakter &);
Charakter liesCharakter(const std::string &pfad);

} // namespace velmo
