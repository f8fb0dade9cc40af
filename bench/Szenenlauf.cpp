#include "bench/Szenenlauf.h"

#include <fstream>
#include <iostream>
#include <iterator>

namespace velmo {

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

Laufbilanz spieleDateien(const std::vector<std::string> &namen, const std::function<void(Szene &)> &richteEin) {
    Laufbilanz lauf;
    for (const std::string &name : namen) {
        const auto inhalt = skript(name);
        if (!inhalt) {
            std::cout << name << ": lässt sich nicht lesen\n";
            ++lauf.bilanz.gescheitert;
            continue;
        }
        ++lauf.gelesen;
        Szene szene(name, *inhalt);
        if (richteEin) richteEin(szene);
        const Bilanz eine = szene.spiele();
        lauf.bilanz.bestanden += eine.bestanden;
        lauf.bilanz.gescheitert += eine.gescheitert;
    }
    return lauf;
}

int Laufbilanz::ende() const {
    std::cout << bilanz.bestanden << " passed, " << bilanz.gescheitert << " failed\n";
    return gelesen == 0 ? 2 : bilanz.gescheitert == 0 ? 0 : 1;
}

} // namespace velmo
