#include "window/Tastenblatt.h"

#include "surface/Tastentafel.h"
#include "window/Farbtöne.h"
#include "window/Malen.h"
#include "window/Schmuck.h"
#include "window/Schrift.h"

#include <QPainter>

namespace velmo {

namespace {

// Maße in Twips der Anzeige.
constexpr Rechteck Blatt{960, 600, 7680, 6000};
constexpr double Zeile = 360, Kappe = 288, Blattrand = 480, Kopf = 1440, Spaltenbreite = 3480;

class Schreiber {
  public:
    Schreiber(QPainter &p, const Maß &m) : p(p), m(m) {}

    void satz(const Rechteck &wo, const QString &t, double grad, bool fett,
              int wie = Qt::AlignLeft | Qt::AlignVCenter) {
        maleText(p, m, m.rechteck(wo), wie, t, schrift("", grad, fett, Satzpunkte), farbton::Tinte);
    }

    /// Eine Taste als Kappe; gibt ihre Breite in Twips.
    double kappe(double x, double y, const QString &name) {
        const QFont f = schrift("", 8.25, true, Satzpunkte);
        const double breite = std::max(Kappe, QFontMetricsF(f).horizontalAdvance(name) / Satzpunkte * 12 + 132);
        const QRectF r = m.rechteck({x, y, breite, Kappe});
        const double rund = m.strich(4);
        p.setPen(Qt::NoPen);
        p.setBrush(farbton::Holzschatten);
        p.drawRoundedRect(r.translated(0, m.strich(1.5)), rund, rund);
        QLinearGradient licht(r.topLeft(), r.bottomLeft());
        licht.setColorAt(0, QColor(0xFF, 0xF6, 0xDE));
        licht.setColorAt(1, QColor(0xE9, 0xC8, 0x88));
        p.setBrush(licht);
        p.setPen(QPen(farbton::Holz, m.strich(1)));
        p.drawRoundedRect(r, rund, rund);
        satz({x, y, breite, Kappe}, name, 8.25, true, Qt::AlignCenter);
        return breite;
    }

    void zeile(double x, double y, const QString &tasten, const QString &wirkung, double tastenbreite) {
        double hier = x;
        for (const QString &name : tasten.split('|'))
            hier += kappe(hier, y, name) + 72;
        const double text = std::max(hier + 48, x + tastenbreite);
        satz({text, y - 24, x + Spaltenbreite - text, Kappe + 48}, wirkung, 8.25, false);
    }

  private:
    QPainter &p;
    const Maß &m;
};

} // namespace

Tastenblatt::Tastenblatt(QWidget *anzeige) : QWidget(anzeige) {
    setAccessibleName("Tasten");
    hide();
}

void Tastenblatt::folge(const Maß &m) {
    if (!isVisible()) return;
    maß = m;
    setGeometry(parentWidget()->rect());
    raise();
}

void Tastenblatt::zeige(const Maß &m) {
    show();
    folge(m);
    update();
}

void Tastenblatt::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), QColor(20, 10, 0, 110));
    p.scale(1 / maß.dichte, 1 / maß.dichte);
    const QRect blatt = maß.rechteck(Blatt);
    maleSchatten(p, blatt, static_cast<int>(maß.strich(10)));
    malePapier(p, maß, blatt, farbton::Papier, true);
    Schreiber s(p, maß);
    const double links = Blatt.Left + Blattrand, rechts = links + Spaltenbreite + 240, oben = Blatt.Top + Kopf;
    s.satz({links, Blatt.Top + 240, Blatt.Width - 2 * Blattrand, 600}, "Tasten", 18, true, Qt::AlignCenter);
    s.satz({links, oben - 456, Spaltenbreite, 360}, "Überall", 11, true);
    s.satz({rechts, oben - 456, Spaltenbreite, 360}, "Auf dem Brett", 11, true);
    double y = oben;
    for (const Fenstertaste &t : Fenstertastentafel) {
        s.zeile(links, y, t.Name, t.Wirkung, 1260);
        y += Zeile;
    }
    y = oben;
    for (const Brettaste &t : Brettastentafel) {
        s.zeile(rechts, y, t.Name, t.Wirkung, 456);
        y += Zeile;
    }
}

} // namespace velmo
