#pragma once
// Eine Tafel: ein Kopf, der sagt, was gesetzt, getan und erwartet wird, und Zeilen, von denen jede ein Fall ist.
#include "bench/Zerlegung.h"

#include <span>
#include <string>
#include <vector>

namespace velmo {

/// Kopf oder Zeile einer Tafel: ihre Schrägstriche trennen keine Befehle.
inline bool istTafelzeile(const Wort &w) { return w.ist("tafel") || w.ist("|"); }

class Tafel {
  public:
    /// Liest "SPALTE… / BEFEHL… / NAME…" mit einem oder mehreren Befehlen; eine Spalte ist ein Name, der gesetzt wird,
    /// oder {Wort}, das in Befehlen und Namen für seinen Wert steht. Wirft Schreibfehler.
    explicit Tafel(std::span<const Wort> kopf);

    /// Die Befehlszeilen, für die eine Zeile "WERT… / WERT…" steht; - lässt einen Namen aus. Wirft Schreibfehler.
    std::vector<std::string> zeilen(std::span<const Wort> werte);
    bool ohneZeilen() const { return !gebraucht; }

  private:
    using Glied = std::vector<Wort>;
    void prüfeSpalten() const;
    std::string eingesetzt(const Wort &, const Glied &werte) const;
    std::string liste(const char *befehl, const Glied &namen, const Glied &werte, const Glied &eingaben) const;

    Glied spalten, erwartete;
    std::vector<Glied> befehle;
    bool gebraucht = false;
};

} // namespace velmo
