#pragma once
// Ein Film aus einzelnen Bildern (AVI mit JPEG-Bildern), von vorn bis hinten abgespielt.
#include <QByteArray>
#include <QElapsedTimer>
#include <QImage>
#include <QTimer>

#include <functional>
#include <string>
#include <vector>

namespace velmo {

class Film {
  public:
    /// Wirft Laufzeitfehler (Datei), wenn es die Datei nicht gibt oder sie kein Film ist.
    explicit Film(const std::string &Datei);

    void spiele();
    const QImage &bild() const { return gezeigtes; }
    /// Wird bei jedem neuen Bild gerufen.
    std::function<void()> neuesBild;

  private:
    void schritt();

    struct Einzelbild {
        qsizetype ort, länge;
    };
    QByteArray bytes;
    std::vector<Einzelbild> bilder;
    double bildzeit = 40; // ms je Bild
    int gezeigt = -1;
    QImage gezeigtes;
    QElapsedTimer uhr;
    QTimer takt;
};

} // namespace velmo
