#pragma once
// Der Sieg: Punkte, Bestenliste, Pokal und Feuerwerk. Füllt die Anzeige.
#include "include/Programm.h"
#include "shell/Feuerwerk.h"

#include <cstdint>

namespace velmo {

class Gewinn : public Form {
  public:
    static constexpr Formularname Formname = formular::Gewinn;
    explicit Gewinn(Programm &);

    Label Label1{*this, "Label1", {0, 0, 5772, 732}, "SIE HABEN GEWONNEN!"};
    PictureBox Picture1{*this, "Picture1", {1920, 1680, 6012, 5632}}; // der Pokal, mit Bild und Namen des Siegers
    Image Image1{Picture1, "Image1", {4800, 3120, 1128, 1200}};
    Shape Shape1{Picture1, "Shape1", {4800, 3120, 1152, 1200}};
    Label Label3{Picture1, "Label3", {1680, 4920, 2532, 372}};
    velmo::SSCommand SSCommand2{*this, "SSCommand2", {6960, 6600, 852, 492}, "Feuerwerk"};
    velmo::SSCommand SSCommand1{*this, "SSCommand1", {2040, 6720, 732, 492}, "Menü"};
    Timer Timer1{*this, "Timer1", 10, true};
    Timer Timer2{*this, "Timer2", 200, true};
    MMControl MMControl1{*this, "MMControl1"};

    void Form_Load() override;
    void Form_Unload() override;
    void eigeneWerte(const Namensempfänger &) override;
    const std::vector<std::pair<Rechteck, Farbe>> *Zeichnung() const override { return &feuerwerk.Bild(); }

  private:
    void fülleAnzeige();
    void beginneMusik();
    void SSCommand1_Click();
    void SSCommand2_Click();
    void Timer1_Timer();

    Programm &p;
    std::int32_t Punkte = 0;
    Feuerwerk feuerwerk;
};

} // namespace velmo
