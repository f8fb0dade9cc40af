#pragma once
// Der Dialog des Felds "Bauphase gratis": eine Stufe an einem eigenen Hotel, ohne Würfel und Geld.
#include "property/Brettdialog.h"
#include "property/Hotelknöpfe.h"

namespace velmo {

class Bauphase : public Brettdialog {
  public:
    static constexpr Formularname Formname = formular::Bauphase;
    explicit Bauphase(Programm &);

    Label Label1{*this, "Label1", {480, 0, 5652, 1212}, "Sie haben eine Bauphase kostenloß gewonnen!"};
    Hotelknöpfe Knöpfe{*this, 600, 840};
    CommandButton Command1{*this, "Command1", {2280, 2640, 1452, 612}, "Abbrechen"};

    void Form_Load() override;

  private:
    void baue(Hotelkürzel);
};

} // namespace velmo
