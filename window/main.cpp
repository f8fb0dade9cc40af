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

// Qts eigene Zeilen zum Bildschirm sagen dem Spieler nichts.
QtMessageHandler qtsMelder = nullptr;

/// Fehlt er beim Start, bricht Qt ab, noch ehe seine Anwendung fertig ist.
void meldeOhneBildschirm(QtMsgType art, const QMessageLogContext &, const QString &) {
    if (art != QtFatalMsg) return;
    std::cerr << "Velmo braucht einen Bildschirm, um sein Fenster zu zeigen.\n";
    std::_Exit(1);
}

/// Reißt die Verbindung später ab, beendet Qt das Programm gleich nach seiner Warnung.
void meldeAbriss(QtMsgType art, const QMessageLogContext &ort, const QString &satz) {
    if (satz.contains("connection broke"))
        std::cerr << "Velmo hat die Verbindung zum Bildschirm verloren. Bestenliste und Charaktere sind gesichert.\n";
    else
        qtsMelder(art, ort, satz);
}

} // namespace

int main(int argc, char **argv) try {
    velmo::haushalteMitSpeicher();
    qtsMelder = qInstallMessageHandler(meldeOhneBildschirm);
    QApplication app(argc, argv);
    qInstallMessageHandler(meldeAbriss);
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
