#pragma once
// Was das Fenster rings um die Anzeige zeigt: die Kanten der Szene laufen weich in ihre Farbe aus.
#include "window/Bildspeicher.h"

#include <QColor>
#include <QPainter>

namespace velmo {

/// bild: die Szene in der Größe der Anzeige; leer, wenn sie die Anzeige nicht füllt. Orte sind Bildpunkte.
void maleRand(QPainter &, const QRect &fenster, const QRect &anzeige, const QPixmap &bild, const QColor &ton);

} // namespace velmo
