#pragma once
// Eine kurze Notiz des Fensters am unteren Rand, die von selbst vergeht: "Ton aus".
#include <QLabel>
#include <QTimer>

namespace velmo {

class Zettel : public QLabel {
  public:
    explicit Zettel(QWidget *fenster);
    /// Längen des Fensters je Bildpunkt des Entwurfs.
    void zeige(const QString &, double vergrößerung);

  private:
    QTimer ende;
};

} // namespace velmo
