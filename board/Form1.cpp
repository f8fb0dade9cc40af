#include "board/Form1.h"

#include "model/Geld.h"
#include "model/Spielbeginn.h"

namespace velmo {

Form1::Form1(Programm &programm) : Brett(programm), p(programm) {}

void Form1::Form_Load() {
    Spielbeginn(p.Zustand);
    Scheinanzeige(p);
}

} // namespace velmo
