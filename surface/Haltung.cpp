#include "surface/Haltung.h"

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

const double pi = std::acos(-1.0);

double weich(double anteil) { return anteil * anteil * (3 - 2 * anteil); }

/// Eine Zahl zwischen 0 und 1, für jedes n dieselbe und doch bunt.
double bunt(int n) {
    const double x = std::sin(n * 12.9898) * 43758.5453;
    return x - std::floor(x);
}

} // namespace

Haltung fahrt(Punkt weg, double anteil, const std::string &altesBild, const std::string &bild) {
    constexpr double Neigung = 0.5, SteilsteStraße = 36, SchmalsteDrehung = 0.45;
    const double länge = std::hypot(weg.x, weg.y), rest = 1 - (anteil + weich(anteil)) / 2;
    // Ein kleiner Hüpfer von Feld zu Feld.
    const double sprung = std::min(90.0, länge / 4);
    Haltung h;
    h.versatz = {weg.x * rest, weg.y * rest - 4 * sprung * anteil * (1 - anteil)};
    if (altesBild != bild) { // er wendet: schmal von der einen Ansicht in die andere
        h.breite = std::max(SchmalsteDrehung, std::abs(std::cos(pi * anteil)));
        if (anteil < 0.5) h.bild = altesBild;
    } else { // und legt sich in die Richtung der Straße, soweit sie von seiner Ansicht abweicht
        const double richtung = std::atan2(-weg.y, -weg.x) * 180 / pi;
        const double abweichung = richtung - 90 * std::round(richtung / 90);
        if (std::abs(abweichung) < SteilsteStraße) h.drehung = abweichung * Neigung * std::sin(pi * anteil);
    }
    return h;
}

double wurfdrehung(double nun, double vorher) {
    return (vorher > 0 ? -1 : 1) * (70 + 60 * bunt(static_cast<int>(nun)));
}

Haltung wurf(double anteil, double drehung) {
    Haltung h;
    h.drehung = drehung * (1 - weich(anteil));
    h.maß = 1 + 0.12 * std::sin(pi * anteil);
    return h;
}

Wölkchen wölkchen(const Stück &s, int n, double alter) {
    const double unten = s.Top + (s.wächst ? s.natürlicheHöhe : s.Height);
    const double wo = bunt(n), treibt = (wo - 0.5) * Staubweite * std::sqrt(alter);
    return {{s.Left + s.Width * wo + treibt, unten - 40 - 120 * alter * bunt(n + 31)},
            (260 + 220 * bunt(n + 77)) * (0.6 + std::sqrt(alter)),
            0.9 * (1 - alter * alter)};
}

} // namespace velmo
