#include "property/Karten.h"

#include "include/Werte.h"
#include "media/Bilder.h"
#include "media/Ton.h"

namespace velmo {

namespace {

constexpr int ErsteKarte = 117, LetzteKarte = 124;

} // namespace

Karten::Karten(Programm &programm) : Form(programm, Formname, {204, 384, 9216, 6540}), p(programm) {
    verbindeFahrten();
    picture1.gebaren = Gebaren::Schwebt;
    for (Image *pfeil : {&Image1, &Image2, &Image3})
        pfeil->WieKnopf = true;
    Image1.Zeicheneinzug = {0, -54, 0, 54}; // auf gleicher Höhe
    Image2.Zeicheneinzug = {-60, 54, 60, -54};
    Timer9.Tick = [this] { p.entlade(Formname); };
    Timer10.Tick = [this] { Timer10_Timer(); };
    for (const auto &[pfeil, um] : {std::pair{&Image1, -1}, std::pair{&Image2, 1}})
        pfeil->Click = [this, um = um] {
            spieleFrisch(MMControl2);
            blättere(um);
        };
    Image3.Click = [this] { Image3_Click(); };
    for (Image *pfeil : {&Image1, &Image2, &Image3})
        pfeil->MouseMove = [pfeil](double, double) { pfeil->BorderStyle = Rand::Einfach; };
    MouseMove = picture1.MouseMove = [this](double, double) {
        for (Image *pfeil : {&Image1, &Image2, &Image3})
            pfeil->BorderStyle = Rand::Ohne;
    };
}

void Karten::verbindeFahrten() {
    struct Fahrt {
        Timer &Takt;
        Eigenschaft<double> &Ort;
        double Schritt, Grenze;
    };
    const Fahrt fahrten[] = {
        // Takt  Ort           Schritt Grenze
        {Timer1, picture1.Top, +300, 120},   {Timer2, Image1.Left, +50, 360},
        {Timer3, Image2.Left, -50, 10800}, // steht schon darunter: ein Schritt
        {Timer4, Image3.Top, -65, 6480},   // ebenso
        {Timer5, picture1.Top, -300, -6120}, {Timer6, Image1.Left, -50, -960},
        {Timer7, Image2.Left, +50, 12000},   {Timer8, Image3.Top, +65, 8040},
    };
    for (const Fahrt &f : fahrten)
        f.Takt.Tick = [f] {
            f.Ort += f.Schritt;
            if (f.Schritt > 0 ? f.Ort >= f.Grenze : f.Ort <= f.Grenze) f.Takt.Enabled = false;
        };
}

void Karten::Form_Load() {
    MMControl1.FileName = p.Zustand.Programmpfad + "/sound/kback.wav";
    MMControl2.FileName = p.Zustand.Programmpfad + "/sound/kbf.wav";
    Kartennummer = ErsteKarte;
    blättere(1);
    MMControl1.Command(Befehl::Open);
}

void Karten::eigeneWerte(const Namensempfänger &e) { e("Kartennummer", feldzugang(Kartennummer)); }

void Karten::blättere(int um) {
    Kartennummer += um;
    if (Kartennummer > LetzteKarte) Kartennummer = ErsteKarte;
    if (Kartennummer < ErsteKarte) Kartennummer = LetzteKarte;
    picture1.Picture = Bildladen(p, Kartennummer, "Besitzkarten");
}

void Karten::Image3_Click() {
    for (Timer *t : {&Timer5, &Timer6, &Timer7, &Timer8, &Timer9})
        t->Enabled = true;
    MMControl1.Command(Befehl::Close);
    MMControl1.Command(Befehl::Open);
    Timer10.Enabled = true;
}

void Karten::Timer10_Timer() {
    MMControl1.Command(Befehl::Play);
    Timer10.Enabled = false;
}

} // namespace velmo
