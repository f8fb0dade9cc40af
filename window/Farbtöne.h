#pragma once
// Die Farben, wie Qt sie nimmt.
#include "surface/Farbtöne.h"

#include <QColor>

namespace velmo::farbton {

inline QColor aus(Farbe f) { return QColor::fromRgb(f.rgb | 0xFF000000u); }

inline const QColor Papier = aus(farbe::Papier), Holz = aus(farbe::Holz), Papierlicht = aus(farbe::Papierlicht),
                    Holzschatten = aus(farbe::Holzschatten), Messing = aus(farbe::Messing), Tinte = aus(farbe::Tinte),
                    Blass = aus(farbe::Blass), Überschrift = aus(farbe::Überschrift), Feldfokus = aus(farbe::Feldfokus);

} // namespace velmo::farbton
