#include "property/eingang.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "property/Eingangskauf.h"

#include <algorithm>

namespace velmo {

namespace {

const Hoteleingang &hoteleingang(Hotelkürzel k) { return *std::ranges::find(Hoteleingänge, k, &Hoteleingang::Hotel); }

/// Kein Platz des Hotels ist mehr zu haben.
bool voll(const Spielzustand &z, const Hoteleingang &h) {
    return std::ranges::all_of(h.Plätze(), [&](int platz) { return vergeben(z, platz); }) &&
           (h.Fremde[0] == 0 || std::ranges::any_of(h.Fremde, [&](int platz) { return bool(z.Eingang[platz]); }));
}

} // namespace

eingang::eingang(Programm &programm) : Brettdialog(programm, Formname, 6360, 3900) {
    for (Label *label : {&Label1, &Label3}) {
        label->MouseDown = zieht();
        label->FontSize = 14;
        label->Alignment = Ausrichtung::Mitte;
        label->Mittig = true;
    }
    Label1.Zeicheneinzug = {120, 0, 120, 0};
    SSCommand9.Zeicheneinzug = {60, 0, 60, 96}; // der untere Rand bleibt frei
    for (Line *linie : {&Line1, &Line2, &Line3, &Line4})
        linie->BorderColor = farbe::Holz;
    Knöpfe.beiKlick([this](Hotelkürzel k) { wähle(k); });
    SSCommand9.Click = [this] { p.entlade(Formname); };
}

void eingang::Form_Load() {
    const Spielzustand &z = p.Zustand;
    p.Zustand.Eingangfehler = false;
    Brettdialog::Form_Load();
    for (Hotelknopf &h : Knöpfe) {
        const Hoteldaten &daten = z.Hotels[h.Hotel];
        h.Knopf.Visible = daten.Besitzer == Mensch && !z.Hotelliste[1].leer();
        if ((daten.Besitzer == Mensch && voll(z, hoteleingang(h.Hotel))) || (!z.Gratiseingang && daten.Eingangssperre))
            h.Knopf.Enabled = false;
    }
}

void eingang::wähle(Hotelkürzel k) {
    Spielzustand &z = p.Zustand;
    const Hoteleingang &h = hoteleingang(k);
    if (!z.Gratiseingang && z.Gesamtgeld < h.Mindestgeld)
        return Ansagen(p, "Sie haben nicht genug Geld für den Eingang!", 0);
    const bool haupthaus = steht(z, k, Baustufe::H);
    if (!haupthaus) z.Eingangfehler = true;
    // Ohne Hauptgebäude öffnet der Knopf das Schloss sogar: mit Absicht so.
    if (!z.Gratiseingang) z.Hotels[k].Eingangssperre = haupthaus;
    Eingangsanzeige(p, h.Text);
}

void eingang::Form_Unload() {
    const Spielzustand &z = p.Zustand;
    for (Hotelknopf &h : Knöpfe)
        if (z.Hotels[h.Hotel].Eingangssperre || (!z.Gratiseingang && !h.Knopf.Visible)) h.Knopf.Enabled = false;
    const bool keiner = std::ranges::none_of(Knöpfe, [](const Hotelknopf &h) { return h.Knopf.Enabled(); });
    Eingangsknopf(p, z.Gratiseingang || !keiner);
    Brettdialog::Form_Unload();
}

} // namespace velmo
