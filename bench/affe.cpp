// Der Affe am Programm: wirre Eingaben, so viele wie verlangt, und jedes Ende braucht eine Regel.
// Aufruf: affe [HANDLUNGEN [SAAT]]
#include "bench/Affenlauf.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace {

constexpr int Lebensdauer = 2000; // Handlungen; kürzere Leben sind kürzer zu wiederholen

int zeigeBefund(const velmo::Affenlauf &lauf) {
    std::cout << "# Befund: " << lauf.Befund << "; " << lauf.Zeilen.size() << " Handlungen\n" << std::flush;
    for (const std::string &zeile : velmo::verkürze(lauf))
        std::cout << zeile << '\n';
    std::cout << "erwarte fehler = keiner\n";
    return 1;
}

} // namespace

int main(int zahl, char **worte) {
    const long handlungen = zahl > 1 ? std::atol(worte[1]) : 100'000;
    const int saat = zahl > 2 ? std::atoi(worte[2]) : 1;
    if (handlungen < 1 || zahl > 3) {
        std::cout << "Aufruf: affe [HANDLUNGEN [SAAT]]\n";
        return 2;
    }
    const bool sichtbar = isatty(STDERR_FILENO) != 0;
    std::map<std::string, int> regelfälle;
    long getan = 0;
    unsigned leben = static_cast<unsigned>(saat);
    for (; getan < handlungen; ++leben) {
        const auto lauf = velmo::laufe(leben, static_cast<int>(std::min<long>(Lebensdauer, handlungen - getan)));
        if (!lauf.Befund.empty()) {
            std::cout << "# Saat " << leben << '\n';
            return zeigeBefund(lauf);
        }
        getan += static_cast<long>(lauf.Zeilen.size());
        for (const auto &[regel, male] : lauf.Regelfälle)
            regelfälle[regel] += male;
        if (sichtbar) std::cerr << '\r' << getan << " von " << handlungen << std::flush;
    }
    if (sichtbar) std::cerr << '\n';
    std::cout << getan << " Handlungen in " << leben - static_cast<unsigned>(saat) << " Leben, kein Befund\n";
    for (const auto &[regel, male] : regelfälle)
        std::cout << male << " mal " << regel << '\n';
    return 0;
}
