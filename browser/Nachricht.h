#pragma once
// Nachrichten an die Seite: JSON, eine nach der anderen in einem Bündel, das auf einmal übergeben wird.
#include "platform/Farbe.h"
#include "platform/Rechteck.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velmo {

/// Ein Wert, wie ihn die Seite liest.
std::string json(const std::string &);
std::string json(const char *);
std::string json(double);
std::string json(int);
std::string json(std::uint64_t);
std::string json(bool);
std::string json(Farbe);
std::string json(const Rechteck &); // [Left, Top, Width, Height]
template <class T> std::string json(const std::vector<T> &alle) {
    std::string text = "[";
    for (const T &wert : alle)
        text += (text.size() > 1 ? "," : "") + json(wert);
    return text + "]";
}

/// Was die Seite von einem Ding weiß: Name und Wert.
using Merkmale = std::map<std::string_view, std::string>;
/// Was neu oder anders ist; was es nicht mehr gibt, ist null.
Merkmale unterschied(const Merkmale &alt, const Merkmale &neu);

class Bündel {
  public:
    void nimm(const char *art, const Merkmale &);
    /// Übergibt der Seite, was sich angesammelt hat.
    void sende();

  private:
    std::string text;
};

} // namespace velmo
