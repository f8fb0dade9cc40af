#pragma once
// Ein Film, von vorn bis hinten abgespielt.
#include "media/Avi.h"
#include "platform/Oberfläche.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>

#include <functional>
#include <string>

namespace velmo {

class Film {
  public:
    /// Wirft Laufzeitfehler (Datei), wenn es die Datei nicht gibt oder sie kein Film ist.
    explicit Film(const std::string &Datei);

    void spiele();
    /// Zeigt das Bild nach so vielen ms, zuletzt das letzte.
    void zeigeStand(Zeit ms);
    /// Das gezeigte Bild; von nun an in dieser Größe, wenn sie kleiner ist als der Film.
    const QImage &bild(const QSize &größe = {});
    /// Wird bei jedem neuen Bild gerufen.
    std::function<void()> neuesBild;

  private:
    void schritt();
    void zeige(std::size_t nummer);

    const std::string bytes;
    const Avi aufbau;
    std::size_t gezeigt = 0;
    QImage gezeigtes;
    QSize größe;
    QElapsedTimer uhr;
    QTimer takt;
};

} // namespace velmo
