#include "assistant/Assistent.h"

#include "assistant/Regionen.h"
#include "assistant/Sprech.h"

namespace velmo {

namespace {

constexpr double Augenruhe = 852, AugenruheRechts = 1200;

} // namespace

void ImmerOben(Form &form, bool Ein) {
    form.Topmost = Ein;
    form.laufzeit.nachVorn(form);
}

void BlaseAnlegen(Programm &p) {
    auto &figur = p.form<Assistent>();
    ImmerOben(figur, true);
    auto &blase = p.form<Sprech>();
    blase.Top = figur.Top - 2704;
    blase.Left = figur.Left - 4728;
}

Assistent::Assistent(Programm &programm) : Form(programm, Formname, {2316, Oben, 2040, 1944}, "Dorvin"), p(programm) {
    BackColor = farbe::Weiß;
    Shape1.BorderColor = farbe::Blasenrand;
    Image1.Click = [this] { Timer1.Enabled = true; };
    Image1.MouseDown = [this](auto...) { BlaseAnlegen(p); };
    Runterfahr.Tick = [this] { Runterfahr_Timer(); };
    Hochfahr.Tick = [this] { Hochfahr_Timer(); };
    Start1.Tick = [this] { Start1_Timer(); };
    for (Timer *start : {&Start2, &Start3})
        start->Tick = [this, start] {
            Timer3.Enabled = true;
            start->Enabled = false;
        };
    Unsichtbar.Tick = [this] { Unsichtbar_Timer(); };
    Timer1.Tick = [this] { Timer1_Timer(); };
    Timer2.Tick = [this] { Timer2_Timer(); };
    Timer3.Tick = [this] { Timer3_Timer(); };
    Timer4.Tick = [this] { Timer4_Timer(); };
}

void Assistent::Form_Load() {
    ImmerOben(*this, true);
    setzeRegion(FigurRegion(p, 1, 1, 0, 0));
}

void Assistent::Form_Unload() { ImmerOben(*this, false); }

void Assistent::eigeneWerte(const Namensempfänger &e) { e("Augenzähler", feldzugang(Augenzähler)); }

void Assistent::Runterfahr_Timer() {
    Top += 100;
    if (Top < 300) return;
    Runterfahr.Enabled = false;
    Start1.Enabled = true;
}

void Assistent::Hochfahr_Timer() {
    Top -= 100;
    if (Top <= Oben) Hochfahr.Enabled = false;
    p.verstecke(Sprech::Formname);
}

/// Am Ziel: längere Sätze bewegen den Mund zwei- oder dreimal. Unter 3 Zeichen bleibt er zu und die Blase
/// verborgen, mit Absicht.
void Assistent::Start1_Timer() {
    BlaseAnlegen(p);
    const int länge = p.Zustand.Satzlänge;
    if ((!Timer3.Enabled || !Timer4.Enabled) && länge >= 3) {
        Timer3.Enabled = true;
        if (länge > 50) Start2.Enabled = true;
        if (länge >= 90) Start3.Enabled = true;
    }
    Start1.Enabled = false;
    Unsichtbar.Enabled = true;
}

void Assistent::Unsichtbar_Timer() {
    p.verstecke(Sprech::Formname);
    Hochfahr.Enabled = true;
    Unsichtbar.Enabled = false;
}

void Assistent::verschiebeAugen(double um) {
    augel.Left += um;
    auger.Left += um;
}

void Assistent::Timer1_Timer() {
    ++Augenzähler;
    verschiebeAugen(25);
    if (augel.Left >= 1000) {
        Timer1.Enabled = false;
        Timer2.Enabled = true;
    }
    if (Augenzähler < 35) return;
    Augenzähler = 0;
    Timer1.Enabled = false;
    Timer2.Enabled = false;
    augel.Left = Augenruhe;
    auger.Left = AugenruheRechts;
}

void Assistent::Timer2_Timer() {
    verschiebeAugen(-25);
    if (augel.Left > 870) return;
    Timer2.Enabled = false;
    Timer1.Enabled = true;
}

/// Ein Schritt des Mundes; richtung 1 schmäler, -1 breiter.
void Assistent::verschmälereMund(int richtung) {
    reden.Left += 40 * richtung;
    reden.Height += 15 * richtung;
    reden.Width -= 90 * richtung;
    redeno.Left += 40 * richtung;
    redeno.Width -= 90 * richtung;
}

void Assistent::Timer3_Timer() {
    verschmälereMund(1);
    if (reden.Width <= 220) {
        Timer3.Enabled = false;
        Timer4.Enabled = true;
    }
    p.zeige(Sprech::Formname);
}

/// Mit Absicht so: von 576 geht es auf 216 und zurück auf 666; der Mund kehrt nie in seine erste Lage zurück.
void Assistent::Timer4_Timer() {
    if (Timer3.Enabled) return;
    verschmälereMund(-1);
    if (reden.Width >= 580) Timer4.Enabled = false;
}

} // namespace velmo
