#include "window/Schrift.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <cmath>

namespace velmo {

namespace {

struct Schriftzeile {
    const char *Entwurf;
    const char *hier;
    QFont::Weight normal, fett;
    double grad; // gleicht verschieden große Augen der Schriften aus
};

// clang-format off
constexpr Schriftzeile Schrifttafel[] = {
    // Entwurf             hier           normal         fett           Grad
    {"Comic Sans MS",      "Comic Neue",  QFont::Bold,   QFont::Bold,   1.04},
    {"Bookman Old Style",  "URW Bookman", QFont::Medium, QFont::DemiBold, 1},
    {"Arial Black",        "Lato",        QFont::Black,  QFont::Black,  1},
    {"",                   "Lato",        QFont::Medium, QFont::Bold,   1.04}, // alle anderen
};
// clang-format on

const Schriftzeile &zeile(const std::string &Name) {
    for (const Schriftzeile &z : Schrifttafel)
        if (Name == z.Entwurf) return z;
    return *std::rbegin(Schrifttafel);
}

} // namespace

QString text(const std::string &utf8) { return QString::fromStdString(utf8); }

QFont schrift(const std::string &Name, double Schriftgrad, bool fett, double punkte) {
    constexpr double JeGrad = 20.0 / 12; // Bildpunkte des Entwurfs
    const Schriftzeile &z = zeile(Name);
    QFont f;
    f.setFamilies({z.hier, "DejaVu Sans"});
    f.setWeight(fett ? z.fett : z.normal);
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(Schriftgrad * JeGrad * z.grad * punkte))));
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
