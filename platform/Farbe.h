#pragma once
#include <cstdint>

namespace velmo {

/// Eine Farbe als 0xRRGGBB.
struct Farbe {
    std::uint32_t rgb = 0;
    bool operator==(const Farbe &) const = default;
};

/// Die Farben, die mehrere Formulare teilen.
namespace farbe {
inline constexpr Farbe Weiß{0xFFFFFF}, Schwarz{0x000000};
inline constexpr Farbe Papier{0xF4EBDC}, Holz{0x8A663E}; // Grund der Dialoge, ihre Rahmen und Linien
inline constexpr Farbe Blasenrand{0x5A2800};             // um Figur und Blase
} // namespace farbe

} // namespace velmo
