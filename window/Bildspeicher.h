#pragma once
// Die Bilder in der Größe, in der sie gezeigt werden. Jede Größe entsteht einmal.
#include <QCache>
#include <QHash>
#include <QImage>
#include <QPixmap>

#include <string>

namespace velmo {

class Bildspeicher {
  public:
    Bildspeicher();
    /// Das Bild der Datei in der Größe; ein leeres, wenn es sich nicht lesen lässt. In Eile ist es eines von anderer
    /// Größe, wenn es eines gibt.
    QPixmap bild(const std::string &Datei, const QSize &);
    /// Das Bild, wie es auf der Platte steht; leer, wenn es sich nicht lesen lässt. Gilt bis zum nächsten Aufruf.
    const QImage &roh(const std::string &Datei);
    /// Solange der Spieler am Fenster zieht, genügen die Bilder der alten Größe.
    void eile(bool an) { inEile = an; }

  private:
    QImage gelesen(const std::string &Datei, const QSize &mindestens);

    struct Schlüssel {
        QString Datei;
        QSize größe;
        bool operator==(const Schlüssel &) const = default;
    };
    friend size_t qHash(const Schlüssel &s, size_t keim) {
        return qHashMulti(keim, s.Datei, s.größe.width(), s.größe.height());
    }

    QCache<Schlüssel, QPixmap> fertige; // Kosten in KiB
    QCache<QString, QImage> rohe;
    QHash<QString, QPixmap> letzte;
    bool inEile = false;
};

} // namespace velmo
