#pragma once
// Regionen als Umriss zum Zeichnen.
#include "platform/Region.h"

#include <QPainterPath>

namespace velmo {

/// Der Umriss der Region; jeBildpunkt: Bildpunkte des Bildschirms je Bildpunkt der Form.
QPainterPath umrissVon(const Region &, double jeBildpunkt);

} // namespace velmo
