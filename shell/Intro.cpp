#include "shell/Intro.h"

#include "platform/FormAnpassen.h"

#include <cmath>

namespace velmo {

Intro::Intro(Programm &programm) : Form(programm, Formname, {2748, 2400, 3600, 2220}), p(programm) {
    Click = [this] { beende(); };
    KeyPress = [this](const std::string &) { beende(); };
    Timer1.Tick = [this] {
        Timer1.Enabled = false;
        p.zeige(formular::Menu); // dessen Laden entlädt den Film
    };
}

void Intro::Form_Load() {
    // KleineSchrift steht erst nach dem Menü fest.
    if (1440 / std::nearbyint(p.Screen().TwipsPerPixelX) == 96) FormAnpassen(*this, 0);
    MMControl1.FileName = p.Ordner + "/sound/intro.wav";
    try {
        Animation1.Open(p.Ordner + "/ani.hvi");
        Animation1.Play();
    } catch (const Laufzeitfehler &fehler) {
        p.MsgBox("Fehler Beim Intro: " + fehler.Beschreibung());
    }
    MMControl1.Command(Befehl::Open);
    MMControl1.Command(Befehl::Play);
}

void Intro::beende() {
    Timer1.Enabled = false;
    p.zeige(formular::Menu);
    p.entlade(Formname);
}

} // namespace velmo
