#pragma once
// Was alle Überlegungen der Computer teilen: wer handelt, sein Geld, seine Hotels, die Reihenfolge des Nachsehens.
#include "include/Programm.h"
#include "model/Hoteltafel.h"

#include <algorithm>
#include <array>

namespace velmo {

/// Der Computer, der handelt; ohne Wert, wenn der Mensch fährt.
inline std::optional<int> handelnder(const Spielzustand &z) {
    for (const int n : {1, 2, 3})
        if (z.Aktivcomputer == n) return n;
    return std::nullopt;
}

inline bool gehört(const Spielzustand &z, Hotelkürzel k, int computer) {
    return z.Hotels[k].Besitzer == Computer<Hotelbesitzer>(computer);
}

inline int zähleHotels(const Spielzustand &z, int computer) {
    return static_cast<int>(std::ranges::count_if(AlleHotels, [&](Hotelkürzel k) { return gehört(z, k, computer); }));
}

/// Schreibt das Arbeitsgeld in die Kasse des Computers zurück.
inline void schreibeZurück(Spielzustand &z, int computer) { z.Computergeld[computer] = z.Arbeitsgeld.Ganz(); }

} // namespace velmo
