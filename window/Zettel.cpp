#include "window/Zettel.h"

#include "window/Gestaltung.h"

namespace velmo {

namespace {

constexpr int Dauer = 1500;        // ms
constexpr double Randabstand = 18; // Bildpunkte des Entwurfs

} // namespace

Zettel::Zettel(QWidget *fenster) : QLabel(fenster) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    ende.setSingleShot(true);
    ende.setInterval(Dauer);
    ende.callOnTimeout([this] { hide(); });
    hide();
}

void Zettel::zeige(const QString &t, double vergrößerung) {
    setStyleSheet(zettelgestalt(vergrößerung));
    setText(t);
    adjustSize();
    const QRect platz = parentWidget()->rect();
    move((platz.width() - width()) / 2, platz.height() - height() - static_cast<int>(Randabstand * vergrößerung));
    show();
    raise();
    ende.start();
}

} // namespace velmo
