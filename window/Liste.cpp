#include "window/Liste.h"

#include "window/Farbtöne.h"
#include "window/Malen.h"
#include "window/Schrift.h"

#include <QRadialGradient>

namespace velmo {

namespace {

constexpr QRgb Medaillen[] = {0xFFE8B93A, 0xFFC3CCD2, 0xFFC98445};        // Gold, Silber, Bronze
constexpr double Medaillenmaß = 0.34, Einrückung = 1.15, Textrand = 0.22; // Anteile der Zeilenhöhe

QRect zeilenort(const Stück &s, const QRect &ort, int zeile) {
    const int oben = ort.top() + ort.height() * zeile / s.liste->Zeilen;
    return {ort.left(), oben, ort.width(), ort.top() + ort.height() * (zeile + 1) / s.liste->Zeilen - oben};
}

void maleMedaille(QPainter &p, const QRectF &r, const QColor &metall) {
    QRadialGradient glanz(r.center() - QPointF(r.width() * 0.2, r.height() * 0.25), r.width() * 0.8);
    glanz.setColorAt(0, metall.lighter(150));
    glanz.setColorAt(0.6, metall);
    glanz.setColorAt(1, metall.darker(180));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 120));
    p.drawEllipse(r.translated(r.width() * 0.05, r.height() * 0.09));
    p.setBrush(glanz);
    p.drawEllipse(r);
    const double ein = r.width() * 0.1;
    p.setPen(QPen(metall.darker(150), r.width() * 0.04));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(r.adjusted(ein, ein, -ein, -ein));
}

/// Die Zahl vor der Zeile; ohne Eintrag blass.
void maleRang(QPainter &p, const Maß &m, const Stück &s, const QRect &zeile, int rang, bool leer) {
    const double halb = zeile.height() * Medaillenmaß;
    const QPointF mitte(zeile.left() + zeile.height() * 0.62, zeile.center().y() + 1);
    const QRectF r(mitte - QPointF(halb, halb), QSizeF(2 * halb, 2 * halb));
    p.setOpacity(leer ? 0.35 : 1);
    const bool medaille = rang <= static_cast<int>(std::size(Medaillen));
    if (medaille) maleMedaille(p, r, QColor::fromRgb(Medaillen[rang - 1]));
    maleText(p, m, r.toRect(), Qt::AlignCenter, QString::number(rang),
             schrift(s.schriftart, s.schriftgrad * 0.66, true, Satzpunkte),
             medaille ? farbton::Tinte : farbton::aus(s.farbe).darker(130));
    p.setOpacity(1);
}

void maleHervorhebung(QPainter &p, const Maß &m, const QRect &zeile) {
    const double ein = m.strich(2);
    p.setPen(QPen(farbton::Messing, m.strich(1)));
    p.setBrush(QColor(0xE2, 0xB0, 0x3A, 70));
    p.drawRoundedRect(QRectF(zeile).adjusted(0, ein, 0, -ein), ein * 2, ein * 2);
}

} // namespace

QRect zeilenplatz(const Stück &s, const QRect &ort, int zeile) {
    const QRect r = zeilenort(s, ort, zeile);
    const int rand = static_cast<int>(r.height() * Textrand);
    return r.adjusted(s.liste->Rang ? static_cast<int>(r.height() * Einrückung) : rand, 0, -rand, 0);
}

void maleListe(QPainter &p, const Maß &m, const Stück &s, const QRect &ort) {
    const QStringList zeilen = text(s.text).split('\n');
    const QFont f = schrift(s.schriftart, s.schriftgrad, s.fett, Satzpunkte);
    for (int i = 0; i < s.liste->Zeilen; ++i) {
        const QRect zeile = zeilenort(s, ort, i);
        const QString t = zeilen.value(i).trimmed();
        const bool hervor = i + 1 == s.liste->Hervorgehoben;
        if (hervor) maleHervorhebung(p, m, zeile);
        p.setPen(QPen(QColor(0xE8, 0xC2, 0x68, 70), m.strich(1)));
        p.drawLine(zeile.bottomLeft(), zeile.bottomRight());
        if (s.liste->Rang) maleRang(p, m, s, zeile, i + 1, t.isEmpty());
        const int wie = (ausrichtung(s) & ~(Qt::TextWordWrap | Qt::AlignTop)) | Qt::AlignVCenter;
        maleText(p, m, zeilenplatz(s, ort, i), wie, t, f,
                 hervor ? farbton::Messing.lighter(140) : farbton::aus(s.farbe));
    }
}

} // namespace velmo
