#include "shell/HoF.h"

#include "media/Bilder.h"
#include "platform/FormAnpassen.h"
#include "platform/Zeichen.h"
#include "shell/Bestenliste.h"

namespace velmo {

namespace {

constexpr Farbe Weiß{0xFFFFFF};
constexpr Farbe Gold{0xE8C268};

} // namespace

HoF::HoF(Programm &programm) : Form(programm, Formname, {0, 0, 9600, 7428}), p(programm) {
    BackColor = Farbe{0x000000};
    Shape1.BorderColor = Gold;
    Shape1.BorderWidth = 2;
    Label3.FontName = "Bookman Old Style";
    Label3.FontSize = 24;
    Label3.Alignment = static_cast<double>(Ausrichtung::Mitte);
    for (Label *label : {&Label3, &Namending, &Zahlending})
        label->ForeColor = Weiß;
    for (Label *label : {&Namending, &Zahlending})
        label->FontSize = 18;
    SSCommand1.Click = [this] { p.entlade(Formname); };
    Entwurfsbilder(p, *this);
}

void HoF::Form_Load() {
    if (p.Zustand.KleineSchrift) FormAnpassen(*this, 2);
    std::string namen, zahlen;
    bool erster = true;
    for (const Eintrag &e : liesBestenliste(p)) {
        namen += e.Name + "\n";
        // Nur die erste Zahl verliert ihr Leerzeichen: mit Absicht so.
        zahlen += (erster && !e.Punkte.empty() ? Rechts(e.Punkte, Zeichenzahl(e.Punkte) - 1) : e.Punkte) + "\n";
        erster = false;
    }
    Zahlending.Caption = zahlen;
    Namending.Caption = namen;
}

} // namespace velmo
