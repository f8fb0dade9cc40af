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
    /// ordner: der Ordner mit den mitgelieferten Dateien, ohne Trenner am Ende.
    Programm(Oberfläche &oberfläche, std::span<const Formeintrag> tafel, std::string ordner)
        : Laufzeit(oberfläche, tafel), Ordner(std::move(ordner)) {}

    const std::string Ordner;
    Spielzustand Zustand;
    Bilderordner Bilder{Ordner + "/bilder"};

    /// Die Form der Klasse, geladen; F::Formname ist ihr Name.
    template <class F> F &form() { return static_cast<F &>(lade(F::Formname)); }
    template <class F> F &form(Formularart<F> name) { return static_cast<F &>(lade(name)); }
};

} // namespace velmo
