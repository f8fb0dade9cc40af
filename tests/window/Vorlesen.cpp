// Der Baum für Vorleseprogramme, im Programm selbst: ein Eingang wird gesetzt. Läuft ohne Bildschirm und ohne
// Lautsprecher.
#include "bench/Prüfung.h"
#include "include/Formulare.h"
#include "tests/window/Lauf.h"

#include <QAccessible>
#include <QRegularExpression>

using namespace velmo;

namespace {

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
    if (!o || o->state().disabled || !o->actionInterface()) return false;
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
        z.Hotels[Hotelkürzel::b].Eingangssperre = false;
        z.Hotelliste[1] = "Boomrang";
    }),
             0);
    t.gilt("Plätze sind da, sobald sie zu sehen sind", verborgenVorher && stimmt);
}

} // namespace

int main(int argc, char **argv) { return prüfeOhneBildschirm(argc, argv, {prüfeEingang}); }
