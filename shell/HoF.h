#pragma once
// Die Besten.
#include "include/Programm.h"

namespace velmo {

class HoF : public Form {
  public:
    static constexpr Formularname Formname = formular::HoF;
    explicit HoF(Programm &);

    Shape Shape1{*this, "Shape1", {2520, 0, 4212, 972}, Gestalt::GerundetesRechteck};
    Label Label3{*this, "Label3", {3000, 200, 3264, 576}, "DIE BESTEN"};
    Label Namending{*this, "Namending", {960, 1320, 3732, 4812}};
    Label Zahlending{*this, "Zahlending", {5040, 1320, 4212, 5532}};
    velmo::SSCommand SSCommand1{*this, "SSCommand1", {600, 6840, 1932, 372}, "Zurück zum Menü"};

    void Form_Load() override;

  private:
    Programm &p;
};

} // namespace velmo
