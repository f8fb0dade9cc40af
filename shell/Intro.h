#pragma once
// Der Film am Anfang; nach ihm, einem Klick oder einer Taste kommt das Menü.
#include "include/Programm.h"

namespace velmo {

class Intro : public Form {
  public:
    static constexpr Formularname Formname = formular::Intro;
    explicit Intro(Programm &);

    Animation Animation1{*this, "Animation1", {-20, 0, 3612, 2292}};
    Timer Timer1{*this, "Timer1", 9500, true};
    MMControl MMControl1{*this, "MMControl1"};

    void Form_Load() override;

  private:
    void beende();
    Programm &p;
};

} // namespace velmo
