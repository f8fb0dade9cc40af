#pragma once
// Beschriftungen, deren Zeilen eine Liste sind: Medaille oder Rang, Text, Linie.
#include "platform/Zeichenliste.h"
#include "window/Maß.h"

#include <QPainter>

namespace velmo {

/// Wo der Text der Zeile (ab 0) steht, ohne Medaille und Rand.
QRect zeilenplatz(const Stück &, const QRect &ort, int zeile);
void maleListe(QPainter &, const Maß &, const Stück &, const QRect &ort);

} // namespace velmo
