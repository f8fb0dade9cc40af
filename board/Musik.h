#pragma once
// Die Töne des Bretts und seine Hintergrundmusik.
#include "include/Programm.h"

namespace velmo {

/// Gibt den Medienelementen des Bretts ihre Dateien und beginnt mit dem ersten Stück.
void beginneMusik(Programm &);
/// Ein Takt des Zeitgebers Midi: ist das Stück zu Ende, folgt das nächste.
void Musiktakt(Programm &);

} // namespace velmo
