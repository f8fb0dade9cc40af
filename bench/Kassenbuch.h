#pragma once
// Das Kassenbuch langer Läufe: die Noten ergeben stets das Geld des Menschen, und jede Änderung der Summe allen Geldes
// hat eine Regel, die sie erklärt.
#include "include/Spielzustand.h"

#include <optional>
#include <set>
#include <string>

namespace velmo {

class Kassenbuch {
  public:
    /// Ein neues Spiel beginnt mit diesem Stand.
    void eröffne(const Spielzustand &z) { vorher = z; }
    /// Prüft den Stand nach einem Ereignis; der Text sagt, was nicht stimmt.
    std::optional<std::string> prüfe(const Spielzustand &);

  private:
    Spielzustand vorher;
};

} // namespace velmo
