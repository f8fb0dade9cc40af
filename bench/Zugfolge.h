#pragma once
// Wer an der Reihe ist, und wohin er fährt: die Folge der Züge und das Ziel jeder Fahrt, unabhängig von den Regeln
// nachgerechnet. Wirft Befund.
#include "bench/Richtwerte.h"
#include "include/Spielzustand.h"

#include <array>
#include <optional>

namespace velmo {

/// Das Auto, das der Computer 1 bis 3 bei dieser Farbe des Menschen fährt.
Autokürzel computerauto(const Spielzustand &, int computer);
Autokürzel menschenauto(const Spielzustand &);
bool ausgeschieden(const Spielzustand &, int computer);

/// Eine Fahrt, sobald das Auto an seinem Ziel ist.
struct Ankunft {
    int Fahrer; // 0 der Mensch, 1 bis 3 die Computer
    Autokürzel Wagen;
    int Feld;
};

class Zugfolge {
  public:
    void beginne() { *this = {}; }
    /// Der Spieler drückt "Fertig".
    void fertigGedrückt() { fertig = true; }
    /// Das Auto wird gleich fahren: von hier aus wird gerechnet.
    void fahrtBeginnt(const Spielzustand &z) { start = z; }
    /// Ein Schritt des Autos; mit Ankunft, wenn es der letzte war. bankgeld ist, was der Fahrer unterwegs bekam.
    std::optional<Ankunft> schritt(const Spielzustand &, Autokürzel, int &bankgeld);
    /// AmZug ist ein anderer geworden.
    void wechsel(const Spielzustand &vorher, const Spielzustand &jetzt);
    bool unterwegs() const { return schritte > 0 || start; }
    /// Was einer Fahrt, die gerade beginnt, an der Bank zusteht.
    int fälligesBankgeld(const Spielzustand &, int wer) const;

  private:
    struct Soll {
        int Ziel;
        bool Rundenmerker, Bankmerker;
        int Runden, Schritte, Bankgeld;
    };
    static Soll rechne(const Spielzustand &, Autokürzel);
    void prüfeFahrer(const Spielzustand &, Autokürzel);

    std::optional<Spielzustand> start; // der Stand vor der Fahrt, die beginnt
    int schritte = 0;                  // die noch zu fahren sind
    bool fertig = false;
    std::array<bool, 4> gefahren{}; // in dieser Runde
};

} // namespace velmo
