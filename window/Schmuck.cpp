#include "window/Schmuck.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <random>

namespace velmo {

namespace {

/// Eine Farbe, so weit durchsichtig.
QColor mit(QColor farbe, int deckung) {
    farbe.setAlpha(deckung);
    return farbe;
}

/// Wer verglüht, wird schwächer statt schwarz: die Farbe in voller Helle.
QColor leuchtfarbe(const QColor &farbe) {
    return QColor::fromHsv(std::max(0, farbe.hsvHue()), farbe.hsvSaturation(), 255);
}

} // namespace

void maleSchatten(QPainter &p, const QRect &ding, int breite, int höchstens) {
    // Ringe, die nach außen schwächer werden; nach unten versetzt, denn das Licht kommt von oben.
    const QRectF grund = QRectF(ding).translated(0, breite / 4.0);
    p.setPen(Qt::NoPen);
    const int ringe = std::clamp(breite, 4, höchstens);
    for (int i = 0; i < ringe; ++i) {
        const double aus = breite * 0.75 * (ringe - i) / ringe;
        p.setBrush(QColor(20, 10, 0, 90 / ringe));
        p.drawRoundedRect(grund.adjusted(-aus, -aus, aus, aus), aus, aus);
    }
}

QRect scheinbereich(const QRect &ding, const Maß &m) {
    const int um = static_cast<int>(m.strich(5));
    return ding.adjusted(-um, -um, um, um);
}

void maleSchein(QPainter &p, const QRect &ding, const Maß &m, const QColor &farbe) {
    const QRectF r = scheinbereich(ding, m);
    QRadialGradient licht(QPointF(), 1);
    licht.setColorAt(0, mit(farbe, 120));
    licht.setColorAt(0.7, mit(farbe, 170));
    licht.setColorAt(0.8, mit(farbe.lighter(165), 255));
    licht.setColorAt(0.9, mit(farbe.darker(115), 210));
    licht.setColorAt(1, mit(farbe, 0));
    p.save();
    p.translate(r.center());
    p.scale(r.width() / 2, r.height() / 2);
    p.setPen(Qt::NoPen);
    p.setBrush(licht);
    p.drawEllipse(QPointF(), 1, 1);
    p.restore();
}

void maleNacht(QPainter &p, const QRect &r) {
    QLinearGradient himmel(r.topLeft(), r.bottomLeft());
    himmel.setColorAt(0, QColor(0x01, 0x01, 0x05));
    himmel.setColorAt(1, QColor(0x06, 0x06, 0x12));
    p.fillRect(r, himmel);
    std::minstd_rand stern(7); // stets dieselben Sterne
    const auto anteil = [&stern] { return static_cast<double>(stern()) / std::minstd_rand::max(); };
    p.setPen(Qt::NoPen);
    for (int i = 0; i < 140; ++i) {
        const double x = anteil(), y = anteil(), hell = anteil();
        const double groß = r.width() / 800.0 * (0.4 + 0.7 * hell * hell);
        p.setBrush(QColor(255, 250, 225, static_cast<int>((40 + 150 * hell) * (1 - 0.7 * y))));
        p.drawEllipse(QPointF(r.left() + x * r.width(), r.top() + y * r.height()), groß, groß);
    }
}

QRect funkenbereich(const QRect &kern) {
    const int um = std::max(2, kern.width() * 3 / 2);
    return kern.adjusted(-um, -um, um, um);
}

void maleFunken(QPainter &p, const QRect &kern, const QColor &farbe) {
    const QRectF r = funkenbereich(kern);
    const int kraft = farbe.value();
    const QColor ton = leuchtfarbe(farbe);
    QRadialGradient licht(r.center(), r.width() / 2);
    licht.setColorAt(0, mit(Qt::white, kraft));
    licht.setColorAt(0.12, mit(ton.lighter(150), kraft));
    licht.setColorAt(0.25, mit(ton, kraft / 3));
    licht.setColorAt(0.55, mit(ton, kraft / 10));
    licht.setColorAt(1, mit(ton, 0));
    p.fillRect(r, licht);
}

void maleSpur(QPainter &p, const QRect &kern, const QRect &nächster, const QColor &farbe, double anteil) {
    const double breite = kern.width() * (0.15 + 0.3 * anteil);
    p.setPen(QPen(mit(leuchtfarbe(farbe), static_cast<int>(farbe.value() * anteil * 0.5)), breite));
    p.drawLine(QRectF(kern).center(), QRectF(nächster).center());
}

} // namespace velmo
