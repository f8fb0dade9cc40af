#pragma once
// Die Bilder des Programms aus dem Ordner bilder/: bilder/TYP/ID.png oder .jpg, und die Bilder des Entwurfs unter
// bilder/formen/FORM/STEUERELEMENT, ihre Mauszeiger unter STEUERELEMENTZeiger,
// ihre Schatten unter STEUERELEMENTSchatten. Die Schreibung groß oder klein spielt
// keine Rolle; was fehlt, ist ein leeres Bild.
#include "include/Programm.h"

#include <string>

namespace velmo {

/// Das Bild der Nummer und des Typs, etwa 204 und "Wuerfel"; leer, wenn es fehlt.
Picture Bildladen(Programm &, int Id, const std::string &Typ);

/// Gibt der Form und ihren Steuerelementen die Bilder und Mauszeiger, die der Entwurf für sie hat.
void Entwurfsbilder(Programm &, Form &);

} // namespace velmo
