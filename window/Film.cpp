#include "window/Film.h"

#include "media/Avi.h"
#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace velmo {

Film::Film(const std::string &Datei) : bytes(liesDatei(Datei)), aufbau(liesAvi(bytes)) {
    zeige(0);
    if (gezeigtes.isNull()) throw Laufzeitfehler(Fehlerart::Datei);
    takt.setTimerType(Qt::PreciseTimer);
    takt.callOnTimeout([this] { schritt(); });
}

void Film::spiele() {
    uhr.start();
    takt.start(std::max(1, static_cast<int>(aufbau.Bildzeit / 2)));
}

void Film::schritt() {
    const std::size_t vorher = gezeigt;
    zeigeStand(uhr.elapsed());
    if (gezeigt == aufbau.Bilder.size() - 1) takt.stop();
    if (gezeigt != vorher && neuesBild) neuesBild();
}

void Film::zeigeStand(Zeit ms) {
    const auto nummer = static_cast<std::size_t>(static_cast<double>(ms) / aufbau.Bildzeit);
    const std::size_t jetzt = std::min(nummer, aufbau.Bilder.size() - 1);
    if (jetzt != gezeigt) zeige(jetzt);
}

const QImage &Film::bild(const QSize &neu) {
    if (neu.isValid() && neu != größe) {
        größe = neu;
        zeige(gezeigt);
    }
    return gezeigtes;
}

/// Ein Bild, das sich nicht lesen lässt, lässt das vorige stehen.
void Film::zeige(std::size_t nummer) {
    gezeigt = nummer;
    const Avi::Bild &b = aufbau.Bilder[nummer];
    const QByteArray daten = QByteArray::fromRawData(bytes.data() + b.Ort, static_cast<qsizetype>(b.Länge));
    QBuffer quelle;
    quelle.setData(daten);
    QImageReader leser(&quelle, "JPEG");
    const QSize volle = leser.size();
    if (größe.isValid() && größe.width() < volle.width() && größe.height() < volle.height()) leser.setScaledSize(größe);
    QImage bild = leser.read();
    if (!bild.isNull()) gezeigtes = std::move(bild);
}

} // namespace velmo
