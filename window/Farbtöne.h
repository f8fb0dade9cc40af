#pragma once
// Die Farben, die das Fenster selbst beisteuert: Papier, Holz, Messing.
#include "platform/Eigenschaft.h"

#include <QColor>

namespace velmo::farbton {

inline QColor aus(Farbe f) { return QColor::fromRgb(f.rgb | 0xFF000000u); }

inline const QColor Papier = aus(farbe::Papier), Holz = aus(farbe::Holz);
inline const QColor Tisch{0x3B, 0x2A, 0x1C};       // rings um die Anzeige
inline const QColor Papierlicht{0xFF, 0xFB, 0xF2}; // Felder zum Schreiben
inline const QColor Holzschatten{0x5C, 0x40, 0x24};
inline const QColor Messing{0xE2, 0xB0, 0x3A}; // Betonung, Tastaturfokus
inline const QColor Tinte{0x2E, 0x21, 0x14};
inline const QColor Blass{0x8E, 0x82, 0x70}; // Schrift auf Gesperrtem

} // namespace velmo::farbton
