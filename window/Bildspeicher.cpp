#include "window/Bildspeicher.h"

#include "window/Schrift.h"

#include <QImageReader>

namespace velmo {

namespace {

constexpr int FertigeKiB = 384 << 10, RoheKiB = 64 << 10;

int kosten(const QSize &g) { return static_cast<int>(qint64(g.width()) * g.height() * 4 / 1024 + 1); }

} // namespace

Bildspeicher::Bildspeicher() : fertige(FertigeKiB), rohe(RoheKiB) {}

const QImage &Bildspeicher::roh(const std::string &Datei) {
    const QString name = text(Datei);
    if (const QImage *da = rohe.object(name)) return *da;
    QImageReader leser(name);
    QImage gelesen = leser.read();
    gelesen =
        gelesen.convertToFormat(gelesen.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    auto *bild = new QImage(std::move(gelesen));
    rohe.insert(name, bild, std::min(kosten(bild->size()), RoheKiB));
    return *bild;
}

/// JPEG lässt sich gleich in der Nähe der Größe entpacken, das ist ein Vielfaches rascher.
QImage Bildspeicher::gelesen(const std::string &Datei, const QSize &mindestens) {
    QImageReader leser(text(Datei));
    if (leser.format() != "jpeg") return roh(Datei);
    const QSize ganz = leser.size();
    int nenner = 8;
    while (nenner > 1 && (ganz.width() / nenner < mindestens.width() || ganz.height() / nenner < mindestens.height()))
        nenner /= 2;
    leser.setScaledSize(ganz / nenner);
    return leser.read();
}

QPixmap Bildspeicher::bild(const std::string &Datei, const QSize &größe) {
    if (Datei.empty() || größe.isEmpty()) return {};
    const Schlüssel schlüssel{text(Datei), größe};
    if (const QPixmap *da = fertige.object(schlüssel)) return *da;
    if (inEile && letzte.contains(schlüssel.Datei)) return letzte[schlüssel.Datei];
    const QImage ganz = gelesen(Datei, größe);
    if (ganz.isNull()) return {};
    QPixmap fertig = QPixmap::fromImage(ganz.scaled(größe, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    letzte[schlüssel.Datei] = fertig;
    fertige.insert(schlüssel, new QPixmap(fertig), kosten(größe));
    return fertig;
}

} // namespace velmo
