#include "property/Exchange.h"

#include "assistant/Ansagen.h"
#include "boardform/Kasse.h"
#include "property/Brettdialog.h"

#include <algorithm>

namespace velmo {

namespace {

struct Umtausch {
    int Gegeben, Gewünscht; // ein Schein gegen so viele, wie er wert ist
};

constexpr Umtausch Tauschtafel[] = {
    {100, 50}, {500, 50}, {500, 100}, {1000, 100}, {1000, 500}, {5000, 500}, {5000, 1000},
};

// Der Weg herein, in Twips: von rechts bis unter Links, dann hinab bis über Unten.
constexpr double VonRechts = 9000, VonOben = 960, Links = 3708, Unten = 2652, Schritt = 200;
constexpr double SchrittDauer = 28; // ms

} // namespace

Exchange::Exchange(Programm &programm) : Form(programm, Formname, {VonRechts, VonOben, 2940, 2076}), p(programm) {
    MouseDown = [this](auto...) { p.eingabe.zieheForm(*this); };
    for (VisualControl *fläche : {static_cast<VisualControl *>(&Label1), static_cast<VisualControl *>(&Label2),
                                  static_cast<VisualControl *>(&Label3), static_cast<VisualControl *>(&Image1)})
        fläche->MouseDown = MouseDown;
    Line1.BorderColor = farbe::Holz;
    Label1.Satzausrichtung = Ausrichtung::Mitte;
    Label1.Zeicheneinzug = {0, 60, 0, -60};
    for (VisualControl *c : {static_cast<VisualControl *>(&Combo1), static_cast<VisualControl *>(&Combo2)})
        c->Zeicheneinzug = {84, 0, -84, 0};
    for (Label *l : {&Label2, &Label3}) {
        l->Mittig = true;
        l->Zeicheneinzug = {48, 0, 0, -36};
        l->Schriftmaß = 0.92;
    }
    Command1.Zeicheneinzug.links = 96;
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { p.entlade(Formname); };
}

void Exchange::Form_Load() { Topmost = true; }

void Exchange::Command1_Click() {
    if (Combo1.ListIndex < 0 || Combo2.ListIndex < 0) return p.entlade(Formname);
    const int gegeben = std::stoi(Combo1.Text()), gewünscht = std::stoi(Combo2.Text());
    if (std::ranges::none_of(Tauschtafel,
                             [&](const Umtausch &u) { return u.Gegeben == gegeben && u.Gewünscht == gewünscht; }))
        return Ansagen(p, "Sorry, hab nicht so viel Kleingeld!     ", 0);
    auto &bestand = p.Zustand.Notenbestand;
    if (bestand[gegeben] < 1) {
        p.MsgBox("Du hast gar kein " + Combo1.Text() + " Dm Schein!");
    } else {
        bestand[gegeben] -= 1;
        bestand[gewünscht] += gegeben / gewünscht;
    }
    Scheinanzeige(p);
    p.entlade(Formname);
}

void ExchangeÖffnen(Programm &p) {
    Form &dialog = p.form<Exchange>();
    dialog.Left = VonRechts;
    dialog.Top = VonOben;
    p.zeige(Exchange::Formname);
    const auto gleite = [&](Eigenschaft<double> &ort, double um) {
        ort += um;
        p.oberfläche.zeigeSchritt(dialog, SchrittDauer);
    };
    while (dialog.Left > Links)
        gleite(dialog.Left, -Schritt);
    while (dialog.Top < Unten)
        gleite(dialog.Top, Schritt);
}

} // namespace velmo
