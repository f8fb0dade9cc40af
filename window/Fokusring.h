#pragma once
// Der Ring um das Steuerelement, dem die Tasten gelten: Messing zwischen dunklen Linien, auf jedem Bild zu sehen.
#include "window/Maß.h"

#include <QWidget>

namespace velmo {

class Fokusring : public QWidget {
  public:
    explicit Fokusring(QWidget *anzeige);
    enum class Lage { Frei, Gedrückt, Gesperrt };
    /// Legt ihn um den Ort, in Längen der Anzeige; gedrückt zieht er sich zusammen, gesperrt ist er blass.
    void zeige(const QRect &ort, const Maß &, Lage);

  protected:
    void paintEvent(QPaintEvent *) override;

  private:
    Maß maß;
    Lage lage = Lage::Frei;
};

} // namespace velmo
