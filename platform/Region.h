#pragma once
// Fensterregionen: die Form eines Fensters aus Ellipsen, gerundeten Rechtecken und Vielecken, in Bildpunkten der Form.
#include <string>
#include <variant>
#include <vector>

namespace velmo {

struct Regionspunkt {
    int x, y;
};
struct Ellipse {
    int links, oben, rechts, unten;
};
struct GerundetesRechteck {
    int links, oben, rechts, unten, eckenbreite, eckenhöhe;
};
/// Ein Vieleck nach der Regel "wechselnd" (ALTERNATE).
struct Vieleck {
    std::vector<Regionspunkt> ecken;
};

/// Die Vereinigung ihrer Teile; ohne Teile ist sie leer.
class Region {
  public:
    using Teil = std::variant<Ellipse, GerundetesRechteck, Vieleck>;

    void vereinige(Teil teil) { teile.push_back(std::move(teil)); }
    const std::vector<Teil> &Teile() const { return teile; }
    /// Liegt die Mitte des Bildpunkts x, y darin?
    bool enthält(int x, int y) const;

  private:
    std::vector<Teil> teile;
};

} // namespace velmo
