#include "shell/Menu.h"

#include "board/Form1.h"
#include "media/Ton.h"
#include "model/Spielbeginn.h"
#include "platform/FormAnpassen.h"
#include "shell/Menu2.h"

#include <cmath>

namespace velmo {

namespace {

constexpr double EntwurfDPI = 120, KleineDPI = 96;
constexpr Farbe Glanzfarbe{0xFFE7A0};

} // namespace

void AuflösungSetzen(Laufzeit &l, float Breite, float Höhe) {
    l.oberfläche.setzeModus(alsGanz(std::nearbyint(Breite)), alsGanz(std::nearbyint(Höhe)));
}

void GewinnZeigen(Laufzeit &l) { l.zeige(formular::Gewinn); }

Menu::Menu(Programm &programm) : Form(programm, Formname, {192, 0, 9504, 7200}, "Velmo"), p(programm) {
    MouseMove = [this](double, double) { Form_MouseMove(); };
    for (const Feld &feld : Felder) {
        feld.Fläche.ToolTipText = feld.Hinweis;
        feld.Fläche.Click = [this, &feld] { (this->*feld.Klick)(); };
        feld.Fläche.MouseMove = [this, &feld](double, double) {
            zeigeGlanz(&feld.Glanz);
            MMControl1.Command(Befehl::Open);
            MMControl1.Command(Befehl::Play);
        };
    }
    Shape1.ToolTipText = "Bestenliste";
    Shape1.Click = [this] { Spiel_Click(); };
    for (Shape *rahmen : {&Shape2, &Shape3, &Shape4, &Shape5}) {
        rahmen->BorderWidth = 4;
        rahmen->BorderColor = Glanzfarbe;
        rahmen->NurUnterZeiger = true;
    }
    Shape1.NurUnterZeiger = true;
    zeigeGlanz(nullptr);
}

void Menu::Form_Load() {
    messeAnzeige();
    if (p.Zustand.KleineSchrift) FormAnpassen(*this, 2);
    p.Zustand.Programmpfad = p.Ordner;
    MMControl1.FileName = p.Ordner + "/sound/click2.wav";
    MMControl2.FileName = p.Ordner + "/sound/click1.wav";
    // Beide laden jetzt, hinter dem Menü.
    p.zeige(Menu2::Formname);
    p.zeige(Form1::Formname);
    AuflösungSetzen(p, 800, 600);
    p.entlade(formular::Intro);
}

void Menu::messeAnzeige() {
    const Bildschirm schirm = p.Screen();
    p.Zustand.Bildschirmhöhe = schirm.Height / schirm.TwipsPerPixelY;
    p.Zustand.Bildschirmbreite = schirm.Width / schirm.TwipsPerPixelX;
    const double DPI = 1440 / schirm.TwipsPerPixelX;
    p.Zustand.KleineSchrift = DPI == KleineDPI;
    if (DPI == KleineDPI || DPI == EntwurfDPI) return;
    p.MsgBox(
        "  Sie müssen entweder Kleine (96 DPI) oder Große Schriftarten (120 DPI) eingestellt haben (Sie haben " +
        Zahltext(1440 / std::nearbyint(schirm.TwipsPerPixelX)) +
        "DPI), sonst werden die Grafiken nicht richtig dargestellt. Stellen Sie es unter Systemsteuerung | Anzeige "
        "| Einstellungen um (Neustart erforderlich).");
}

/// Zeigt den einen Glanz und verbirgt die anderen vier; ohne Glanz alle.
void Menu::zeigeGlanz(const VisualControl *glanz) {
    for (const Feld &feld : Felder)
        feld.Glanz.Visible = &feld.Glanz == glanz;
}

void Menu::Form_MouseMove() {
    MMControl1.Command(Befehl::Close); // erst danach klingt der nächste Besuch wieder
    zeigeGlanz(nullptr);
}

void Menu::Spieln_Click() {
    spieleWartend(MMControl2);
    auto &assistent = p.form<Menu2>();
    assistent.MMControl1.Command(Befehl::Close);
    assistent.MMControl1.Command(Befehl::Open);
    assistent.Left = 336;
    p.zeige(Menu2::Formname);
}

void Menu::zeigeNachTon(Formularname form) {
    spieleWartend(MMControl2);
    p.zeige(form);
}

/// Das Verlassen des Programms, durch "Ende" wie durch das Schließen des Fensters: erst die Anzeige, dann der Ton.
void Menu::Form_Unload() {
    AuflösungSetzen(p, static_cast<float>(p.Zustand.Bildschirmbreite), static_cast<float>(p.Zustand.Bildschirmhöhe));
    spieleWartend(MMControl2);
    SpielZurücksetzen(p.Zustand);
    p.entlade(Form1::Formname);
    p.entlade(formular::Bezahlen);
    p.Ende();
}

} // namespace velmo
