#include "platform/Zeichenliste.h"

#include "platform/Laufzeit.h"

namespace velmo {

namespace {

void nimmSchrift(Stück &s, const Schriftelement &e) {
    s.schriftart = e.FontName;
    s.schriftgrad = e.FontSize * e.Schriftmaß;
    s.fett = e.FontBold;
    s.farbe = e.ForeColor;
}

Stück stück(const Label &l) {
    Stück s;
    s.sorte = Sorte::Beschriftung;
    nimmSchrift(s, l);
    s.text = l.Caption;
    s.ausrichtung = l.Satzausrichtung.value_or(l.Alignment);
    s.deckend = l.Deckend;
    s.mittig = l.Mittig;
    s.liste = l.Liste;
    s.grund = l.BackColor;
    return s;
}

Stück stück(const Image &i) {
    Stück s;
    s.sorte = Sorte::Bild;
    s.bild = i.Picture().Datei;
    s.rand = i.BorderStyle() == Rand::Einfach;
    s.wächst = i.Wächst;
    s.drehung = i.Drehung();
    s.deckung = i.Deckung();
    s.schein = i.Schein;
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

/// Schatten liegen auf dem Grund des Bildfelds, unter allem, was darauf steht.
void nimmSchatten(Zeichenliste &liste, const std::vector<VisualControl *> &kinder, double x, double y, bool sichtbar) {
    for (const VisualControl *c : kinder) {
        const auto *i = dynamic_cast<const Image *>(c);
        if (!i || i->Schatten().leer()) continue;
        const Rechteck ort = i->Schattenwurf();
        Stück s;
        s.control = i;
        s.sorte = Sorte::Schatten;
        s.bild = i->Schatten().Datei;
        s.Left = x + ort.Left;
        s.Top = y + ort.Top;
        s.Width = ort.Width;
        s.Height = ort.Height;
        s.natürlicheBreite = i->Schattenort.Width;
        s.natürlicheHöhe = i->Schattenort.Height;
        s.sichtbar = sichtbar && i->Visible;
        liste.push_back(s);
    }
}

void legeAn(Stück &s, const VisualControl &c, double x, double y) {
    const double je = c.form.laufzeit.Screen().TwipsPerPixelX / 12; // Einzüge sind die des Entwurfs
    const Einzug &e = c.Zeicheneinzug;
    s.Left = x + c.Left + e.links * je;
    s.Top = y + c.Top + e.oben * je;
    s.Width = c.Width - (e.links + e.rechts) * je;
    s.Height = c.Height - (e.oben + e.unten) * je;
    if (s.natürlicheBreite > 0) {
        s.natürlicheBreite -= (e.links + e.rechts) * je;
        s.natürlicheHöhe -= (e.oben + e.unten) * je;
    }
    s.schatten = c.WirftSchatten;
    s.wieKnopf = c.WieKnopf;
    s.nurUnterZeiger = c.NurUnterZeiger;
}

/// Was den Umriss einer Form nachzöge, zeichnet dort der Umriss selbst.
bool zuSehen(const VisualControl &c) {
    const auto *leiste = dynamic_cast<const VScrollBar *>(&c);
    const bool nachgezogen = c.form.region() && dynamic_cast<const Shape *>(&c);
    return c.Visible && !nachgezogen && !(leiste && leiste->Überflüssig);
}

void nimmKinder(Zeichenliste &liste, const std::vector<VisualControl *> &kinder, double x, double y, bool sichtbar) {
    for (const bool fenster : {false, true})
        for (const VisualControl *c : kinder) {
            if (c->Fenster() != fenster) continue;
            Stück s = stück(*c);
            s.control = c;
            legeAn(s, *c, x, y);
            s.sichtbar = sichtbar && zuSehen(*c);
            s.gesperrt = !c->Enabled;
            s.ablage = c->DragDrop && c->Enabled;
            s.hinweis = c->ToolTipText;
            s.gebaren = c->gebaren;
            liste.push_back(s);
            if (const auto *feld = dynamic_cast<const PictureBox *>(c)) {
                const double links = x + c->Left, oben = y + c->Top;
                nimmSchatten(liste, feld->Kinder, links, oben, s.sichtbar);
                nimmKinder(liste, feld->Kinder, links, oben, s.sichtbar);
            }
        }
}

/// Schrift endet vor einem Bedienelement, das ihr rechtes Ende verdeckte.
void kürzeVerdecktes(Zeichenliste &liste) {
    for (Stück &s : liste) {
        if (s.sorte != Sorte::Beschriftung) continue;
        for (const Stück &d : liste)
            if (d.sorte == Sorte::Bedienelement && d.sichtbar && d.Top < s.Top + s.Height && s.Top < d.Top + d.Height &&
                d.Left > s.Left + s.Width / 2 && d.Left < s.Left + s.Width)
                s.Width = d.Left - s.Left;
    }
}

/// Schrift auf einer Form mit Umriss endet, wo dessen runde Ecke ihre erste Zeile abschnitte.
void kürzeAmUmriss(Zeichenliste &liste, const Form &form) {
    constexpr double Oberlänge = 24, Schritt = 12; // Twips
    const Bildschirm schirm = form.laufzeit.Screen();
    const auto abgeschnitten = [&](const Stück &s) {
        return !form.region()->enthält(static_cast<int>((s.Left + s.Width) / schirm.TwipsPerPixelX),
                                       static_cast<int>((s.Top + Oberlänge) / schirm.TwipsPerPixelY));
    };
    for (Stück &s : liste)
        while (s.sorte == Sorte::Beschriftung && s.Width > Schritt && abgeschnitten(s))
            s.Width -= Schritt;
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
            s.sichtbar = l->Visible && !form.region();
            s.rand = l->BorderWidth;
            s.farbe = l->BorderColor;
            liste.push_back(s);
        }
    nimmKinder(liste, form.Kinder, 0, 0, true);
    kürzeVerdecktes(liste);
    if (form.region()) kürzeAmUmriss(liste, form);
    return liste;
}

} // namespace velmo
