#include "property/Brettdialog.h"

#include "boardform/Brett.h"

#include <cmath>

namespace velmo {

Brettdialog::Brettdialog(Programm &programm, Formularname name, double Breite, double Höhe)
    : Form(programm, name, {0, 0, Breite, Höhe}), p(programm) {
    MouseDown = zieht();
}

Maushandler Brettdialog::zieht() {
    return [this](auto...) { p.eingabe.zieheForm(*this); };
}

void Brettdialog::Form_Load() {
    const Bildschirm schirm = p.Screen();
    Left = std::trunc((schirm.Width - Width) / 2);
    Top = std::trunc((schirm.Height - Height) / 2);
    brett(p).Enabled = false;
}

void Brettdialog::Form_Unload() { brett(p).Enabled = true; }

} // namespace velmo
