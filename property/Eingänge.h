#pragma once
// Eingänge am Weg: Anzeige der Plätze, Auffrischung, der Knopf auf dem Brett.
#include "include/Programm.h"
#include <string>

namespace velmo {

/// Bietet die Plätze des Hotels an, das der Text nennt ("roy", "fuji", "presi", "taj", "boom", "leth", "wai", "saf").
void Eingangsanzeige(Programm &, const std::string &Text);
/// Zeigt nur noch die gekauften Plätze; nachKauf gibt außerdem Fertig frei und sperrt WüButton.
void Eingangsauffrischung(Programm &, Flagge nachKauf);
/// Hebt den Knopf "Eingänge Kaufen" hervor, wenn der Mensch Hotels hat, oder nimmt die Hervorhebung zurück.
void Eingangsknopf(Programm &, Flagge);
/// Der gelbe Eingang wird über den Platz gezogen, auf ihm abgelegt.
void PlatzDragOver(Programm &, int Platz, Ziehzustand);
void PlatzDragDrop(Programm &, int Platz);
/// Ein Takt des Zeitgebers pfeilTimer: der Pfeil blinkt.
void pfeilTimer_Timer(Programm &);

} // namespace velmo
