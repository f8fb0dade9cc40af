#pragma once
// Die Sprechblase neben der Figur. Gezeigt und verborgen wird sie von den Zeitgebern der Figur.
#include "include/Programm.h"

namespace velmo {

class Sprech : public Form {
  public:
    static constexpr Formularname Formname = formular::Sprech;
    explicit Sprech(Programm &);

    Line Line1{*this, "Line1", 2760, 3480, 3120, 3650};
    Line Line2{*this, "Line2", 4800, 3720, 3000, 3720};
    Line Line3{*this, "Line3", 4800, 3480, 4800, 2760};
    Line Line4{*this, "Line4", 4800, 3720, 5520, 3960};
    Line Line5{*this, "Line5", 4920, 3480, 5520, 3960};
    Label Label1{*this,
                 "Label1",
                 {2940, 2520, 1812, 1092},
                 "Hallo, ich bin Dorvin, der Assistent von Velmo. Ich helfe dir gerne weiter und ich berichte dir was "
                 "läuft. "};
    VScrollBar VScroll1{*this, "VScroll1", {4720, 2640, 132, 972}};
    CommandButton Command1{*this, "Command1", {3240, 3360, 492, 192}, "Ja"};
    CommandButton Command2{*this, "Command2", {3960, 3360, 492, 192}, "Nein"};

    Timer Timer1{*this, "Timer1", 3500, false};
    Timer Timer2{*this, "Timer2", 1800, false};

    void Form_Load() override;
    void eigeneWerte(const Namensempfänger &) override;

    /// Stellt den Satz in die Blase.
    void schreibe(const std::string &Text);
    void zeigeKnöpfe(bool sichtbar);

    /// Ab so vielen Zeichen rückt der Text von selbst weiter.
    static constexpr int LangerSatz = 111;

  private:
    void ordneBlase();
    void Command1_Click();
    void Command2_Click();
    void Timer1_Timer();
    void Timer2_Timer();
    void VScroll1_Change();

    Programm &p;
    /// Die Zeichen, die der Rollbalken vorn vom Satz genommen hat.
    std::string Abgeschnitten;
};

} // namespace velmo
