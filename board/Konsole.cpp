#include "board/Konsole.h"

#include "board/Autofahrt.h"
#include "property/Pleite.h"

namespace velmo {

namespace {

struct Fahrbefehl {
    const char *Text;
    Autokürzel Wagen;
    bool AlsComputer;
};

constexpr Fahrbefehl Fahrbefehle[] = {
    {"vorg", Autokürzel::g, false},   {"vorb", Autokürzel::b, false},   {"vore", Autokürzel::e, false},
    {"vorr", Autokürzel::r, false},   {"vorg KI", Autokürzel::g, true}, {"vorb KI", Autokürzel::b, true},
    {"vore KI", Autokürzel::e, true}, {"vorr KI", Autokürzel::r, true},
};

void ruiniere(Programm &p) {
    if (const auto wer = p.InputBox("Wer", "")) Pleitegehen(p, *wer, 0, "");
}

void zeigeBilanz(Programm &p) {
    const auto geld = [&](int n) { return std::to_string(p.Zustand.Computergeld[n]); };
    p.MsgBox("C1:" + geld(1) + " C2:" + geld(2) + " C3:" + geld(3));
}

void fahre(Programm &p, const Fahrbefehl &befehl) {
    p.Zustand.Wurf = p.InputBox("Anzahl", "Cheaten").value_or("");
    if (befehl.AlsComputer) {
        p.Zustand.Wartelauf = 1;
        p.Zustand.Computerphase = 1;
    }
    Autofahrt(p, befehl.Wagen);
}

} // namespace

/// Sie ist mit Absicht für jeden offen.
void Konsole(Programm &p) {
    const auto text = p.InputBox(" ", " ");
    if (!text) return;
    if (*text == "pleite") ruiniere(p);
    if (*text == "bilanz") zeigeBilanz(p);
    if (*text == "immer gratis") p.Zustand.Gratisbau = true;
    for (const Fahrbefehl &befehl : Fahrbefehle)
        if (*text == befehl.Text) fahre(p, befehl);
}

} // namespace velmo
