#include "surface/Malplatz.h"

#include "platform/Laufzeit.h"

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

constexpr double Durchblick = 0.4; // so sehr deckt noch, was eine Ablage verdeckt

bool schneidet(const Rechteck &a, const Rechteck &b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

} // namespace

Rechteck malplatz(const Stück &s) { return s.wächst ? s.ort() : bildplatz(s); }

Rechteck bildplatz(const Stück &s) {
    if (s.sorte != Sorte::Bild || s.natürlicheBreite <= 0) return s.ort();
    return {s.Left, s.Top, s.natürlicheBreite, s.natürlicheHöhe};
}

double schattenkraft(const Stück &s) { return std::sqrt(std::clamp(s.Height / s.natürlicheHöhe, 0.0, 1.0)); }

void blendeVerdeckendes(Zeichenliste &alle, const VisualControl *gezogen) {
    for (auto vorn = alle.begin(); vorn != alle.end(); ++vorn) {
        if (vorn->sorte != Sorte::Bild || vorn->ablage || vorn->control == gezogen) continue;
        const bool verdeckt = std::any_of(alle.begin(), vorn, [platz = bildplatz(*vorn)](const Stück &ziel) {
            return ziel.ablage && ziel.sichtbar && ziel.sorte == Sorte::Bild && schneidet(bildplatz(ziel), platz);
        });
        if (verdeckt) vorn->deckung = Durchblick;
    }
}

Saum saum(const Form &form) {
    const Bildschirm schirm = form.laufzeit.Screen();
    const double links = form.Left, oben = form.Top, rechts = schirm.Width - form.Left - form.Width,
                 unten = schirm.Height - form.Top - form.Height;
    const double streifen = schirm.Width / 40, fehlt = std::max({links, oben, rechts, unten});
    if (form.region() || fehlt <= 0) return {};
    if (fehlt > streifen || form.Picture().leer()) return {.Schatten = true};
    return {false, std::max(links, 0.0), std::max(oben, 0.0), std::max(rechts, 0.0), std::max(unten, 0.0)};
}

} // namespace velmo
