#include "shell/Gewinn.h"

#include "boardform/Brett.h"
#include "model/Spielbeginn.h"
#include "shell/Bestenliste.h"
#include "shell/Punkte.h"

namespace velmo {

Gewinn::Gewinn(Programm &programm) : Form(programm, Formname, {0, 0, 12288, 9216}), p(programm) {
    BackColor = farbe::Schwarz;
    Label1.FontName = "Comic Sans MS";
    Label1.FontSize = 24;
    Label1.ForeColor = farbe::Weiß;
    Label1.Satzausrichtung = Ausrichtung::Mitte;
    Label1.Mittig = true;
    Label1.Schriftmaß = 1.3;
    Label1.Zeicheneinzug = {0, 180, 5772 - 9600, -360}; // über die ganze Anzeige
    SSCommand1.Zeicheneinzug = {0, 0, 0, 120};
    SSCommand2.Zeicheneinzug = {0, 120, 0, 0};
    Label3.Mittig = true;
    Label3.Zeicheneinzug = {60, -72, 60, 72}; // mitten auf der Tafel
    Label3.FontSize = 12;
    Label3.Alignment = Ausrichtung::Mitte;
    SSCommand1.Click = [this] { SSCommand1_Click(); };
    SSCommand2.Click = [this] { SSCommand2_Click(); };
    Timer1.Tick = [this] { Timer1_Timer(); };
    Timer2.Tick = [this] { feuerwerk.starte(p); };
}

void Gewinn::Form_Load() {
    Punkte = Siegpunkte(p);
    fülleAnzeige();
    trageEin(p, Punkte);
    beginneMusik();
    Label3.Caption = p.Zustand.Spielername + "   " + std::to_string(Punkte) + " Punkte";
    Image1.Picture = p.Zustand.Spielerbild;
    brett(p).Enabled = false;
    Timer1.Interval = 10;
    Timer2.Interval = 200;
    feuerwerk.Winkelstreuung = 5;
    feuerwerk.Fallstreuung = 60;
    feuerwerk.Tempostreuung = 30;
    feuerwerk.Teilchengröße = 30;
}

void Gewinn::Form_Unload() {
    brett(p).Enabled = true;
    MMControl1.Command(Befehl::Close);
}

void Gewinn::eigeneWerte(const Namensempfänger &e) {
    e("Punkte", feldzugang(Punkte));
    feuerwerk.eigeneWerte(e);
}

void Gewinn::fülleAnzeige() {
    Left = 0;
    Top = 0;
    feuerwerk.ScaleWidth = Width = p.Screen().Width;
    feuerwerk.ScaleHeight = Height = p.Screen().Height;
}

void Gewinn::beginneMusik() {
    MMControl1.FileName = p.Zustand.Programmpfad + "/sound/win.mid";
    brett(p).MMControl1.Command(Befehl::Close);
    MMControl1.Command(Befehl::Open);
    MMControl1.Command(Befehl::Play);
}

void Gewinn::SSCommand1_Click() {
    p.entlade(Brett::Formname);
    p.zeige(formular::Menu);
    SpielZurücksetzen(p.Zustand);
    p.entlade(Formname);
}

void Gewinn::SSCommand2_Click() {
    const bool zumFeuerwerk = SSCommand2.Caption() == "Feuerwerk";
    SSCommand2.Caption = zumFeuerwerk ? "Pokal" : "Feuerwerk";
    Picture1.Visible = !zumFeuerwerk;
}

void Gewinn::Timer1_Timer() {
    feuerwerk.bewege(p);
    geändert();
}

} // namespace velmo
