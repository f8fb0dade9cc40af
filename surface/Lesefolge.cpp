#include "surface/Lesefolge.h"

#include "include/Formulare.h"

#include <algorithm>
#include <functional>

namespace velmo {

namespace {

constexpr double Streifen = 240; // Twips; so viel darf eine Form von der hinter ihr zeigen

/// Zeilen von oben nach unten, in jeder von links nach rechts; vorher zählt der Rang.
void ordne(std::vector<Lesestelle> &alle) {
    const auto mitte = [](const VisualControl &c) { return Eingabe::ort(c).y + c.Height / 2; };
    const auto rang = [](const Lesestelle &e) { return e.b.rang; };
    std::stable_sort(alle.begin(), alle.end(), [&](const auto &a, const auto &b) {
        return std::pair(rang(a), Eingabe::ort(*a.control).y) < std::pair(rang(b), Eingabe::ort(*b.control).y);
    });
    for (auto zeile = alle.begin(); zeile != alle.end();) {
        const Lesestelle erstes = *zeile;
        const double unten = Eingabe::ort(*erstes.control).y + erstes.control->Height;
        const auto ende = std::stable_partition(zeile, alle.end(), [&](const Lesestelle &e) {
            return e.control == erstes.control || (e.b.rang == erstes.b.rang && mitte(*e.control) < unten);
        });
        std::stable_sort(zeile, ende, [](const auto &a, const auto &b) {
            return Eingabe::ort(*a.control).x < Eingabe::ort(*b.control).x;
        });
        zeile = ende;
    }
}

bool aufAnzeige(const VisualControl &c) {
    const Punkt ecke = Eingabe::ort(c);
    const Bildschirm schirm = c.form.laufzeit.Screen();
    return ecke.x < schirm.Width && ecke.y < schirm.Height && ecke.x + c.Width > 0 && ecke.y + c.Height > 0;
}

/// Zwei Antworten zu einer Frage der Blase.
std::string antworten(const Form &form) {
    std::string namen;
    for (const VisualControl *c : form.Kinder)
        if (const auto *k = dynamic_cast<const CommandButton *>(c); k && k->Visible)
            namen += (namen.empty() ? " " : ", ") + k->Caption();
    return namen;
}

} // namespace

const std::string &Ganzersatz::nimm(const std::string &gezeigt) {
    const bool derselbe = !ganzer.empty() && !gezeigt.empty() && ganzer.ends_with(gezeigt);
    if (!derselbe) ganzer = gezeigt;
    return ganzer;
}

std::vector<Form *> lesbareFormen(const Laufzeit &laufzeit) {
    std::vector<Form *> alle;
    const Bildschirm schirm = laufzeit.Screen();
    const auto formen = laufzeit.Formen();
    bool verdeckt = false;
    for (auto hier = formen.rbegin(); hier != formen.rend(); ++hier) {
        Form *const form = *hier;
        if (!form->Visible) continue;
        const double rechts = form->Left + form->Width, unten = form->Top + form->Height;
        if (verdeckt || form->Left >= schirm.Width || form->Top >= schirm.Height || rechts <= 0 || unten <= 0) continue;
        alle.push_back(form);
        verdeckt = !form->region() && form->Left <= Streifen && form->Top <= Streifen &&
                   rechts >= schirm.Width - Streifen && unten >= schirm.Height - Streifen;
    }
    return alle;
}

std::vector<Lesestelle> lesefolge(const Programm &p, const Form &form, Ganzersatz &satz) {
    std::vector<Lesestelle> alle;
    const std::function<void(const std::vector<VisualControl *> &, const VisualControl *, bool)> nimm =
        [&](const auto &kinder, const VisualControl *gruppe, bool gesperrt) {
            for (VisualControl *c : kinder) {
                if (!c->Visible || !aufAnzeige(*c)) continue;
                const Lesestelle e{c, gruppe, benenne(p, *c), gesperrt || !c->Enabled};
                if (e.b.rolle != Rolle::Zierde) alle.push_back(e);
                if (const auto *feld = dynamic_cast<const PictureBox *>(c))
                    nimm(feld->Kinder, e.b.rolle == Rolle::Gruppe ? c : gruppe, e.gesperrt);
            }
        };
    nimm(form.Kinder, nullptr, !form.Enabled);
    if (formular::Sprech == Formularname(form.Name))
        for (Lesestelle &e : alle)
            if (e.b.rolle == Rolle::Ansage) e.b.name = satz.nimm(e.b.name) + antworten(form);
    ordne(alle);
    return alle;
}

} // namespace velmo
