#pragma once
// Das Fenster des Programms: darin die Anzeige von 800 mal 600 Bildpunkten des Entwurfs, auf das Fenster gestreckt, mit
// einer Fläche je geladener Form.
#include "platform/Eingabe.h"
#include "window/Formfläche.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <map>
#include <vector>

namespace velmo {

class Fenster : public QWidget {
  public:
    /// schließt wird gerufen, wenn der Spieler das Fenster schließt.
    Fenster(Umgebung &, std::function<void()> schließt);

    /// Bringt alles auf den Stand der Formulare.
    void folge();
    /// Die Fläche der Form; null, wenn sie noch keine hat.
    Formfläche *fläche(const Form &) const;
    /// Längen des Fensters je Bildpunkt des Entwurfs.
    double vergrößerung() const { return maß.jeTwip * 12 / maß.dichte; }

  protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void closeEvent(QCloseEvent *) override;
    void keyPressEvent(QKeyEvent *) override;
    void mouseMoveEvent(QMouseEvent *) override;
    void mousePressEvent(QMouseEvent *) override;
    void mouseReleaseEvent(QMouseEvent *) override;
    void mouseDoubleClickEvent(QMouseEvent *) override;

  private:
    void messe();
    void wechsleVollbild();
    void folgeReihenfolge(const std::vector<Form *> &);
    void folgeVorderster(const std::vector<Form *> &);
    void folgeGezogenem();
    void folgeZeiger(Punkt);
    void setzeZeiger(const Picture &);
    Punkt ort(const QMouseEvent &) const;

    Umgebung &u;
    std::function<void()> schließt;
    QWidget anzeige;
    Maß maß;
    std::map<std::uint64_t, Formfläche *> flächen; // nach der Nummer der Form
    std::vector<std::uint64_t> reihenfolge;
    std::uint64_t vorderste = 0;
    class Ziehbild;
    Ziehbild *ziehbild;
    QTimer beruhigt; // der Spieler zieht nicht mehr am Fenster
};

} // namespace velmo
