#include "window/Schrift.h"

#include "surface/Schrifttafel.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <cmath>

namespace velmo {

QString text(const std::string &utf8) { return QString::fromStdString(utf8); }

QFont schrift(const std::string &Name, double Schriftgrad, bool fett, double punkte) {
    const Schriftzeile &z = schriftzeile(Name);
    QFont f;
    f.setFamilies({z.hier, "DejaVu Sans"});
    f.setWeight(static_cast<QFont::Weight>(fett ? z.fett : z.normal));
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(Schriftgrad * PunkteJeGrad * z.grad * punkte))));
    return f;
}

QStringList fehlendeSchriften() {
    QStringList fehlend;
    for (const Schriftzeile &z : Schrifttafel)
        if (!QFontDatabase::hasFamily(z.hier)) fehlend << z.hier;
    fehlend.removeDuplicates();
    return fehlend;
}

QFont eingepasst(QFont f, const QSizeF &platz, int ausrichtung, const QString &text) {
    const int anfang = f.pixelSize();
    while (f.pixelSize() * 9 > anfang * 5) {
        const QRectF bedarf = QFontMetricsF(f).boundingRect(QRectF(0, 0, platz.width(), 1e6), ausrichtung, text);
        if (bedarf.width() <= platz.width() && bedarf.height() <= platz.height()) break;
        f.setPixelSize(f.pixelSize() - std::max(1, anfang / 25));
    }
    return f;
}

} // namespace velmo
