#include "computer/kibauphase.h"

#include "assistant/Ansagen.h"
#include "computer/Computer.h"
#include "property/Bauen.h"

#include <algorithm>

namespace velmo {

namespace {

using H = Hotelkürzel;

constexpr H Reihenfolge[] = {H::p, H::l, H::w, H::r, H::f, H::b, H::s, H::t};

/// Die erste Stufe, die nicht steht.
const Stufe *nächsteStufe(const Spielzustand &z, H k) {
    const auto s = std::ranges::find_if(Stufen, [&](const Stufe &s) { return s.Hotel == k && !steht(z, k, s.Stand); });
    return s == Stufen.end() ? nullptr : &*s;
}

} // namespace

void kibauphase(Programm &p) {
    Spielzustand &z = p.Zustand;
    const auto computer = handelnder(z);
    if (!computer) return;
    for (const H k : Reihenfolge) {
        const Stufe *s = gehört(z, k, *computer) ? nächsteStufe(z, k) : nullptr;
        if (!s) continue;
        z.Baubild = s->Bild;
        Hochbauen(p, "");
        z.Hotels[k].Baustufen[s->Stand] = "true";
        Ansagen(p, "Der Computer bekommt eine Bauphase gratis!", 0);
        return;
    }
}

} // namespace velmo
