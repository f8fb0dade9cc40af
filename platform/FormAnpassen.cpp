#include "platform/FormAnpassen.h"

#include "platform/Laufzeit.h"

#include <cmath>
#include <cstdint>

namespace velmo {

namespace {

constexpr int Dialog = 0, Vollbild = 2, NurOrt = 10;
constexpr int KleineDPI = 96, EntwurfDPI = 120;

struct Faktoren {
    double x, y;
};

/// Kleine Schrift bekommt eine Schriftart, die dort noch zu lesen ist, statt zu wachsen.
void passeSchriftAn(Control &c, double faktor) {
    auto *s = dynamic_cast<Schriftelement *>(&c);
    if (!s) return;
    if (s->FontSize <= 8 && faktor < 1) {
        s->FontName = "Small Fonts";
        s->FontSize -= 0.5;
    } else {
        s->FontSize = s->FontSize / faktor;
    }
}

void passeMaßeAn(Control &c, Faktoren f) {
    if (auto *linie = dynamic_cast<Line *>(&c)) {
        linie->x1 = linie->x1 / f.x;
        linie->y1 = linie->y1 / f.y;
        linie->x2 = linie->x2 / f.x;
        linie->y2 = linie->y2 / f.y;
    }
    if (auto *v = dynamic_cast<VisualControl *>(&c)) {
        v->Width = v->Width / f.x;
        v->Height = v->Height / f.y;
        v->Top = v->Top / f.y;
        v->Left = v->Left / f.x;
    }
    if (auto *feld = dynamic_cast<PictureBox *>(&c)) {
        feld->ScaleHeight = feld->ScaleHeight / f.y;
        feld->ScaleWidth = feld->ScaleWidth / f.x;
    }
}

/// Das Tag "L", "T", "H" oder "W" mit einer ganzen Zahl von 16 Bit rückt das eine Maß zurecht.
template <class Rechteckiges> void wendeTagAn(Rechteckiges &ding) {
    const std::string tag = ding.Tag;
    double zahl = 0;
    if (tag.empty() || !liesZahl(tag.substr(1), zahl)) return;
    zahl = std::nearbyint(zahl);
    if (zahl < INT16_MIN || zahl > INT16_MAX) return;
    switch (tag[0]) {
    case 'L':
        ding.Left += zahl;
        break;
    case 'T':
        ding.Top += zahl;
        break;
    case 'H':
        ding.Height += zahl;
        break;
    case 'W':
        ding.Width += zahl;
        break;
    }
}

void fülleAnzeige(Form &form, const Bildschirm &schirm) {
    form.Width = schirm.Width;
    form.Height = schirm.Height;
    form.Top = 0;
    form.Left = 0;
}

void teileGröße(Form &form, Faktoren f) {
    form.Height = form.Height / f.y;
    form.Width = form.Width / f.x;
}

/// Die Größe der Anzeige durch ihre ganze Zahl von Bildpunkten; auf einer wirklichen Anzeige genau 1.
double restfaktor(double twips, double twipsJePunkt) {
    const auto punkte = static_cast<float>(twips / twipsJePunkt);
    return punkte / std::nearbyint(punkte);
}

} // namespace

bool IstKleineSchrift(const Laufzeit &l) { return l.oberfläche.anzeige().DPI == KleineDPI; }

void FormAnpassen(Form &form, int Art) {
    const Bildschirm schirm = form.laufzeit.Screen();
    if (Art == NurOrt) {
        form.Top = form.Top / (schirm.Height / schirm.TwipsPerPixelY / 768 - 0.135);
        form.Left = form.Left / (schirm.Width / schirm.TwipsPerPixelX / 1024 - 0.135);
        return;
    }
    const Faktoren faktor{restfaktor(schirm.Width, schirm.TwipsPerPixelX),
                          restfaktor(schirm.Height, schirm.TwipsPerPixelY)};
    const double schriftfaktor = IstKleineSchrift(form.laufzeit) ? double(KleineDPI) / EntwurfDPI : 1;
    if (faktor.x == 1 && faktor.y == 1 && schriftfaktor == 1) return;

    // Erster Gang: auf die Anzeige. Das Tag wirkt hier und wird im zweiten Gang mitgeteilt.
    if (Art == Dialog) teileGröße(form, faktor);
    if (Art == Vollbild) fülleAnzeige(form, schirm);
    for (Control *c : form.Controls()) {
        passeSchriftAn(*c, faktor.x);
        passeMaßeAn(*c, faktor);
        if (auto *v = dynamic_cast<VisualControl *>(c)) wendeTagAn(*v);
    }
    if (schriftfaktor == 1) return;

    // Zweiter Gang: auf die kleine Schrift.
    if (Art == Dialog) {
        teileGröße(form, {schriftfaktor, schriftfaktor});
        wendeTagAn(form);
    }
    if (Art == Vollbild) fülleAnzeige(form, schirm);
    for (Control *c : form.Controls()) {
        passeSchriftAn(*c, schriftfaktor);
        passeMaßeAn(*c, {schriftfaktor, schriftfaktor});
    }
}

} // namespace velmo
