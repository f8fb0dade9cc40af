#pragma once
// Die Hilfe.
#include "include/Programm.h"

namespace velmo {

class frmHilfe : public Form {
  public:
    static constexpr Formularname Formname = formular::frmHilfe;
    explicit frmHilfe(Programm &);

    Label Label1{*this, "Label1", {3240, 0, 3972, 612}, "Hilfe zu VELMO"};
    TextBox Text6{*this, "Text6", {120, 600, 9492, 6372}, "", true};
    CommandButton Command1{*this, "Command1", {-120, 6960, 9732, 192}, "Beenden"};

  private:
    Programm &p;
};

} // namespace velmo
