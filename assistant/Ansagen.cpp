#include "assistant/Ansagen.h"

#include "assistant/Assistent.h"
#include "assistant/Sprech.h"
#include "boardform/Brett.h"
#include "platform/Zeichen.h"

namespace velmo {

namespace {

constexpr int Augenrollen = 10, Frage = 100;
constexpr int LesezeitJeZeichen = 42; // ms

/// Wartet, bis die Figur ganz oben ist. Wer später wartet, kommt zuerst heraus: mit Absicht so.
void warteAufFigur(Programm &p, double zuwachs, double grenze) {
    double zähler = 0;
    while (p.form<Assistent>().Top > Assistent::Oben) {
        zähler += zuwachs;
        p.DoEvents();
        if (zähler > grenze) break; // mit Absicht, wo immer sie steht
    }
}

void sage(Programm &p, const std::string &Text, bool augenrollen) {
    warteAufFigur(p, 0.5, 50000);
    auto &figur = p.form<Assistent>();
    auto &blase = p.form<Sprech>();
    blase.Timer1.Enabled = Zeichenzahl(Text) >= Sprech::LangerSatz;
    figur.Unsichtbar.Interval = Zeichenzahl(Text) * LesezeitJeZeichen;
    blase.schreibe(Text);
    figur.Runterfahr.Enabled = true;
    if (augenrollen) figur.Timer1.Enabled = true;
    ImmerOben(figur, true);
}

void frage(Programm &p, const std::string &Text) {
    warteAufFigur(p, 0.3, 100000);
    auto &figur = p.form<Assistent>();
    figur.Runterfahr.Enabled = true;
    figur.Unsichtbar.Interval = 0; // die Blase bleibt bis zur Antwort
    auto &blase = p.form<Sprech>();
    blase.schreibe(Text);
    blase.zeigeKnöpfe(true);
    brett(p).Enabled = false;
}

} // namespace

void Ansagen(Programm &p, const std::string &Text, int Art) {
    if (Text.empty()) return;
    if (Art == Frage)
        frage(p, Text);
    else
        sage(p, Text, Art == Augenrollen);
}

} // namespace velmo
