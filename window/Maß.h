#pragma once
// Von Twips zu den Bildpunkten des Bildschirms. Kanten werden gerundet, nicht Breiten: was sich im Entwurf berührt,
// berührt sich auf dem Bildschirm.
#include "platform/Control.h"
#include "window/Schreibtisch.h"

#include <QRect>
#include <QRectF>

#include <cmath>

namespace velmo {

struct Maß {
    double jeTwip = 1.0 / 12; // Bildpunkte des Bildschirms
    double dichte = 1;        // Bildpunkte je Längeneinheit des Fensters
    Wünsche wünsche = {};     // wie der Spieler es gern hätte

    int punkt(double twips) const { return static_cast<int>(std::lround(twips * jeTwip)); }
    /// Eine Länge des Entwurfs in Bildpunkten des Entwurfs, mindestens einer.
    double strich(double entwurf) const { return std::max(1.0, entwurf * 12 * jeTwip); }
    QRect rechteck(const Rechteck &r) const {
        const int links = punkt(r.Left), oben = punkt(r.Top);
        return {links, oben, punkt(r.Left + r.Width) - links, punkt(r.Top + r.Height) - oben};
    }
    /// Bildpunkte in Längeneinheiten des Fensters.
    QRect fensterrechteck(const QRect &r) const {
        const auto länge = [this](int punkte) { return static_cast<int>(std::lround(punkte / dichte)); };
        return {QPoint(länge(r.left()), länge(r.top())),
                QPoint(länge(r.left() + r.width()) - 1, länge(r.top() + r.height()) - 1)};
    }
    bool operator==(const Maß &) const = default;
};

} // namespace velmo
