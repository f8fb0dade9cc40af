#pragma once
// Was der Spieler sich auf seinem Schreibtisch gewünscht hat, soweit es das Spiel angeht.
#include <QObject>

#include <functional>

namespace velmo {

struct Wünsche {
    double schrift = 1; // so viel größer sollen Schriften sein, 1 bis 1,75
    bool kontrast = false;
    bool ruhig = false; // ohne Bewegung, die nur zum Ansehen ist
    bool operator==(const Wünsche &) const = default;
};

/// Fragt den Schreibtisch und meldet die Antwort, solange es den Empfänger gibt; ohne Antwort bleibt alles, wie es ist.
void frageSchreibtisch(QObject *empfänger, const std::function<void(const Wünsche &)> &);

} // namespace velmo
