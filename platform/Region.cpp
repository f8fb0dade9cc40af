#include "platform/Region.h"

#include <algorithm>

namespace velmo {

namespace {

bool inEllipse(double x, double y, double links, double oben, double rechts, double unten) {
    const double rx = (rechts - links) / 2, ry = (unten - oben) / 2;
    if (rx <= 0 || ry <= 0) return false;
    const double dx = (x - links - rx) / rx, dy = (y - oben - ry) / ry;
    return dx * dx + dy * dy <= 1;
}

struct Enthält {
    double x, y;

    bool operator()(const Ellipse &e) const { return inEllipse(x, y, e.links, e.oben, e.rechts, e.unten); }

    bool operator()(const GerundetesRechteck &r) const {
        if (x < r.links || x > r.rechts || y < r.oben || y > r.unten) return false;
        const double rx = r.eckenbreite / 2.0, ry = r.eckenhöhe / 2.0;
        const double mx = std::clamp(x, r.links + rx, r.rechts - rx), my = std::clamp(y, r.oben + ry, r.unten - ry);
        return x == mx || y == my || inEllipse(x, y, mx - rx, my - ry, mx + rx, my + ry);
    }

    bool operator()(const Vieleck &v) const {
        bool innen = false;
        for (std::size_t i = 0, j = v.ecken.size() - 1; i < v.ecken.size(); j = i++) {
            const auto &a = v.ecken[i], &b = v.ecken[j];
            if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) * (b.x - a.x) / static_cast<double>(b.y - a.y))
                innen = !innen;
        }
        return innen;
    }
};

} // namespace

bool Region::enthält(int x, int y) const {
    const Enthält mitte{x + 0.5, y + 0.5};
    return std::any_of(teile.begin(), teile.end(), [&](const Teil &teil) { return std::visit(mitte, teil); });
}

} // namespace velmo
