#pragma once
// Die Namen der Formulare. Gezeigt und entladen wird eine Form unter ihrem Namen, auch von unten, wo sie niemand kennt.
#include "platform/Form.h"

namespace velmo {

class Ruinmeldung;

/// Der Name einer Form, von der auch Räume unter ihr wissen, was sie kann.
template <class F> struct Formularart : Formularname {
    using Art = F;
    using Formularname::Formularname;
};

} // namespace velmo

namespace velmo::formular {

inline constexpr Formularname Intro{"Intro"};
inline constexpr Formularname Menu{"Menu"};
inline constexpr Formularname Menu2{"Menu2"};
inline constexpr Formularname Form1{"Form1"};
inline constexpr Formularname Assistent{"Assistent"};
inline constexpr Formularname Sprech{"Sprech"};
inline constexpr Formularname geldfeld{"geldfeld"};
inline constexpr Formularname Baufeld{"Baufeld"};
inline constexpr Formularname Bauphase{"Bauphase"};
inline constexpr Formularname eingang{"eingang"};
inline constexpr Formularname Bezahlen{"Bezahlen"};
inline constexpr Formularname Exchange{"Exchange"};
inline constexpr Formularname Karten{"Karten"};
inline constexpr Formularart<Ruinmeldung> Verloren{"Verloren"};
inline constexpr Formularname Gewinn{"Gewinn"};
inline constexpr Formularname HoF{"HoF"};
inline constexpr Formularname frmHilfe{"frmHilfe"};
inline constexpr Formularname Überf{"Überf"};
inline constexpr Formularname Dank{"Dank"};

} // namespace velmo::formular
