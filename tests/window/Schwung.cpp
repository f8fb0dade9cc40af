// Was sich bewegt, beginnt, wo es war, und endet, wo die Regel es haben will.
#include "window/Schwung.h"
#include "bench/Prüfung.h"

#include <cmath>

using namespace velmo;

int main() {
    Prüfung t;
    constexpr Punkt weg{-600, 240};
    const Haltung anfang = fahrt(weg, 0, "a", "a"), mitte = fahrt(weg, 0.5, "a", "a"), ende = fahrt(weg, 1, "a", "a");
    t.gilt("am Anfang am alten Ort", anfang.versatz.x == weg.x && anfang.versatz.y == weg.y && anfang.drehung == 0);
    t.gilt("am Ende am neuen", std::hypot(ende.versatz.x, ende.versatz.y) < 1e-9 && std::abs(ende.drehung) < 1e-9);
    t.gilt("nach rechts oben hebt er die Nase", mitte.drehung < -1 && mitte.drehung > -45);
    t.gilt("und hüpft", mitte.versatz.y < weg.y / 2);
    t.gilt("senkrecht bleibt er gerade", fahrt({0, 500}, 0.5, "a", "a").drehung == 0);
    t.gleich("wendet er, so zeigt er erst die alte Ansicht", fahrt(weg, 0.3, "a", "b").bild, "a");
    t.gleich("dann die neue", fahrt(weg, 0.7, "a", "b").bild, "");
    t.gilt("schmal dazwischen", fahrt(weg, 0.5, "a", "b").breite < 0.6 && fahrt(weg, 1, "a", "b").breite > 0.99);

    Schwung schwung;
    Stück alt, neu;
    alt.sorte = neu.sorte = Sorte::Bildfeld;
    alt.gebaren = neu.gebaren = Gebaren::Purzelt;
    alt.bild = "201";
    neu.bild = "204";
    schwung.bemerke(neu, neu);
    t.gilt("dasselbe Bild liegt still", schwung.lebendes().empty() && schwung.haltung(neu).drehung == 0);
    schwung.bemerke(alt, neu);
    t.gilt("ein neues purzelt", schwung.lebendes().size() == 1 && std::abs(schwung.haltung(neu).drehung) > 5);
    neu.sichtbar = false;
    Schwung ruhe;
    ruhe.bemerke(alt, neu);
    t.gilt("was verschwindet, nicht", ruhe.lebendes().empty());
    return t.ende();
}
