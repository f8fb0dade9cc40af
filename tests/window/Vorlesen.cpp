// Der Baum für Vorleseprogramme und was er meldet, im Programm selbst: ein Eingang wird gesetzt, Sätze werden einmal
// angesagt. Läuft ohne Bildschirm und ohne Lautsprecher.
#include "assistant/Ansagen.h"
#include "assistant/Sprech.h"
#include "boardform/Brett.h"
#include "include/Formulare.h"
#include "tests/Prüfung.h"
#include "tests/window/Lauf.h"
#include "window/Gestaltung.h"

#include <QAccessible>
#include <QRegularExpression>

#include <algorithm>
#include <string>
#include <vector>

using namespace velmo;

namespace {

std::vector<std::string> angesagt;

void höre(QAccessibleEvent *e) {
    QAccessibleInterface *o = e->accessibleInterface();
    if (e->type() == QAccessible::ObjectShow && o && o->role() == QAccessible::Notification)
        angesagt.push_back(o->text(QAccessible::Name).toStdString());
}

int wieOft(const std::string &satz) { return static_cast<int>(std::ranges::count(angesagt, satz)); }

QAccessibleInterface *suche(const QString &muster, QAccessibleInterface *von = nullptr) {
    if (!von) von = QAccessible::queryAccessibleInterface(fenster());
    const QRegularExpression ganz(QRegularExpression::anchoredPattern(muster));
    for (int i = 0; i < von->childCount(); ++i) {
        QAccessibleInterface *kind = von->child(i);
        if (!kind) continue;
        if (ganz.match(kind->text(QAccessible::Name)).hasMatch()) return kind;
        if (QAccessibleInterface *tiefer = suche(muster, kind)) return tiefer;
    }
    return nullptr;
}

bool drücke(const QString &muster) {
    QAccessibleInterface *o = suche(muster);
    if (!o || !o->actionInterface()) return false;
    o->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return true;
}

void prüfeEingang(Prüfung &t) {
    Lauf l;
    bool verborgenVorher = false, stimmt = false;
    l.schritte = {
        [&] { return suche("Brett, Runde 1") != nullptr; },
        [&] {
            verborgenVorher = !suche("Eingangsplatz .*");
            return drücke("Eingänge Kaufen");
        },
        [] { return suche("Eingang setzen") && drücke("Boomerang"); },
        [] { return drücke("Eingangsplatz 40, frei, für Boomerang, 100 DM"); },
        [&] {
            stimmt = suche("Eingangsplatz 40, Anna, für Boomerang") && !suche("Eingangsplatz 41.*");
            return l.p.Zustand.Eingang[40] && (fenster()->close() || true);
        },
    };
    t.gleich("ein Eingang, nur vorgelesen", l.laufe([&] {
        l.p.zeige(formular::Form1);
        Spielzustand &z = l.p.Zustand;
        z.Spielername = "Anna";
        z.Spielerfarbe = "autog";
        z.Hotels[Hotelkürzel::b].Besitzer = Mensch;
        z.Hotels[Hotelkürzel::b].Baustufen[Baustufe::H] = "true";
        z.Hotelliste[1] = "Boomrang";
    }),
             0);
    t.gilt("Plätze sind da, sobald sie zu sehen sind", verborgenVorher && stimmt);
}

void prüfeAnsagen(Prüfung &t) {
    Lauf l;
    angesagt.clear();
    const std::string lang = "Sie müssen würfeln ob sie ein Haus bauen dürfen, es gratis kriegen, oder das doppelte "
                             "bezahlen, und nun kommt der Rest des Satzes!";
    const std::string frage = "Wollen Sie wirklich beenden? Ja, Nein";
    l.geduld = 1500;
    l.schritte = {
        [] { return wieOft("Bitte würfeln sie !") == 1; },
        [&] {
            brett(l.p).Label1.Caption = "Alles klar!";
            return true;
        },
        [] { return wieOft("Alles klar!") == 1; },
        [&] { return wieOft(lang) == 1; },
        // der Satz rückt weiter, und die Figur klettert hinauf
        [&] { return l.p.geladene(formular::Sprech)->Visible && l.p.form<Sprech>().Label1.Caption() != lang; },
        [&] { return !l.p.geladene(formular::Sprech)->Visible; },
        [&] {
            l.p.behandle([&] { Ansagen(l.p, "Wollen Sie wirklich beenden?", 100); });
            return true;
        },
        [&] { return wieOft(frage) == 1; },
        [] { return drücke("Nein") && (fenster()->close() || true); },
    };
    t.gleich("Ansagen enden", l.laufe([&] {
        l.p.zeige(formular::Form1);
        l.p.zeige(formular::Assistent);
        Ansagen(l.p, lang, 0);
    }),
             0);
    t.gleich("der lange Satz einmal", wieOft(lang), 1);
    t.gleich("die Frage einmal", wieOft(frage), 1);
    t.gleich("nichts sonst", static_cast<int>(angesagt.size()), 4);
}

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "dummy");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    gestalteProgramm();
    QAccessible::setActive(true);
    QAccessible::installUpdateHandler(höre);
    Prüfung t;
    prüfeEingang(t);
    prüfeAnsagen(t);
    return t.ende();
}
