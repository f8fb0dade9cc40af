#include "shell/Formtafel.h"

#include "board/Form1.h"
#include "property/Bezahlen.h"
#include "shell/Gewinn.h"
#include "shell/HoF.h"
#include "shell/Verloren.h"

namespace velmo {

namespace {

constexpr Formeintrag Tafel[] = {
    eintrag<Form1>(), eintrag<Bezahlen>(), eintrag<Verloren>(), eintrag<Gewinn>(), eintrag<HoF>(),
};

} // namespace

std::span<const Formeintrag> Formtafel() { return Tafel; }

void starte(Programm &p) { p.zeige(Form1::Formname); }

} // namespace velmo
