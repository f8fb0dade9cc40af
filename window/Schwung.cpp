#include "window/Schwung.h"

#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmo {

namespace {

using std::numbers::pi;

constexpr double Wurfzeit = 100; // wie der Takt der Würfel: liegt er, so liegt er still
constexpr double Wölkchenzeit = 520, Wölkchenabstand = 18;
constexpr int Wolkenbild = 48; // Bildpunkte

double weich(double anteil) { return anteil * anteil * (3 - 2 * anteil); }

/// Eine Zahl zwischen 0 und 1, für jedes n dieselbe und doch bunt.
double bunt(int n) {
    const double x = std::sin(n * 12.9898) * 43758.5453;
    return x - std::floor(x);
}

const QPixmap &wölkchen() {
    static const QPixmap bild = [] {
        QPixmap b(Wolkenbild, Wolkenbild);
        b.fill(Qt::transparent);
        QRadialGradient g(Wolkenbild / 2.0, Wolkenbild / 2.0, Wolkenbild / 2.0);
        g.setColorAt(0, QColor(0xF0, 0xE2, 0xC2, 235));
        g.setColorAt(0.55, QColor(0xDC, 0xC6, 0x9C, 150));
        g.setColorAt(1, QColor(0xC8, 0xAE, 0x80, 0));
        QPainter p(&b);
        p.fillRect(b.rect(), g);
        return b;
    }();
    return bild;
}

} // namespace

Haltung fahrt(const QPointF &weg, double anteil, const std::string &altesBild, const std::string &bild) {
    constexpr double Neigung = 0.5, SteilsteStraße = 36, SchmalsteDrehung = 0.45;
    const double länge = std::hypot(weg.x(), weg.y()), rest = 1 - (anteil + weich(anteil)) / 2;
    // Ein kleiner Hüpfer von Feld zu Feld.
    const double sprung = std::min(90.0, länge / 4);
    Haltung h;
    h.versatz = {weg.x() * rest, weg.y() * rest - 4 * sprung * anteil * (1 - anteil)};
    if (altesBild != bild) { // er wendet: schmal von der einen Ansicht in die andere
        h.breite = std::max(SchmalsteDrehung, std::abs(std::cos(pi * anteil)));
        if (anteil < 0.5) h.bild = altesBild;
    } else { // und legt sich in die Richtung der Straße, soweit sie von seiner Ansicht abweicht
        const double richtung = std::atan2(-weg.y(), -weg.x()) * 180 / pi;
        const double abweichung = richtung - 90 * std::round(richtung / 90);
        if (std::abs(abweichung) < SteilsteStraße) h.drehung = abweichung * Neigung * std::sin(pi * anteil);
    }
    return h;
}

void Schwung::bemerke(const Stück &alt, const Stück &neu) {
    if (alt.control != neu.control || alt.sorte != neu.sorte || neu.sorte == Sorte::Schatten) return;
    if (neu.gebaren == Gebaren::Purzelt && alt.sichtbar && neu.sichtbar && alt.bild != neu.bild) {
        const auto vorher = würfe.find(neu.control);
        const double richtung = vorher != würfe.end() && vorher->second.drehung > 0 ? -1 : 1;
        würfe[neu.control] = {nun(), richtung * (70 + 60 * bunt(static_cast<int>(nun())))};
    }
    if (neu.wächst && neu.sichtbar && !(alt.wächst && alt.sichtbar)) stäube[neu.control] = {nun(), nun()};
    if (const auto staub = stäube.find(neu.control); staub != stäube.end() && (neu.wächst || alt.wächst))
        staub->second.ende = nun();
}

Haltung Schwung::haltung(const Stück &s) const {
    Haltung h;
    h.drehung = s.drehung;
    const auto wurf = würfe.find(s.control);
    if (wurf == würfe.end() || s.gebaren != Gebaren::Purzelt) return h;
    const double anteil = std::clamp((nun() - wurf->second.beginn) / Wurfzeit, 0.0, 1.0);
    h.drehung = wurf->second.drehung * (1 - weich(anteil));
    h.maß = 1 + 0.12 * std::sin(pi * anteil);
    return h;
}

void Schwung::maleStaub(QPainter &p, const Maß &m, const Stück &s) const {
    const auto staub = stäube.find(s.control);
    if (staub == stäube.end()) return;
    const auto [beginn, ende] = staub->second;
    const double jetzt = nun(), unten = s.Top + (s.wächst ? s.natürlicheHöhe : s.Height);
    const int erstes = std::max(0, static_cast<int>((jetzt - beginn - Wölkchenzeit) / Wölkchenabstand));
    const int letztes = static_cast<int>((std::min(jetzt, ende) - beginn) / Wölkchenabstand);
    for (int n = erstes; n <= letztes; ++n) {
        const double alter = (jetzt - beginn - n * Wölkchenabstand) / Wölkchenzeit;
        if (alter < 0 || alter > 1) continue;
        const double wo = bunt(n), treibt = (wo - 0.5) * Staubweite * std::sqrt(alter);
        const double größe = (260 + 220 * bunt(n + 77)) * (0.6 + std::sqrt(alter));
        const QPointF mitte(s.Left + s.Width * wo + treibt, unten - 40 - 120 * alter * bunt(n + 31));
        p.setOpacity(0.9 * (1 - alter * alter));
        const double g = größe * m.jeTwip;
        p.drawPixmap(QRectF(mitte.x() * m.jeTwip - g / 2, mitte.y() * m.jeTwip - g / 2, g, g), wölkchen(),
                     wölkchen().rect());
    }
    p.setOpacity(1);
}

std::vector<const Control *> Schwung::lebendes() {
    const double jetzt = nun();
    std::vector<const Control *> alle;
    for (const auto &[c, w] : würfe)
        alle.push_back(c);
    for (const auto &[c, s] : stäube)
        alle.push_back(c);
    std::erase_if(würfe, [&](const auto &e) { return jetzt > e.second.beginn + Wurfzeit; });
    std::erase_if(stäube, [&](const auto &e) { return jetzt > e.second.ende + Wölkchenzeit; });
    return alle;
}

} // namespace velmo
