#pragma once
// Dorvin, der Assistent: er wohnt über dem oberen Rand der Anzeige, klettert zum Reden herab und wieder hinauf. Zehn
// Zeitgeber treiben ihn; Ansagen setzt sie nur in Gang.
#include "include/Programm.h"

namespace velmo {

class Assistent : public Form {
  public:
    static constexpr Formularname Formname = formular::Assistent;
    /// Top, wenn die Figur ganz oben ist.
    static constexpr double Oben = -2532;
    explicit Assistent(Programm &);

    Image Image1{*this, "Image1", {-360, 600, 2220, 1260}};
    Shape Shape1{*this, "Shape1", {720, 684, 972, 972}, Gestalt::Ellipse};
    Image augel{*this, "augel", {852, 960, 192, 180}};
    Image auger{*this, "auger", {1200, 960, 192, 180}};
    Image reden{*this, "reden", {900, 1250, 576, 276}};
    Image redeno{*this, "redeno", {880, 1250, 576, 132}};

    Timer Runterfahr{*this, "Runterfahr", 1, false};
    Timer Hochfahr{*this, "Hochfahr", 1, false};
    Timer Start1{*this, "Start1", 200, false};
    Timer Start2{*this, "Start2", 1000, false};
    Timer Start3{*this, "Start3", 1900, false};
    Timer Unsichtbar{*this, "Unsichtbar", 6000, false};
    Timer Timer1{*this, "Timer1", 5, false};
    Timer Timer2{*this, "Timer2", 5, false};
    Timer Timer3{*this, "Timer3", 20, false};
    Timer Timer4{*this, "Timer4", 20, false};

    void Form_Load() override;
    void Form_Unload() override;
    void eigeneWerte(const Namensempfänger &) override;

  private:
    void Runterfahr_Timer();
    void Hochfahr_Timer();
    void Start1_Timer();
    void Unsichtbar_Timer();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void Timer4_Timer();
    void verschiebeAugen(double um);
    void verschmälereMund(int richtung);

    Programm &p;
    int Augenzähler = 0; // Takte von Timer1
};

/// Hält die Form über allen anderen, oder nicht mehr.
void ImmerOben(Form &, bool Ein);
/// Holt die Figur nach oben und legt die Blase neben sie.
void BlaseAnlegen(Programm &);

} // namespace velmo
