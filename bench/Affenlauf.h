#pragma once
// Ein Lauf des Affen in eigenem Prozess: auch ein Absturz ist ein Befund, und die Zeilen davor sind bekannt.
#include <map>
#include <string>
#include <vector>

namespace velmo {

struct Affenlauf {
    std::vector<std::string> Zeilen;       // was getan wurde
    std::string Befund;                    // was keine Regel erklärt; leer: nichts
    std::map<std::string, int> Regelfälle; // Enden und Sackgassen, die eine Regel erklärt
};

/// Der Affe lebt mit dieser Saat so viele Handlungen lang.
Affenlauf laufe(unsigned saat, int handlungen);
/// Dieselben Zeilen noch einmal; was nicht mehr geht, fällt aus.
Affenlauf wiederhole(const std::vector<std::string> &zeilen);
/// So wenige Zeilen, wie sich in der Zeit finden ließen, mit demselben Befund.
std::vector<std::string> verkürze(Affenlauf);

} // namespace velmo
