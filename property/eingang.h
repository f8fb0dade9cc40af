#pragma once
// Der Dialog, in dem der Mensch wählt, an welchem Hotel er einen Eingang setzt.
#include "property/Brettdialog.h"
#include "property/Hotelknöpfe.h"

namespace velmo {

class eingang : public Brettdialog {
  public:
    static constexpr Formularname Formname = formular::eingang;
    explicit eingang(Programm &);

    Label Label1{*this, "Label1", {240, 360, 5892, 492}, "Wählen sie aus für welches Hotel sie einen "};
    Label Label3{*this, "Label3", {1920, 840, 2172, 492}, "Eingang wollen"};
    Hotelknöpfe Knöpfe{*this, 720, 1440};
    SSCommand SSCommand9{*this, "SSCommand9", {2280, 3240, 1452, 612}, "Abbrechen"};
    Line Line1{*this, "Line1", 180, 300, 6180, 300};
    Line Line2{*this, "Line2", 6180, 300, 6180, 1360};
    Line Line3{*this, "Line3", 6180, 1360, 180, 1360};
    Line Line4{*this, "Line4", 180, 1360, 180, 300};

    void Form_Load() override;
    void Form_Unload() override;

  private:
    void wähle(Hotelkürzel);
};

} // namespace velmo
