#pragma once
// Das Menü zwischen den Spielen. Es übernimmt die Anzeige beim Laden und gibt sie beim Verlassen zurück.
#include "include/Programm.h"

#include <array>

namespace velmo {

/// Stellt die Anzeige auf die Größe, in Bildpunkten.
void AuflösungSetzen(Laufzeit &, float Breite, float Höhe);
/// Zeigt den Sieg.
void GewinnZeigen(Laufzeit &);

class Menu : public Form {
  public:
    static constexpr Formularname Formname = formular::Menu;
    explicit Menu(Programm &);

    // Die heißen Felder haben kein Bild; ihr Glanz erscheint unter der Maus. Die Blume ist selbst anzuklicken.
    Image Spieln{*this, "Spieln", {5650, 3468, 2532, 1224}};
    Image Spiel{*this, "Spiel", {3330, 4500, 1344, 1272}};
    Image Shape1{*this, "Shape1", {3330, 4490, 1344, 1272}};
    Image Hilfe{*this, "Hilfe", {510, 4560, 1716, 2124}};
    Image Über{*this, "Über", {6340, 5688, 1392, 816}};
    Image Ende{*this, "Ende", {6960, 840, 1692, 1608}};
    Shape Shape2{*this, "Shape2", {480, 4560, 1812, 2172}, Gestalt::GerundetesRechteck};
    Shape Shape3{*this, "Shape3", {6960, 860, 1692, 1572}, Gestalt::GerundetesRechteck};
    Shape Shape4{*this, "Shape4", {5640, 3480, 2532, 1172}, Gestalt::GerundetesRechteck};
    Shape Shape5{*this, "Shape5", {6360, 5690, 1332, 812}, Gestalt::GerundetesRechteck};

    Timer Timer1{*this, "Timer1", 1, false}; // niemand schaltet ihn ein

    MMControl MMControl1{*this, "MMControl1"}; // Maus über einem Feld
    MMControl MMControl2{*this, "MMControl2"}; // Klick

    void Form_Load() override;
    void Form_Unload() override;

  private:
    struct Feld {
        Image &Fläche;
        VisualControl &Glanz;
        const char *Hinweis;
        void (Menu::*Klick)();
    };

    void messeAnzeige();
    void zeigeGlanz(const VisualControl *);
    void Form_MouseMove();
    void Spieln_Click();
    void Spiel_Click() { zeigeNachTon(formular::HoF); }
    void Hilfe_Click() { zeigeNachTon(formular::frmHilfe); }
    void Über_Click() { zeigeNachTon(formular::Überf); }
    void Ende_Click() { p.entlade(Formname); }
    void zeigeNachTon(Formularname form);

    Programm &p;
    const std::array<Feld, 5> Felder{{
        // Fläche Glanz Hinweis                   Klick
        {Spieln, Shape4, "Neues Spiel", &Menu::Spieln_Click},
        {Spiel, Shape1, "Lädt ein Spiel", &Menu::Spiel_Click}, // mit Absicht so: es öffnet die Bestenliste
        {Hilfe, Shape2, "Hilfe zu Velmo", &Menu::Hilfe_Click},
        {Über, Shape5, "Über die Programmierer", &Menu::Über_Click},
        {Ende, Shape3, "Spiel Beenden", &Menu::Ende_Click},
    }};
};

} // namespace velmo
