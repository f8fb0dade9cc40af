#include "bench/Mitschrift.h"

#include <filesystem>

namespace velmo {

namespace {

constexpr std::uint64_t Faktor = 0x100000001b3; // von FNV-1a mit 64 Bit

} // namespace

void Mitschrift::protokolliere(const std::string &datei) {
    pfad = datei;
    if (std::filesystem::exists(datei))
        fremdes.open(datei, std::ios::binary);
    else
        ausgabe.open(datei, std::ios::binary);
    if (!fremdes.is_open() && !ausgabe) throw std::runtime_error(datei + " lässt sich nicht öffnen");
}

void Mitschrift::beginneSpiel(int neues) {
    spiel = neues;
    nummer = 0;
    nimm("Spiel " + std::to_string(neues));
}

void Mitschrift::ereignis(const std::string &zeile) {
    ++nummer;
    nimm(zeile);
}

void Mitschrift::nimm(const std::string &zeile) {
    const auto mische = [this](char c) { summe = (summe ^ static_cast<unsigned char>(c)) * Faktor; };
    for (const char c : zeile)
        mische(c);
    mische('\n');
    if (ausgabe.is_open()) ausgabe << zeile << '\n';
    if (!fremdes.is_open()) return;
    std::string dort;
    if (!std::getline(fremdes, dort)) weicheAb("(das Protokoll ist zu Ende)", zeile);
    if (dort != zeile) weicheAb(dort, zeile);
    davor = zeile;
}

void Mitschrift::weicheAb(const std::string &dort, const std::string &hier) const {
    throw Abweichung("Spiel " + std::to_string(spiel) + ", Ereignis " + std::to_string(nummer) + " ist anders als in " +
                     pfad + "\n  davor: " + davor + "\n  dort:  " + dort + "\n  hier:  " + hier);
}

std::string Mitschrift::schließe() {
    if (ausgabe.is_open()) {
        ausgabe.close();
        if (!ausgabe) throw std::runtime_error(pfad + " lässt sich nicht schreiben");
        return "Das Protokoll steht in " + pfad + ".\n";
    }
    if (!fremdes.is_open()) return "";
    std::string weiter;
    const bool kürzer = static_cast<bool>(std::getline(fremdes, weiter));
    return kürzer ? "Bis hierher wie in " + pfad + "; dort folgen weitere Spiele.\n" : "Genau wie in " + pfad + ".\n";
}

std::string Mitschrift::Signatur() const {
    static constexpr char Ziffern[] = "0123456789abcdef";
    std::string text;
    for (int stelle = 60; stelle >= 0; stelle -= 4)
        text += Ziffern[(summe >> stelle) & 15];
    return text;
}

} // namespace velmo
