// Der Schaukasten: spielt Szenen und macht die Bilder, die sie mit "bild" verlangen. Mit --vergleich misst er sie an
// Vorlagen, sonst schreibt er sie.
#include "bench/Szenenlauf.h"
#include "showcase/Bildvergleich.h"
#include "showcase/Kamera.h"
#include "window/Gestaltung.h"
#include "window/Schrift.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <iostream>

namespace {

using namespace velmo;

struct Auftrag {
    double faktor = 1;
    QDir ziel;
    std::optional<QDir> vorlagen;
};

/// Ein Bild, das seiner Vorlage nicht gleicht, liegt danach zum Ansehen im Ziel.
void mache(const Auftrag &a, Szene &szene, const std::string &name, const Rechteck &ausschnitt) {
    const QImage bild = aufnahme(szene, ausschnitt, a.faktor);
    const QString datei = text(name) + ".png";
    if (a.vorlagen) {
        const double anders = unterschied(bild, QImage(a.vorlagen->filePath(datei)));
        szene.prüfe(anders <= Spielraum, "Bild " + name + " ist zu " + std::to_string(anders * 100) + " % anders",
                    "höchstens " + std::to_string(Spielraum * 100) + " %");
        if (anders <= Spielraum) return;
    }
    if (!a.ziel.mkpath(".") || !bild.save(a.ziel.filePath(datei)))
        throw std::runtime_error(a.ziel.filePath(datei).toStdString() + " lässt sich nicht schreiben");
}

} // namespace

int main(int zahl, char **worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(zahl, worte);
    gestalteProgramm();
    if (const QStringList fehlend = fehlendeSchriften(); !fehlend.isEmpty())
        std::cout << "Hier fehlen Schriften: " << fehlend.join(", ").toStdString() << '\n';

    QCommandLineParser zeile;
    zeile.addHelpOption();
    zeile.addOption({"faktor", "Bildpunkte je Bildpunkt des Entwurfs (1).", "zahl", "1"});
    zeile.addOption({"ziel", "Wohin die Bilder kommen (.).", "ordner", "."});
    zeile.addOption({"vergleich", "Vorlagen, denen die Bilder gleichen sollen.", "ordner"});
    zeile.addPositionalArgument("szene", "Die Szenen; - liest die Eingabe.", "SZENE...");
    zeile.process(app);

    Auftrag auftrag{zeile.value("faktor").toDouble(), QDir(zeile.value("ziel")), {}};
    if (!(auftrag.faktor >= 0.5 && auftrag.faktor <= GrößterFaktor)) {
        std::cout << "--faktor liegt zwischen 0.5 und " << GrößterFaktor << '\n';
        return 2;
    }
    if (zeile.isSet("vergleich")) auftrag.vorlagen = QDir(zeile.value("vergleich"));
    std::vector<std::string> namen;
    for (const QString &name : zeile.positionalArguments())
        namen.push_back(name.toStdString());
    return spieleDateien(namen,
                         [&](Szene &szene) {
                             szene.macheBild = [&](const std::string &name, const Rechteck &r) {
                                 mache(auftrag, szene, name, r);
                             };
                         })
        .ende();
}
