#pragma once
// Die Bestenliste: eine Datei mit höchstens neun Einträgen zu je zwei Zeilen, Name und Punkte, der beste zuerst.
#include "include/Programm.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velmo {

struct Eintrag {
    std::string Name, Punkte; // die Punkte, wie sie in der Datei stehen, mit ihren Leerzeichen
};
using Bestenliste = std::vector<Eintrag>;
inline constexpr int Bestenplätze = 9;

/// Liest, so weit die Datei reicht, höchstens neun Einträge; leere Zeilen zählen mit.
Bestenliste liesBestenliste(const Programm &);
/// Setzt den Menschen mit seinen Punkten an seinen Platz, merkt sich den Rang und schreibt die Datei. Dateifehler
/// bleiben ohne Meldung.
void trageEin(Programm &, std::int32_t Punkte);

} // namespace velmo
