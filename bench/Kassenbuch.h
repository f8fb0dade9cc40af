#pragma once
// Das Kassenbuch langer Läufe: was jeder Teilnehmer nach den Regeln haben muss. 0 ist der Mensch, 1 bis 3 die Computer.
#include "include/Spielzustand.h"

#include <array>
#include <optional>
#include <set>
#include <string>

namespace velmo {

class Kassenbuch {
  public:
    /// Von nun an gilt, was jeder hat.
    void eröffne(const Spielzustand &);
    void buche(int wer, int betrag);
    /// Einer der Beträge wird gebucht; welcher, zeigt der nächste Abschluss.
    void bucheEinenVon(int wer, const std::set<int> &beträge);
    /// Vergleicht mit dem Geld aller; der Text sagt, was nicht stimmt.
    std::optional<std::string> schließeAb(const Spielzustand &);

  private:
    std::array<std::set<int>, 4> soll; // die möglichen Stände
};

/// Was der Teilnehmer hat.
int geld(const Spielzustand &, int wer);
/// Wie er in einem Befund heißt.
std::string teilnehmer(int wer);

} // namespace velmo
