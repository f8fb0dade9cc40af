#include "board/Quetschen.h"

#include "boardform/Brett.h"

namespace velmo {

namespace {

struct Quetschzeile {
    int Ziel;
    Hotelkürzel Hotel;
    Baustufe Gebäude;
    int Höhe; // Twips, auf die es zusammensinkt
};

constexpr Quetschzeile Quetschtafel[] = {
    {18, Hotelkürzel::r, Baustufe::N1, 660},
    {19, Hotelkürzel::r, Baustufe::N3, 560},
    {29, Hotelkürzel::f, Baustufe::H, 750},
    {30, Hotelkürzel::f, Baustufe::N2, 660},
};

} // namespace

void quetsche(Programm &p, Autodaten &wagen) {
    Spielzustand &z = p.Zustand;
    Brett &b = brett(p);
    for (const Quetschzeile &zeile : Quetschtafel) {
        const Image &bild = b.Gebäude(zeile.Hotel, zeile.Gebäude);
        if (wagen.Autoziel != zeile.Ziel || !bild.Visible) continue;
        z.Quetschbild = bild.Name;
        z.Quetschtop = alsGanz(bild.Top);
        z.Quetschhöhe = zeile.Höhe;
        wagen.Quetschmerker = true;
        b.überfahR.Enabled = true;
    }
}

void stelleQuetschbildHer(Programm &p, Autodaten &wagen) {
    if (Image *bild = brett(p).Gebäude(p.Zustand.Quetschbild)) {
        bild->Stretch = false;
        bild->Top = p.Zustand.Quetschtop;
    }
    wagen.Quetschmerker = false;
}

void Quetschtakt(Programm &p) {
    Brett &b = brett(p);
    Image *bild = b.Gebäude(p.Zustand.Quetschbild);
    if (bild) {
        bild->Stretch = true;
        bild->Height -= 15;
        bild->Top += 15;
    }
    if (!bild || bild->Height <= p.Zustand.Quetschhöhe.Zahl()) b.überfahR.Enabled = false;
}

} // namespace velmo
