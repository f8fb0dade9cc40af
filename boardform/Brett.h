#pragma once
// Die Brettform "Form1", wie der Entwurf sie anordnet: alle Steuerelemente, an denen Regeln ablesbar werden. Ihre
// Behandlungen stehen in board/Form1. Maße in Twips; was in Picture1 liegt, misst von dessen Ecke.
#include "include/Programm.h"
#include "model/Autotafel.h"
#include "model/Eingangstafel.h"
#include "model/Hoteltafel.h"

#include <deque>

namespace velmo {

/// Ein Notenstapel: das Feld, der Knopf mit der Zahl und die Note, die davonfliegt. Der Stapel ist gesperrt, solange
/// keine Schuld offen ist; Knopf und Note liegen in ihm.
struct Notenstapel {
    Notenstapel(Form &, int note, const char *feld, const char *knopf, const char *bild, Rechteck);
    const int Note;
    PictureBox g;
    Image p;
    SSCommand k;
};

class Brett : public Form {
  public:
    static constexpr Formularname Formname = formular::Form1;
    explicit Brett(Programm &);

    PictureBox Picture1{*this, "Picture1", {120, 840, 8892, 5124}};
    // Im Brettbild von hinten nach vorn: Bank und Rathaus, Eingänge, Autos, Gebäude, Schilder.
    Image Bank{Picture1, "Bank", {5040, 4200, 1008, 756}};
    Image Rathhaus{Picture1, "Rathhaus", {5544, 600, 468, 528}};
    Label Info{Picture1, "Info", {0, 0, 972, 492}}; // vor allem anderen

    Label Label1{*this, "Label1", {120, 120, 3012, 612}, "Bitte würfeln sie !"};
    SSCommand WüButton{*this, "WüButton", {3360, 120, 852, 492}, "Würfeln"};
    SSCommand Fertig{*this, "Fertig", {4320, 120, 732, 492}, "Fertig"};
    PictureBox Picture7{*this, "Picture7", {5160, 120, 492, 492}};
    PictureBox Picture8{*this, "Picture8", {5760, 120, 492, 492}};
    SSCommand Command2{*this, "Command2", {6480, 120, 1092, 492}, "Besitzkarten"};
    Label label9{*this, "label9", {7920, 120, 1452, 252}, "Insgesamtes Geld:"};
    Label Geldlabel{*this, "Geldlabel", {7920, 360, 1452, 372}};

    Label Label4{*this, "Label4", {9040, 3480, 612, 252}, "Eingänge"};
    Label toteinG{*this, "toteinG", {9240, 3600, 252, 252}, "0"};
    Image Imagee{*this, "Imagee", {9048, 3840, 456, 180}};
    Image Pfeil{*this, "Pfeil", {9060, 4080, 420, 456}};
    Image Picture2{*this, "Picture2", {9060, 5280, 480, 480}};

    SSCommand Command1{*this, "Command1", {7800, 6000, 1572, 372}, "Eingänge Kaufen"};
    SSCommand SSCommand2{*this, "SSCommand2", {7800, 6360, 1572, 372}, "Geld Umtauschen"};
    SSCommand SSCommand3{*this, "SSCommand3", {7800, 6720, 1572, 372}, "Hilfe"};
    SSCommand SSCommand1{*this, "SSCommand1", {240, 6120, 1092, 972}, "Beenden"};

    std::deque<Notenstapel> Stapel;

    Timer Timer1{*this, "Timer1", 100, false};
    Timer Timer2{*this, "Timer2", 100, false};
    Timer Timer3{*this, "Timer3", 1, false};
    Timer Timer4{*this, "Timer4", 0, false};
    Timer überfahR{*this, "überfahR", 19, false};
    Timer BauTimer{*this, "BauTimer", 1, false};
    Timer pfeilTimer{*this, "pfeilTimer", 500, false};
    Timer Midi{*this, "Midi", 60000, true};

    MMControl MMControl1{*this, "MMControl1"}; // Musik
    MMControl Hauscontrol1{*this, "Hauscontrol1"};
    MMControl MMControl2{*this, "MMControl2"}; // Note
    MMControl MMControl3{*this, "MMControl3"}; // Auto
    MMControl Trommel{*this, "Trommel"};
    MMControl Kasse{*this, "Kasse"};

    /// Bei 96 DPI gelten die großen Feldorte; entschieden wird beim Laden.
    bool GroßesBrett = false;

    /// Die Bilder der Tafeln auf dem Brett.
    Image &Platzbild(int eingang);
    Image &Autobild(Autokürzel);
    Image &Gebäude(Hotelkürzel, Baustufe);
    Label &Schild(Hotelkürzel);
    /// Das Gebäudebild mit dem Namen aus der Stufentafel; null, wenn keins so heißt.
    Image *Gebäude(const std::string &Name);
    Notenstapel &stapel(int note);

  private:
    void setzeBeschriftungen();

    std::deque<Image> plätze, autos, gebäude;
    std::deque<Label> schilder;
};

/// Das Brett; wer es berührt, lädt es.
inline Brett &brett(Programm &p) { return p.form<Brett>(); }

} // namespace velmo
