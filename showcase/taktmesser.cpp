// Misst die Bilder, die das Fenster bei 1600 mal 1200 zeigt, während sich etwas bewegt: je Bewegung eine Zeile mit
// ihrem Namen, der Zahl der Bilder, dem mittleren und dem längsten, in ms Rechenzeit des Fadens, der zeichnet. Anderes,
// was der Rechner gerade tut, zählt so nicht mit.
#include "bench/Programmordner.h"
#include "property/Bauen.h"
#include "property/Exchange.h"
#include "shell/Formtafel.h"
#include "window/Gestaltung.h"
#include "window/QtOberfläche.h"
#include "window/Speicher.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

using namespace velmo;

namespace {

constexpr QSize Fenstergröße(1600, 1200);

double rechenzeit() {
    timespec t;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

/// Merkt sich, was von einem Bild zum nächsten gerechnet wurde.
class Messprogramm : public QApplication {
  public:
    using QApplication::QApplication;
    std::vector<double> bilder; // ms

    void beginne() {
        bilder.clear();
        zuletzt = rechenzeit();
    }
    bool notify(QObject *empfänger, QEvent *e) override {
        const bool bild = e->type() == QEvent::UpdateRequest && empfänger->isWidgetType();
        const bool getan = QApplication::notify(empfänger, e);
        if (bild) {
            const double nun = rechenzeit();
            bilder.push_back(nun - zuletzt);
            zuletzt = nun;
        }
        return getan;
    }

  private:
    double zuletzt = 0;
};

void warte(Programm &p, Zeit ms) {
    QTimer::singleShot(static_cast<int>(ms), [] {});
    const Zeit bis = p.oberfläche.jetzt() + ms;
    while (p.oberfläche.jetzt() < bis)
        p.oberfläche.gibAb(Rast::BisEreignis);
}

VisualControl &element(Programm &p, Formularname form, const char *name) {
    return dynamic_cast<VisualControl &>(*p.geladene(form)->control(name));
}

struct Bewegung {
    const char *Name;
    Zeit Anlauf, Dauer; // ms; im Anlauf erscheint, was sich bewegen wird
    std::function<void(Programm &)> beginne;
};

const Bewegung Bewegungen[] = {
    {"Haus steigt", 0, 2500, [](Programm &p) { errichte(p, Baufolge(Hotelkürzel::p).front()); }},
    {"Dialog gleitet", 0, 500, ExchangeÖffnen},
    {"Karte gleitet", 100, 1500, [](Programm &p) { p.zeige(formular::Karten); }},
    {"Karte geht", 0, 400, [](Programm &p) { element(p, formular::Karten, "Image3").Click(); }},
    {"Feuerwerk", 500, 4000,
     [](Programm &p) {
         p.zeige(formular::Gewinn);
         element(p, formular::Gewinn, "SSCommand2").Click();
     }},
};

void messe(Messprogramm &app, Programm &p, const Bewegung &b) {
    if (b.Anlauf == 0) app.beginne();
    b.beginne(p);
    if (b.Anlauf > 0) {
        warte(p, b.Anlauf);
        app.beginne();
    }
    warte(p, b.Dauer);
    std::vector<double> ms = app.bilder;
    if (ms.empty()) ms = {0};
    std::sort(ms.begin(), ms.end());
    std::printf("%s\t%zu\t%.1f\t%.1f\n", b.Name, ms.size(), ms[ms.size() / 2], ms.back());
}

} // namespace

int main(int argc, char **argv) {
    haushalteMitSpeicher();
    Messprogramm app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    gestalteProgramm();
    const Programmordner ordner;
    QtOberfläche oberfläche;
    Programm p(oberfläche, Formtafel(), ordner.Pfad());
    return oberfläche.laufe(p, [&] {
        const auto alle = QApplication::topLevelWidgets();
        for (QWidget *w : alle)
            if (w->windowTitle() == "Velmo") w->resize(Fenstergröße);
        p.zeige(formular::Form1);
        warte(p, 4000);
        for (const Bewegung &b : Bewegungen)
            messe(app, p, b);
        p.Ende();
    });
}
