#include "window/Umriss.h"

#include <QPolygonF>
#include <QTransform>

namespace velmo {

namespace {

struct AlsPfad {
    QPainterPath operator()(const Ellipse &e) const {
        QPainterPath pfad;
        pfad.addEllipse(QRectF(QPointF(e.links, e.oben), QPointF(e.rechts, e.unten)));
        return pfad;
    }
    QPainterPath operator()(const GerundetesRechteck &r) const {
        QPainterPath pfad;
        pfad.addRoundedRect(QRectF(QPointF(r.links, r.oben), QPointF(r.rechts, r.unten)), r.eckenbreite / 2.0,
                            r.eckenhöhe / 2.0);
        return pfad;
    }
    QPainterPath operator()(const Vieleck &v) const {
        QPolygonF ecken;
        for (const Regionspunkt &e : v.ecken)
            ecken << QPointF(e.x, e.y);
        QPainterPath pfad;
        pfad.addPolygon(ecken);
        pfad.closeSubpath();
        return pfad;
    }
};

} // namespace

QPainterPath umrissVon(const Region &region, double jeBildpunkt) {
    QPainterPath umriss;
    for (const Region::Teil &teil : region.Teile())
        umriss = umriss.united(std::visit(AlsPfad{}, teil));
    return QTransform::fromScale(jeBildpunkt, jeBildpunkt).map(umriss);
}

} // namespace velmo
