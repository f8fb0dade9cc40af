#pragma once
// Die Töne der Medienelemente: öffnen, spielen, schließen, und wie weit ein Stück ist. Was sich nicht spielen lässt,
// bleibt still.
#include "platform/Control.h"

#include <map>
#include <memory>

namespace velmo {

struct Stimme;
class Tonwerk;

class Klang {
  public:
    Klang();
    ~Klang();
    /// Von nun an klingt, was gespielt wird; was bis dahin befohlen war, wird nachgeholt.
    void beginne();
    void befehl(const MMControl &, Befehl);
    /// Von 0 bis 1. Auch ohne Lautstärke dauert jeder Ton so lang wie er ist.
    void stelleLautstärke(double);
    /// Klingt das Element noch? Ein Gerät, das hängt, verlängert das um höchstens eine halbe Sekunde.
    bool klingt(const MMControl &) const;
    /// Ort und Ende in ms; ohne Ton beide 0.
    long Position(const MMControl &) const;
    long Length(const MMControl &) const;
    void vergiss(const Control &);

  private:
    const Stimme *stimme(const Control &) const;

    std::map<const Control *, std::shared_ptr<Stimme>> stimmen; // die geöffneten
    std::unique_ptr<Tonwerk> werk;
};

} // namespace velmo
