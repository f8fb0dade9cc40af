#include "shell/HoF.h"

#include "platform/Zeichen.h"
#include "shell/Bestenliste.h"

namespace velmo {

namespace {

constexpr Farbe Gold{0xE8C268};

} // namespace

HoF::HoF(Programm &programm) : Form(programm, Formname, {0, 0, 9600, 7428}), p(programm) {
    BackColor = farbe::Schwarz;
    Shape1.BorderColor = Gold;
    Shape1.BorderWidth = 2;
    Label3.FontName = "Bookman Old Style";
    Label3.FontSize = 24;
    Label3.Alignment = Ausrichtung::Mitte;
    for (Label *label : {&Label3, &Namending, &Zahlending})
        label->ForeColor = farbe::Weiß;
    for (Label *label : {&Namending, &Zahlending})
        label->FontSize = 18;
    Namending.Zeicheneinzug = {-216, 60, 180, -432};
    Zahlending.Zeicheneinzug = {-60, 60, 408, 288};
    Zahlending.Satzausrichtung = Ausrichtung::Rechts;
    SSCommand1.Zeicheneinzug = {0, 0, 0, 48};
    SSCommand1.Click = [this] { p.entlade(Formname); };
}

void HoF::Form_Load() {
    std::string namen, zahlen;
    bool erster = true;
    for (const Eintrag &e : liesBestenliste(p)) {
        namen += e.Name + "\n";
        // Nur die erste Zahl verliert ihr Leerzeichen: mit Absicht so.
        zahlen += (erster && !e.Punkte.empty() ? Rechts(e.Punkte, Zeichenzahl(e.Punkte) - 1) : e.Punkte) + "\n";
        erster = false;
    }
    Namending.Liste = Listensatz{Bestenplätze, true, p.LetzterRang};
    Zahlending.Liste = Listensatz{Bestenplätze, false, p.LetzterRang};
    Zahlending.Caption = zahlen;
    Namending.Caption = namen;
}

} // namespace velmo
