// Beliebige Bytes als Charakterdatei: sie wird gelesen oder ist ein Laufzeitfehler, und was gelesen wurde, kommt
// geschrieben ebenso zurück.
#include "platform/Laufzeitfehler.h"
#include "shell/Charakterdatei.h"
#include "tests/Fuzzdatei.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe) {
    static const velmo::Fuzzdatei datei("fuzz.cha");
    datei.schreibe(daten, größe);
    try {
        const velmo::Charakter c = velmo::liesCharakter(datei.Pfad);
        if (c.Name.find_first_of("/\\") != std::string::npos) return 0;
        velmo::schreibeCharakter(datei.Pfad, c);
        const velmo::Charakter wieder = velmo::liesCharakter(datei.Pfad);
        if (wieder.Name != c.Name || wieder.Spitzname != c.Spitzname || wieder.Farbe != c.Farbe ||
            wieder.Bildnummer.Text() != c.Bildnummer.Text())
            std::abort();
    } catch (const velmo::Laufzeitfehler &) {
    }
    return 0;
}
