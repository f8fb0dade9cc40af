#pragma once
// Was auf einer Form purzelt und staubt, und wie es gerade steht.
#include "surface/Haltung.h"
#include "window/Maß.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPixmap>

#include <map>
#include <vector>

namespace velmo {

/// Die laufenden Bewegungen einer Form.
class Schwung {
  public:
    Schwung() { uhr.start(); }
    /// Vergleicht ein Stück mit dem, was es war, und merkt sich, was nun purzelt oder staubt.
    void bemerke(const Stück &alt, const Stück &neu);
    Haltung haltung(const Stück &) const;
    /// Über und neben dem Stück: der Staub um ein steigendes Haus.
    void maleStaub(QPainter &, const Maß &, const Stück &) const;
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
