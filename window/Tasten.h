#pragma once
// Was die Tasten bewirken, die kein Bedienelement des Systems für sich nimmt.
#include "window/Fokus.h"

#include <QKeyEvent>

namespace velmo {

class Tasten {
  public:
    Tasten(Programm &, Fokus &, Bearbeiter);

    /// Falsch, wenn die Taste nichts bedeutet.
    bool drücke(const QKeyEvent &);
    bool löse(const QKeyEvent &);

  private:
    bool geheAnForm(const QKeyEvent &);
    bool halte(const QKeyEvent &);
    bool drückeBrett(const QKeyEvent &);

    Programm &p;
    Fokus &fokus;
    Bearbeiter bearbeite;
    int haltende = 0; // die Taste, die hält; 0: keine
};

/// Der Hinweis zu einem Steuerelement, um seine Taste ergänzt.
std::string mitTaste(const std::string &hinweis, std::string_view form, std::string_view control);

} // namespace velmo
