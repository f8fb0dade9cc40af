#include "property/Baufeld.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "property/Bauen.h"
#include "property/Grundstück.h"

namespace velmo {

namespace {

struct Hinweis {
    const char *Text;  // steht in Label1
    const char *Hilfe; // für den Klick auf den gesperrten Knopf
};

constexpr Hinweis KeinHotel{"Kein Hotel", "Sie haben noch gar kein Grundstück auf dem Sie anbauen können. Kaufen Sie "
                                          "eines wenn Sie auf ein Geldfeld kommen!"};
constexpr Hinweis WähleHotel{"Wählen Sie ein Hotel aus!",
                             "Auf welchem ihrer Hotels wollen sie anbauen? Wählen sie eines mit \"Hotels...\" aus!"};

void verlangeBauwürfel(Programm &p) {
    Brett &b = brett(p);
    b.Fertig.Enabled = false;
    b.WüButton.Enabled = true;
    p.Zustand.Baumodus = "s";
    b.Label1.Caption =
        "Sie müssen würfeln ob sie ein Haus bauen dürfen, es gratis kriegen, oder das doppelte bezahlen!";
}

} // namespace

Baufeld::Baufeld(Programm &programm) : Brettdialog(programm, Formname, 5952, 2760) {
    Label2.MouseDown = zieht();
    Label2.FontSize = 12;
    Label2.Mittig = true;
    Label2.Zeicheneinzug = {60, 0, 180, 132};
    Label1.FontSize = 12;
    Label1.Mittig = true;
    Label1.Zeicheneinzug.links = -660; // neben dem Hammer
    Command2.Click = [this] { p.entlade(Formname); };
    Command3.Click = [this] { Command3_Click(); };
    Command4.Click = [this] { p.zeige(formular::Karten); };
    Command9.Click = [this] { Command9_Click(); };
    Image1.MouseUp = [this](Maustaste, double X, double Y) { Image1_MouseUp(X, Y); };
}

void Baufeld::Form_Load() {
    Brettdialog::Form_Load();
    // Der erste Klick auf "Hotels..." zeigt darum die zweite Stelle der Liste: mit Absicht so.
    p.Zustand.Hotelposition = 1;
    const bool keins = p.Zustand.Hotelliste[1].leer();
    Label1.Caption = keins ? KeinHotel.Text : WähleHotel.Text;
    if (keins) Command3.Enabled = false;
    Command9.Enabled = false;
}

/// Schreibt die Stelle der Liste in Label1; falsch, wenn sie leer ist.
bool Baufeld::zeigeHotel() {
    const Lose &stelle = p.Zustand.Hotelliste[p.Zustand.Hotelposition];
    Label1.Caption = stelle.Text();
    if (Label1.Caption() != KeinHotel.Text && Label1.Caption() != WähleHotel.Text) {
        Command3.Enabled = true;
        Command9.Enabled = true;
    }
    return !stelle.leer();
}

void Baufeld::Command3_Click() {
    if (++p.Zustand.Hotelposition >= 9) p.Zustand.Hotelposition = 1;
    if (zeigeHotel()) return;
    p.Zustand.Hotelposition = 1;
    if (zeigeHotel()) return;
    Command3.Enabled = false;
    Command9.Enabled = false;
    Label1.Caption = KeinHotel.Text;
}

void Baufeld::Command9_Click() {
    Spielzustand &z = p.Zustand;
    z.Bauhotel = Label1.Caption;
    if (const auto k = HotelZuSchlüssel(z.Bauhotel)) {
        if (steht(z, *k, Baustufe::P)) return Ansagen(p, "Sie haben schon alles gebaut", 0);
        if (nächsteBaustufe(z, *k).Stand == Baustufe::P) {
            // Der Freizeitpark braucht keinen Würfel.
            z.Bauergebnis = 1;
            return Baudurchführung(p);
        }
    }
    verlangeBauwürfel(p);
    p.entlade(Formname);
}

void Baufeld::Image1_MouseUp(double X, double Y) {
    // Der Ort gilt im Bild, der Knopf auf der Form; beides wird verglichen, wie es dasteht: mit Absicht so.
    const bool amKnopf = X > Command9.Left && X < Command9.Left + Command9.Width && Y > Command9.Top &&
                         Y < Command9.Top + Command9.Height;
    if (Command9.Enabled || !amKnopf) return;
    for (const Hinweis &h : {KeinHotel, WähleHotel})
        if (Label1.Caption() == h.Text) Ansagen(p, h.Hilfe, 0);
}

} // namespace velmo
