#pragma once
// Freigegebenes gehört gleich wieder dem Rechner: Bilder und Töne kommen und gehen in Stücken von Megabytes, und glibc
// höbe sie für später auf.
#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

namespace velmo {

/// Einmal, am Anfang: große Stücke sind eigene Abbildungen, die mit dem Freigeben gehen.
inline void haushalteMitSpeicher() {
#ifdef __GLIBC__
    constexpr int Groß = 128 << 10;
    mallopt(M_MMAP_THRESHOLD, Groß);
    mallopt(M_TRIM_THRESHOLD, 2 * Groß);
#endif
}

/// Auch die kleinen, nachdem vieles frei wurde.
inline void gibSpeicherZurück() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace velmo
