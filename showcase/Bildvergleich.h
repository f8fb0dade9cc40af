#pragma once
// Bilder mit einer Vorlage vergleichen; Kanten dürfen um ein Geringes anders geglättet sein.
#include <QImage>

namespace velmo {

/// Wie viel vom Bild deutlich anders ist als die Vorlage, von 0 bis 1; 1 bei anderer Größe.
double unterschied(const QImage &bild, const QImage &vorlage);

/// Mehr davon, und es ist ein anderes Bild.
constexpr double Spielraum = 0.003;

} // namespace velmo
