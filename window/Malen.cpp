#include "window/Malen.h"

#include "surface/Malplatz.h"
#include "window/Farbtöne.h"
#include "window/Liste.h"
#include "window/Schmuck.h"
#include "window/Schrift.h"
#include "window/Schwung.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

constexpr double Schattenbreite = 8; // Bildpunkte des Entwurfs
constexpr int Ausrichtungen[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

QPen stift(const QColor &farbe, double breite) { return {farbe, breite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin}; }

/// Ein Schildchen mit feinem Rand, mitten an seinem Ort und nicht größer, als der Text es braucht.
void maleSchild(QPainter &p, const Maß &m, const Stück &s, const QRect &ort, const QFont &f) {
    const QSizeF bedarf = textbedarf(m, ort, ausrichtung(s), text(s.text), f);
    const double breit = std::min(bedarf.width() + m.strich(8), double(ort.width())),
                 hoch = std::min(bedarf.height() + m.strich(2), double(ort.height()));
    const QRectF schild(QRectF(ort).center() - QPointF(breit, hoch) / 2, QSizeF(breit, hoch));
    const QColor grund = farbton::aus(s.grund);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(30, 15, 0, 90));
    p.drawRoundedRect(schild.translated(m.strich(1), m.strich(1.5)), 40 * m.jeTwip, 40 * m.jeTwip);
    p.setPen(stift(grund.darker(190), m.strich(1)));
    p.setBrush(grund);
    p.drawRoundedRect(schild.adjusted(0.5, 0.5, -0.5, -0.5), 40 * m.jeTwip, 40 * m.jeTwip);
}

void maleBeschriftung(QPainter &p, const Maß &m, const Stück &s, const QRect &ort) {
    if (s.liste) return maleListe(p, m, s, ort);
    const QFont f = schrift(s.schriftart, s.schriftgrad, s.fett, Satzpunkte);
    if (s.deckend && !s.text.empty()) maleSchild(p, m, s, ort, f);
    maleText(p, m, ort, ausrichtung(s), text(s.text), f, s.gesperrt ? farbton::Blass : farbton::aus(s.farbe));
}

/// Das Wachsende steht auf der Unterkante seiner vollen Höhe; zu sehen ist sein oberer Teil.
void maleWachsendes(QPainter &p, Bildspeicher &bilder, const Maß &m, const Stück &s, const QRect &ort) {
    const QRect ganz(ort.topLeft(), bildgröße(s, m));
    const int hoch = std::min(m.punkt(s.Height), ganz.height());
    // Auch ein Haus von null Höhe: gelesen wird es, ehe es zu sehen ist.
    const QPixmap bild = bilder.baldigesBild(s.bild, ganz.size());
    if (bild.isNull() || hoch <= 0) return;
    const QRectF quelle(0, 0, bild.width(), bild.height() * double(hoch) / ganz.height());
    p.drawPixmap(QRectF(ganz.left(), ganz.bottom() + 1 - hoch, ganz.width(), hoch), bild, quelle);
}

void maleBodenschatten(QPainter &p, Bildspeicher &bilder, const Maß &m, const Stück &s, const QRect &ort) {
    if (ort.isEmpty()) return;
    const QPixmap bild = bilder.bild(s.bild, bildgröße(s, m));
    if (bild.isNull()) return;
    p.setOpacity(schattenkraft(s));
    p.drawPixmap(ort, bild);
    p.setOpacity(1);
}

/// So breit ist der Schatten um ein Schwebendes, in Bildpunkten.
int schwebeschatten(const Maß &m) { return static_cast<int>(std::ceil(m.strich(12))); }

/// Gezeichnet wird nur, was neben dem Schwebenden zu sehen ist.
void maleSchwebeschatten(QPainter &p, const Maß &m, const QRect &ort) {
    const int breite = schwebeschatten(m);
    p.save();
    p.setClipRegion(QRegion(ort.adjusted(-breite, -breite, breite, breite)) - ort, Qt::IntersectClip);
    maleSchatten(p, ort, breite, 5); // in Bewegung genügen wenige Ringe
    p.restore();
}

void maleBildelement(QPainter &p, Bildspeicher &bilder, const Maß &m, const Stück &s, const QRect &ort) {
    if (s.gebaren == Gebaren::Schwebt) maleSchwebeschatten(p, m, ort);
    if (s.wächst)
        maleWachsendes(p, bilder, m, s, ort);
    else
        maleBild(p, bilder, s.bild, ort);
    if (s.rand > 0 && !s.wieKnopf) {
        const double breite = m.strich(2);
        p.setPen(stift(farbton::Messing, breite));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(ort).adjusted(breite / 2, breite / 2, -breite / 2, -breite / 2), breite * 2,
                          breite * 2);
    }
}

