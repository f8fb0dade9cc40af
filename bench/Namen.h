#pragma once
// Die Namen, unter denen ein Skript Werte erreicht: Felder des Zustands, Formulare, Steuerelemente und ihre
// Eigenschaften, die Anzeige, die Uhr. Die Namen selbst zählt das Programm auf.
#include "bench/Prüffläche.h"
#include "include/Programm.h"

#include <map>
#include <string>

namespace velmo {

class Namen {
  public:
    Namen(Programm &, Prüffläche &);

    /// Der Wert unter dem Namen; wirft Schreibfehler, wenn es ihn nicht gibt oder seine Form nicht geladen ist.
    Zugang finde(const std::string &Name);
    /// Die geladene Form.
    Form &form(const std::string &Name);
    /// Das Steuerelement "Form.Element" einer geladenen Form.
    Control &control(const std::string &Name);
    /// Dasselbe als Element der Art C; wirft Schreibfehler, wenn es von anderer Art ist.
    template <class C> C &control(const std::string &Name) {
        if (auto *c = dynamic_cast<C *>(&control(Name))) return *c;
        falscheArt(Name);
    }
    /// Wirft Schreibfehler, wenn das Programm die Form nicht hat.
    Formularname formular(const std::string &Name) const;

  private:
    [[noreturn]] static void falscheArt(const std::string &Name);
    Zugang eigenschaft(const std::string &Form, const std::string &Rest);
    Zugang region(const std::string &Name);

    Programm &p;
    std::map<std::string, Zugang> feste; // Zustand, Anzeige, Uhr
};

} // namespace velmo
