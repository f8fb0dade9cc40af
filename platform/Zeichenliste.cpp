#include "platform/Zeichenliste.h"

namespace velmo {

namespace {

void nimmSchrift(Stück &s, const Schriftelement &e) {
    s.schriftart = e.FontName;
    s.schriftgrad = e.FontSize;
    s.fett = e.FontBold;
    s.farbe = e.ForeColor;
}

Stück stück(const Label &l) {
    Stück s;
    s.sorte = Sorte::Beschriftung;
    nimmSchrift(s, l);
    s.text = l.Caption;
    s.ausrichtung = l.Alignment;
    s.deckend = l.Deckend;
    s.mittig = l.Mittig;
    s.grund = l.BackColor;
    return s;
}

Stück stück(const Image &i) {
    Stück s;
    s.sorte = Sorte::Bild;
    s.bild = i.Picture().Datei;
    s.rand = i.BorderStyle() == Rand::Einfach;
    s.wächst = i.Wächst;
    if (!i.Stretch || i.Wächst) {
        s.natürlicheBreite = i.natürlicheBreite();
        s.natürlicheHöhe = i.natürlicheHöhe();
    }
    return s;
}

Stück stück(const PictureBox &b) {
    Stück s;
    s.sorte = Sorte::Bildfeld;
    nimmSchrift(s, b);
    s.bild = b.Picture().Datei;
    s.rand = b.BorderStyle() == Rand::Einfach;
    return s;
}

Stück stück(const Shape &r) {
    Stück s;
    s.sorte = Sorte::Rahmen;
    s.rand = r.BorderWidth;
    s.farbe = r.BorderColor;
    s.gestalt = r.gestalt;
    return s;
}

Stück stück(const CommandButton &k) {
    Stück s;
    s.sorte = Sorte::Knopf;
    nimmSchrift(s, k);
    s.text = k.Caption;
    if (const auto *mitBild = dynamic_cast<const SSCommand *>(&k)) {
        s.bild = mitBild->Picture().Datei;
        s.erhaben = mitBild->Font3D() != Betonung::Keine;
    }
    return s;
}

Stück stück(const VisualControl &c) {
    if (const auto *l = dynamic_cast<const Label *>(&c)) return stück(*l);
    if (const auto *i = dynamic_cast<const Image *>(&c)) return stück(*i);
    if (const auto *b = dynamic_cast<const PictureBox *>(&c)) return stück(*b);
    if (const auto *r = dynamic_cast<const Shape *>(&c)) return stück(*r);
    if (const auto *k = dynamic_cast<const CommandButton *>(&c)) return stück(*k);
    Stück s;
    s.sorte = dynamic_cast<const Animation *>(&c) ? Sorte::Film : Sorte::Bedienelement;
    return s;
}

void nimmKinder(Zeichenliste &liste, const std::vector<VisualControl *> &kinder, double x, double y, bool sichtbar) {
    for (const bool fenster : {false, true})
        for (const VisualControl *c : kinder) {
            if (c->Fenster() != fenster) continue;
            Stück s = stück(*c);
            s.control = c;
            s.Left = x + c->Left;
            s.Top = y + c->Top;
            s.Width = c->Width;
            s.Height = c->Height;
            s.sichtbar = sichtbar && c->Visible;
            s.gesperrt = !c->Enabled;
            s.ablage = c->DragDrop && c->Enabled;
            s.hinweis = c->ToolTipText;
            liste.push_back(s);
            if (const auto *feld = dynamic_cast<const PictureBox *>(c))
                nimmKinder(liste, feld->Kinder, s.Left, s.Top, s.sichtbar);
        }
}

} // namespace

Zeichenliste zeichenliste(const Form &form) {
    Zeichenliste liste;
    // Linien liegen unter allem anderen.
    for (const Control *c : form.Controls())
        if (const auto *l = dynamic_cast<const Line *>(c)) {
            Stück s;
            s.control = l;
            s.sorte = Sorte::Linie;
            s.Left = l->x1;
            s.Top = l->y1;
            s.Width = l->x2 - l->x1;
            s.Height = l->y2 - l->y1;
            s.sichtbar = l->Visible;
            s.rand = l->BorderWidth;
            s.farbe = l->BorderColor;
            liste.push_back(s);
        }
    nimmKinder(liste, form.Kinder, 0, 0, true);
    return liste;
}

} // namespace velmo
