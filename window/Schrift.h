#pragma once
// Die Schriften des Entwurfs, auf die des Systems abgebildet.
#include <QFont>
#include <QRect>
#include <QString>

#include <string>

namespace velmo {

QString text(const std::string &utf8);

/// Die Schrift des Entwurfs. Punkte gelten bei 120 DPI: ein Punkt sind 20 Twips.
QFont schrift(const std::string &Name, double Punkte, bool fett, double jeTwip);

/// Verkleinert die Schrift, bis der umbrochene Text in das Rechteck passt, höchstens auf gut die Hälfte.
QFont eingepasst(QFont, const QRect &, int ausrichtung, const QString &text);

} // namespace velmo
