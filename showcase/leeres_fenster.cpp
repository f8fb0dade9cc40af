// Ein leeres Fenster, so groß wie die Anzeige: was das Werkzeug selbst kostet, neben dem `tests/gewicht` das Spiel
// wiegt.
#include <QApplication>
#include <QScreen>
#include <QWidget>

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    QWidget fenster;
    fenster.setWindowTitle("Velmo");
    fenster.setStyleSheet("background: #F4EBDC");
    fenster.resize(QGuiApplication::primaryScreen()->size());
    fenster.show();
    return QApplication::exec();
}
