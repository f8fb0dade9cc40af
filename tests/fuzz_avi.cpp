// Beliebige Bytes als Film: nichts liest über sie hinaus, und was gilt, hält seine Grenzen.
#include "media/Avi.h"
#include "platform/Laufzeitfehler.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe) {
    try {
        const velmo::Avi avi = velmo::liesAvi({reinterpret_cast<const char *>(daten), größe});
        if (avi.Bilder.empty() || avi.Bilder.size() > größe / 8 || !(avi.Bildzeit >= 1)) std::abort();
        std::size_t ende = 0;
        for (const auto &bild : avi.Bilder) {
            if (bild.Ort < ende || bild.Ort > größe || bild.Länge > größe - bild.Ort) std::abort();
            ende = bild.Ort + bild.Länge;
        }
    } catch (const velmo::Laufzeitfehler &) {
    }
    return 0;
}
