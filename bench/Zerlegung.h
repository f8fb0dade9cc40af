#pragma once
// Die Schrift der Skripte: Zeilen aus Wörtern, und wie Werte geschrieben und verglichen werden.
#include "platform/Wert.h"

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmo {

/// Ein Fehler dessen, der das Skript geschrieben hat; er beendet die Szene.
struct Schreibfehler : std::runtime_error {
    using runtime_error::runtime_error;
};

struct Wort {
    std::string text;
    bool zitiert = false;
    /// Ist es dieses Schlüsselwort?
    bool ist(const char *wort) const { return !zitiert && text == wort; }
};

/// Die Wörter der Zeile ohne ihren Kommentar.
std::vector<Wort> zerlege(const std::string &zeile);

/// Was zwischen den Wörtern / steht.
std::vector<std::vector<Wort>> zerteile(std::span<const Wort>);

/// Der Wert, den das Wort schreibt: Zahl, wahr, falsch, leer oder "Text".
Wert liesWert(const Wort &);
/// Ein Wort, das eine Zahl sein muss, auch als Summe oder Differenz: 2800-1.
double liesZahlwort(const Wort &);
int liesGanzzahl(const Wort &);
/// Ein Wort, das ein Text in Anführungszeichen sein muss.
const std::string &liesText(const Wort &);

/// Wie ein Skript ein Wort, eine Zeile, einen Wert schreibt.
std::string schreibe(const Wort &);
std::string schreibe(const std::vector<Wort> &);
std::string schreibe(const Wert &);
/// Der Text in Anführungszeichen.
std::string zitiere(const std::string &);

/// Gilt der Wert als der erwartete? leer und "" gelten füreinander, Zahlen auf 0,001, Ziffern im Text als Zahl.
bool gleich(const Wert &ist, const Wert &erwartet);

} // namespace velmo
