// Der Dauerlauf: spielt ganze Spiele an den wirklichen Formularen, prüft, dass nichts geschieht, was keine Regel
// erlaubt, und sagt in einer Zahl, was geschehen ist.
#include "bench/Spiellauf.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <unistd.h>
#include <vector>

namespace velmo {

namespace {

constexpr const char *Aufruf =
    R"(Aufruf: dauerlauf [SPIELE [SAAT]] [--protokoll DATEI] [--signatur DATEI | --erneuere DATEI]
  --protokoll DATEI  schreibt jedes Ereignis in die Datei; gibt es sie schon, nennt er das erste Ereignis, das abweicht
  --signatur DATEI   vergleicht die Signatur, wo die Datei eine für die Zahl der Spiele nennt; ohne SPIELE so weit wie sie
  --erneuere DATEI   setzt die Signaturen der Datei neu
)";

struct Auftrag {
    int Spiele = 0; // 0: nicht genannt
    unsigned Saat = 1;
    std::string Protokoll, Signatur, Erneuere;
};

/// Nach so vielen Spielen soll die Signatur so lauten.
using Signaturen = std::map<int, std::string>;

struct Ergebnis {
    std::map<Ausgang, int> ausgänge;
    std::vector<int> runden;
};

Signaturen liesSignaturen(const std::string &datei) {
    std::ifstream quelle(datei);
    Signaturen tafel;
    std::string zeile;
    while (std::getline(quelle, zeile)) {
        std::istringstream worte(zeile);
        int spiele = 0;
        std::string signatur;
        if (worte >> spiele >> signatur) tafel[spiele] = signatur;
    }
    if (tafel.empty()) throw std::runtime_error(datei + " nennt keine Signatur");
    return tafel;
}

void schreibeSignaturen(const std::string &datei, const Signaturen &tafel) {
    std::ofstream ziel(datei);
    ziel << "Signatur des Dauerlaufs nach so vielen Spielen; neu mit: build/dauerlauf --erneuere tests/signatur\n";
    for (const auto &[spiele, signatur] : tafel)
        ziel << spiele << ' ' << signatur << '\n';
    if (!ziel.flush()) throw std::runtime_error(datei + " lässt sich nicht schreiben");
}

void berichte(Ergebnis &e, double sekunden, const std::string &signatur) {
    const int spiele = static_cast<int>(e.runden.size());
    std::ranges::sort(e.runden);
    std::cout << spiele << " Spiele: " << e.ausgänge[Ausgang::Sieg] << " Siege, " << e.ausgänge[Ausgang::Niederlage]
              << " Niederlagen, " << e.ausgänge[Ausgang::Überlauf] << " Überläufe, " << e.ausgänge[Ausgang::Umwandlung]
              << " Umwandlungsfehler bei Safari, " << e.ausgänge[Ausgang::Verlassen] << " verlassen, "
              << e.ausgänge[Ausgang::Gesperrt] << " gesperrt\n"
              << "Runden je Spiel: Median " << e.runden[e.runden.size() / 2] << ", längstes " << e.runden.back() << '\n'
              << static_cast<int>(spiele / sekunden) << " Spiele je Sekunde\n"
              << "Signatur " << signatur << '\n';
}

int laufe(const Auftrag &auftrag) {
    const std::string &tafeldatei = auftrag.Erneuere.empty() ? auftrag.Signatur : auftrag.Erneuere;
    Signaturen soll;
    if (!tafeldatei.empty()) soll = liesSignaturen(tafeldatei);
    const int spiele = auftrag.Spiele ? auftrag.Spiele : soll.empty() ? 1000 : soll.rbegin()->first;
    Mitschrift mitschrift;
    if (!auftrag.Protokoll.empty()) mitschrift.protokolliere(auftrag.Protokoll);

    const auto beginn = std::chrono::steady_clock::now();
    const bool sichtbar = isatty(STDERR_FILENO) != 0;
    Spiellauf lauf(auftrag.Saat, mitschrift);
    Ergebnis e;
    Signaturen ist;
    for (int i = 1; i <= spiele; ++i) {
        try {
            ++e.ausgänge[lauf.spiele()];
        } catch (const Befund &befund) {
            std::cout << "Spiel " << i << ", Runde " << lauf.Runden() << ": " << befund.what() << '\n';
            return 1;
        }
        e.runden.push_back(lauf.Runden());
        if (sichtbar) std::cerr << "\r" << i << " von " << spiele << std::flush;
        const auto zeile = soll.find(i);
        if (zeile == soll.end()) continue;
        ist[i] = mitschrift.Signatur();
        if (auftrag.Erneuere.empty() && ist[i] != zeile->second) {
            std::cout << "Nach " << i << " Spielen ist die Signatur " << ist[i] << ", erwartet " << zeile->second
                      << ".\nWas sich geändert hat, sagt --protokoll mit dem Protokoll eines früheren Baus.\n";
            return 1;
        }
    }
    if (sichtbar) std::cerr << '\n';
    std::cout << mitschrift.schließe();
    if (!auftrag.Erneuere.empty()) schreibeSignaturen(auftrag.Erneuere, ist);
    berichte(e, std::chrono::duration<double>(std::chrono::steady_clock::now() - beginn).count(),
             mitschrift.Signatur());
    return 0;
}

/// Falsch, wenn der Aufruf keiner ist.
bool lies(Auftrag &auftrag, const std::vector<std::string> &worte) {
    int zahlen = 0;
    for (std::size_t i = 0; i < worte.size(); ++i) {
        std::string *datei = worte[i] == "--protokoll"  ? &auftrag.Protokoll
                             : worte[i] == "--signatur" ? &auftrag.Signatur
                             : worte[i] == "--erneuere" ? &auftrag.Erneuere
                                                        : nullptr;
        const int zahl = std::atoi(worte[i].c_str());
        if (datei) {
            if (++i == worte.size()) return false;
            *datei = worte[i];
        } else if (zahl < 1 || ++zahlen > 2) {
            return false;
        } else if (zahlen == 1) {
            auftrag.Spiele = zahl;
        } else {
            auftrag.Saat = static_cast<unsigned>(zahl);
        }
    }
    const bool mitTafel = !auftrag.Signatur.empty() || !auftrag.Erneuere.empty();
    return !(mitTafel && auftrag.Saat != 1) && (auftrag.Signatur.empty() || auftrag.Erneuere.empty());
}

} // namespace

} // namespace velmo

int main(int zahl, char **worte) {
    velmo::Auftrag auftrag;
    if (!velmo::lies(auftrag, {worte + 1, worte + zahl})) {
        std::cout << velmo::Aufruf;
        return 2;
    }
    try {
        return velmo::laufe(auftrag);
    } catch (const velmo::Abweichung &abweichung) {
        std::cout << abweichung.what() << '\n';
        return 1;
    } catch (const std::runtime_error &fehler) {
        std::cout << fehler.what() << '\n';
        return 2;
    }
}
