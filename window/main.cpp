// Das Programm mit Fenster. Die mitgelieferten Dateien liegen beim Programm.
#include "shell/Formtafel.h"
#include "window/Farbtöne.h"
#include "window/QtOberfläche.h"
#include "window/Schrift.h"

#include <QApplication>
#include <QStyleFactory>

#include <iostream>

namespace {

/// Die Bedienelemente des Systems in den Farben des Spiels.
QPalette palette() {
    using namespace velmo::farbton;
    QPalette p(QColor(0xE9, 0xD8, 0xB4), Papier);
    p.setColor(QPalette::Base, Papierlicht);
    p.setColor(QPalette::Text, Tinte);
    p.setColor(QPalette::WindowText, Tinte);
    p.setColor(QPalette::ButtonText, Tinte);
    p.setColor(QPalette::Highlight, Holz);
    p.setColor(QPalette::HighlightedText, Papierlicht);
    p.setColor(QPalette::ToolTipBase, Papierlicht);
    p.setColor(QPalette::ToolTipText, Tinte);
    for (const auto rolle : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, rolle, Blass);
    return p;
}

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
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(palette());
    QApplication::setFont(velmo::schrift("", 8.25, false, 1.0 / 12));

    velmo::QtOberfläche oberfläche;
    velmo::Programm programm(oberfläche, velmo::Formtafel(), QApplication::applicationDirPath().toStdString());
    return oberfläche.laufe(programm, [&] { velmo::starte(programm); });
}
