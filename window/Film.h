#pragma once
// Ein Film, von vorn bis hinten abgespielt.
#include "media/Avi.h"
#include "platform/Oberfläche.h"
#include "window/Bildspur.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>

#include <functional>
#include <string>

namespace velmo {

class Film {
  public:
    /// Wirft Laufzeitfehler (Datei), wenn es die Datei nicht gibt, sie kein Film ist oder einer, den das Fenster nicht
    /// spielt.
    explicit Film(const std::string &Datei);

    void spiele();
    /// Geht vor bis zum Bild nach so vielen ms, zuletzt bis zum letzten.
    void zeigeStand(Zeit ms);
    /// Das gezeigte Bild, so fein es die Größe braucht; ohne Größe ganz.
    const QImage &bild(const QSize &größe = {});
    /// Wird bei jedem neuen Bild gerufen.
    std::function<void()> neuesBild;

  private:
    void schritt();
    bool entpacke(std::size_t nummer);

    const std::string bytes;
    const Avi aufbau;
    Bildspur spur;
    std::size_t gezeigt = 0;
    bool frisch = true; // noch nicht gezeichnet
    QImage gezeigtes;
    QSize größe;
    QElapsedTimer uhr;
    QTimer takt;
};

} // namespace velmo
