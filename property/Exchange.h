#pragma once
// Der Umtausch eines Scheins in kleinere.
#include "include/Programm.h"

namespace velmo {

class Exchange : public Form {
  public:
    static constexpr Formularname Formname = formular::Exchange;
    explicit Exchange(Programm &);

    Image Image1{*this, "Image1", {2280, 1440, 540, 420}};
    Line Line1{*this, "Line1", 120, 1350, 2820, 1350};
    Label Label1{*this, "Label1", {240, 120, 2412, 252}, "Eintausch:"};
    Label Label2{*this, "Label2", {960, 480, 1812, 252}, "Mark Schein tauschen in"};
    Label Label3{*this, "Label3", {960, 960, 1572, 252}, "Mark Scheine"};
    ComboBox Combo1{*this, "Combo1", {120, 480, 732, 288}, {"100", "500", "1000", "5000"}};
    ComboBox Combo2{*this, "Combo2", {120, 960, 732, 288}, {"50", "100", "500", "1000"}};
    CommandButton Command1{*this, "Command1", {120, 1440, 852, 372}, "OK"};
    CommandButton Command2{*this, "Command2", {1080, 1440, 972, 372}, "Abbrechen"};

    void Form_Load() override;

  private:
    void Command1_Click();
    Programm &p;
};

/// Zeigt den Dialog und lässt ihn von rechts und dann nach unten hereingleiten.
void ExchangeÖffnen(Programm &);

} // namespace velmo