/// Ein Bildfeld ohne Bild ist eine flache Mulde.
void maleBildfeld(QPainter &p, Bildspeicher &bilder, const Maß &m, const Stück &s, const QRect &ort) {
    const double breite = m.strich(1);
    const QRectF innen = QRectF(ort).adjusted(breite / 2, breite / 2, -breite / 2, -breite / 2);
    if (!s.bild.empty()) {
        maleBild(p, bilder, s.bild, ort);
        if (s.rand <= 0) return;
        p.setBrush(Qt::NoBrush);
    } else {
        QLinearGradient mulde(innen.topLeft(), innen.bottomLeft());
        mulde.setColorAt(0, QColor(0x5C, 0x40, 0x24, 90));
        mulde.setColorAt(1, QColor(0x5C, 0x40, 0x24, 40));
        p.setBrush(mulde);
    }
    p.setPen(stift(farbton::Holzschatten, breite));
    p.drawRoundedRect(innen, breite * 4, breite * 4);
}

void maleRahmen(QPainter &p, const Maß &m, const Stück &s, const QRect &ort) {
    const double breite = m.strich(s.rand);
    const QRectF innen = QRectF(ort).adjusted(breite / 2, breite / 2, -breite / 2, -breite / 2);
    // Was der Entwurf schwarz lässt, ist hier aus Holz.
    p.setPen(stift(s.farbe == farbe::Schwarz ? farbton::Holz : farbton::aus(s.farbe), breite));
    p.setBrush(Qt::NoBrush);
    if (s.gestalt == Gestalt::Ellipse) p.drawEllipse(innen);
    if (s.gestalt == Gestalt::Rechteck) p.drawRect(innen);
    if (s.gestalt == Gestalt::GerundetesRechteck) {
        const double rund = std::min(innen.width(), innen.height()) / 6;
        p.drawRoundedRect(innen, rund, rund);
    }
}

void maleLinie(QPainter &p, const Maß &m, const Stück &s) {
    p.setPen(stift(farbton::aus(s.farbe), m.strich(s.rand)));
    p.drawLine(QPointF(s.Left, s.Top) * m.jeTwip, QPointF(s.Left + s.Width, s.Top + s.Height) * m.jeTwip);
}

/// Weiches ist so fein wie der Entwurf, wie groß das Fenster auch ist.
QSize schattengröße(const Stück &s) {
    return {static_cast<int>(std::lround(s.natürlicheBreite / 12)),
            static_cast<int>(std::lround(s.natürlicheHöhe / 12))};
}

} // namespace

int ausrichtung(const Stück &s) {
    return Ausrichtungen[std::clamp(static_cast<int>(s.ausrichtung), 0, 2)] |
           (s.mittig ? Qt::AlignVCenter : Qt::AlignTop) | Qt::TextWordWrap;
}

QRect knopfschrift(const Stück &s, const Maß &m, const QRect &knopf) {
    constexpr double Zeile = 17; // Bildpunkte des Entwurfs; ein niedriger Knopf lässt der Schrift alle Höhe
    const int rand = static_cast<int>(m.strich(3)), seitenrand = static_cast<int>(m.strich(5));
    const int hochrand = std::clamp(static_cast<int>((knopf.height() - m.strich(Zeile)) / 2), 0, rand);
    QRect r = knopf.adjusted(seitenrand, hochrand, -seitenrand, -hochrand);
    if (!s.bild.empty() && !s.text.empty()) r.setTop(r.bottom() + 1 - m.punkt(s.schriftgrad * 26));
    return r;
}

QRect malort(const Stück &s, const Maß &m) { return m.rechteck(malplatz(s)); }

QSize bildgröße(const Stück &s, const Maß &m) {
    return s.sorte == Sorte::Schatten ? schattengröße(s) : m.rechteck(bildplatz(s)).size();
}

QRect gedreht(const QRect &r) {
    constexpr double Spiel = 1.1; // ein Würfel hüpft beim Rollen ein wenig auf den Betrachter zu
    const int halb = static_cast<int>(std::ceil(std::hypot(r.width(), r.height()) / 2 * Spiel));
    return {r.center() - QPoint(halb, halb), r.center() + QPoint(halb, halb)};
}

QRect schwungbereich(const Stück &s, const Maß &m) {
    const int staub = s.sorte == Sorte::Bild ? m.punkt(Staubweite) : 0;
    return gedreht(malbereich(s, m)) | malbereich(s, m).adjusted(-staub, 0, staub, staub);
}

QRect malbereich(const Stück &s, const Maß &m) {
    QRect bereich = malort(s, m).normalized();
    if (s.drehung != 0) bereich = gedreht(bereich);
    if (s.wächst) bereich |= m.rechteck(bildplatz(s));
    if (s.schein) bereich = scheinbereich(bereich, m);
    int rand = s.sorte == Sorte::Linie ? static_cast<int>(m.strich(s.rand)) + 1
               : s.schatten            ? static_cast<int>(m.strich(Schattenbreite)) + 1
                                       : 1;
    if (s.gebaren == Gebaren::Schwebt) rand += schwebeschatten(m);
    return bereich.adjusted(-rand, -rand, rand, rand);
}

