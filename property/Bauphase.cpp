#include "property/Bauphase.h"

#include "boardform/Brett.h"
#include "property/Bauen.h"
#include "property/Grundstück.h"

namespace velmo {

Bauphase::Bauphase(Programm &programm) : Brettdialog(programm, Formname, 5856, 3444) {
    Label1.MouseDown = zieht();
    Label1.FontSize = 11;
    Label1.Mittig = true;
    Knöpfe.beiKlick([this](Hotelkürzel k) { baue(k); });
    Command1.Click = [this] { p.entlade(Formname); };
}

void Bauphase::Form_Load() {
    Brettdialog::Form_Load();
    for (Hotelknopf &h : Knöpfe) {
        h.Knopf.Visible = p.Zustand.Hotels[h.Hotel].Besitzer == Mensch;
        if (steht(p.Zustand, h.Hotel, Baustufe::P)) h.Knopf.Enabled = false;
    }
}

void Bauphase::baue(Hotelkürzel k) {
    if (ausgebaut(p.Zustand, k, k, grundstück(k).Übergangen))
        brett(p).Label1.Caption = "Sie haben schon alles gebaut!";
    else
        errichte(p, nächsteBaustufe(p.Zustand, k));
    p.entlade(Formname);
}

} // namespace velmo
