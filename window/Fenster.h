#pragma once
// Das Fenster des Programms: darin die Anzeige von 800 mal 600 Bildpunkten des Entwurfs, auf das Fenster gestreckt, mit
// einer Fläche je geladener Form.
#include "platform/Eingabe.h"
#include "shell/Umland.h"
#include "surface/Tasten.h"
#include "window/Fokusring.h"
#include "window/Formfläche.h"
#include "window/Knopf.h"
#include "window/Tastenblatt.h"
#include "window/Zettel.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace velmo {

class Vorleser;

class Fenster : public QWidget {
  public:
    /// schließt wird gerufen, wenn der Spieler das Fenster schließt.
    Fenster(Umgebung &, std::function<void()> schließt);
    ~Fenster() override;

    /// Bringt alles auf den Stand der Formulare. Gleitet eine, so wird nebenher gelesen, was hinter den gezeigten
    /// liegt: vielleicht macht sie den Weg dorthin frei.
    void folge(bool gleitet = false);
    /// Die Fläche der Form; null, wenn sie noch keine hat.
    Formfläche *fläche(const Form &) const;
    /// Längen des Fensters je Bildpunkt des Entwurfs.
    double vergrößerung() const { return maß.jeTwip * 12 / maß.dichte; }
    Fokus &fokus() { return tastenfokus; }
    void erfülle(const Wünsche &);
    bool ruhig() const { return maß.wünsche.ruhig; }
    Vorleser *vorleser() const { return leser.get(); }
    /// Papier und Holz der Dialoge; leer, wenn das Bild fehlt.
    QImage dialoggrund() { return u.bilder.roh(u.p.Ordner + "/bilder/formen/exchange/exchange.jpg"); }
    QImage knopfvorlage(Knopfzustand z) { return velmo::knopfvorlage(u.bilder, u.p.Ordner, z); }
    /// Eine kurze Notiz am unteren Rand.
    void notiere(const QString &t) { zettel->zeige(t, vergrößerung()); }

  protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void closeEvent(QCloseEvent *) override;
    void changeEvent(QEvent *) override;
    bool eventFilter(QObject *, QEvent *) override;
    bool focusNextPrevChild(bool) override { return false; } // die Tabulatortaste ist eine von Tasten
    void keyPressEvent(QKeyEvent *) override;
    void keyReleaseEvent(QKeyEvent *) override;
    void mouseMoveEvent(QMouseEvent *) override;
    void mousePressEvent(QMouseEvent *) override;
    void mouseReleaseEvent(QMouseEvent *) override;
    void mouseDoubleClickEvent(QMouseEvent *) override;

  private:
    void messe();
    void räumeAuf();
    void wechsleVollbild();
    void folgeReihenfolge(const std::vector<Form *> &);
    void folgeUmland();
    void folgeFokus();
    void folgeRing();
    void nimmFokus();
    void folgeGezogenem();
    void folgeBerührtem();
    void folgeZeiger(Punkt);
    void setzeZeiger(const Picture &);
    Punkt ort(const QMouseEvent &) const;

    Umgebung &u;
    std::function<void()> schließt;
    QWidget anzeige;
    Maß maß;
    std::map<std::uint64_t, Formfläche *> flächen; // nach der Nummer der Form
    std::vector<std::uint64_t> reihenfolge;
    bool gleitet = false; // eine Form
    Umland umgebend;
    class Ziehbild;
    Ziehbild *ziehbild;
    Fokus tastenfokus;
    Tasten tasten;
    Fokusring *ring;
    Tastenblatt *blatt;
    Zettel *zettel;
    std::unique_ptr<Vorleser> leser;
    QTimer beruhigt;   // der Spieler zieht nicht mehr am Fenster
    QTimer stillstand; // was sich bewegt hat, steht vielleicht
    QTimer danach;     // Formen sind gegangen, und was sie brauchten, ist frei
};

} // namespace velmo
