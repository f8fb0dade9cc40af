// Der Schatten eines Hauses liegt unter allem auf dem Brett, steht an seinem Fuß und wächst und schrumpft mit ihm.
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "boardform/Brett.h"
#include "platform/Zeichenliste.h"
#include "shell/Formtafel.h"

#include <algorithm>
#include <cmath>

using namespace velmo;

namespace {

const Stück &schattenVon(const Zeichenliste &liste, const Image &haus) {
    return *std::ranges::find_if(liste,
                                 [&](const Stück &s) { return s.control == &haus && s.sorte == Sorte::Schatten; });
}

bool gleich(const Rechteck &a, const Rechteck &b) {
    const auto nah = [](double x, double y) { return std::abs(x - y) < 1e-6; };
    return nah(a.Left, b.Left) && nah(a.Top, b.Top) && nah(a.Width, b.Width) && nah(a.Height, b.Height);
}

double unten(const Rechteck &r) { return r.Top + r.Height; }

void prüfeOrt(Prüfung &t, Brett &b) {
    for (const Stufe &s : Stufen) {
        Image &haus = *b.Gebäude(s.Bild);
        const Rechteck r = haus.Schattenort;
        t.gilt(s.Bild, !haus.Schatten().leer());
        t.gilt("auf dem Brett",
               r.Left >= 0 && r.Top >= 0 && r.Left + r.Width <= Brettbild.Width && unten(r) <= Brettbild.Height);
        t.gilt("wie der Entwurf ihn hinstellt", gleich(haus.Schattenwurf(), r));
    }
}

void prüfeWuchs(Prüfung &t, Image &haus) {
    const Rechteck voll = haus.Schattenwurf();
    const double hoch = haus.Height;
    haus.Wächst = true;
    haus.Height = 0;
    t.gleich("vor dem Steigen keiner", haus.Schattenwurf().Height, 0);
    haus.Height = hoch / 2;
    const Rechteck halb = haus.Schattenwurf();
    t.gleich("halb so tief", halb.Height, voll.Height / 2);
    t.gleich("am selben Fuß", unten(halb), unten(voll));
    t.gilt("weniger weit nach rechts", halb.Width < voll.Width && halb.Left == voll.Left);
    haus.Height = hoch + 59; // über die Endhöhe hinaus
    t.gilt("nie länger als seiner", gleich(haus.Schattenwurf(), voll));
    haus.Wächst = false;
    haus.Stretch = true;
    haus.Height = hoch - 300;
    haus.Top += 300;
    const Rechteck flach = haus.Schattenwurf();
    t.gilt("überfahren flach am selben Fuß", unten(flach) == unten(voll) && flach.Height < voll.Height);
    haus.Top -= 300;
    haus.Stretch = false;
    t.gilt("danach wie zuvor", gleich(haus.Schattenwurf(), voll));
}

void prüfeListe(Prüfung &t, Brett &b, Image &haus) {
    t.gilt("ein verborgenes Haus wirft keinen", !schattenVon(zeichenliste(b), haus).sichtbar);
    haus.Visible = true;
    const Zeichenliste liste = zeichenliste(b);
    const Stück &schatten = schattenVon(liste, haus);
    t.gilt("ein sichtbares wirft einen", schatten.sichtbar);
    const auto anderes = std::ranges::find_if(liste, [&](const Stück &s) {
        const auto *c = dynamic_cast<const VisualControl *>(s.control);
        return c && c->behälter == &b.Picture1 && s.sorte != Sorte::Schatten;
    });
    t.gilt("unter allem, was auf dem Brett steht", &schatten < &*anderes);
    haus.Visible = false;
}

} // namespace

int main() {
    Prüffläche fläche;
    Programmordner ordner;
    Programm p(fläche, Formtafel(), ordner.Pfad());
    Brett &b = brett(p);
    Image &turm = *b.Gebäude("royn1");
    Prüfung t;
    prüfeOrt(t, b);
    prüfeListe(t, b, turm);
    prüfeWuchs(t, turm);
    Image &note = b.stapel(500).p;
    t.gleich("eine liegende Note liegt gerade", note.Drehung(), 0);
    note.Top = -700;
    t.gilt("eine fliegende dreht sich", std::abs(note.Drehung()) > 1 && std::abs(note.Drehung()) < 45);
    t.gleich("und deckt noch ganz", note.Deckung(), 1);
    note.Top = -1700;
    t.gilt("am Ziel ist sie fast verblasst", note.Deckung() > 0.1 && note.Deckung() < 0.5);
    return t.ende();
}
