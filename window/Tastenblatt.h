#pragma once
// Das Blatt über der Anzeige, das alle Tasten zeigt. Es gehört dem Fenster; das Spiel darunter läuft weiter.
#include "window/Maß.h"

#include <QWidget>

namespace velmo {

class Tastenblatt : public QWidget {
  public:
    explicit Tastenblatt(QWidget *anzeige);
    void zeige(const Maß &);
    void folge(const Maß &);

  protected:
    void paintEvent(QPaintEvent *) override;
    void mousePressEvent(QMouseEvent *) override { hide(); }

  private:
    Maß maß;
};

} // namespace velmo
