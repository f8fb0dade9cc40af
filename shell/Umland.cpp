#include "shell/Umland.h"

#include "include/Formulare.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velmo {

namespace {

struct Zeile {
    Formularname Form;
    Farbe Ton;
};

// clang-format off
constexpr Zeile Szenen[] = {
    // Form            Ton
    {formular::Intro,  Farbe{0x0E3A56}}, // das Meer um die Insel
    {formular::Menu,   Farbe{0x1B1A3C}}, // der Nachthimmel
    {formular::Form1,  Farbe{0x7A5634}}, // das Holz des Tisches
    {formular::Gewinn, Farbe{0x08050A}}, // der dunkle Saal
    {formular::HoF,    Farbe{0x170D07}}, // die Wand hinter der Ehrentafel
};
// clang-format on

} // namespace

Umland umland(const Programm &p) {
    const std::vector<Form *> formen = p.Formen();
    for (auto form = formen.rbegin(); form != formen.rend(); ++form) {
        const auto *zeile = std::ranges::find_if(
            Szenen, [&](const Zeile &z) { return (*form)->Visible && std::string_view(z.Form.Text) == (*form)->Name; });
        if (zeile != std::end(Szenen)) return {*form, zeile->Ton};
    }
    return {};
}

} // namespace velmo
