#include "window/Kästen.h"

#include "window/Fenster.h"
#include "window/Gestaltung.h"
#include "window/Knopf.h"
#include "window/Malen.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QVBoxLayout>

namespace velmo {

namespace {

/// Ein Knopf wie die des Spiels.
class Kastenknopf : public QPushButton {
  public:
    Kastenknopf(const QString &text, Fenster &fenster)
        : QPushButton(text), ruhe(fenster.knopfvorlage(Knopfzustand::Ruhe)),
          gedrückt(fenster.knopfvorlage(Knopfzustand::Gedrückt)), punkt(fenster.vergrößerung()) {}

  protected:
    void paintEvent(QPaintEvent *e) override {
        const QImage &vorlage = isDown() ? gedrückt : ruhe;
        if (vorlage.isNull()) return QPushButton::paintEvent(e);
        QStyleOptionButton wie;
        initStyleOption(&wie);
        const bool mitTasten = hasFocus() && wie.state & QStyle::State_KeyboardFocusChange;
        QPixmap körper = knopfkörper(vorlage, size() * devicePixelRatioF(), punkt * devicePixelRatioF());
        if (!isDown() && (underMouse() || mitTasten)) helleAuf(körper);
        QPainter p(this);
        p.drawPixmap(rect(), körper);
        style()->drawControl(QStyle::CE_PushButtonLabel, &wie, &p, this);
    }

  private:
    const QImage ruhe, gedrückt;
    const double punkt;
};

/// Ein Kasten mit Text und "OK" über dem Fenster, so groß wie die Anzeige es verlangt.
class Kasten : public QDialog {
  public:
    Kasten(Fenster &fenster, const QString &text, const QString &titel)
        : QDialog(&fenster, Qt::Dialog | Qt::FramelessWindowHint), fenster(fenster), grund(fenster.dialoggrund()),
          knöpfe(new QDialogButtonBox(this)) {
        const double punkt = fenster.vergrößerung(); // Längen des Fensters je Bildpunkt des Entwurfs
        const auto länge = [punkt](int entwurf) { return static_cast<int>(entwurf * punkt); };
        setWindowTitle(titel);
        setStyleSheet(kastengestalt(punkt));
        auto *zeile = new QLabel(text, this);
        zeile->setTextFormat(Qt::PlainText);
        zeile->setWordWrap(true);
        zeile->setAlignment(Qt::AlignCenter);
        zeile->setMinimumWidth(länge(260));
        zeile->setVisible(!text.trimmed().isEmpty());
        kopf = new QHBoxLayout;
        kopf->setSpacing(länge(14));
        kopf->addWidget(zeile);
        auto *spalte = new QVBoxLayout(this);
        spalte->setContentsMargins(länge(24), länge(24), länge(24), länge(20));
        spalte->setSpacing(länge(14));
        spalte->setSizeConstraint(QLayout::SetFixedSize);
        spalte->addLayout(kopf);
        spalte->addWidget(knöpfe);
        knöpfe->setCenterButtons(true);
        knöpfe->layout()->setSpacing(länge(12));
        knöpfe->addButton(new Kastenknopf("OK", fenster), QDialogButtonBox::AcceptRole);
        connect(knöpfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(knöpfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }

    /// Das Zeichen einer ernsten Meldung.
    void warne() {
        auto *zeichen = new QLabel(this);
        const int breit = static_cast<int>(fenster.vergrößerung() * 32);
        zeichen->setPixmap(
            style()->standardIcon(QStyle::SP_MessageBoxCritical).pixmap({breit, breit}, devicePixelRatioF()));
        kopf->insertWidget(0, zeichen, 0, Qt::AlignTop);
    }

    QLineEdit *fügeFeldEin() {
        auto *feld = new QLineEdit(this);
        static_cast<QVBoxLayout *>(layout())->insertWidget(1, feld);
        knöpfe->addButton(new Kastenknopf("Abbrechen", fenster), QDialogButtonBox::RejectRole);
        feld->setFocus();
        return feld;
    }

  protected:
    void showEvent(QShowEvent *) override {
        move(parentWidget()->mapToGlobal(parentWidget()->rect().center()) - rect().center());
    }

    /// Papier in einem Holzrahmen, wie die Dialoge des Spiels.
    void paintEvent(QPaintEvent *e) override {
        constexpr int Ecke = 44; // Punkte des Bildes, vier je Bildpunkt des Entwurfs
        if (grund.isNull()) return QDialog::paintEvent(e);
        QPainter p(this);
        maleGestreckt(p, grund, Ecke, rect(), static_cast<int>(fenster.vergrößerung() * Ecke / 4));
    }

  private:
    Fenster &fenster;
    const QImage grund;
    QHBoxLayout *kopf; // Zeichen und Text
    QDialogButtonBox *knöpfe;
};

} // namespace

std::string fehlersatz(const std::exception &fehler) {
    return std::string("Velmo muss enden, weil dem Rechner etwas misslang: ") + fehler.what();
}

void melde(Fenster &fenster, const QString &text, const QString &titel, Meldungsart art) {
    Kasten kasten(fenster, text, titel);
    if (art == Meldungsart::Kritisch) kasten.warne();
    kasten.exec();
}

std::optional<std::string> frageNach(Fenster &fenster, const QString &frage, const QString &titel) {
    Kasten kasten(fenster, frage, titel);
    QLineEdit *feld = kasten.fügeFeldEin();
    feld->setAccessibleName(frage);
    if (kasten.exec() != QDialog::Accepted) return std::nullopt;
    return feld->text().normalized(QString::NormalizationForm_C).toStdString();
}

} // namespace velmo
