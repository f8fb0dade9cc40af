#pragma once
// Das Brett im Spiel: seine Behandlungen rufen die Regeln der Räume.
#include "boardform/Brett.h"

namespace velmo {

class Form1 : public Brett {
  public:
    explicit Form1(Programm &);

    void Form_Load() override;
    void Form_Unload() override;
    bool trägtSpiel() const override { return true; }

  private:
    void verbindeKnöpfe();
    void verbindeZeitgeber();
    void verbindeStapel();
    void verbindeBrettbild();

    void Form_MouseMove();
    void Form_Click();
    void Label1_MouseDown(Maustaste);
    void zeigeAutoinfo(Autokürzel, double X, double Y);

    Programm &p;
};

} // namespace velmo
