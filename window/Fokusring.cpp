#include "window/Fokusring.h"

#include "window/Farbtöne.h"

#include <QPainter>

namespace velmo {

namespace {

// In Bildpunkten des Entwurfs.
constexpr double Breite = 3, Abstand = 1, Ecke = 5, Saum = 0.8;

} // namespace

Fokusring::Fokusring(QWidget *anzeige) : QWidget(anzeige) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Fokusring::zeige(const QRect &ort, const Maß &m, Lage neu) {
    const double punkt = m.strich(1) / m.dichte;
    const int raum = static_cast<int>(std::ceil((Breite + Abstand + 2 * Saum) * punkt));
    // Ganz auf der Anzeige, auch wo das Element über ihren Rand ragt.
    const QRect platz = ort.adjusted(-raum, -raum, raum, raum) & parentWidget()->rect();
    if (platz != geometry()) setGeometry(platz);
    if (m != maß || neu != lage) update();
    maß = m;
    lage = neu;
    show();
    raise();
}

void Fokusring::paintEvent(QPaintEvent *) {
    const double punkt = maß.strich(1) / maß.dichte, halb = (Breite / 2 + Saum) * punkt;
    const double ein = halb + (lage == Lage::Gedrückt ? 1.5 * punkt : 0);
    const QRectF bahn = QRectF(rect()).adjusted(ein, ein, -ein, -ein);
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    if (lage == Lage::Gesperrt) p.setOpacity(0.45);
    p.setPen(QPen(farbton::Tinte, (Breite + 2 * Saum) * punkt));
    p.drawRoundedRect(bahn, Ecke * punkt, Ecke * punkt);
    QLinearGradient glanz(bahn.topLeft(), bahn.bottomLeft());
    glanz.setColorAt(0, QColor(0xFF, 0xF0, 0xB8));
    glanz.setColorAt(0.35, farbton::Messing);
    glanz.setColorAt(1, farbton::Messing.darker(120));
    p.setPen(QPen(QBrush(glanz), Breite * punkt));
    p.drawRoundedRect(bahn, Ecke * punkt, Ecke * punkt);
}

} // namespace velmo
