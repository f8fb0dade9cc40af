#pragma once
// Der Dialog einer Baugenehmigung: der Mensch wählt das Hotel, an dem er anbaut.
#include "property/Brettdialog.h"

namespace velmo {

class Baufeld : public Brettdialog {
  public:
    static constexpr Formularname Formname = formular::Baufeld;
    explicit Baufeld(Programm &);

    Image Image1{*this, "Image1", {240, 240, 5532, 1692}};
    Image Image2{*this, "Image2", {240, 2040, 444, 504}};
    Label Label2{*this,
                 "Label2",
                 {480, 360, 5172, 852},
                 "Sie sind auf einem Baufeld gelandet. Suchen sie sich eines ihrer Hotels aus, und bauen sie an."};
    Label Label1{*this, "Label1", {1560, 2040, 4092, 492}};
    CommandButton Command2{*this, "Command2", {360, 1080, 1092, 612}, "Nichts Anbauen"};
    SSCommand Command9{*this, "Command9", {1560, 1080, 2052, 612}, "Anbauen"};
    CommandButton Command4{*this, "Command4", {3720, 1080, 1092, 612}, "Besitzkarten"};
    CommandButton Command3{*this, "Command3", {4920, 1080, 732, 612}, "Hotels..."};

    void Form_Load() override;

  private:
    void Command3_Click();
    void Command9_Click();
    void Image1_MouseUp(double X, double Y);
    bool zeigeHotel();
};

} // namespace velmo
