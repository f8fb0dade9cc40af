#pragma once
// Ruin eines Teilnehmers und der erzwungene Verkauf eines Grundstücks.
#include "include/Programm.h"
#include <string>

namespace velmo {

/// Wer: "Spieler" oder die Nummer eines Computers; Summe in DM steht nur im Satz; der Gläubiger bekommt nichts.
void Pleitegehen(Programm &, const std::string &Wer, Kurz Summe, const std::string &Gläubiger);
/// Der handelnde Computer nimmt das Grundstück für Betrag DM; Schlüssel wie "Boomrang".
void Zwangsverkauf(Programm &, int Betrag, const Hotelbesitzer &Verkäufer, const std::string &Schlüssel);

} // namespace velmo
