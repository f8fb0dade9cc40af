#pragma once
// Was eine Fahrt auslöst: das Vorbeikommen an der Bank und der Halt auf einem Feld.
#include "include/Programm.h"

namespace velmo {

/// Das Auto kommt an der Bank vorbei; Geld gibt es erst, wenn der Mensch eine Runde vollendet hat.
void Bankdurchfahrt(Programm &, Autokürzel);
/// Das Auto hält auf Autoziel: erst die Miete, dann das Feld, für den Menschen oder für einen Computer.
void Landung(Programm &, Autokürzel);

} // namespace velmo
