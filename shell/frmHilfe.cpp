#include "shell/frmHilfe.h"

#include "shell/Hilfetext.h"

namespace velmo {

frmHilfe::frmHilfe(Programm &programm) : Form(programm, Formname, {0, 0, 9612, 7248}), p(programm) {
    BackColor = Farbe{0xE0E0E0};
    Label1.FontName = "Bookman Old Style";
    Label1.FontSize = 24;
    Label1.Mittig = true;
    Label1.Satzausrichtung = Ausrichtung::Mitte;
    Label1.Zeicheneinzug = {-2040, 24, -1188, 0};
    Text6.Zeicheneinzug = {72, 48, 192, 84};
    Text6.Schriftmaß = 0.91; // die Zeilen passen in die Breite
    Command1.Zeicheneinzug = {3816, 0, 3708, 0};
    std::string text;
    for (const char *zeile : Hilfezeilen)
        text += (text.empty() ? "" : "\n") + std::string(zeile);
    Text6.Text = text;
    Command1.Click = [this] { p.entlade(Formname); };
}

} // namespace velmo
