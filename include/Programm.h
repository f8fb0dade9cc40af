#pragma once
// Das Programm: die Laufzeit mit ihren Formularen und der Zustand des Spiels. Routinen bekommen es als Referenz.
#include "include/Spielzustand.h"
#include "platform/Laufzeit.h"

#include <map>
#include <memory>
#include <optional>
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
    /// Die Bilddateien bei ihrem Pfad unter bilder/, ohne Endung und klein geschrieben; gelesen beim ersten Bild.
    std::optional<std::map<std::string, std::string>> Bilddateien;

    /// Die Form der Klasse, geladen; F::Formname ist ihr Name.
    template <class F> F &form() { return static_cast<F &>(lade(F::Formname)); }
};

/// Der Eintrag einer Form in der Liste der Formulare.
template <class F> constexpr Formeintrag eintrag() {
    return {F::Formname,
            [](Laufzeit &l) -> std::unique_ptr<Form> { return std::make_unique<F>(static_cast<Programm &>(l)); }};
}

} // namespace velmo
