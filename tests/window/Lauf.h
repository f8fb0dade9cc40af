#pragma once
// Ein Programm im wirklichen Fenster, das eine Prüfung Schritt für Schritt bedient.
#include "bench/Programmordner.h"
#include "bench/Prüfung.h"
#include "shell/Formtafel.h"
#include "window/Gestaltung.h"
#include "window/QtOberfläche.h"

#include <QApplication>
#include <QTimer>

#include <functional>
#include <initializer_list>
#include <vector>

namespace velmo {

/// Ein Programm im Fenster und was nacheinander mit ihm geschieht; jeder Schritt wartet, bis er gelingt.
template <class Art = QtOberfläche> class Lauf {
  public:
    using Schritt = std::function<bool()>; // falsch: noch nicht so weit

    Programmordner ordner;
    Art oberfläche;
    Programm p{oberfläche, Formtafel(), ordner.Pfad()};
    std::vector<Schritt> schritte;
    int geduld = 600; // Versuche je Schritt, zu 10 ms

    /// Läuft bis zum Ende des Programms; -1, wenn ein Schritt hängen blieb.
    int laufe(const Handler &beginn) {
        bool hängt = false;
        int versuche = 0;
        QTimer antrieb;
        antrieb.callOnTimeout([&] {
            if (!schritte.empty() && schritte.front()()) {
                schritte.erase(schritte.begin());
                versuche = 0;
            } else if (++versuche > geduld) {
                hängt = true;
                QCoreApplication::exit();
            }
        });
        antrieb.start(10);
        const int stand = oberfläche.laufe(p, beginn);
        return hängt ? -1 : stand;
    }
};

inline QWidget *fenster() {
    const auto alle = QApplication::topLevelWidgets();
    for (QWidget *w : alle)
        if (w->windowTitle() == "Velmo" && !w->isModal()) return w;
    return nullptr;
}

/// Was main tut: die Prüfungen nacheinander, ohne Bildschirm und ohne Lautsprecher.
inline int prüfeOhneBildschirm(int argc, char **argv, std::initializer_list<void (*)(Prüfung &)> prüfungen) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "dummy");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    gestalteProgramm();
    Prüfung t;
    for (const auto prüfung : prüfungen)
        prüfung(t);
    return t.ende();
}

} // namespace velmo
