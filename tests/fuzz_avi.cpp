// Beliebige Bytes als Film: nichts liest über sie hinaus, und was gilt, hält seine Grenzen. Läuft mit libFuzzer; der
// Ordner am Ende der Befehlszeile bekommt zu Beginn die Filme, von denen die Suche ausgeht.
#include "media/Avi.h"
#include "platform/Laufzeitfehler.h"
#include "tests/Probefilm.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    const std::filesystem::path ordner = (*argv)[*argc - 1];
    if (*argc < 2 || !std::filesystem::is_directory(ordner)) return 0;
    const std::string film = velmo::probefilm({"\xFF\xD8\xFF\xD9", "", "x"});
    const std::string filme[] = {film, velmo::probefilm({"x"}, 1, 0), film.substr(0, film.size() - 5)};
    for (int nummer = 0; const std::string &bytes : filme)
        std::ofstream(ordner / std::to_string(nummer++), std::ios::binary) << bytes;
    return 0;
}

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
