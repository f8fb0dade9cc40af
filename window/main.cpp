// Das Programm mit Fenster.
#include "shell/Formtafel.h"
#include "window/Gestaltung.h"
#include "window/Kästen.h"
#include "window/Ordner.h"
#include "window/QtOberfläche.h"
#include "window/Speicher.h"

#include <QApplication>
#include <QStandardPaths>

#include <cstdlib>
#include <iostream>

namespace {

/// Ohne Bildschirm bricht Qt ab, noch bevor es seine Anwendung gibt; seine Zeilen dazu sagen dem Spieler nichts.
void meldeOhneBildschirm(QtMsgType art, const QMessageLogContext &, const QString &) {
    if (art != QtFatalMsg) return;
    std::cerr << "Velmo braucht einen Bildschirm, um sein Fenster zu zeigen.\n";
    std::_Exit(1);
}

} // namespace

int main(int argc, char **argv) try {
    velmo::haushalteMitSpeicher();
    const QtMessageHandler sonst = qInstallMessageHandler(meldeOhneBildschirm);
    QApplication app(argc, argv);
    qInstallMessageHandler(sonst);
    QApplication::setApplicationName("velmo");
    QApplication::setApplicationDisplayName("Velmo");
    QApplication::setDesktopFileName("velmo");
    QApplication::setQuitOnLastWindowClosed(false);
    velmo::gestalteProgramm();

    const velmo::Ordner ordner = velmo::findeOrdner(QApplication::applicationDirPath());
    velmo::QtOberfläche oberfläche(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                                   "/fenster.ini");
    velmo::Programm programm(oberfläche, velmo::Formtafel(), ordner.Mitgeliefertes, ordner.Eigenes);
    return oberfläche.laufe(programm, [&] { velmo::starte(programm); });
} catch (const std::exception &fehler) {
    std::cerr << velmo::fehlersatz(fehler) << '\n';
    return 1;
}
