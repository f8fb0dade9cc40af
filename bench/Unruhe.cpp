#include "bench/Unruhe.h"

#include "bench/Mitspieler.h"
#include "bench/Prüffläche.h"
#include "boardform/Brett.h"

#include <algorithm>
#include <string_view>

namespace velmo {

namespace {

constexpr unsigned SeltenBeenden = 200, SeltenNein = 10;

// Formulare, die der ruhige Spieler bedient, und solche außerhalb des Spiels.
constexpr std::string_view Fremde[] = {"Menu", "Menu2", "Intro", "Verloren", "Gewinn",
                                       "HoF",  "Dank",  "Überf", "Sprech"};

} // namespace

/// Der Rollbalken und die Frage haben ihre eigenen Regeln, und ein Bauwürfel braucht vor dem Stopp einen ersten Takt.
bool Unruhe::darf(const VisualControl &c) const {
    const std::string name = vollerName(c);
    if (name == "Form1.SSCommand1") return false;
    if (name == "Form1.WüButton" && brett(p).Timer2.Enabled && p.Zustand.Bauwürfel.leer()) return false;
    return c.Visible && c.Enabled && (c.Click || c.MouseDown || dynamic_cast<const ComboBox *>(&c));
}

std::vector<VisualControl *> Unruhe::Auswahl() const {
    std::vector<VisualControl *> alle;
    for (const Form *form : p.Formen()) {
        if (!form->Visible || !form->Enabled || std::ranges::find(Fremde, form->Name) != std::end(Fremde)) continue;
        for (Control *c : form->Controls())
            if (auto *v = dynamic_cast<VisualControl *>(c); v && darf(*v)) alle.push_back(v);
    }
    return alle;
}

bool Unruhe::betätige(VisualControl &c) {
    if (auto *liste = dynamic_cast<Listenelement *>(&c))
        return p.eingabe.wähle(*liste, static_cast<int>(laune() % static_cast<unsigned>(liste->ListCount())));
    const Punkt ort = mitte(c);
    if (p.eingabe.trifft(ort).control != &c) return false;
    drückt(c);
    p.eingabe.bewege(ort);
    p.eingabe.drücke(Maustaste::Links, ort);
    p.eingabe.löse(Maustaste::Links, ort);
    return true;
}

/// Steht die Frage nach dem Beenden in der Blase, so beantwortet er sie.
bool Unruhe::beantworte(bool sicher) {
    const Form *blase = p.geladene(formular::Sprech);
    if (!blase || !blase->Visible) return false;
    const bool nein = !sicher && eins(SeltenNein);
    auto *knopf = dynamic_cast<VisualControl *>(blase->control(nein ? "Command2" : "Command1"));
    return knopf->Visible && betätige(*knopf);
}

bool Unruhe::gibtAuf() {
    if (beantworte(true)) return true;
    return p.geladene(formular::Form1) && brett(p).Enabled && betätige(brett(p).SSCommand1);
}

bool Unruhe::stört() {
    if (beantworte(false)) return true;
    if (eins(SeltenBeenden) && p.geladene(formular::Form1) && brett(p).Enabled) return betätige(brett(p).SSCommand1);
    // Was verdeckt ist, lässt sich nicht drücken: dann das nächste.
    const auto alle = Auswahl();
    const std::size_t erstes = alle.empty() ? 0 : laune() % alle.size();
    for (std::size_t i = 0; i < alle.size(); ++i)
        if (betätige(*alle[(erstes + i) % alle.size()])) return true;
    return false;
}

} // namespace velmo
