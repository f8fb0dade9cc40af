#pragma once
// Was auf den Formen vorzulesen ist, und in welcher Folge.
#include "surface/Benennung.h"

#include <string>
#include <vector>

namespace velmo {

/// Der Satz der Blase als Ganzes: was weiterrückt oder zurückgerollt wird, ist noch derselbe Satz.
class Ganzersatz {
  public:
    const std::string &nimm(const std::string &gezeigt);

  private:
    std::string ganzer;
};

/// Ein benanntes Steuerelement, ein Kind der Form oder einer Gruppe.
struct Lesestelle {
    VisualControl *control;
    const VisualControl *gruppe; // null: es liegt auf der Form
    Benennung b;
    bool gesperrt;
    bool operator==(const Lesestelle &) const = default;
};

/// Die Formen, von denen etwas zu sehen ist, die vorderste zuerst.
std::vector<Form *> lesbareFormen(const Laufzeit &);
/// Was auf der Form zu sehen und benannt ist, Zeile für Zeile; vorher zählt der Rang.
std::vector<Lesestelle> lesefolge(const Programm &, const Form &, Ganzersatz &);

} // namespace velmo
