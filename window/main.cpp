// Das Programm mit Fenster. Die mitgelieferten Dateien liegen beim Programm.
#include "shell/Formtafel.h"
#include "window/Gestaltung.h"
#include "window/QtOberfläche.h"

#include <QApplication>
#include <QStandardPaths>

#include <iostream>

namespace {

bool hatBildschirm() {
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name)) return true;
    return false;
}

} // namespace

int main(int argc, char **argv) {
    if (!hatBildschirm()) {
        std::cerr << "Velmo braucht einen Bildschirm, um sein Fenster zu zeigen.\n";
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName("velmo");
    QApplication::setApplicationDisplayName("Velmo");
    QApplication::setQuitOnLastWindowClosed(false);
    velmo::gestalteProgramm();

    velmo::QtOberfläche oberfläche(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
                                   "/fenster.ini");
    velmo::Programm programm(oberfläche, velmo::Formtafel(), QApplication::applicationDirPath().toStdString());
    return oberfläche.laufe(programm, [&] { velmo::starte(programm); });
}
