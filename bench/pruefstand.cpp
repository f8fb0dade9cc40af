// Der Prüfstand: spielt Szenen und zählt, was galt.
#include "bench/Szene.h"

#include <fstream>
#include <iostream>
#include <iterator>

namespace {

/// Der Inhalt der Datei oder, für "-", der Eingabe; ohne Wert, wenn er sich nicht lesen lässt.
std::optional<std::string> skript(const std::string &name) {
    if (name == "-") return std::string(std::istreambuf_iterator<char>(std::cin), {});
    std::ifstream datei(name, std::ios::binary);
    std::string inhalt(std::istreambuf_iterator<char>(datei), {});
    if (!datei.is_open() || datei.bad()) return std::nullopt;
    return inhalt;
}

} // namespace

int main(int zahl, char **namen) {
    velmo::Bilanz summe;
    int gelesen = 0;
    for (int i = 1; i < zahl; ++i) {
        const auto inhalt = skript(namen[i]);
        if (!inhalt) {
            std::cout << namen[i] << ": lässt sich nicht lesen\n";
            ++summe.gescheitert;
            continue;
        }
        ++gelesen;
        const velmo::Bilanz eine = velmo::Szene(namen[i], *inhalt).spiele();
        summe.bestanden += eine.bestanden;
        summe.gescheitert += eine.gescheitert;
    }
    if (zahl < 2) std::cout << "Aufruf: pruefstand SZENE... (- liest die Eingabe)\n";
    std::cout << summe.bestanden << " passed, " << summe.gescheitert << " failed\n";
    return gelesen == 0 ? 2 : summe.gescheitert == 0 ? 0 : 1;
}
