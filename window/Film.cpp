#include "window/Film.h"

#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"

#include <algorithm>

namespace velmo {

Film::Film(const std::string &Datei) : bytes(liesDatei(Datei)), aufbau(liesAvi(bytes)) {
    if (aufbau.Verfahren != Bildspur::Verfahren || !entpacke(0)) throw Laufzeitfehler(Fehlerart::Datei);
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
    while (gezeigt < std::min(nummer, aufbau.Bilder.size() - 1))
        entpacke(++gezeigt);
}

const QImage &Film::bild(const QSize &neu) {
    if (frisch || neu != größe) {
        größe = neu;
        frisch = false;
        spur.zeichne(gezeigtes, größe);
    }
    return gezeigtes;
}

/// Ein leeres Bild wiederholt das vorige; eines, das sich nicht entpacken lässt, lässt es stehen.
bool Film::entpacke(std::size_t nummer) {
    const Avi::Bild &b = aufbau.Bilder[nummer];
    if (b.Länge == 0 || !spur.entpacke(std::string_view(bytes).substr(b.Ort, b.Länge))) return false;
    return frisch = true;
}

} // namespace velmo
