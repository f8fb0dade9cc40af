#pragma once
// Meldungen und Fragen in eigenen kleinen Fenstern, in der Gestalt des Spiels.
#include "platform/Oberfläche.h"

#include <QString>

#include <exception>
#include <optional>
#include <string>

namespace velmo {

class Fenster;

/// Der Satz zu einem Fehler, den keine Regel kennt: kein Speicher, ein Gerät, die Platte.
std::string fehlersatz(const std::exception &);
void melde(Fenster &, const QString &text, const QString &titel, Meldungsart);
/// Ohne Wert, wenn der Spieler abbricht.
std::optional<std::string> frageNach(Fenster &, const QString &frage, const QString &titel);

} // namespace velmo
