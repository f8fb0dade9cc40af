#include "property/Hotelknöpfe.h"

#include "property/Brettdialog.h"

namespace velmo {

namespace {

constexpr int InDerReihe = 4;
constexpr double Breite = 972, Höhe = 732, Spaltenschritt = 1200, Reihenschritt = 840; // Twips

struct Knopfzeile {
    Hotelkürzel Hotel;
    const char *Rahmen, *Knopf;
};

using H = Hotelkürzel;
constexpr Knopfzeile Knopftafel[] = {
    {H::r, "Shape1", "SSCommand1"}, {H::f, "Shape2", "SSCommand2"}, {H::p, "Shape3", "SSCommand3"},
    {H::t, "Shape4", "SSCommand4"}, {H::b, "Shape5", "SSCommand5"}, {H::l, "Shape6", "SSCommand6"},
    {H::w, "Shape7", "SSCommand7"}, {H::s, "Shape8", "SSCommand8"},
};

} // namespace

Hotelknopf::Hotelknopf(Form &form, Hotelkürzel k, const char *rahmen, const char *knopf, Rechteck r)
    : Hotel(k), Rahmen(form, rahmen, r), Knopf(form, knopf, r, hotel(k).Name) {
    Rahmen.BorderColor = farbe::Holz;
    Knopf.Visible = false;
}

Hotelknöpfe::Hotelknöpfe(Form &form, double Left, double Top) {
    for (const Knopfzeile &zeile : Knopftafel) {
        const int i = static_cast<int>(size());
        emplace_back(
            form, zeile.Hotel, zeile.Rahmen, zeile.Knopf,
            Rechteck{Left + i % InDerReihe * Spaltenschritt, Top + i / InDerReihe * Reihenschritt, Breite, Höhe});
    }
}

void Hotelknöpfe::beiKlick(const std::function<void(Hotelkürzel)> &klick) {
    for (Hotelknopf &knopf : *this)
        knopf.Knopf.Click = [klick, k = knopf.Hotel] { klick(k); };
}

} // namespace velmo
