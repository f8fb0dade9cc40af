#include "boardform/Brett.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr Rechteck Feldmaß{0, 0, 972, 2052};

struct Stapelzeile {
    int Note;
    const char *g, *k, *p;
    double Left, Top;
};

constexpr Stapelzeile Stapeltafel[] = {
    {50, "g50", "k50", "p50", 1440, 5650},         {100, "g100", "k100", "p100", 2760, 5640},
    {500, "g500", "k500", "p500", 4080, 5640},     {1000, "g1000", "k1000", "p1000", 5400, 5640},
    {5000, "g5000", "k5000", "p5000", 6720, 5640},
};

/// Ein Schildchen aus Papier; erst ein Besitzer macht es sichtbar.
void gestalte(Label &schild) {
    schild.Visible = false;
    schild.FontSize = 7;
    schild.FontBold = true;
    schild.Alignment = Ausrichtung::Mitte;
    schild.Mittig = true;
    schild.Deckend = true;
    schild.BackColor = Farbe{0xFFF6DC};
}

/// Ein Text mitten in seinem Platz, so viel größer.
void setzeMittig(Label &l, double schriftmaß, Einzug einzug) {
    l.Satzausrichtung = Ausrichtung::Mitte;
    l.Mittig = true;
    l.Schriftmaß = schriftmaß;
    l.Zeicheneinzug = einzug;
}

} // namespace

Notenstapel::Notenstapel(Form &form, int note, const char *feld, const char *knopf, const char *bild, Rechteck r)
    : Note(note), g(form, feld, r), p(g, bild, Feldmaß), k(g, knopf, {0, 0, 972, 252}) {
    g.Enabled = false;
    g.WieKnopf = g.WirftSchatten = true;
    p.Visible = false;
    p.gebaren = Gebaren::Fliegt;
}

Brett::Brett(Programm &p) : Form(p, Formname, {0, 0, 9600, 7200}, "Velmo") {
    for (const Eingangsplatz &platz : Eingangsplätze)
        plätze.emplace_back(Picture1, platz.Control, platz.Ort).Visible = false;
    for (const Auto &a : Autotafel)
        autos.emplace_back(Picture1, a.Control, a.Ort);
    for (const Stufe &s : Stufen) {
        Image &bild = gebäude.emplace_back(Picture1, s.Bild, s.Ort);
        bild.Visible = false;
        bild.Schattenort = Schattenort(s.Ort);
    }
    // Was weiter vorn steht, verdeckt, was dahinter steht.
    std::vector<Image *> nachTiefe;
    for (Image &bild : gebäude)
        nachTiefe.push_back(&bild);
    std::stable_sort(nachTiefe.begin(), nachTiefe.end(),
                     [](Image *a, Image *b) { return a->Top + a->Height < b->Top + b->Height; });
    for (Image *bild : nachTiefe)
        bild->nachVorn();
    for (const Hotel &h : Hotels)
        gestalte(schilder.emplace_back(Picture1, h.Schild, h.Schildort));
    Info.nachVorn();
    Info.Visible = false;
    for (const Stapelzeile &z : Stapeltafel)
        Stapel.emplace_back(*this, z.Note, z.g, z.k, z.p, Rechteck{z.Left, z.Top, Feldmaß.Width, Feldmaß.Height});
    Picture7.gebaren = Picture8.gebaren = Gebaren::Purzelt;
    Fertig.Enabled = false;
    Pfeil.Visible = false;
    setzeBeschriftungen();
}

/// Die Schrift sitzt auf dem Papier, dem Messing und dem Täfelchen des Tischs.
void Brett::setzeBeschriftungen() {
    Label1.Mittig = true;
    Label1.Zeicheneinzug = {72, 12, 84, 120};
    setzeMittig(label9, 1, {0, 0, 0, 24});
    setzeMittig(Geldlabel, 1.6, {0, -12, 0, 12});
    setzeMittig(Label4, 0.64, {20, -48, 136, 132});
    setzeMittig(toteinG, 1.1, {-186, -24, -30, 72});
    setzeMittig(Info, 1, {});
    Info.Deckend = true;
    Info.BackColor = farbe::Papier;
    Picture2.WieKnopf = true;
}

Image &Brett::Platzbild(int eingang) { return plätze.at(static_cast<std::size_t>(eingang - 2)); }
Image &Brett::Autobild(Autokürzel k) { return autos[static_cast<std::size_t>(k)]; }
Label &Brett::Schild(Hotelkürzel k) { return schilder[static_cast<std::size_t>(k)]; }

Image &Brett::Gebäude(Hotelkürzel k, Baustufe s) {
    return gebäude.at(static_cast<std::size_t>(stufe(k, s) - Stufen.data()));
}

Image *Brett::Gebäude(const std::string &Name) {
    const auto hier = std::find_if(gebäude.begin(), gebäude.end(), [&](const Image &b) { return Name == b.Name; });
    return hier == gebäude.end() ? nullptr : &*hier;
}

Notenstapel &Brett::stapel(int note) { return Stapel.at(static_cast<std::size_t>(NachNote::stelle(note))); }

} // namespace velmo
