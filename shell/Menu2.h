#pragma once
// Der Dialog vor einem Spiel: Name, Spitzname, Farbe, Bild, Gegner, Schwierigkeit; dazu die gespeicherten Charaktere.
#include "include/Programm.h"

namespace velmo {

/// Die Schwierigkeit bestimmt, womit die Computer anfangen (DM).
struct Schwierigkeitsgrad {
    const char *Name;
    int Startgeld;
};
inline constexpr Schwierigkeitsgrad Schwierigkeitsgrade[] = {
    {"Putzfrau", 12000}, {"Hotelleiter", 20000}, {"Topmanager", 30000}};

class Menu2 : public Form {
  public:
    static constexpr Formularname Formname = formular::Menu2;
    explicit Menu2(Programm &);

    Shape Shape1{*this, "Shape1", {120, 3960, 4572, 612}, Gestalt::GerundetesRechteck};
    Shape Shape2{*this, "Shape2", {5160, 3960, 3612, 732}, Gestalt::GerundetesRechteck};
    Label Label1{*this, "Label1", {3540, 1260, 960, 252}, "Name"};
    Label Label2{*this, "Label2", {3540, 1740, 960, 252}, "Spitzname"};
    Label Label3{*this, "Label3", {3540, 2250, 960, 252}, "Autofarbe"};
    Label Label5{*this, "Label5", {3540, 2760, 960, 432}, "Anzahl der Gegner"};
    Label Label6{*this, "Label6", {3540, 3360, 960, 432}, "Schwierig- keit"};
    Label Label4{*this, "Label4", {6840, 1080, 1980, 240}, "Gespeicherte Charakter:"};
    Image Picture1{*this, "Picture1", {1596, 1320, 1188, 1176}};
    Image klickl{*this, "klickl", {1080, 1320, 540, 1212}};
    Image klickr{*this, "klickr", {2760, 1320, 540, 1212}};
    TextBox Text1{*this, "Text1", {4560, 1200, 1812, 372}};
    TextBox Text2{*this, "Text2", {4560, 1680, 1812, 372}};
    ListBox List1{*this, "List1", {4560, 2160, 1812, 432}, {"Rot", "Grün", "Blau", "Gelb"}};
    ListBox List2{*this, "List2", {4560, 2760, 1812, 432}, {"1", "2", "3"}};
    ListBox List3{*this,
                  "List3",
                  {4560, 3360, 1812, 432},
                  {Schwierigkeitsgrade[0].Name, Schwierigkeitsgrade[1].Name, Schwierigkeitsgrade[2].Name}};
    FileListBox File1{*this, "File1", {7080, 1320, 1452, 1992}, "*.cha"};
    CommandButton Command4{*this, "Command4", {5280, 4080, 1092, 492}, "Charakter speichern"};
    CommandButton Command3{*this, "Command3", {6480, 4080, 1092, 492}, "Charakter laden"};
    CommandButton Command5{*this, "Command5", {7680, 4080, 972, 492}, "Löschen"};
    CommandButton Command2{*this, "Command2", {2520, 4080, 1932, 372}, "Weiter"};
    CommandButton Command1{*this, "Command1", {360, 4080, 1932, 372}, "Zurück"};

    MMControl MMControl1{*this, "MMControl1"};

    void Form_Load() override;

  private:
    void klickl_Click();
    void klickr_Click();
    void zeigeBild();
    void Label4_Click();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void schreibeWahl();
    void teileAutosAus();
    void begrüße();

    Programm &p;
};

} // namespace velmo
