#include "shell/Formtafel.h"

#include "assistant/Assistent.h"
#include "assistant/Sprech.h"
#include "board/Form1.h"
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

namespace velmo {

namespace {

// clang-format off
constexpr Formeintrag Tafel[] = {
    eintrag<Form1>(),
    eintrag<Baufeld>(),
    eintrag<Bauphase>(),
    eintrag<Exchange>(),
    eintrag<Karten>(),
    eintrag<eingang>(),
    eintrag<geldfeld>(),
    eintrag<Bezahlen>(),
    eintrag<Verloren>(),
    eintrag<Gewinn>(),
    eintrag<HoF>(),
    eintrag<Assistent>(),
    eintrag<Sprech>(),
    eintrag<Intro>(),
    eintrag<Menu>(),
    eintrag<Menu2>(),
    eintrag<frmHilfe>(),
    eintrag<Überf>(),
    eintrag<Dank>(),
};
// clang-format on

} // namespace

std::span<const Formeintrag> Formtafel() { return Tafel; }

void brichAb(Programm &p, const Laufzeitfehler &fehler) {
    p.MsgBox(fehler.what());
    const Spielzustand &z = p.Zustand;
    if (z.Bildschirmbreite > 0)
        p.oberfläche.setzeModus(static_cast<int>(z.Bildschirmbreite), static_cast<int>(z.Bildschirmhöhe));
}

void starte(Programm &p) { p.zeige(Intro::Formname); }

} // namespace velmo
