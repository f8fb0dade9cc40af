#pragma once
// Die Knöpfe des Spiels: ein Schalter des Systems in eigener Gestalt. Maus und Tasten drücken ihn durch die Eingabe des
// Spiels; clicked meldet nur, wer ihn vorgelesen bekam.
#include "platform/Zeichenliste.h"
#include "window/Bildspeicher.h"
#include "window/Maß.h"

#include <QAbstractButton>

namespace velmo {

enum class Knopfzustand { Ruhe, Überfahren, Gedrückt, Gesperrt };

/// Das Bild, nach dem ein Knopf in diesem Zustand gemacht wird; leer, wenn es fehlt. spielordner: wo "bilder" liegt.
QImage knopfvorlage(Bildspeicher &, const std::string &spielordner, Knopfzustand);
/// Der Körper eines Knopfs: die Ecken der Vorlage bleiben, ihre Kanten strecken sich. größe in Punkten des Bildschirms,
/// punkt: wie viele davon ein Bildpunkt des Entwurfs hat.
QPixmap knopfkörper(const QImage &vorlage, const QSize &größe, double punkt);
/// Heller, weil die Maus darüber steht.
void helleAuf(QPixmap &körper);

class Knopf : public QAbstractButton {
  public:
    Knopf(QWidget *form, Bildspeicher &, std::string spielordner);
    void zeige(const Stück &, const Maß &);

  protected:
    void paintEvent(QPaintEvent *) override;
    void mousePressEvent(QMouseEvent *) override;
    void mouseReleaseEvent(QMouseEvent *) override;
    void mouseDoubleClickEvent(QMouseEvent *) override;
    void mouseMoveEvent(QMouseEvent *) override;
    void enterEvent(QEnterEvent *) override;
    void leaveEvent(QEvent *) override;

  private:
    Knopfzustand zustand() const;
    QPixmap körper(Knopfzustand, const QSize &) const;
    void maleInhalt(QPainter &, const QRect &) const;

    Bildspeicher &bilder;
    const std::string spielordner;
    Stück stück;
    Maß maß;
    QPixmap fertig; // der Körper in seinem letzten Zustand
    Knopfzustand fertigIn = Knopfzustand::Ruhe;
};

} // namespace velmo
