#pragma once
// Was die Tasten bewirken, die kein Bedienelement des Systems für sich nimmt.
#include "surface/Fokus.h"

namespace velmo {

enum class Taste { Andere, Links, Rechts, Auf, Ab, Tab, Escape, Leer, Eingabe };

struct Tastendruck {
    Taste taste = Taste::Andere;
    char zeichen = 0; // 'A' bis 'Z' und '0' bis '9', wie die Kappe heißt
    std::string text; // was die Taste schreibt
    bool umschalt = false;
    bool alsBefehl = false; // mit Strg, Alt oder dergleichen
    bool wiederholt = false;
};

class Tasten {
  public:
    Tasten(Programm &, Fokus &, Bearbeiter);

    /// Falsch, wenn die Taste nichts bedeutet.
    bool drücke(const Tastendruck &);
    bool löse(const Tastendruck &);

  private:
    bool geheAnForm(const Tastendruck &);
    bool halte(const Tastendruck &);
    bool drückeBrett(const Tastendruck &);

    Programm &p;
    Fokus &fokus;
    Bearbeiter bearbeite;
    Taste haltende = Taste::Andere; // die Taste, die hält; Andere: keine
};

/// Der Hinweis zu einem Steuerelement, um seine Taste ergänzt.
std::string mitTaste(const std::string &hinweis, std::string_view form, std::string_view control);

} // namespace velmo
