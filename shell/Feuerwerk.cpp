#include "shell/Feuerwerk.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

namespace velmo {

namespace {

constexpr double Pi = 3.14159265358979;

int gerundet(double zahl) { return alsGanz(std::nearbyint(zahl)); }

/// Eine Farbe, die nie grau ist: nicht alle drei Abstände dürfen klein sein.
std::array<int, 3> zieheFarbe(Laufzeit &l) {
    std::array<int, 3> farbe;
    do
        for (int &teil : farbe)
            teil = l.Zufallszahl(128) + 128;
    while (std::abs(farbe[0] - farbe[1]) < 30 && std::abs(farbe[1] - farbe[2]) < 30 &&
           std::abs(farbe[0] - farbe[2]) < 30);
    return farbe;
}

} // namespace

void Feuerwerk::starte(Laufzeit &l) {
    const auto farbe = zieheFarbe(l);
    const int x = alsGanz(l.Rnd() * (ScaleWidth - 2000)) + 1000;
    const int winkel = l.Zufallszahl(40) + 70;
    const double tempo = l.Zufallszahl(101) + ScaleHeight / 40 + 50;
    for (Teilchen &t : std::span(teilchen).subspan(1)) {
        if (t.Aktiv) continue;
        t.Aktiv = true;
        t.PosX = x;
        t.PosY = gerundet(ScaleHeight);
        t.Farbe = farbe;
        t.Winkel = l.Zufallszahl(Winkelstreuung * 2) + winkel - Winkelstreuung;
        t.Tempo = gerundet(l.Zufallszahl(Tempostreuung * 2) + tempo - Tempostreuung);
    }
}

void Feuerwerk::bewege(Laufzeit &l) {
    bild.clear();
    for (Teilchen &t : std::span(teilchen).subspan(1)) {
        if (!t.Aktiv) continue;
        t.PosX = gerundet(t.PosX - t.Tempo * std::cos(t.Winkel * Pi / 180));
        t.PosY = gerundet(t.PosY - t.Tempo * std::sin(t.Winkel * Pi / 180));
        if (t.Winkel > 180 || t.Winkel < 0)
            falle(t);
        else
            steige(l, t);
    }
}

/// Wer fällt, wird schneller und verglüht: das Verblassen bleibt an seiner Farbe hängen.
void Feuerwerk::falle(Teilchen &t) {
    t.Tempo += 7;
    t.Aktiv = t.Tempo < 81;
    if (!t.Aktiv) return;
    for (int &teil : t.Farbe)
        teil = gerundet((80 - t.Tempo) * teil / 80.0);
    male(t, Teilchengröße);
}

/// Wer steigt, wird langsamer und größer; am Scheitel kehrt er um.
void Feuerwerk::steige(Laufzeit &l, Teilchen &t) {
    t.Tempo -= 7;
    if (t.Tempo < 0) {
        t.Tempo = 0;
        t.Winkel = l.Zufallszahl(Fallstreuung * 2) + 270 - Fallstreuung;
    }
    const double a = ScaleHeight / 40 + 150 + Tempostreuung;
    const double f = (a / 2 + (a - t.Tempo) / 2) / a;
    male(t, f * Teilchengröße);
}

void Feuerwerk::male(const Teilchen &t, double größe) {
    const auto [rot, grün, blau] = t.Farbe;
    bild.push_back({{t.PosX - größe, t.PosY - größe, 2 * größe, 2 * größe},
                    {static_cast<std::uint32_t>(rot << 16 | grün << 8 | blau)}});
}

void Feuerwerk::eigeneWerte(const Namensempfänger &e) {
    const auto feld = [&](const std::string &name, auto &wert) { e(name, feldzugang(wert)); };
    for (std::size_t i = 0; i < teilchen.size(); ++i) {
        const std::string n = std::to_string(i);
        feld("Aktiv(" + n + ")", teilchen[i].Aktiv);
        feld("Winkel(" + n + ")", teilchen[i].Winkel);
        feld("Tempo(" + n + ")", teilchen[i].Tempo);
        feld("PosX(" + n + ")", teilchen[i].PosX);
        feld("PosY(" + n + ")", teilchen[i].PosY);
        for (std::size_t k = 0; k < 3; ++k)
            feld("Farbe(" + n + "," + std::to_string(k) + ")", teilchen[i].Farbe[k]);
    }
}

} // namespace velmo
