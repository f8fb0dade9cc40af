#include "board/Form1.h"

#include "assistant/Ansagen.h"
#include "board/Konsole.h"
#include "board/Musik.h"
#include "board/Quetschen.h"
#include "board/Zug.h"
#include "boardform/Kasse.h"
#include "media/Bilder.h"
#include "model/Spielbeginn.h"
#include "property/Bauen.h"
#include "property/Eingangskauf.h"
#include "property/Exchange.h"

namespace velmo {

namespace {

// Die Dialoge, die mit dem Brett gehen.
constexpr Formularname Dialoge[] = {formular::geldfeld, formular::Baufeld,  formular::Bauphase, formular::eingang,
                                    formular::Bezahlen, formular::Exchange, formular::Karten};

// Hohe Gebäude, hinter die man sehen kann.
constexpr std::pair<Hotelkürzel, Baustufe> Durchsichtige[] = {
    {Hotelkürzel::f, Baustufe::H},  {Hotelkürzel::f, Baustufe::N2}, {Hotelkürzel::r, Baustufe::N1},
    {Hotelkürzel::r, Baustufe::N2}, {Hotelkürzel::r, Baustufe::N3},
};

} // namespace

Form1::Form1(Programm &programm) : Brett(programm), p(programm) {
    verbindeKnöpfe();
    verbindeZeitgeber();
    verbindeStapel();
    verbindeBrettbild();
}

void Form1::verbindeKnöpfe() {
    WüButton.Click = [this] { Würfelknopf(p); };
    Fertig.Click = [this] { Fertigknopf(p); };
    Command1.Click = [this] {
        p.Zustand.Gratiseingang = false;
        p.zeige(formular::eingang);
    };
    Command2.Click = [this] { p.zeige(formular::Karten); };
    SSCommand1.Click = [this] { Ansagen(p, "Wollen Sie wirklich beenden?", 100); };
    SSCommand2.Click = [this] { ExchangeÖffnen(p); };
    Picture2.Click = SSCommand2.Click;
    SSCommand3.Click = [this] { p.zeige(formular::frmHilfe); };
    Label1.MouseDown = [this](Maustaste taste, double, double) { Label1_MouseDown(taste); };
}

void Form1::verbindeZeitgeber() {
    Timer1.Tick = [this] { Fahrwürfeltakt(p); };
    Timer2.Tick = [this] { Bauwürfeltakt(p); };
    Timer3.Tick = [this] { Notenflug(p); };
    Timer4.Tick = [this] { WartezeitUm(p); };
    überfahR.Tick = [this] { Quetschtakt(p); };
    BauTimer.Tick = [this] { Steigtakt(p); };
    pfeilTimer.Tick = [this] { Pfeiltakt(p); };
    Midi.Tick = [this] { Musiktakt(p); };
}

void Form1::verbindeStapel() {
    for (Notenstapel &s : Stapel) {
        s.g.Click = [this, note = s.Note] { Notenzahlung(p, note); };
        s.k.Click = s.g.Click;
        s.g.MouseMove = [&s](double, double) { s.g.BorderStyle = Rand::Einfach; };
    }
}

void Form1::verbindeBrettbild() {
    MouseMove = Picture1.MouseMove = [this](double, double) { Form_MouseMove(); };
    Click = Picture1.Click = [this] { Form_Click(); };
    for (const Auto &a : Autotafel) {
        Image &bild = Autobild(a.Kürzel);
        bild.MouseDown = [this, &a](Maustaste, double X, double Y) { zeigeAutoinfo(a.Kürzel, X, Y); };
        bild.MouseMove = [this, &a](double X, double Y) {
            if (Info.Visible) zeigeAutoinfo(a.Kürzel, X, Y);
        };
        bild.MouseUp = [this](Maustaste, double, double) { Info.Visible = false; };
    }
    for (const auto &[hotel, stufe] : Durchsichtige) {
        Image &bild = Gebäude(hotel, stufe);
        bild.MouseDown = [&bild](Maustaste, double, double) { bild.Visible = false; };
        bild.MouseUp = [&bild](Maustaste, double, double) { bild.Visible = true; };
    }
    for (const Eingangsplatz &platz : Eingangsplätze) {
        Image &bild = Platzbild(platz.Nummer);
        bild.DragOver = [this, &platz](VisualControl &, Ziehzustand z) { EingangÜberPlatz(p, platz.Nummer, z); };
        bild.DragDrop = [this, &platz](VisualControl &) { EingangAufPlatz(p, platz.Nummer); };
    }
}

void Form1::Form_Load() {
    Picture8.Picture = Bildladen(p, 201, "Wuerfel");
    Picture7.Picture = Bildladen(p, 301, "Wuerfel");
    for (const Auto &a : Autotafel)
        Autobild(a.Kürzel).Picture = Bildladen(p, a.Grundbild, "Auto");
    GroßesBrett = p.Zustand.KleineSchrift;
    Spielbeginn(p.Zustand);
    Scheinanzeige(p);
    beginneMusik(p);
}

void Form1::Form_Unload() {
    for (const Formularname dialog : Dialoge)
        p.entlade(dialog);
}

void Form1::Form_MouseMove() {
    Geldlabel.Caption = std::to_string(p.Zustand.Gesamtgeld);
    for (Notenstapel &s : Stapel)
        s.g.BorderStyle = Rand::Ohne;
}

void Form1::Form_Click() { p.entlade(formular::Exchange); }

void Form1::Label1_MouseDown(Maustaste taste) {
    if (taste == Maustaste::Rechts) Konsole(p);
}

void Form1::zeigeAutoinfo(Autokürzel k, double X, double Y) {
    const Autobesitzer &fahrer = p.Zustand.Autos[k].Autobesitzer;
    const int computer = Computernummer(fahrer);
    const Image &bild = Autobild(k);
    Info.Caption = computer
                       ? "Computer" + fahrer.letztes() + "\nGeld:" + std::to_string(p.Zustand.Computergeld[computer])
                       : p.Zustand.Spielername + "\nGeld:" + std::to_string(p.Zustand.Gesamtgeld);
    Info.Left = bild.Left + X - Info.Width + 900;
    Info.Top = bild.Top + Y;
    Info.Visible = true;
}

} // namespace velmo
