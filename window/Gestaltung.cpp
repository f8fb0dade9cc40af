#include "window/Gestaltung.h"

#include "window/Farbtöne.h"
#include "window/Schrift.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

/// Knöpfe der Kästen ohne Zeichen; eine Auswahl gleicht den anderen Feldern.
class Stil : public QProxyStyle {
  public:
    Stil() : QProxyStyle("Fusion") {}
    int styleHint(StyleHint hint, const QStyleOption *o, const QWidget *w, QStyleHintReturn *r) const override {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, o, w, r);
    }

    void drawComplexControl(ComplexControl was, const QStyleOptionComplex *o, QPainter *p,
                            const QWidget *w) const override {
        if (was != CC_ComboBox) return QProxyStyle::drawComplexControl(was, o, p, w);
        constexpr double Feldhöhe = 24; // Bildpunkte des Entwurfs
        const double je = o->rect.height() / Feldhöhe;
        p->save();
        p->setRenderHint(QPainter::Antialiasing);
        maleFeld(*p, o->rect, je, o->state & State_HasFocus ? farbton::Feldfokus : farbton::Holz);
        malePfeil(*p, o->rect, je);
        p->restore();
    }

  private:
    static void maleFeld(QPainter &p, const QRectF &feld, double je, const QColor &kante) {
        constexpr double Rundung = 4;
        const double dick = std::max(1.0, std::round(je));
        p.setPen(QPen(kante, dick));
        p.setBrush(farbton::Papierlicht);
        const QRectF mitte = feld.adjusted(dick / 2, dick / 2, -dick / 2, -dick / 2);
        p.drawRoundedRect(mitte, Rundung * je, Rundung * je);
    }

    static void malePfeil(QPainter &p, const QRectF &feld, double je) {
        constexpr double Breite = 8, Höhe = 4, Rand = 7;
        const double rechts = feld.right() - Rand * je, oben = feld.center().y() - Höhe / 2 * je;
        const QPointF ecken[] = {
            {rechts - Breite * je, oben}, {rechts, oben}, {rechts - Breite / 2 * je, oben + Höhe * je}};
        p.setPen(Qt::NoPen);
        p.setBrush(farbton::Holz);
        p.drawPolygon(ecken, 3);
    }
};

QPalette palette() {
    using namespace farbton;
    QPalette p(QColor(0xE9, 0xD8, 0xB4), Papier);
    p.setColor(QPalette::Base, Papierlicht);
    p.setColor(QPalette::Text, Tinte);
    p.setColor(QPalette::WindowText, Tinte);
    p.setColor(QPalette::ButtonText, Tinte);
    p.setColor(QPalette::Highlight, Holz);
    p.setColor(QPalette::HighlightedText, Papierlicht);
    p.setColor(QPalette::ToolTipBase, Papierlicht);
    p.setColor(QPalette::ToolTipText, Tinte);
    for (const auto rolle : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, rolle, Blass);
    return p;
}

QString länge(double entwurf, double vergrößerung) {
    return QString::number(std::max(1, static_cast<int>(std::lround(entwurf * vergrößerung)))) + "px";
}

/// Setzt %1 bis %9 ein: Längen von 1, 2, 3, 4, 6, 8, 12, 14 und 60 Bildpunkten des Entwurfs.
QString mitLängen(const char *vorlage, double v) {
    QString gestalt = vorlage;
    int stelle = 0;
    for (const double entwurf : {1, 2, 3, 4, 6, 8, 12, 14, 60})
        gestalt.replace("%" + QString::number(++stelle), länge(entwurf, v));
    return gestalt;
}

} // namespace

void gestalteProgramm() {
    QApplication::setStyle(new Stil);
    QApplication::setPalette(palette());
    QApplication::setFont(schrift("", 8.25, false, 1));
    QToolTip::setPalette(palette());
}

QString feldgestalt(double v) {
    return mitLängen(R"(
        QLineEdit, QTextEdit, QListWidget {
            background: #FFFBF2; color: #2E2114; border: %1 solid #8A663E; border-radius: %4; padding: %1 %3;
            selection-background-color: #8A663E; selection-color: #FFFBF2 }
        QLineEdit:focus, QListWidget:focus { border-color: #C48A1E }
        QLineEdit:disabled, QListWidget:disabled { color: #8E8270 }
        QListWidget::item { padding: 0 %2; background: transparent }
        QListWidget::item:selected { background: #8A663E; color: #FFFBF2 }
        QScrollBar:vertical { background: #E9D8B4; width: %7; margin: 0; border-radius: %3 }
        QScrollBar::handle:vertical { background: #A97F4C; min-height: %8; border-radius: %3; margin: %1 }
        QScrollBar::handle:vertical:hover { background: #C2945A }
        QScrollBar::add-line, QScrollBar::sub-line { height: 0 }
        QScrollBar::add-page, QScrollBar::sub-page { background: none })",
                     v);
}

QString kastengestalt(double v) {
    return mitLängen(R"(
        QDialog { background: #F4EBDC; border: %3 solid #8A663E }
        QLabel { color: #2E2114; font-size: %8 }
        QLineEdit {
            background: #FFFBF2; color: #2E2114; font-size: %8; border: %1 solid #8A663E; border-radius: %4;
            padding: %2 %4; selection-background-color: #8A663E; selection-color: #FFFBF2 }
        QPushButton {
            font-size: %8; color: #2E2114; min-width: %9; padding: %4 %7; border: %1 solid #7A4A1C;
            border-bottom: %3 solid #6E4018; border-radius: %6;
            background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #FFF6DE, stop:1 #E0B469) }
        QPushButton:hover, QPushButton:focus {
            background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #FFFBEF, stop:1 #EBC98B) }
        QPushButton:pressed { border-bottom-width: %1; border-top-width: %3; background: #D2A057 })",
                     v);
}

QString zettelgestalt(double v) {
    return mitLängen(R"(
        QLabel {
            background: #F4EBDC; color: #2E2114; font-size: %8; border: %2 solid #8A663E; border-radius: %6;
            padding: %4 %7 })",
                     v);
}

} // namespace velmo
