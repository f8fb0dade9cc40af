#pragma once
// Die Umrisse der Figur und der Blase. Ihre Maße sind Bildpunkte des Entwurfs zu 12 Twips; wo die Anzeige andere hat,
// werden sie umgerechnet, mit dem Maßstab vervielfacht und um den Versatz verschoben.
#include "platform/Laufzeit.h"

namespace velmo {

Region FigurRegion(const Laufzeit &, float ScaleX, float ScaleY, int OffsetX, int OffsetY);
Region Sprechblasenregion(const Laufzeit &, float ScaleX, float ScaleY, int OffsetX, int OffsetY);

/// Die Ecken des Zipfels der Blase, 0 bis 3; sonst 0.
int Tabelle_X(int Index);
int Tabelle_Y(int Index);

} // namespace velmo
