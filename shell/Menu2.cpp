#include "shell/Menu2.h"

#include "assistant/Ansagen.h"
#include "assistant/Assistent.h"
#include "board/Form1.h"
#include "media/Bilder.h"
#include "model/Autotafel.h"
#include "platform/Dateien.h"
#include "platform/Zeichen.h"
#include "shell/Charakterdatei.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace velmo {

namespace {

constexpr int ErstesBild = 141, LetztesBild = 155, Anfangsbild = 152;
constexpr int LängsterName = 13;

std::string Charakterordner(const Programm &p) { return p.Spielerordner() + "/charakter"; }

/// Eine Nummer von 31 Bit, die zu dem Text gehört; gerechnet mit 64 Bit, auf jedem Rechner dieselbe.
std::uint64_t Griff(const std::string &text) {
    std::uint64_t summe = 0xCBF29CE484222325;
    for (const unsigned char zeichen : text)
        summe = (summe ^ zeichen) * 0x100000001B3;
    return summe >> 33;
}

/// Schiebt die Form in Schritten, solange die Bedingung gilt; der ganze Weg dauert etwa eine Sekunde.
void schiebe(Form &form, double schritt, double bis) {
    const double dauer = 1000 / (std::abs(bis - form.Left) / std::abs(schritt) + 1);
    while (schritt < 0 ? form.Left >= bis : form.Left <= bis) {
        form.Left += schritt;
        form.laufzeit.oberfläche.zeigeSchritt(form, dauer);
    }
}

} // namespace

Menu2::Menu2(Programm &programm) : Form(programm, Formname, {420, 1056, 8868, 4716}), p(programm) {
    BackColor = farbe::Weiß;
    for (Shape *rahmen : {&Shape1, &Shape2})
        rahmen->BorderColor = Farbe{0x9C7440};
    Shape1.Zeicheneinzug = {36, 12, 0, -12};
    Shape2.Zeicheneinzug = {48, 12, 48, 108};
    for (CommandButton *knopf : {&Command3, &Command4, &Command5})
        knopf->Zeicheneinzug = {0, -24, 0, 60};
    for (Label *l : {&Label1, &Label2, &Label3, &Label5, &Label6})
        l->Mittig = true;
    Label4.Satzausrichtung = Ausrichtung::Mitte;
    Label4.Zeicheneinzug = {0, -36, 48, 36}; // mitten über der Liste
    Label4.Schriftmaß = 0.94;
    klickl.WieKnopf = klickr.WieKnopf = true;
    for (Schriftelement *feld : std::initializer_list<Schriftelement *>{&Text1, &Text2, &List1, &List2, &List3})
        feld->FontSize = 9;
    // Von einem Pfeil geradewegs zum anderen behalten mit Absicht beide ihren Rand.
    MouseMove = [this](double, double) { klickl.BorderStyle = klickr.BorderStyle = Rand::Ohne; };
    Picture1.MouseMove = MouseMove;
    for (Image *pfeil : {&klickl, &klickr})
        pfeil->MouseMove = [pfeil](double, double) { pfeil->BorderStyle = Rand::Einfach; };
    klickl.Click = [this] { klickl_Click(); };
    klickr.Click = [this] { klickr_Click(); };
    Label4.Click = [this] { Label4_Click(); };
    Command1.Click = [this] { Command1_Click(); };
    Command2.Click = [this] { Command2_Click(); };
    Command3.Click = File1.DblClick = [this] { Command3_Click(); };
    Command4.Click = [this] { Command4_Click(); };
    Command5.Click = [this] { Command5_Click(); };
}

void Menu2::Form_Load() {
    MMControl1.FileName = p.Zustand.Programmpfad + "/sound/menuback.wav";
    const Bildschirm schirm = p.Screen();
    Left = std::floor((schirm.Width - Width) / 2);
    Top = std::floor((schirm.Height - Height) / 2);
    p.Zustand.Bildnummer = Anfangsbild;
    try {
        File1.setzePath(Charakterordner(p));
    } catch (const Laufzeitfehler &) { // ohne den Ordner bleibt die Liste leer
    }
    for (ListBox *liste : {&List2, &List1, &List3})
        liste->ListIndex = 0;
    klickr_Click(); // mit Absicht so: das erste Bild ist das nächste
}

void Menu2::klickr_Click() {
    p.Zustand.Bildnummer += 1;
    if (p.Zustand.Bildnummer.Zahl() >= LetztesBild + 1) p.Zustand.Bildnummer = ErstesBild;
    zeigeBild();
}

void Menu2::klickl_Click() {
    p.Zustand.Bildnummer -= 1;
    if (p.Zustand.Bildnummer.Zahl() <= ErstesBild - 1) p.Zustand.Bildnummer = LetztesBild;
    zeigeBild();
}

