#pragma once
// Wer verloren hat; von hier geht das Spiel weiter, zum Gewinn oder zurück ins Menü.
#include "property/Ruinmeldung.h"

namespace velmo {

class Verloren : public Ruinmeldung {
  public:
    static constexpr auto Formname = formular::Verloren;
    explicit Verloren(Programm &);

    Label Label1{*this, "Label1", {120, 0, 4572, 372}};
    velmo::SSCommand SSCommand1{*this, "SSCommand1", {240, 4080, 1812, 492}, "Auslachen"};
    velmo::SSCommand SSCommand3{*this, "SSCommand3", {3360, 4080, 852, 492}, "Weiter"};
    MMControl MMControl1{*this, "MMControl1"};
    MMControl MMControl2{*this, "MMControl2"};
    Timer Timer1{*this, "Timer1", 4000, false};

    void Form_Load() override;
    void Form_Unload() override;
    void melde(const std::string &satz) override { Label1.Caption = satz; }
    void verbirgAuslachen() override { SSCommand1.Visible = false; }

  private:
    void SSCommand3_Click();

    Programm &p;
};

} // namespace velmo
