#include "assistant/Regionen.h"

#include <array>
#include <cmath>

namespace velmo {

namespace {

// Die letzte Ecke wiederholt die vorletzte: mit Absicht so.
constexpr std::array<Regionspunkt, 4> Zipfel = {{{380, 302}, {460, 330}, {403, 279}, {403, 279}}};

/// Rechnet die Maße eines Umrisses in Bildpunkte der Form um; gerundet wird zur nächsten, Hälften zur geraden Zahl.
struct Umrechnung {
    Umrechnung(const Laufzeit &l, float ScaleX, float ScaleY, int OffsetX, int OffsetY)
        : faktorX(ScaleX * 12 / l.Screen().TwipsPerPixelX), faktorY(ScaleY * 12 / l.Screen().TwipsPerPixelY),
          versatzX(OffsetX), versatzY(OffsetY) {}
    int x(int maß) const { return gerundet(maß * faktorX + versatzX); }
    int y(int maß) const { return gerundet(maß * faktorY + versatzY); }
    int breite(int maß) const { return gerundet(maß * faktorX); }
    int höhe(int maß) const { return gerundet(maß * faktorY); }

  private:
    static int gerundet(double zahl) { return alsGanz(std::nearbyint(zahl)); }
    const double faktorX, faktorY;
    const int versatzX, versatzY;
};

Regionspunkt ecke(int i) {
    return i < 0 || i >= static_cast<int>(Zipfel.size()) ? Regionspunkt{0, 0} : Zipfel[static_cast<std::size_t>(i)];
}

} // namespace

int Tabelle_X(int Index) { return ecke(Index).x; }
int Tabelle_Y(int Index) { return ecke(Index).y; }

Region FigurRegion(const Laufzeit &l, float ScaleX, float ScaleY, int OffsetX, int OffsetY) {
    const Umrechnung u(l, ScaleX, ScaleY, OffsetX, OffsetY);
    Region region;
    region.vereinige(Ellipse{u.x(67), u.y(57), u.x(141), u.y(133)});
    return region;
}

Region Sprechblasenregion(const Laufzeit &l, float ScaleX, float ScaleY, int OffsetX, int OffsetY) {
    const Umrechnung u(l, ScaleX, ScaleY, OffsetX, OffsetY);
    Vieleck zipfel;
    for (int i = 0; i < 4; ++i)
        zipfel.ecken.push_back({u.x(Tabelle_X(i)), u.y(Tabelle_Y(i))});
    Region region;
    region.vereinige(GerundetesRechteck{u.x(229), u.y(206), u.x(405), u.y(305), u.breite(76), u.höhe(64)});
    region.vereinige(zipfel);
    return region;
}

} // namespace velmo
