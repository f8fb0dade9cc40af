#include "window/Schrift.h"

#include <QFontMetrics>
#include <QStringList>

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

QFont schrift(const std::string &Name, double Punkte, bool fett, double jeTwip) {
    const Schriftzeile &z = zeile(Name);
    QFont f;
    f.setFamilies({z.hier, "DejaVu Sans"});
    f.setWeight(fett ? z.fett : z.normal);
    f.setPixelSize(std::max(1, static_cast<int>(std::lround(Punkte * 20 * z.grad * jeTwip))));
    return f;
}

QFont eingepasst(QFont f, const QRect &r, int ausrichtung, const QString &text) {
    const int anfang = f.pixelSize();
    while (f.pixelSize() * 9 > anfang * 5) {
        const QRect bedarf = QFontMetrics(f).boundingRect(QRect(0, 0, r.width(), 1 << 16), ausrichtung, text);
        if (bedarf.width() <= r.width() && bedarf.height() <= r.height()) break;
        f.setPixelSize(f.pixelSize() - std::max(1, anfang / 25));
    }
    return f;
}

} // namespace velmo
