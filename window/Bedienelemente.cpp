#include "window/Bedienelemente.h"

#include "include/Programm.h"
#include "surface/Textseite.h"
#include "window/Farbtöne.h"
#include "window/Schrift.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLinearGradient>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleOption>
#include <QTextBlock>
#include <QTextEdit>

namespace velmo {

namespace {

/// Schrift in Längen des Fensters.
void nimmSchrift(QWidget &w, const Schriftelement &e, const Maß &m) {
    QFont f = schrift(e.FontName, e.FontSize * e.Schriftmaß, e.FontBold, m.jeTwip * 12 / m.dichte);
    // Im Feld soll eine Zeile ganz zu sehen sein, in der Liste zwei.
    const double anteil = dynamic_cast<const ListBox *>(&e) ? 0.42 : 0.55;
    const int höchstens = static_cast<int>(e.Height * m.jeTwip / m.dichte * anteil);
    f.setPixelSize(std::max(f.pixelSize(), std::min(static_cast<int>(f.pixelSize() * m.wünsche.schrift), höchstens)));
    w.setFont(f);
}

QRect innen(const VisualControl &c, const Maß &m) { return m.fensterrechteck(m.rechteck({0, 0, c.Width, c.Height})); }

/// Verkleinert die Schrift, bis der Text in die Breite passt, höchstens auf zwei Drittel.
void passeEin(QWidget &w, const QString &text, int platz) {
    QFont f = w.font();
    const int mindestens = f.pixelSize() * 2 / 3;
    while (f.pixelSize() > mindestens && QFontMetrics(f).horizontalAdvance(text) > platz)
        f.setPixelSize(f.pixelSize() - 1);
    w.setFont(f);
}

void passeEin(QLineEdit &w, const QRect &ort) {
    constexpr int Einzug = 4; // den Qt im Feld noch lässt
    QStyleOptionFrame wie;
    wie.initFrom(&w);
    wie.rect = ort;
    passeEin(w, w.text(), w.style()->subElementRect(QStyle::SE_LineEditContents, &wie, &w).width() - Einzug);
}

void passeEin(QComboBox &w, const QRect &ort) {
    QStyleOptionComboBox wie;
    wie.initFrom(&w);
    wie.rect = ort;
    const int platz = w.style()->subControlRect(QStyle::CC_ComboBox, &wie, QStyle::SC_ComboBoxEditField, &w).width();
    for (int i = 0; i < w.count(); ++i)
        passeEin(w, w.itemText(i), platz);
}

Bedienelement textfeld(TextBox &feld, QWidget *form, Programm &p, const Bearbeiter &bearbeite) {
    auto *w = new QLineEdit(form);
    // Auch was nicht getippt, sondern gesetzt wurde: Vorleseprogramme schreiben so.
    QObject::connect(w, &QLineEdit::textChanged, w, [&, bearbeite](const QString &neu) {
        if (neu == text(feld.Text)) return;
        bearbeite([&] { p.eingabe.tippe(feld, neu.normalized(QString::NormalizationForm_C).toStdString()); });
    });
    return {w, [w, &feld](const Maß &m) {
                nimmSchrift(*w, feld, m);
                if (w->text() != text(feld.Text)) w->setText(text(feld.Text));
                if (!w->hasFocus()) w->setCursorPosition(0); // ein langer Text zeigt seinen Anfang
                passeEin(*w, innen(feld, m));
            }};
}

/// Ein langer Text, der am Rand verblasst, hinter dem er weitergeht.
class Textblatt : public QTextEdit {
  public:
    explicit Textblatt(QWidget *form) : QTextEdit(form) {
        connect(verticalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
    }

  protected:
    void paintEvent(QPaintEvent *e) override {
        QTextEdit::paintEvent(e);
        const QScrollBar &leiste = *verticalScrollBar();
        if (leiste.value() > leiste.minimum()) verblasse(0, 1);
        if (leiste.value() < leiste.maximum()) verblasse(viewport()->height(), -1);
    }

  private:
    void verblasse(qreal rand, qreal hinein) {
        const qreal bis = rand + hinein * fontInfo().pixelSize() * Schleier;
        QColor papier = palette().color(QPalette::Base);
        QLinearGradient schleier(0, rand, 0, bis);
        schleier.setColorAt(0, papier);
        papier.setAlpha(0);
        schleier.setColorAt(1, papier);
        QPainter(viewport())
            .fillRect(QRectF(QPointF(0, rand), QPointF(viewport()->width(), bis)).normalized(), schleier);
    }
};

/// Der Text als Seite: Überschriften abgesetzt, Aufzählungen eingerückt; grad: Längen des Fensters.
void setzeSeite(QTextEdit &w, const QString &t, int grad) {
    w.setPlainText(t);
    w.document()->setDocumentMargin(grad * 0.7);
    for (QTextBlock zeile = w.document()->begin(); zeile.isValid(); zeile = zeile.next()) {
        const Zeilensatz &s = zeilensatz(zeile.text().toStdString());
        QTextCursor hier(zeile);
        QTextBlockFormat satz;
        satz.setTopMargin(grad * s.darüber);
        satz.setLeftMargin(grad * s.links);
        satz.setLineHeight(112, QTextBlockFormat::ProportionalHeight);
        hier.setBlockFormat(satz);
        if (!s.überschrift()) continue;
        QTextCharFormat schrift;
        schrift.setFontWeight(QFont::Bold);
        schrift.setForeground(farbton::aus(s.farbe));
        schrift.setProperty(QTextFormat::FontPixelSize, static_cast<int>(grad * s.groß));
        hier.select(QTextCursor::BlockUnderCursor);
        hier.mergeCharFormat(schrift);
    }
}

Bedienelement textfläche(TextBox &feld, QWidget *form) {
    auto *w = new Textblatt(form);
    w->setReadOnly(true);
    w->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    w->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return {w, [w, &feld, gesetzt = 0](const Maß &m) mutable {
                nimmSchrift(*w, feld, m);
                const int grad = w->font().pixelSize();
                if (grad == gesetzt && w->toPlainText() == text(feld.Text)) return;
                const int stelle = w->verticalScrollBar()->value();
                setzeSeite(*w, text(feld.Text), grad);
                w->verticalScrollBar()->setValue(stelle);
                gesetzt = grad;
            }};
}

void doppelklick(Programm &p, const VisualControl &c) {
    const Punkt ecke = Eingabe::ort(c);
    p.eingabe.doppelklick({ecke.x + c.Width / 2, ecke.y + c.Height / 2});
}

Bedienelement liste(Listenelement &l, QWidget *form, Programm &p, const Bearbeiter &bearbeite) {
    auto *w = new QListWidget(form);
    w->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QObject::connect(w, &QListWidget::currentRowChanged, w,
                     [&, bearbeite](int zeile) { bearbeite([&] { p.eingabe.wähle(l, zeile); }); });
    QObject::connect(w, &QListWidget::itemDoubleClicked, w, [&, bearbeite] { bearbeite([&] { doppelklick(p, l); }); });
    return {w, [w, &l](const Maß &m) {
                const QSignalBlocker still(w);
                nimmSchrift(*w, l, m);
                QStringList zeilen, da;
                for (const std::string &z : l.Zeilen())
                    zeilen << text(z);
                for (int i = 0; i < w->count(); ++i)
                    da << w->item(i)->text();
                if (zeilen != da) {
                    w->clear();
                    w->addItems(zeilen);
                }
                const int zeile = static_cast<int>(l.ListIndex);
                if (w->currentRow() != zeile) w->setCurrentRow(zeile);
                if (w->currentItem()) w->scrollToItem(w->currentItem());
            }};
}

Bedienelement auswahl(Listenelement &l, QWidget *form, Programm &p, const Bearbeiter &bearbeite) {
    auto *w = new QComboBox(form);
    QObject::connect(w, &QComboBox::activated, w,
                     [&, bearbeite](int zeile) { bearbeite([&] { p.eingabe.wähle(l, zeile); }); });
    return {w, [w, &l](const Maß &m) {
                const QSignalBlocker still(w);
                nimmSchrift(*w, l, m);
                if (w->count() != l.ListCount()) {
                    w->clear();
                    for (const std::string &z : l.Zeilen())
                        w->addItem(text(z));
                }
                w->setCurrentIndex(static_cast<int>(l.ListIndex));
                passeEin(*w, innen(l, m));
            }};
}

Bedienelement rollbalken(VScrollBar &leiste, QWidget *form, Programm &p, const Bearbeiter &bearbeite) {
    auto *w = new QScrollBar(Qt::Vertical, form);
    w->setRange(0, 1);
    w->setPageStep(1);
    QObject::connect(w, &QScrollBar::valueChanged, w,
                     [&, bearbeite](int wert) { bearbeite([&] { p.eingabe.rolle(leiste, wert); }); });
    return {w, [w, &leiste](const Maß &) {
                const QSignalBlocker still(w);
                w->setValue(static_cast<int>(leiste.Value));
            }};
}

} // namespace

Bedienelement bedienelement(VisualControl &c, QWidget *form, Programm &p, const Bearbeiter &bearbeite) {
    if (auto *feld = dynamic_cast<TextBox *>(&c))
        return feld->MultiLine ? textfläche(*feld, form) : textfeld(*feld, form, p, bearbeite);
    if (auto *l = dynamic_cast<ComboBox *>(&c)) return auswahl(*l, form, p, bearbeite);
    if (auto *l = dynamic_cast<Listenelement *>(&c)) return liste(*l, form, p, bearbeite);
    if (auto *leiste = dynamic_cast<VScrollBar *>(&c)) return rollbalken(*leiste, form, p, bearbeite);
    return {};
}

} // namespace velmo
