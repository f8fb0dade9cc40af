#include "board/Musik.h"

#include "boardform/Brett.h"
#include "media/Ton.h"

namespace velmo {

namespace {

constexpr int Stücke = 4;

void spieleStück(Programm &p) {
    brett(p).MMControl1.FileName = p.Zustand.Programmpfad + "/sound/s" + std::to_string(p.Zustand.Musikstück) + ".mid";
    spieleFrisch(brett(p).MMControl1);
}

} // namespace

void beginneMusik(Programm &p) {
    Brett &b = brett(p);
    const std::string pfad = p.Zustand.Programmpfad;
    b.Hauscontrol1.FileName = pfad + "/Sound/Haus.wav";
    b.MMControl2.FileName = pfad + "/Sound/money_click.wav";
    b.MMControl3.FileName = pfad + "/Sound/car.wav";
    b.Trommel.FileName = pfad + "/Sound/tromm.wav";
    b.Kasse.FileName = pfad + "/Sound/Kasse.wav";
    p.Zustand.Musikstück = 1;
    spieleStück(p);
}

void Musiktakt(Programm &p) {
    MMControl &musik = brett(p).MMControl1;
    if (musik.Position() != musik.Length()) return;
    p.Zustand.TrauerMusik = false;
    p.Zustand.Musikstück = p.Zustand.Musikstück % Stücke + 1;
    spieleStück(p);
}

} // namespace velmo
