#include "shell/Formtafel.h"

#include "assistant/Assistent.h"
#include "assistant/Sprech.h"
#include "board/Form1.h"
#include "media/Bilder.h"
#include "platform/FormAnpassen.h"
#include "property/Baufeld.h"
#include "property/Bauphase.h"
#include "property/Bezahlen.h"
#include "property/Exchange.h"
#include "property/Karten.h"
#include "property/eingang.h"
#include "property/geldfeld.h"
#include "shell/Dank.h"
#include "shell/Gewinn.h"
#include "shell/HoF.h"
#include "shell/Intro.h"
#include "shell/Menu.h"
#include "shell/Menu2.h"
#include "shell/Verloren.h"
#include "shell/frmHilfe.h"
#include "shell/Überf.h"

#include <type_traits>

namespace velmo {

namespace {

/// Der Name einer Form, die mehr verspricht, steht vor einer, die es hält.
template <class F> constexpr bool hältWort(Formularname) { return true; }
template <class F, class Art> constexpr bool hältWort(Formularart<Art>) { return std::is_base_of_v<Art, F>; }

constexpr int Unangepasst = -1;

/// Eine Form bekommt die Bilder ihres Entwurfs; bei 96 DPI wird sie nach ihrer Art angepasst.
template <class F, int Art> constexpr Formeintrag form() {
    static_assert(hältWort<F>(F::Formname));
    return {F::Formname, [](Laufzeit &l) -> std::unique_ptr<Form> {
                auto &p = static_cast<Programm &>(l);
                auto form = std::make_unique<F>(p);
                Entwurfsbilder(p, *form);
                if (Art != Unangepasst && p.Zustand.KleineSchrift) FormAnpassen(*form, Art);
                return form;
            }};
}

// clang-format off
constexpr Formeintrag Tafel[] = {
    form<Form1, 2>(),
    form<Baufeld, 0>(),
    form<Bauphase, 0>(),
    form<Exchange, 0>(),
    form<Karten, 0>(),
    form<eingang, 0>(),
    form<geldfeld, 0>(),
    form<Bezahlen, 0>(),
    form<Verloren, 0>(),
    form<Gewinn, 2>(),
    form<HoF, 2>(),
    form<Assistent, Unangepasst>(),
    form<Sprech, Unangepasst>(),
    form<Intro, Unangepasst>(),
    form<Menu, Unangepasst>(),
    form<Menu2, 0>(),
    form<frmHilfe, 2>(),
    form<Überf, Unangepasst>(),
    form<Dank, Unangepasst>(),
};
// clang-format on

} // namespace

std::span<const Formeintrag> Formtafel() { return Tafel; }

void brichAb(Programm &p, const Laufzeitfehler &fehler) {
    p.MsgBox(fehler.what());
    const Spielzustand &z = p.Zustand;
    if (z.Bildschirmbreite > 0) p.oberfläche.setzeModus(alsGanz(z.Bildschirmbreite), alsGanz(z.Bildschirmhöhe));
}

void starte(Programm &p) { p.zeige(formular::Intro); }

} // namespace velmo
