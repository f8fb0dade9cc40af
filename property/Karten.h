#pragma once
// Die Besitzkarten der acht Hotels, eine zur Zeit. Die Karte fällt von oben herein, die Pfeile gleiten von den Seiten.
#include "include/Programm.h"

namespace velmo {

class Karten : public Form {
  public:
    static constexpr Formularname Formname = formular::Karten;
    explicit Karten(Programm &);

    Image picture1{*this, "picture1", {960, -4080, 7668, 5220}};
    Image Image1{*this, "Image1", {-360, 4800, 900, 888}}; // zurück
    Image Image2{*this, "Image2", {8400, 4680, 900, 900}}; // weiter
    Image Image3{*this, "Image3", {4440, 5640, 888, 888}}; // schließen
    MMControl MMControl1{*this, "MMControl1"};             // Ankunft und Abgang
    MMControl MMControl2{*this, "MMControl2"};             // Blättern

    // Herein, dann hinaus; jeder bewegt ein Bild bis zu seiner Grenze.
    Timer Timer1{*this, "Timer1", 1, true};
    Timer Timer2{*this, "Timer2", 1, true};
    Timer Timer3{*this, "Timer3", 1, true};
    Timer Timer4{*this, "Timer4", 1, true};
    Timer Timer5{*this, "Timer5", 1, false};
    Timer Timer6{*this, "Timer6", 1, false};
    Timer Timer7{*this, "Timer7", 1, false};
    Timer Timer8{*this, "Timer8", 1, false};
    Timer Timer9{*this, "Timer9", 2000, false}; // das Ende, wie weit auch immer alles ist
    Timer Timer10{*this, "Timer10", 1, true};   // der Ton

    void Form_Load() override;
    void eigeneWerte(const Namensempfänger &) override;

  private:
    void verbindeFahrten();
    void blättere(int um);
    void Image3_Click();
    void Timer10_Timer();

    Programm &p;
    int Kartennummer = 0; // des Bildes, 117 bis 124
};

} // namespace velmo
