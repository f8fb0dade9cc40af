#pragma once
// Die vier Autos: ihr Text, ihr Bild auf dem Brett, und wer welches fährt.
#include "include/Reihe.h"
#include "include/Spielzustand.h"
#include "platform/Rechteck.h"

#include <array>
#include <optional>
#include <string>

namespace velmo {

struct Auto {
    Autokürzel Kürzel;
    const char *Text;  // Spielerfarbe des Menschen, der es fährt
    const char *Farbe; // im Assistenten
    const char *Control;
    Rechteck Ort;  // wo es auf dem Brett wartet
    int Grundbild; // das erste seiner vier Bilder
    /// Welche Autos c1, c2 und c3 fahren, wenn der Mensch dieses fährt.
    std::array<Autokürzel, 3> Computer;
    /// Nur Auto g prüft das Rathaus, bevor es die Runde vollendet: mit Absicht so.
    bool RathausVorRunde;
};

// clang-format off
inline constexpr auto Autotafel = [] {
    using A = Autokürzel;
    return std::to_array<Auto>({
    // Kürzel Text     Farbe   Bild     Ort                     Bilder c1    c2    c3    Rathaus zuerst
    {A::g, "autog", "Gelb", "Autog", {8040, 1320, 480, 360}, 125, {A::b, A::e, A::r}, true},
    {A::e, "autoe", "Grün", "Autoe", {7320, 1320, 480, 360}, 133, {A::g, A::b, A::r}, false},
    {A::b, "autob", "Blau", "Autob", {7680, 1320, 480, 360}, 129, {A::g, A::e, A::r}, false},
    {A::r, "autor", "Rot",  "Autor", {6960, 1320, 480, 360}, 137, {A::g, A::b, A::e}, false},
    });
}();
static_assert(Autotafel.size() == 4);
// clang-format on

constexpr const Auto &auto_(Autokürzel k) { return Autotafel[static_cast<std::size_t>(k)]; }

/// Das Auto des Menschen; ohne Wert, wenn Spielerfarbe keins nennt.
inline std::optional<Autokürzel> AutoDesMenschen(const Spielzustand &z) {
    for (const Auto &a : Autotafel)
        if (z.Spielerfarbe == a.Text) return a.Kürzel;
    return std::nullopt;
}

/// Das Auto mit dem Kürzel als Text; ohne Wert, wenn es keins gibt.
inline std::optional<Autokürzel> AutoZuText(const std::string &text) {
    for (const Auto &a : Autotafel)
        if (text.size() == 1 && text[0] == a.Text[4]) return a.Kürzel;
    return std::nullopt;
}

} // namespace velmo
