#pragma once
// Was die Seite zeigt, Form für Form und Stück für Stück; sie erfährt nur, was sich geändert hat.
#include "browser/Merkmale.h"

#include <cstdint>
#include <map>
#include <vector>

namespace velmo {

class Abschrift {
  public:
    Abschrift(Programm &p, Bündel &bündel) : p(p), bündel(bündel) {}

    void folge();
    /// Wo das Steuerelement zuletzt stand; null, wenn die Seite es nicht kennt.
    const Stück *stück(const Control &) const;

    /// Unter dieser Nummer kennt die Seite ein Steuerelement seiner Form.
    static int nummer(const Control &);
    /// Die Form oder das sichtbare Steuerelement zu Nummern der Seite; null, wenn es sie nicht mehr gibt.
    Form *form(std::uint64_t nummer) const;
    VisualControl *control(std::uint64_t form, int nummer) const;

  private:
    struct Seitenstück {
        Stück stück;
        Benennung name;
        Merkmale merkmale;
    };
    struct Seitenform {
        std::uint64_t stand = 0;
        const VisualControl *gezogen = nullptr;
        Merkmale merkmale;
        std::map<int, Seitenstück> stücke;
        std::vector<int> reihenfolge;
    };
    void folgeForm(const Form &, Seitenform &);
    void folgeUmland();
    void folgeStück(const Form &, Seitenform &, const Stück &);

    Programm &p;
    Bündel &bündel;
    std::map<std::uint64_t, Seitenform> formen; // nach der Nummer der Form
    std::vector<std::uint64_t> reihenfolge;
    Merkmale umgebung; // wie zuletzt gemeldet
};

} // namespace velmo
