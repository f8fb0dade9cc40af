// Wie Bilder einem Vorleseprogramm heißen: nach den Tafeln des Spiels; Zierde gar nicht.
#include "surface/Benennung.h"
#include "include/Formulare.h"

#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "boardform/Brett.h"
#include "shell/Formtafel.h"
#include "window/Vorleser.h"

using namespace velmo;

namespace {

class Lage {
  public:
    Programmordner ordner;
    Prüffläche fläche;
    Programm p{fläche, Formtafel(), ordner.Pfad()};
    Brett &b = static_cast<Brett &>(p.lade(formular::Form1));
    Spielzustand &z = p.Zustand;

    Lage() {
        z.Spielername = "Anna";
        z.Spielerfarbe = "autog";
        z.Autos[Autokürzel::b].Autobesitzer = Computer<Autobesitzer>(1);
    }
    std::string name(const VisualControl &c) { return benenne(p, c).name; }
    Rolle rolle(const VisualControl &c) { return benenne(p, c).rolle; }
};

void prüfeBrett(Prüfung &t) {
    Lage l;
    l.z.Notenbestand[500] = 3;
    t.gleich("Note", l.name(l.b.stapel(500).g), "Note 500 DM, 3 Scheine");
    l.z.Notenbestand[50] = 1;
    t.gleich("ein Schein", l.name(l.b.stapel(50).g), "Note 50 DM, 1 Schein");
    t.gilt("der Knopf darauf sagt dasselbe", l.rolle(l.b.stapel(500).k) == Rolle::Zierde);
    l.z.Rundenzähler = 2;
    t.gleich("Brett", l.name(l.b.Picture1), "Brett, Runde 3");

    t.gleich("Auto vor der Fahrt", l.name(l.b.Autobild(Autokürzel::g)), "Auto Gelb: Anna, am Start");
    l.z.Autos[Autokürzel::b].Autoziel = 24;
    t.gleich("Auto", l.name(l.b.Autobild(Autokürzel::b)),
             "Auto Blau: Computer 1, Feld 24, Bauphase gratis: Taj Mahal, L'Étoile");
    t.gilt("ohne Fahrer ist es Zierde", l.rolle(l.b.Autobild(Autokürzel::r)) == Rolle::Zierde);

    l.z.Hotels[Hotelkürzel::b].Besitzer = Mensch;
    t.gleich("Gebäude", l.name(l.b.Gebäude(Hotelkürzel::b, Baustufe::H)), "Boomerang: Anna, Hauptgebäude");
    l.z.Hotels[Hotelkürzel::t].Besitzer = Computer<Hotelbesitzer>(2);
    t.gleich("Nebengebäude", l.name(l.b.Gebäude(Hotelkürzel::t, Baustufe::N2)),
             "Taj Mahal: Computer 2, 2. Nebengebäude");
    t.gilt("der blinkende Pfeil ist Zierde", l.rolle(l.b.Pfeil) == Rolle::Zierde);
}

void prüfePlätze(Prüfung &t) {
    Lage l;
    const auto platz = [&](int nummer) { return l.name(l.b.Platzbild(nummer)); };
    t.gleich("frei", platz(40), "Eingangsplatz 40, frei, für Boomerang, 100 DM");
    l.z.Gratiseingang = true;
    t.gleich("gratis", platz(40), "Eingangsplatz 40, frei, für Boomerang, gratis");
    l.z.Eingang[39] = true;
    l.z.Eingangsbesitzer[39] = Computer<Eingangsbesitzer>(1);
    t.gleich("gegenüber", platz(40), "Eingangsplatz 40, gegenüber besetzt, für Boomerang, gratis");
    t.gleich("gekauft", platz(39), "Eingangsplatz 39, Computer 1, für Fujijama");
    t.gilt("ein freier lässt sich drücken, ein gekaufter nicht",
           l.rolle(l.b.Platzbild(40)) == Rolle::Knopf && l.rolle(l.b.Platzbild(39)) == Rolle::Bild);
}

void prüfeDialoge(Prüfung &t) {
    Lage l;
    Form &karten = l.p.lade(formular::Karten);
    const Benennung karte = benenne(l.p, dynamic_cast<VisualControl &>(*karten.control("picture1")));
    t.gleich("Karte", karte.name, "Besitzkarte Fujijama");
    t.gleich(
        "und was darauf steht", karte.beschreibung,
        "Grundstück 1000 DM, Zwangskauf 500 DM; Hauptgebäude 2200 DM, je Nacht 100 DM; 1. Nebengebäude 1400 DM, je "
        "Nacht 200 DM; 2. Nebengebäude 1400 DM, je Nacht 200 DM; Freizeitpark 500 DM, je Nacht 400 DM; Eingang 100 "
        "DM");
    Form &assistent = l.p.lade(formular::Menu2);
    const auto name = [&](const char *c) { return l.name(dynamic_cast<VisualControl &>(*assistent.control(c))); };
    t.gleich("ein Feld heißt nach seiner Beschriftung", name("Text1"), "Name");
    t.gleich("ohne deren Trennung", name("List3"), "Schwierigkeit");
    t.gleich("die Beschriftung selbst schweigt dann", name("Label1"), "");
    t.gleich("ein Pfeil sagt, wohin", name("klickr"), "Nächstes Bild");
    t.gleich("Rahmen sind Zierde", name("Shape1"), "");
}

void prüfeSatz(Prüfung &t) {
    Ganzersatz satz;
    t.gleich("ein Satz", satz.nimm("Sie dürfen Eingänge kaufen."), "Sie dürfen Eingänge kaufen.");
    t.gleich("weitergerückt ist er noch derselbe", satz.nimm("Eingänge kaufen."), "Sie dürfen Eingänge kaufen.");
    t.gleich("und zurückgerollt", satz.nimm("Sie dürfen Eingänge kaufen."), "Sie dürfen Eingänge kaufen.");
    t.gleich("ein anderer", satz.nimm("Tschüß"), "Tschüß");
}

} // namespace

int main() {
    Prüfung t;
    prüfeBrett(t);
    prüfePlätze(t);
    prüfeDialoge(t);
    prüfeSatz(t);
    return t.ende();
}
