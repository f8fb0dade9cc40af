#include "window/Tasten.h"

#include "include/Programm.h"
#include "window/Tastentafel.h"

#include <algorithm>
#include <ranges>

namespace velmo {

namespace {

constexpr std::pair<Qt::Key, Richtung> Pfeile[] = {{Qt::Key_Left, Richtung::Links},
                                                   {Qt::Key_Right, Richtung::Rechts},
                                                   {Qt::Key_Up, Richtung::Auf},
                                                   {Qt::Key_Down, Richtung::Ab}};

bool drückt(int taste) { return taste == Qt::Key_Space || taste == Qt::Key_Return || taste == Qt::Key_Enter; }

} // namespace

Tasten::Tasten(Programm &p, Fokus &fokus, Bearbeiter bearbeite) : p(p), fokus(fokus), bearbeite(std::move(bearbeite)) {}

/// Die vorderste Form kann jede Taste selbst nehmen, die etwas schreibt.
bool Tasten::geheAnForm(const QKeyEvent &e) {
    const auto formen = p.Formen();
    const auto vorn = std::ranges::find_if(formen | std::views::reverse, [](const Form *f) { return f->Visible(); });
    if (vorn == std::ranges::rend(formen) || !(*vorn)->KeyPress || e.text().isEmpty()) return false;
    bearbeite([&] { p.eingabe.taste(**vorn, e.text().toStdString()); });
    return true;
}

bool Tasten::halte(const QKeyEvent &e) {
    if (!drückt(e.key())) return false;
    if (!e.isAutoRepeat() && fokus.drücke()) haltende = e.key();
    return true;
}

bool Tasten::drückeBrett(const QKeyEvent &e) {
    const Form *form = fokus.form();
    if (!form || Formularname(form->Name) != formular::Form1 || p.eingabe.gezogen()) return false;
    const auto zeile = std::ranges::find(Brettastentafel, e.key(), [](const Brettaste &t) { return int(t.Taste); });
    if (zeile == Brettastentafel.end()) return false;
    auto *c = dynamic_cast<VisualControl *>(form->control(zeile->Control));
    if (c && !e.isAutoRepeat() && fokus.löseAus(*c) && p.eingabe.gezogen()) fokus.setzeSichtbar(true);
    return true;
}

bool Tasten::drücke(const QKeyEvent &e) {
    if (geheAnForm(e)) return true;
    if (e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    for (const auto &[taste, richtung] : Pfeile)
        if (e.key() == taste) {
            fokus.nachbar(richtung);
            return true;
        }
    if (e.key() == Qt::Key_Tab || e.key() == Qt::Key_Backtab) {
        fokus.weiter(e.key() == Qt::Key_Tab && !(e.modifiers() & Qt::ShiftModifier));
        return true;
    }
    if (e.key() == Qt::Key_Escape) return fokus.brichAb();
    return halte(e) || drückeBrett(e);
}

bool Tasten::löse(const QKeyEvent &e) {
    if (e.isAutoRepeat() || e.key() != haltende) return false;
    haltende = 0;
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
