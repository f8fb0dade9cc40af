#include "assistant/Sprech.h"

#include "assistant/Assistent.h"
#include "assistant/Regionen.h"
#include "model/Spielbeginn.h"
#include "platform/Zeichen.h"

namespace velmo {

namespace {

constexpr int Rollschnitt = 25, Zeitschnitt = 30; // Zeichen

/// Der Text ohne seine ersten n Zeichen; einer mit weniger Zeichen ist ein Laufzeitfehler (Argument).
std::string ohneAnfang(const std::string &text, int n) { return Rechts(text, Zeichenzahl(text) - n); }

} // namespace

Sprech::Sprech(Programm &programm) : Form(programm, Formname, {-1200, -2076, 5568, 3984}, "Sprechblas"), p(programm) {
    BackColor = Farbe{0x904000};
    Label1.FontName = "Comic Sans MS";
    Label1.FontSize = 7.5; // sechs Zeilen
    Label1.ForeColor = farbe::Weiß;
    Label1.Mittig = true;
    Label1.Satzausrichtung = Ausrichtung::Mitte;
    VScroll1.Zeicheneinzug = {-72, 96, 84, 180};
    for (Line *linie : {&Line1, &Line2, &Line3, &Line4, &Line5})
        linie->BorderColor = farbe::Blasenrand;
    zeigeKnöpfe(false);
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { Command2_Click(); };
    Timer1.Tick = [this] { Timer1_Timer(); };
    Timer2.Tick = [this] { Timer2_Timer(); };
    VScroll1.Change = [this] { VScroll1_Change(); };
}

void Sprech::Form_Load() {
    ImmerOben(*this, true);
    setzeRegion(Sprechblasenregion(p, 1, 1, 0, 0));
}

void Sprech::eigeneWerte(const Namensempfänger &e) { e("Abgeschnitten", feldzugang(Abgeschnitten)); }

void Sprech::schreibe(const std::string &Text) {
    Label1.Caption = Text;
    p.Zustand.Satzlänge = Zeichenzahl(Text);
    ordneBlase();
}

/// Ringsum bleibt gleich viel frei, auch neben dem Rollbalken; gerollt wird nur, was lang ist oder schon gerollt wurde.
void Sprech::ordneBlase() {
    const bool kurz = Zeichenzahl(Label1.Caption()) < LangerSatz;
    VScroll1.Überflüssig = kurz && VScroll1.Value() == 0;
    Label1.Zeicheneinzug = {-48, 60, VScroll1.Überflüssig ? 36.0 : 156.0, Command1.Visible ? 252.0 : 60.0};
}

void Sprech::zeigeKnöpfe(bool sichtbar) {
    Command1.Visible = sichtbar;
    Command2.Visible = sichtbar;
    ordneBlase();
}

void Sprech::Command1_Click() {
    zeigeKnöpfe(false);
    Label1.Caption = "Tschüß";
    p.form<Assistent>().Hochfahr.Enabled = true;
    p.entlade(formular::Form1);
    SpielZurücksetzen(p.Zustand);
    p.zeige(formular::Menu);
}

/// Mit Absicht so: das Brett bleibt gesperrt.
void Sprech::Command2_Click() {
    zeigeKnöpfe(false);
    p.form<Assistent>().Hochfahr.Enabled = true;
}

void Sprech::Timer1_Timer() {
    Timer2.Enabled = true;
    Timer1.Enabled = false;
}

/// Einmal je Satz rückt ein langer Text weiter, mit Absicht auch der nächste Satz, wenn er schon da steht; einen zu
/// kurzen lässt der Schnitt stehen.
void Sprech::Timer2_Timer() {
    Timer2.Enabled = false;
    const std::string satz = Label1.Caption;
    if (Zeichenzahl(satz) >= Zeitschnitt) Label1.Caption = ohneAnfang(satz, Zeitschnitt);
}

void Sprech::VScroll1_Change() {
    const std::string satz = Label1.Caption;
    if (VScroll1.Value() == 1) {
        Abgeschnitten = Links(satz, Rollschnitt);
        Label1.Caption = ohneAnfang(satz, Rollschnitt); // ein kürzerer Satz beendet das Programm, mit Absicht so
    } else {
        Label1.Caption = Abgeschnitten + satz; // mit Absicht auch vor einen anderen Satz
    }
    ordneBlase();
}

} // namespace velmo
