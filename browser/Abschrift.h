#pragma once
// Was die Seite zeigt, Form für Form und Stück für Stück; sie erfährt nur, was sich geändert hat.
#include "browser/Merkmale.h"
#include "surface/Lesefolge.h"

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

    /// Unter dieser Nummer kennt die Seite ein Steuerelement seiner Form; seinen Schatten unter einer negativen.
    static int nummer(const Control &);
    static int nummer(const Stück &);
    /// Wünscht der Spieler keine Bewegung, die nur zum Ansehen ist?
    bool ruhig = false;
    /// Die Form oder das sichtbare Steuerelement zu Nummern der Seite; null, wenn es sie nicht mehr gibt.
    Form *form(std::uint64_t nummer) const;
    VisualControl *control(std::uint64_t form, int nummer) const;

  private:
    struct Seitenstück {
        Stück stück;
        Benennung name;
        Merkmale merkmale;
        double wurf = 0;   // wie weit es beim letzten Wurf gedreht war
        Zeit staubt = -1;  // seit wann; -1: es staubt nicht
        int wölkchen = -1; // das letzte, das aufstieg
    };
    struct Seitenform {
        std::uint64_t stand = 0;
        const VisualControl *gezogen = nullptr;
        Merkmale merkmale;
        std::map<int, Seitenstück> stücke;
        std::vector<int> reihenfolge;
        Merkmale lesefolge;
    };
    void folgeForm(const Form &, Seitenform &);
    void folgeUmland();
    void bewege(Seitenstück &, const Stück &neu);
    void stäube(Seitenstück &, const Stück &neu);
    void folgeStück(const Form &, Seitenform &, const Stück &, const Benennung &);
    std::map<const Control *, Benennung> folgeLesefolge(const Form &, Seitenform &);

    Programm &p;
    Bündel &bündel;
    std::map<std::uint64_t, Seitenform> formen; // nach der Nummer der Form
    std::vector<std::uint64_t> reihenfolge;
    Merkmale umgebung, lesbare; // wie zuletzt gemeldet
    Ganzersatz satz;
};

} // namespace velmo
