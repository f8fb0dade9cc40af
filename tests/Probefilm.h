#pragma once
// Ein kleiner Film aus gegebenen Bildern, die schon gepackt sind, Byte für Byte aufgebaut.
#include <cstdint>
#include <string>
#include <vector>

namespace velmo {

inline std::string wort(std::uint32_t z) {
    std::string b;
    for (int i = 0; i < 4; ++i, z >>= 8)
        b += static_cast<char>(z & 0xFF);
    return b;
}

inline std::string abschnitt(const std::string &art, const std::string &inhalt) {
    return art + wort(static_cast<std::uint32_t>(inhalt.size())) + inhalt + std::string(inhalt.size() % 2, '\0');
}

/// takt Bilder in dauer Sekunden; ein Takt von 0 überlässt es dem Kopf der Datei mit µsJeBild.
inline std::string probefilm(const std::vector<std::string> &bilder, std::uint32_t dauer = 1, std::uint32_t takt = 25,
                             std::uint32_t µsJeBild = 50000, const std::string &verfahren = "VP90") {
    const std::string strh =
        "vids" + verfahren + std::string(12, '\0') + wort(dauer) + wort(takt) + std::string(28, '\0');
    const std::string strl = abschnitt("LIST", "strl" + abschnitt("strh", strh));
    const std::string kopf = "hdrl" + abschnitt("avih", wort(µsJeBild) + std::string(52, '\0')) + strl;
    std::string folge = "movi";
    for (const std::string &bild : bilder)
        folge += abschnitt("00dc", bild) + abschnitt("JUNK", "x");
    return abschnitt("RIFF", "AVI " + abschnitt("LIST", kopf) + abschnitt("LIST", folge));
}

} // namespace velmo
