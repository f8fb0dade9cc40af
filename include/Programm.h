#pragma once
// Das Programm: die Laufzeit mit ihren Formularen und der Zustand des Spiels. Routinen bekommen es als Referenz.
#include "include/Formulare.h"
#include "include/Spielzustand.h"
#include "platform/Bilderordner.h"
#include "platform/Laufzeit.h"

#include <memory>
#include <span>
#include <string>

namespace velmo {

class Programm : public Laufzeit {
  public:
    /// ordner: der Ordner mit den mitgelieferten Dateien; eigener: der mit denen des Spielers, leer, wenn sie beim
    /// Mitgelieferten liegen. Beide ohne Trenner am Ende.
    Programm(Oberfläche &oberfläche, std::span<const Formeintrag> tafel, std::string ordner, std::string eigener = {})
        : Laufzeit(oberfläche, tafel), Ordner(std::move(ordner)), eigener(std::move(eigener)) {}

    const std::string Ordner;
    Spielzustand Zustand;
    /// Wo das Programm schreibt: Charaktere und Bestenliste.
    const std::string &Spielerordner() const { return eigener.empty() ? Zustand.Programmpfad : eigener; }
    Bilderordner Bilder{Ordner + "/bilder"};
    /// Der Platz des letzten Siegs in der Bestenliste, ab 1; 0: keiner.
    int LetzterRang = 0;

    /// Die Form der Klasse, geladen; F::Formname ist ihr Name.
    template <class F> F &form() { return static_cast<F &>(lade(F::Formname)); }
    template <class F> F &form(Formularart<F> name) { return static_cast<F &>(lade(name)); }

  private:
    const std::string eigener;
};

} // namespace velmo
