#include "shell/Formtafel.h"

#include "board/Form1.h"

namespace velmo {

namespace {

constexpr Formeintrag Tafel[] = {
    eintrag<Form1>(),
};

} // namespace

std::span<const Formeintrag> Formtafel() { return Tafel; }

void starte(Programm &p) { p.zeige(Form1::Formname); }

} // namespace velmo
