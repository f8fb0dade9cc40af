// Beliebige Bytes als Szene: sie wird gespielt oder scheitert mit einer Zeile; nichts stürzt ab.
#include "bench/Szene.h"

#include <cctype>
#include <cstdint>
#include <iostream>
#include <string_view>

namespace {

/// Eine große Zahl kann ein langes Warten sein: solche Skripte dauern nur.
bool hatGroßeZahl(std::string_view skript) {
    int ziffern = 0;
    for (const char c : skript) {
        if (ziffern > 4 || (ziffern > 0 && (c == 'e' || c == 'E'))) return true;
        ziffern = std::isdigit(static_cast<unsigned char>(c)) ? ziffern + 1 : 0;
    }
    return ziffern > 4;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    std::cout.setstate(std::ios::failbit); // was die Szenen sagen, will hier niemand lesen
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *daten, std::size_t größe) {
    const std::string_view skript(reinterpret_cast<const char *>(daten), größe);
    if (!hatGroßeZahl(skript)) velmo::Szene("fuzz", skript).spiele();
    return 0;
}
