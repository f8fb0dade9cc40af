#pragma once
// Der Mensch als Gast: er würfelt die Nächte und zahlt. Das Fenster rollt nach unten aus und zeigt die Besitzkarte.
#include "include/Programm.h"

namespace velmo {

class Bezahlen : public Form {
  public:
    static constexpr Formularname Formname = formular::Bezahlen;
    explicit Bezahlen(Programm &);

    Image Image3{*this, "Image3", {0, 0, 7452, 6972}};
    Label Label1{*this, "Label1", {240, 240, 6852, 612}, "(willk. Hotelname. Frag wieviel Nächte)"};
    Shape Shape1{*this, "Shape1", {5960, 760, 1332, 852}, Gestalt::GerundetesRechteck};
    PictureBox Picture1{*this, "Picture1", {-120, 1680, 7572, 5172}};
    PictureBox Image2{*this, "Image2", {4080, 240, 612, 492}}; // nimmt das Würfelbild auf, unsichtbar
    PictureBox Würfel{*this, "Würfel", {6360, 960, 492, 492}};
    SSCommand würfeln{*this, "würfeln", {360, 960, 1692, 492}, "Würfeln"};
    SSCommand SSCommand2{*this, "SSCommand2", {2160, 960, 1812, 492}, "Preise Anschauen"};
    SSCommand SSCommand1{*this, "SSCommand1", {4080, 960, 1812, 492}, "Bezahlen"};
    Timer Timer1{*this, "Timer1", 100, false};
    Timer Timer2{*this, "Timer2", 1, false};

    void Form_Load() override;
    void Form_Unload() override;
    void eigeneWerte(const Namensempfänger &) override;

  private:
    void beginneTrauermusik();
    void ladeKarte();
    void wendeKarte();
    void würfeln_Click();
    void SSCommand1_Click();
    void SSCommand2_Click();
    void Timer1_Timer();
    void Timer2_Timer();

    Programm &p;
    Flagge Preiszustand; // wahr: das nächste Rollen schließt die Karte
};

} // namespace velmo
