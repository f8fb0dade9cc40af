#pragma once

namespace velmo {

/// Ein Platz in Twips, von der Ecke des Behälters aus.
struct Rechteck {
    double Left, Top, Width, Height;
};

} // namespace velmo
