#include "window/Rand.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

constexpr double Auslauf = 0.16; // der Höhe der Anzeige: so weit reicht die Szene hinaus
constexpr int Kante = 2;         // Bildpunkte der Szene, die über ihre Kante hinaus verschmieren

/// Ein Balken neben der Anzeige; kante ist deren Streifen, der an ihn grenzt.
struct Balken {
    QRect ort;
    QRect kante;
    QPointF von, bis; // quer zur Kante, vom Rand der Anzeige nach außen
};

/// Die Kante weichgezeichnet: klein gemacht und gedehnt.
void verschmiere(QPainter &p, const Balken &b, const QPixmap &bild) {
    const bool seitlich = b.von.y() == b.bis.y();
    const int länge = std::max(1, (seitlich ? b.kante.height() : b.kante.width()) / 10);
    const QSize klein = seitlich ? QSize(1, länge) : QSize(länge, 1);
    p.drawPixmap(b.ort, bild.copy(b.kante).scaled(klein, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void maleBalken(QPainter &p, const Balken &b, const QPixmap &bild, const QColor &ton) {
    if (b.ort.isEmpty()) return;
    if (!bild.isNull()) verschmiere(p, b, bild);
    QLinearGradient verlauf(b.von, b.bis);
    // Die Deckung wächst weich, damit keine Kante zu sehen ist.
    for (const double anteil : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        QColor farbe = ton;
        farbe.setAlphaF(static_cast<float>(anteil * anteil * (3 - 2 * anteil)));
        verlauf.setColorAt(anteil, farbe);
    }
    p.fillRect(b.ort, verlauf);
}

/// Steht etwas Kleines mitten im Fenster, so liegt Licht um die Mitte.
void maleSchein(QPainter &p, const QRect &fenster, const QColor &ton) {
    QRadialGradient schein(fenster.center(), std::hypot(fenster.width(), fenster.height()) / 2);
    schein.setColorAt(0, ton.lighter(150));
    schein.setColorAt(1, ton.darker(170));
    p.fillRect(fenster, schein);
}

} // namespace

void maleRand(QPainter &p, const QRect &fenster, const QRect &anzeige, const QPixmap &bild, const QColor &ton) {
    if (bild.isNull()) return maleSchein(p, fenster, ton);
    p.fillRect(fenster, ton);
    const double weit = anzeige.height() * Auslauf;
    const QRect &a = anzeige;
    const int l = a.left(), o = a.top(), r = l + a.width(), u = o + a.height();
    const QRect szene(QPoint(), bild.size());
    const Balken balken[] = {
        {{0, o, l, a.height()}, {0, 0, Kante, szene.height()}, QPointF(l, o), QPointF(l - weit, o)},
        {{r, o, fenster.width() - r, a.height()},
         {szene.width() - Kante, 0, Kante, szene.height()},
         QPointF(r, o),
         QPointF(r + weit, o)},
        {{l, 0, a.width(), o}, {0, 0, szene.width(), Kante}, QPointF(l, o), QPointF(l, o - weit)},
        {{l, u, a.width(), fenster.height() - u},
         {0, szene.height() - Kante, szene.width(), Kante},
         QPointF(l, u),
         QPointF(l, u + weit)},
    };
    for (const Balken &b : balken)
        maleBalken(p, b, bild, ton);
}

} // namespace velmo
