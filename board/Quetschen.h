#pragma once
// Ein Auto, das vor einem von vier Gebäuden hält, überfährt es. Reine Schau; ein Quetschbild dient allen vier Autos,
// und wer ein zweites Gebäude quetscht, lässt das erste gequetscht zurück: mit Absicht so.
#include "include/Programm.h"

namespace velmo {

/// Beginnt das Quetschen, wenn vor dem Ziel des Wagens ein solches Gebäude steht.
void quetsche(Programm &, Autodaten &wagen);
/// Stellt das Quetschbild wieder her, weil der Wagen weiterfährt.
void stelleQuetschbildHer(Programm &, Autodaten &wagen);
/// Ein Takt des Zeitgebers überfahR.
void Quetschtakt(Programm &);

} // namespace velmo
