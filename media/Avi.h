#pragma once
// Der Aufbau eines Films: eine AVI-Datei mit einer Bildspur. Wie ihre Bilder zu entpacken sind, weiß die Oberfläche.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmo {

struct Avi {
    /// Die Bytes eines Bildes in der Datei; ein leeres wiederholt das vorige.
    struct Bild {
        std::size_t Ort, Länge;
    };
    double Bildzeit = 0;   // ms, die ein Bild steht
    std::string Verfahren; // vier Zeichen, womit die Bilder gepackt sind: "VP90"
    std::vector<Bild> Bilder;
};

/// Liest den Aufbau; wirft Laufzeitfehler (Datei), wenn die Bytes kein Film sind oder er nicht vollständig ist.
Avi liesAvi(std::string_view bytes);

} // namespace velmo
