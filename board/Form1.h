#pragma once
// Das Brett im Spiel: der Zug, die Würfel, die Knöpfe.
#include "model/Brett.h"

namespace velmo {

class Form1 : public Brett {
  public:
    explicit Form1(Programm &);

    void Form_Load() override;

  private:
    Programm &p;
};

} // namespace velmo
