#include "showcase/Bildvergleich.h"

#include <algorithm>
#include <cstdlib>

namespace velmo {

namespace {

constexpr int Deutlich = 40; // Stufen eines Farbanteils

int abstand(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

double unterschied(const QImage &bild, const QImage &vorlage) {
    if (bild.size() != vorlage.size() || bild.isNull()) return 1;
    qsizetype andere = 0;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            andere += abstand(bild.pixel(x, y), vorlage.pixel(x, y)) > Deutlich;
    return double(andere) / (double(bild.width()) * bild.height());
}

} // namespace velmo
