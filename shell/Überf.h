#pragma once
// Über Velmo: Zeichen und Zeilen fliegen herein.
#include "include/Programm.h"

namespace velmo {

class Überf : public Form {
  public:
    static constexpr Formularname Formname = formular::Überf;
    explicit Überf(Programm &);

    Shape shpRect3{*this, "shpRect3", {120, 240, 852, 852}};
    Image imgIcon{*this, "imgIcon", {-150, 458, 417, 417}}; // im Ziel mitten im Rahmen
    Label Titelzeile{*this, "Titelzeile", {1200, 840, 2832, 672}, "VELMO"};
    Label Macherzeile{*this, "Macherzeile", {1200, 360, 2868, 480}, "Die Inselwerkstatt zeigt"};
    Label Wir{*this, "Wir", {240, 2400, 4332, 252}, "Programmiert in der Inselwerkstatt"};
    Label Versionn{*this, "Versionn", {240, 2760, 1416, 228}};
    Label Label1{*this,
                 "Label1",
                 {324, 3600, 3972, 492},
                 "Ein Brettspiel um acht Hotels, frei erdacht und von Grund auf für diesen Bildschirm gebaut."};
    CommandButton Command1{*this, "Command1", {2040, 4080, 1260, 345}, "Weiteres"};
    CommandButton OK{*this, "OK", {3360, 4080, 1260, 345}, "OK"};

    Timer Timer1{*this, "Timer1", 1, true};

    void Form_Load() override;

  private:
    void Timer1_Timer();

    Programm &p;
};

} // namespace velmo
