#pragma once
// Die Farben, die eine Oberfläche zu denen der Formulare beisteuert: Papier, Holz, Messing.
#include "platform/Farbe.h"

namespace velmo::farbe {

inline constexpr Farbe Papierlicht{0xFFFBF2}; // Felder zum Schreiben
inline constexpr Farbe Feldfokus{0xC48A1E};   // Kante des Felds, in das geschrieben wird
inline constexpr Farbe Holzschatten{0x5C4024};
inline constexpr Farbe Messing{0xE2B03A};     // Betonung, Tastaturfokus
inline constexpr Farbe Überschrift{0x8A2F1C}; // in einem langen Text
inline constexpr Farbe Tinte{0x2E2114};
inline constexpr Farbe Blass{0x726654}; // Schrift auf Gesperrtem

} // namespace velmo::farbe
