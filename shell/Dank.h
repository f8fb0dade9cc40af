#pragma once
// Der Abspann.
#include "include/Programm.h"

namespace velmo {

class Dank : public Form {
  public:
    static constexpr Formularname Formname = formular::Dank;
    explicit Dank(Programm &);

    Label Label1{*this, "Label1", {120, 240, 9612, 7212}};
    TextBox Text1{*this, "Text1", {3840, 1440, 3372, 3252}, "", true}; // hält den Text und bleibt verborgen

    void Form_Load() override { Label1.Caption = Text1.Text; }

  private:
    Programm &p;
};

} // namespace velmo