void Menu2::zeigeBild() {
    Picture1.Picture = Bildladen(p, Kurz(alsGanz(std::nearbyint(p.Zustand.Bildnummer.Zahl()))), "Charakter");
}

/// Schreibt die innere Nummer des Bildes an, sonst nichts.
void Menu2::Label4_Click() { Label4.Caption = std::to_string(Griff(Picture1.Picture().Name)); }

void Menu2::Command4_Click() {
    p.Zustand.Charakterpfad = Charakterordner(p) + "/" + Text1.Text() + ".cha";
    schreibeCharakter(p.Zustand.Charakterpfad, {Text1.Text, Text2.Text, List1.Text(), p.Zustand.Bildnummer});
    File1.Refresh();
}

void Menu2::Command3_Click() {
    if (File1.ListIndex < 0) return;
    try {
        const Charakter geladen = liesCharakter(File1.Path() + "/" + File1.Text());
        p.Zustand.Bildnummer = geladen.Bildnummer;
        File1.Refresh();
        Text1.Text = geladen.Name;
        Text2.Text = geladen.Spitzname;
        List1.wähleText(geladen.Farbe); // mit Absicht erst jetzt: bei fremder Farbe stehen die Namen schon
        zeigeBild();
    } catch (const Laufzeitfehler &fehler) {
        p.MsgBox("Fehler beim laden der Charakterdatei: " + fehler.Beschreibung());
    }
}

void Menu2::Command5_Click() {
    try {
        if (File1.ListIndex < 0) return;
        löscheDatei(File1.Path() + "/" + File1.Text());
        File1.Refresh();
    } catch (const Laufzeitfehler &fehler) {
        p.MsgBox("Fehler beim Löschen der Charakterdatei: " + fehler.Beschreibung());
    }
}

void Menu2::Command1_Click() {
    MMControl1.Command(Befehl::Open);
    MMControl1.Command(Befehl::Play);
    schiebe(*this, -20, -9000);
    p.entlade(Formname);
}

void Menu2::Command2_Click() {
    schreibeWahl();
    if (List1.ListIndex < 0) {
        p.MsgBox("Sie müssen eine Farbe wählen!");
        return p.zeige(Formname);
    }
    teileAutosAus();
    p.Zustand.Spielerbild = Picture1.Picture;
    MMControl1.Command(Befehl::Play);
    schiebe(*this, 20, 9400);
    p.verstecke(formular::Menu);
    p.entlade(Formname);
    p.zeige(Form1::Formname);
    p.zeige(Assistent::Formname);
    begrüße();
}

void Menu2::schreibeWahl() {
    Spielzustand &z = p.Zustand;
    z.Spielername = Text1.Text().empty() ? "Spieler 1" : Text1.Text();
    z.Spitzname = Text2.Text().empty() ? z.Spielername : Text2.Text();
    // Mit Absicht nur eine Bemerkung: der Name bleibt, und das Spiel beginnt.
    if (Zeichenzahl(z.Spielername) > LängsterName)
        Ansagen(p, "So einen langen Namen kann man doch gar nicht haben! Kürze ihn auf max. 13 Buchstaben!", 0);
    z.Schwierigkeit = alsGanz(List3.ListIndex) + 1;
    if (z.Schwierigkeit > 0)
        for (Kurz &geld : z.Computergeld)
            geld = Schwierigkeitsgrade[z.Schwierigkeit - 1].Startgeld;
    z.Gegnerzahl = alsGanz(List2.ListIndex) + 1;
}

void Menu2::begrüße() {
    Ansagen(p,
            "Hi " + p.Zustand.Spitzname +
                ", ich bin Dorvin, der Assistent von Velmo. Ich helfe dir gerne weiter und ich berichte dir was läuft.",
            0);
}

/// Die Autos der Computer; wessen Fahrer nicht mitspielt, verschwindet vom Brett. Der erste spielt mit Absicht auch
/// mit, wenn keine Zahl gewählt ist.
void Menu2::teileAutosAus() {
    const std::string farbe = List1.Text();
    const Auto &meins =
        *std::find_if(Autotafel.begin(), Autotafel.end(), [&](const Auto &a) { return farbe == a.Farbe; });
    p.Zustand.Spielerfarbe = meins.Text;
    for (int computer = 1; computer <= 3; ++computer) {
        const Autokürzel k = meins.Computer[static_cast<std::size_t>(computer - 1)];
        const bool spielt = computer == 1 || computer <= p.Zustand.Gegnerzahl;
        p.Zustand.Autos[k].Autobesitzer = spielt ? Computer<Autobesitzer>(computer) : Autobesitzer();
        if (!spielt) brett(p).Autobild(k).Visible = false;
    }
}

} // namespace velmo
