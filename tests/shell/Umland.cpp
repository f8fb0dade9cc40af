// Rings um die Anzeige gilt die Farbe der vordersten Szene; ein Dialog davor ändert nichts.
#include "shell/Umland.h"
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "include/Formulare.h"
#include "shell/Formtafel.h"

using namespace velmo;

int main() {
    Prüffläche fläche;
    Programmordner ordner;
    Programm p(fläche, Formtafel(), ordner.Pfad());
    Prüfung t;
    t.gilt("ohne Szene keine", !umland(p).Szene);
    p.zeige(formular::Menu);
    const Umland abend = umland(p);
    t.gleich("das Menü", std::string(abend.Szene->Name), "Menu");
    p.zeige(formular::Menu2);
    t.gilt("der Dialog davor nicht", umland(p) == abend);
    p.zeige(formular::Form1);
    t.gleich("das Brett vor dem Menü", std::string(umland(p).Szene->Name), "Form1");
    t.gilt("in seiner Farbe", umland(p).Ton.rgb != abend.Ton.rgb);
    p.geladene(formular::Form1)->Visible = false;
    t.gilt("verborgen zählt nicht", umland(p) == abend);
    return t.ende();
}
