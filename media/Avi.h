#pragma once
// Der Aufbau eines Films: eine AVI-Datei, deren Bildspur aus lauter einzelnen JPEG-Bildern besteht.
#include <cstddef>
#include <string_view>
#include <vector>

namespace velmo {

struct Avi {
    /// Die Bytes eines Bildes in der Datei; ein leeres wiederholt das vorige.
    struct Bild {
        std::size_t Ort, Länge;
    };
    double Bildzeit = 0; // ms, die ein Bild steht
    std::vector<Bild> Bilder;
};

/// Liest den Aufbau; wirft Laufzeitfehler (Datei), wenn die Bytes kein solcher Film sind oder er nicht vollständig ist.
Avi liesAvi(std::string_view bytes);

} // namespace velmo
