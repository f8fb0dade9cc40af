#pragma once
// Was die Seite von Formen und Stücken wissen muss, um sie zu zeigen. Maße sind Twips, Farben "#rrggbb", Bilder ihr Ort
// im Ordner der Bilder.
#include "browser/Nachricht.h"
#include "platform/Zeichenliste.h"
#include "surface/Benennung.h"

namespace velmo {

/// Eine Datei im Ordner der Bilder; null ohne eine.
std::string bildort(const Programm &, const std::string &datei);
Merkmale merkmale(const Programm &, const Form &);
/// Ein Stück der Zeichenliste und wie es heißt.
Merkmale merkmale(const Programm &, const Stück &, const Benennung &);

} // namespace velmo
