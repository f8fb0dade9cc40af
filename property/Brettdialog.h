#pragma once
// Was die Dialoge einer Landung gemeinsam haben: ohne Rahmen, mitten auf der Anzeige, und das Brett ist gesperrt,
// solange sie offen sind.
#include "include/Programm.h"

namespace velmo {

class Brettdialog : public Form {
  public:
    void Form_Load() override;
    void Form_Unload() override;

  protected:
    Brettdialog(Programm &, Formularname, double Breite, double Höhe);
    /// Für MouseDown: der Dialog folgt der Maus.
    Maushandler zieht();
    Programm &p;
};

} // namespace velmo
