#pragma once
// Die Schriften des Entwurfs, auf die des Systems abgebildet.
#include <QFont>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <string>

namespace velmo {

QString text(const std::string &utf8);

/// Schriften auf den Formen werden in Achtel-Bildpunkten des Entwurfs gesetzt und dann auf die Anzeige gestreckt: so
/// bricht ein Text bei jeder Größe gleich um.
constexpr double Satzpunkte = 8;

/// Die Schrift des Entwurfs; punkte sind ihre Einheiten je Bildpunkt des Entwurfs. Schriftgrade gelten bei 120 DPI: ein
/// Punkt sind 20 Twips.
QFont schrift(const std::string &Name, double Schriftgrad, bool fett, double punkte);

/// Die Schriften, für die das System nur Ersatz hat.
QStringList fehlendeSchriften();

/// Verkleinert die Schrift, bis der umbrochene Text in das Rechteck passt, höchstens auf gut die Hälfte.
QFont eingepasst(QFont, const QSizeF &, int ausrichtung, const QString &text);

} // namespace velmo
