#include "shell/Verloren.h"

#include "boardform/Brett.h"
#include "media/Ton.h"
#include "model/Spielbeginn.h"

namespace velmo {

Verloren::Verloren(Programm &programm) : Ruinmeldung(programm, Formname, {2532, 1176, 4752, 4788}), p(programm) {
    Label1.FontName = "Arial Black";
    Label1.FontSize = 12;
    Label1.Alignment = Ausrichtung::Mitte;
    Label1.Mittig = true;
    Label1.Zeicheneinzug = {1512, 84, 330, -24}; // auf dem Messing, neben Dorvin
    SSCommand1.Click = [this] { spieleFrisch(MMControl1); };
    SSCommand3.Click = [this] { SSCommand3_Click(); };
    Timer1.Tick = [this] { Timer1.Enabled = false; };
}

void Verloren::Form_Load() {
    Topmost = true;
    MMControl1.FileName = p.Zustand.Programmpfad + "/sound/laugh.wav";
    MMControl2.FileName = p.Zustand.Programmpfad + "/sound/glass.wav";
    brett(p).Enabled = false;
    spieleFrisch(MMControl2);
}

void Verloren::Form_Unload() { brett(p).Enabled = true; }

void Verloren::SSCommand3_Click() {
    const Spielzustand &z = p.Zustand;
    if (z.Verlierermerker == Spieler.Text()) {
        p.entlade(Formname);
        p.entlade(Brett::Formname);
        p.zeige(formular::Menu);
        SpielZurücksetzen(p.Zustand);
    } else if (z.Siegmerker) {
        p.zeige(formular::Gewinn);
        p.lade(formular::Gewinn).Topmost = true;
        p.entlade(Formname);
    } else {
        p.entlade(Formname);
    }
}

} // namespace velmo
