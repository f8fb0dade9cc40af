#include "surface/Tasten.h"

#include "include/Programm.h"
#include "surface/Tastentafel.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr std::pair<Taste, Richtung> Pfeile[] = {{Taste::Links, Richtung::Links},
                                                 {Taste::Rechts, Richtung::Rechts},
                                                 {Taste::Auf, Richtung::Auf},
                                                 {Taste::Ab, Richtung::Ab}};

} // namespace

Tasten::Tasten(Programm &p, Fokus &fokus, Bearbeiter bearbeite) : p(p), fokus(fokus), bearbeite(std::move(bearbeite)) {}

/// Die vorderste Form kann jede Taste selbst nehmen, die etwas schreibt.
bool Tasten::geheAnForm(const Tastendruck &e) {
    const auto formen = p.Formen();
    const auto vorn = std::find_if(formen.rbegin(), formen.rend(), [](const Form *f) { return f->Visible(); });
    if (vorn == formen.rend() || !(*vorn)->KeyPress || e.text.empty()) return false;
    bearbeite([&] { p.eingabe.taste(**vorn, e.text); });
    return true;
}

bool Tasten::halte(const Tastendruck &e) {
    if (e.taste != Taste::Leer && e.taste != Taste::Eingabe) return false;
    if (!e.wiederholt && fokus.drücke()) haltende = e.taste;
    return true;
}

bool Tasten::drückeBrett(const Tastendruck &e) {
    const Form *form = fokus.form();
    if (!form || Formularname(form->Name) != formular::Form1 || p.eingabe.gezogen()) return false;
    const auto zeile = std::ranges::find(Brettastentafel, e.zeichen, &Brettaste::Taste);
    if (zeile == Brettastentafel.end()) return false;
    auto *c = dynamic_cast<VisualControl *>(form->control(zeile->Control));
    if (c && !e.wiederholt && fokus.löseAus(*c) && p.eingabe.gezogen()) fokus.setzeSichtbar(true);
    return true;
}

bool Tasten::drücke(const Tastendruck &e) {
    if (geheAnForm(e)) return true;
    if (e.alsBefehl) return false;
    for (const auto &[taste, richtung] : Pfeile)
        if (e.taste == taste) {
            fokus.nachbar(richtung);
            return true;
        }
    if (e.taste == Taste::Tab) {
        fokus.weiter(!e.umschalt);
        return true;
    }
    if (e.taste == Taste::Escape) return fokus.brichAb();
    return halte(e) || drückeBrett(e);
}

bool Tasten::löse(const Tastendruck &e) {
    if (e.wiederholt || haltende == Taste::Andere || e.taste != haltende) return false;
    haltende = Taste::Andere;
    fokus.lass();
    return true;
}

std::string mitTaste(const std::string &hinweis, std::string_view form, std::string_view control) {
    if (form != formular::Form1.Text) return hinweis;
    const auto zeile =
        std::ranges::find(Brettastentafel, control, [](const Brettaste &t) { return std::string_view(t.Control); });
    if (zeile == Brettastentafel.end()) return hinweis;
    return (hinweis.empty() ? zeile->Wirkung : hinweis) + std::string(" (") + zeile->Name + ")";
}

} // namespace velmo
