#include "window/Schwung.h"

#include <QRadialGradient>

#include <algorithm>

namespace velmo {

namespace {

constexpr int Wolkenbild = 48; // Bildpunkte

const QPixmap &wolkenbild() {
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

void Schwung::bemerke(const Stück &alt, const Stück &neu) {
    if (alt.control != neu.control || alt.sorte != neu.sorte || neu.sorte == Sorte::Schatten) return;
    if (neu.gebaren == Gebaren::Purzelt && alt.sichtbar && neu.sichtbar && alt.bild != neu.bild) {
        const auto vorher = würfe.find(neu.control);
        würfe[neu.control] = {nun(), wurfdrehung(nun(), vorher == würfe.end() ? 0 : vorher->second.drehung)};
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
    return velmo::wurf(std::clamp((nun() - wurf->second.beginn) / Wurfzeit, 0.0, 1.0), wurf->second.drehung);
}

void Schwung::maleStaub(QPainter &p, const Maß &m, const Stück &s) const {
    const auto staub = stäube.find(s.control);
    if (staub == stäube.end()) return;
    const auto [beginn, ende] = staub->second;
    const double jetzt = nun();
    const int erstes = std::max(0, static_cast<int>((jetzt - beginn - Wölkchenzeit) / Wölkchenabstand));
    const int letztes = static_cast<int>((std::min(jetzt, ende) - beginn) / Wölkchenabstand);
    for (int n = erstes; n <= letztes; ++n) {
        const double alter = (jetzt - beginn - n * Wölkchenabstand) / Wölkchenzeit;
        if (alter < 0 || alter > 1) continue;
        const Wölkchen w = wölkchen(s, n, alter);
        const double g = w.größe * m.jeTwip;
        p.setOpacity(w.deckung);
        p.drawPixmap(QRectF(w.mitte.x * m.jeTwip - g / 2, w.mitte.y * m.jeTwip - g / 2, g, g), wolkenbild(),
                     wolkenbild().rect());
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
