#include "window/Knopf.h"

#include "window/Farbtöne.h"
#include "window/Malen.h"
#include "window/Schrift.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>

namespace velmo {

namespace {

struct Aussehen {
    QColor oben, unten, rand;
};

const Aussehen Ruhe{{0xFF, 0xF4, 0xDC}, {0xE4, 0xC9, 0x98}, {0x7A, 0x58, 0x30}};
const Aussehen Überfahren{{0xFF, 0xFB, 0xEE}, {0xF1, 0xDA, 0xAC}, {0x7A, 0x58, 0x30}};
const Aussehen Gedrückt{{0xD8, 0xBA, 0x84}, {0xEE, 0xD8, 0xAE}, {0x5C, 0x40, 0x24}};
const Aussehen Gesperrt{{0xEA, 0xE2, 0xD2}, {0xDD, 0xD2, 0xBE}, {0xA8, 0x9A, 0x82}};

} // namespace

Knopf::Knopf(QWidget *form, Bildspeicher &bilder) : QAbstractButton(form), bilder(bilder) {
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

void Knopf::zeige(const Stück &neu, const Maß &m) {
    if (neu == stück && m == maß) return;
    stück = neu;
    maß = m;
    setText(velmo::text(stück.text).replace('&', "&&"));
    setAccessibleName(velmo::text(stück.text.empty() ? stück.hinweis : stück.text));
    setToolTip(velmo::text(stück.hinweis));
    setEnabled(!stück.gesperrt);
    update();
}

void Knopf::maleKörper(QPainter &p, const QRectF &r) const {
    const bool unten = isDown();
    const Aussehen &a = !isEnabled() ? Gesperrt : unten ? Gedrückt : underMouse() ? Überfahren : Ruhe;
    const double strich = maß.strich(1), rund = std::min({maß.strich(6), r.width() / 3, r.height() / 3});
    const QRectF außen = r.adjusted(strich / 2, strich / 2, -strich / 2, -strich * 1.5);

    // Der Fuß, auf dem der Knopf steht; gedrückt sinkt er in ihn hinein.
    p.setPen(Qt::NoPen);
    p.setBrush(isEnabled() ? farbton::Holzschatten : QColor(0xB4, 0xA6, 0x8E));
    p.drawRoundedRect(außen.translated(0, strich), rund, rund);

    const QRectF platte = unten ? außen.translated(0, strich) : außen;
    QLinearGradient verlauf(platte.topLeft(), platte.bottomLeft());
    verlauf.setColorAt(0, a.oben);
    verlauf.setColorAt(1, a.unten);
    p.setPen(QPen(a.rand, strich));
    p.setBrush(verlauf);
    p.drawRoundedRect(platte, rund, rund);
    if (!unten) { // Licht auf der oberen Kante
        p.setPen(QPen(QColor(255, 255, 255, isEnabled() ? 190 : 90), strich));
        p.drawLine(platte.topLeft() + QPointF(rund, strich), platte.topRight() + QPointF(-rund, strich));
    }
    if (zeigtFokus && hasFocus()) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(farbton::Messing, maß.strich(2)));
        p.drawRoundedRect(platte.adjusted(strich, strich, -strich, -strich), rund, rund);
    }
}

void Knopf::maleInhalt(QPainter &p, const QRect &r) const {
    QRect für = r;
    if (!stück.bild.empty()) {
        const QSize roh = bilder.rohgröße(stück.bild);
        const int schriftraum = stück.text.empty() ? 0 : maß.punkt(stück.schriftgrad * 26);
        const QSize platz(r.width(), r.height() - schriftraum);
        // Vier Punkte des Bildes sind einer des Entwurfs.
        QSize größe(maß.punkt(roh.width() * 3), maß.punkt(roh.height() * 3));
        if (größe.width() > platz.width() || größe.height() > platz.height()) größe.scale(platz, Qt::KeepAspectRatio);
        const int oben = r.top() + (platz.height() - größe.height()) / 2;
        if (!isEnabled()) p.setOpacity(0.45);
        maleBild(p, bilder, stück.bild, QRect(QPoint(r.left() + (r.width() - größe.width()) / 2, oben), größe));
        p.setOpacity(1);
        für.setTop(r.top() + platz.height());
    }
    const int wie = Qt::AlignCenter | Qt::TextWordWrap;
    const QString t = velmo::text(stück.text);
    const QFont f = schrift(stück.schriftart, stück.schriftgrad, stück.fett || stück.erhaben, maß.jeTwip);
    const QColor tinte = stück.farbe == Farbe{0} ? farbton::Tinte : farbton::aus(stück.farbe);
    if (stück.erhaben && isEnabled()) {
        const int ab = std::max(1, static_cast<int>(maß.strich(0.75)));
        maleText(p, für.translated(0, ab), wie, t, f, QColor(255, 255, 255, 200));
    }
    maleText(p, für, wie, t, f, isEnabled() ? tinte : farbton::Blass);
}

void Knopf::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    p.scale(1 / maß.dichte, 1 / maß.dichte);
    const QRect ganz(0, 0, static_cast<int>(std::lround(width() * maß.dichte)),
                     static_cast<int>(std::lround(height() * maß.dichte)));
    maleKörper(p, ganz);
    const int rand = static_cast<int>(maß.strich(3));
    const int tiefer = isDown() ? static_cast<int>(maß.strich(1)) : 0;
    maleInhalt(p, ganz.adjusted(rand, rand, -rand, -rand).translated(0, tiefer));
}

// Die Maus gehört der Eingabe des Spiels: hier ändert sich nur das Aussehen.
void Knopf::mousePressEvent(QMouseEvent *e) {
    setDown(e->button() == Qt::LeftButton);
    e->ignore();
}
void Knopf::mouseDoubleClickEvent(QMouseEvent *e) { mousePressEvent(e); }
void Knopf::mouseMoveEvent(QMouseEvent *e) {
    if (e->buttons() & Qt::LeftButton) setDown(rect().contains(e->pos()));
    e->ignore();
}
void Knopf::mouseReleaseEvent(QMouseEvent *e) {
    setDown(false);
    e->ignore();
}

void Knopf::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(e);
}

void Knopf::enterEvent(QEnterEvent *) { update(); }
void Knopf::leaveEvent(QEvent *) { update(); }

void Knopf::focusInEvent(QFocusEvent *e) {
    zeigtFokus = e->reason() == Qt::TabFocusReason || e->reason() == Qt::BacktabFocusReason;
    QAbstractButton::focusInEvent(e);
}

} // namespace velmo
