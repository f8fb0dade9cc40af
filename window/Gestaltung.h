#pragma once
// Die Bedienelemente des Systems in der Gestalt des Spiels. Vergrößerung: Längen des Fensters je Bildpunkt des
// Entwurfs.
#include <QString>

namespace velmo {

/// Für das ganze Programm: Farben, Schrift und Stil.
void gestalteProgramm();
/// Textfelder, Listen und Rollbalken auf den Formen.
QString feldgestalt(double vergrößerung);
/// Meldungen und Fragen.
QString kastengestalt(double vergrößerung);
/// Die kurzen Notizen des Fensters.
QString zettelgestalt(double vergrößerung);

} // namespace velmo
