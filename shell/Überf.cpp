#include "shell/Überf.h"

#include <cmath>
#include <cstdio>

namespace velmo {

namespace {

constexpr double Rahmenstärke = 20;

/// Version aus dem Bauplan: Haupt, Neben zweistellig, Durchsicht vierstellig.
std::string Versionszeile() {
    char text[64];
    std::snprintf(text, sizeof text, "Version: %d.%02d.%04d", VELMO_VERSION_HAUPT, VELMO_VERSION_NEBEN,
                  VELMO_VERSION_DURCHSICHT);
    return text;
}

} // namespace

Überf::Überf(Programm &programm) : Form(programm, Formname, {984, 576, 4896, 4572}, "Über Velmo"), p(programm) {
    BackColor = farbe::Weiß;
    for (Schriftelement *s :
         std::initializer_list<Schriftelement *>{&Titelzeile, &Wir, &Versionn, &Label1, &Command1, &OK})
        s->FontName = "Tahoma";
    shpRect3.BorderColor = Farbe{0xB08040};
    Titelzeile.FontSize = 28;
    Titelzeile.FontBold = true;
    Macherzeile.FontName = "Arial";
    Macherzeile.FontSize = 12;
    Macherzeile.Zeicheneinzug.links = -74;       // bündig mit dem Titel
    shpRect3.Zeicheneinzug = {108, 48, -12, 48}; // bündig mit den Zeilen darunter
    imgIcon.Zeicheneinzug = {-60, -120, -180, -120};
    Wir.Zeicheneinzug = {0, -420, 0, 420};
    Versionn.Zeicheneinzug = {0, -480, 0, 480};
    Label1.Zeicheneinzug = {-84, -540, 0, 540};
    Command1.Click = Wir.Click = [this] { p.zeige(formular::Dank); };
    OK.Click = [this] { p.entlade(Formname); };
    Timer1.Tick = [this] { Timer1_Timer(); };
}

void Überf::Form_Load() {
    const Bildschirm schirm = p.Screen();
    Left = (schirm.Width - Width) / 2;
    Top = std::floor(schirm.Height - Height) / 2;
    imgIcon.Picture = p.lade(formular::Form1).Icon;
    Icon = p.lade(formular::Menu).Icon;
    Versionn.Caption = Versionszeile();
    shpRect3.Visible = false;
    shpRect3.BorderWidth = 1;
    imgIcon.Left = -150;
    Macherzeile.Top = -300;
    Titelzeile.Left = 4800;
    Wir.Left = -4000;
}

/// Jedes Stück fliegt für sich. Die Macherzeile springt das letzte Stück, mit Absicht so.
void Überf::Timer1_Timer() {
    if (imgIcon.Left < 337.693) {
        imgIcon.Left += 5;
    } else {
        imgIcon.Left = 337.693;
        shpRect3.Visible = true;
        if (shpRect3.BorderWidth < Rahmenstärke) shpRect3.BorderWidth += 1;
        if (shpRect3.BorderWidth == Rahmenstärke) Timer1.Enabled = false;
    }
    Wir.Left = Wir.Left < 225 ? Wir.Left + 50 : 225.12;
    Macherzeile.Top = Macherzeile.Top < 248.992 ? Macherzeile.Top + 10 : 284.992;
    Titelzeile.Left = Titelzeile.Left > 1125.645 ? Titelzeile.Left - 32 : 1125.645;
}

} // namespace velmo
