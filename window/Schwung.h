#pragma once
// Wie sich Gezeigtes bewegt, während sein Wert schon dort ist, wo die Regel ihn haben will: ein Würfel purzelt, ein
// Wagen legt sich in die Fahrt, um ein steigendes Haus wirbelt Staub. Zeiten in ms, Drehungen in Grad.
#include "platform/Zeichenliste.h"
#include "window/Maß.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>
#include <QPointF>

#include <map>
#include <string>
#include <vector>

namespace velmo {

/// Wie ein Stück gerade gezeigt wird, gegen seinen Ort.
struct Haltung {
    QPointF versatz; // Twips
    double drehung = 0, breite = 1, maß = 1;
    std::string bild; // statt seines eigenen; leer: seines
};

/// Ein Wagen zwischen zwei Feldern; weg: Twips von seinem neuen Ort zum alten, altesBild: das er dort trug.
Haltung fahrt(const QPointF &weg, double anteil, const std::string &altesBild, const std::string &bild);

/// Die laufenden Bewegungen einer Form.
class Schwung {
  public:
    Schwung() { uhr.start(); }
    /// Vergleicht ein Stück mit dem, was es war, und merkt sich, was nun purzelt oder staubt.
    void bemerke(const Stück &alt, const Stück &neu);
    Haltung haltung(const Stück &) const;
    /// Über und neben dem Stück: der Staub um ein steigendes Haus.
    void maleStaub(QPainter &, const Maß &, const Stück &) const;
    /// Wie weit der Staub über das Stück hinausreicht, in Twips.
    static constexpr double Staubweite = 520;
    /// Was sich noch bewegt; Vergangenes ist danach vergessen.
    std::vector<const Control *> lebendes();

  private:
    struct Wurf {
        double beginn, drehung;
    };
    struct Staub {
        double beginn, ende; // in dieser Zeit wird neuer aufgewirbelt
    };
    double nun() const { return static_cast<double>(uhr.nsecsElapsed()) / 1e6; }

    QElapsedTimer uhr;
    std::map<const Control *, Wurf> würfe;
    std::map<const Control *, Staub> stäube;
};

} // namespace velmo
