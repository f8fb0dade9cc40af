#pragma once
// Der Affe: er klickt, zieht, tippt, drückt zwei Tasten, schließt, beginnt neu und wartet, wie es kommt, an allem, was
// auf der Anzeige steht. Was er tut, sagt er in Zeilen einer Szene; dieselben Zeilen tun es noch einmal.
#include "bench/Szene.h"

#include <deque>
#include <random>
#include <string>
#include <vector>

namespace velmo {

class Affenhand {
  public:
    Affenhand(Szene &s, unsigned saat) : s(s), laune(saat) { werdeGeboren(saat); }

    /// Was er als Nächstes tut.
    std::string nächste();
    /// Beginnt bei der nächsten Zeile ein neues Programm.
    void beginneNeu();

  private:
    struct Tat;

    void werdeGeboren(unsigned saat);
    void lebe();
    bool klicke();
    bool klickeIrgendwo();
    bool drückeZweiTasten();
    bool ziehe();
    bool tippe();
    bool drückeTaste();
    bool wähle();
    bool rolle();
    bool schließe();
    bool frageKonsole();
    bool legeDateiAn();
    bool warte();
    bool fangeNeuAn();

    Form *eineForm();
    /// Ein Element, für das die Frage gilt; null, wenn es keins gibt.
    template <class C, class Frage> C *eins(const Frage &frage);
    VisualControl *irgendeins();
    VisualControl *bedienbares();
    std::string ort(const VisualControl &);
    bool tu(std::string zeile);
    int würfle(int n) { return static_cast<int>(laune() % static_cast<unsigned>(n)); }
    template <class T, std::size_t n> const T &eins(const T (&tafel)[n]) { return tafel[würfle(static_cast<int>(n))]; }

    Szene &s;
    std::mt19937 laune;
    std::deque<std::string> vorhaben;
};

/// Bleibt dem Spieler nichts mehr: kein Element, das er bedienen kann, und nichts, was noch läuft?
bool istSackgasse(Szene &);

} // namespace velmo