void male(QPainter &p, Bildspeicher &bilder, const Maß &m, const Stück &s, const QRect &ort) {
    if (s.schatten) maleSchatten(p, ort, static_cast<int>(m.strich(Schattenbreite)));
    if (s.schein) maleSchein(p, ort, m, farbton::aus(*s.schein));
    switch (s.sorte) {
    case Sorte::Schatten:
        return maleBodenschatten(p, bilder, m, s, ort);
    case Sorte::Beschriftung:
        return maleBeschriftung(p, m, s, ort);
    case Sorte::Bild:
        return maleBildelement(p, bilder, m, s, ort);
    case Sorte::Bildfeld:
        return maleBildfeld(p, bilder, m, s, ort);
    case Sorte::Rahmen:
        return maleRahmen(p, m, s, ort);
    case Sorte::Linie:
        return maleLinie(p, m, s);
    case Sorte::Film:
    case Sorte::Knopf:
    case Sorte::Bedienelement:
        return;
    }
}

bool maleBild(QPainter &p, Bildspeicher &bilder, const std::string &Datei, const QRect &r) {
    const QPixmap bild = bilder.bild(Datei, r.size());
    if (bild.isNull()) return false;
    if (bild.size() == r.size())
        p.drawPixmap(r.topLeft(), bild);
    else
        p.drawPixmap(r, bild);
    return true;
}

void maleGestreckt(QPainter &p, const QImage &bild, int ecke, const QRect &ziel, int zielecke) {
    const int eckeX = std::min(zielecke, ziel.width() / 2), eckeY = std::min(zielecke, ziel.height() / 2);
    const int vonX[] = {0, ecke, bild.width() - ecke, bild.width()},
              vonY[] = {0, ecke, bild.height() - ecke, bild.height()};
    const int nachX[] = {0, eckeX, ziel.width() - eckeX, ziel.width()};
    const int nachY[] = {0, eckeY, ziel.height() - eckeY, ziel.height()};
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int x = 0; x < 3; ++x)
        for (int y = 0; y < 3; ++y)
            p.drawImage(QRect(QPoint(nachX[x], nachY[y]), QPoint(nachX[x + 1] - 1, nachY[y + 1] - 1))
                            .translated(ziel.topLeft()),
                        bild, QRect(QPoint(vonX[x], vonY[y]), QPoint(vonX[x + 1] - 1, vonY[y + 1] - 1)));
}

namespace {

/// Größer, wie der Spieler es wünscht, soweit der Platz reicht.
QFont gewünscht(const QFont &f, const Wünsche &w, const QSizeF &platz, int ausrichtung, const QString &t) {
    QFont groß = f;
    groß.setPixelSize(static_cast<int>(f.pixelSize() * w.schrift));
    groß = eingepasst(groß, platz, ausrichtung, t);
    return groß.pixelSize() > f.pixelSize() ? groß : eingepasst(f, platz, ausrichtung, t);
}

/// Schwarz auf hellem Schein oder umgekehrt.
void maleKontrast(QPainter &p, const QRectF &r, int ausrichtung, const QString &t, const QColor &farbe) {
    const bool dunkel = farbe.lightness() < 150;
    p.setPen(dunkel ? Qt::white : Qt::black);
    for (const QPointF weg : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
        p.drawText(r.translated(weg * Satzpunkte), ausrichtung, t);
    p.setPen(dunkel ? Qt::black : Qt::white);
    p.drawText(r, ausrichtung, t);
}

} // namespace

QSizeF textbedarf(const Maß &m, const QRect &r, int ausrichtung, const QString &t, const QFont &f) {
    const double strecke = m.jeTwip * 12 / Satzpunkte;
    const QSizeF platz = QSizeF(r.size()) / strecke;
    const QFontMetricsF maß(gewünscht(f, m.wünsche, platz, ausrichtung, t));
    return maß.boundingRect(QRectF(QPointF(), platz), ausrichtung, t).size() * strecke;
}

void maleText(QPainter &p, const Maß &m, const QRect &r, int ausrichtung, const QString &t, const QFont &f,
              const QColor &farbe) {
    if (t.isEmpty()) return;
    const double strecke = m.jeTwip * 12 / Satzpunkte;
    const QSizeF platz = QSizeF(r.size()) / strecke;
    p.save();
    p.translate(r.topLeft());
    p.scale(strecke, strecke);
    p.setFont(gewünscht(f, m.wünsche, platz, ausrichtung, t));
    p.setPen(farbe);
    if (m.wünsche.kontrast)
        maleKontrast(p, QRectF(QPointF(), platz), ausrichtung, t, farbe);
    else
        p.drawText(QRectF(QPointF(), platz), ausrichtung, t);
    p.restore();
}

void malePapier(QPainter &p, const Maß &m, const QRect &r, const QColor &farbe, bool rahmen) {
    p.fillRect(r, farbe);
    if (!rahmen) return;
    const double breite = m.strich(3);
    const QRectF außen = QRectF(r).adjusted(breite / 2, breite / 2, -breite / 2, -breite / 2);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(farbton::Holz, breite, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.drawRect(außen);
    const double fein = m.strich(1), ab = breite * 1.5;
    p.setPen(QPen(QColor(0x8A, 0x66, 0x3E, 110), fein, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    p.drawRect(QRectF(r).adjusted(ab, ab, -ab, -ab));
}

} // namespace velmo
