#include "window/Film.h"

#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"

#include <QtEndian>

#include <algorithm>

namespace velmo {

namespace {

/// Ein Stück der Datei: vier Zeichen, die Länge, der Inhalt; auf gerade Länge aufgefüllt.
struct Brocken {
    QByteArrayView art, inhalt;
};

quint32 zahl(QByteArrayView b, qsizetype ort) {
    return ort + 4 <= b.size() ? qFromLittleEndian<quint32>(b.data() + ort) : 0;
}

/// Geht die Brocken einer Folge durch; Listen werden geöffnet.
template <class Nimm> void lies(QByteArrayView b, const Nimm &nimm) {
    for (qsizetype ort = 0; ort + 8 <= b.size();) {
        const qsizetype länge = std::min<qsizetype>(zahl(b, ort + 4), b.size() - ort - 8);
        const Brocken brocken{b.sliced(ort, 4), b.sliced(ort + 8, länge)};
        if ((brocken.art == "RIFF" || brocken.art == "LIST") && länge >= 4)
            lies(brocken.inhalt.sliced(4), nimm);
        else
            nimm(brocken);
        ort += 8 + länge + länge % 2;
    }
}

} // namespace

Film::Film(const std::string &Datei) {
    const std::string gelesen = liesDatei(Datei);
    bytes = QByteArray(gelesen.data(), static_cast<qsizetype>(gelesen.size()));
    lies(bytes, [this](const Brocken &b) {
        if (b.art == "avih") bildzeit = zahl(b.inhalt, 0) / 1000.0;
        if (b.art.endsWith("dc") || b.art.endsWith("db"))
            bilder.push_back({b.inhalt.data() - bytes.constData(), b.inhalt.size()});
    });
    if (bilder.empty() || bildzeit <= 0) throw Laufzeitfehler(Fehlerart::Datei);
    takt.setTimerType(Qt::PreciseTimer);
    takt.callOnTimeout([this] { schritt(); });
}

void Film::spiele() {
    uhr.start();
    takt.start(static_cast<int>(bildzeit / 2));
    schritt();
}

void Film::schritt() {
    const int letztes = static_cast<int>(bilder.size()) - 1;
    const int jetzt = std::min(static_cast<int>(uhr.elapsed() / bildzeit), letztes);
    if (jetzt == letztes) takt.stop();
    if (jetzt == gezeigt) return;
    gezeigt = jetzt;
    const Einzelbild &b = bilder[static_cast<std::size_t>(jetzt)];
    gezeigtes = QImage::fromData(bytes.sliced(b.ort, b.länge), "JPEG");
    if (neuesBild) neuesBild();
}

} // namespace velmo
