#pragma once
// Was die Seite von Formen und Stücken wissen muss, um sie zu zeigen. Maße sind Twips, Farben "#rrggbb", Bilder ihr Ort
// im Ordner der Bilder.
#include "browser/Nachricht.h"
#include "platform/Zeichenliste.h"
#include "surface/Benennung.h"
#include "surface/Haltung.h"

#include <functional>

namespace velmo {

/// Eine Datei im Ordner der Bilder; null ohne eine.
std::string bildort(const Programm &, const std::string &datei);
Merkmale merkmale(const Programm &, const Form &);
/// Eine Bewegung, die nur zum Ansehen ist: die Haltungen des Stücks von Anfang bis Ende.
Merkmale schwung(const Programm &, const Stück &, double ms, const std::function<Haltung(double anteil)> &);
/// Ein Wölkchen Staub an einem steigenden Haus.
Merkmale wolke(const Stück &, int n);
/// Ein Stück der Zeichenliste und wie es heißt.
Merkmale merkmale(const Programm &, const Stück &, const Benennung &);

} // namespace velmo
