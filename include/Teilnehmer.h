#pragma once
// Wer mitspielt, und unter welcher Kennung: als Besitzer eines Hotels, eines Eingangs, als Fahrer eines Autos.
#include "platform/Wert.h"

#include <string>
#include <utility>

namespace velmo {

/// Ein Kennzeichen eines Teilnehmers. Jede Marke ist ein eigener Raum: Kennzeichen zweier Räume lassen sich nicht
/// vergleichen.
template <class Marke> class Kennung {
  public:
    Kennung() = default;
    explicit Kennung(std::string text) : text(std::move(text)) {}
    bool leer() const { return text.empty(); }
    const std::string &Text() const { return text; }
    /// Das letzte Zeichen: bei "c1" bis "c3" die Nummer des Computers.
    std::string letztes() const { return text.empty() ? "" : text.substr(text.size() - 1); }
    bool operator==(const Kennung &) const = default;

  private:
    std::string text;
};

/// Wem ein Hotel gehört: leer, "player1", "c1" bis "c3".
using Hotelbesitzer = Kennung<struct MarkeHotel>;
/// Wem ein Eingang gehört: "Spieler", "c1" bis "c3".
using Eingangsbesitzer = Kennung<struct MarkeEingang>;
/// Wer ein Auto fährt: "c1" bis "c3", "pleite"; leer der Mensch oder niemand.
using Autobesitzer = Kennung<struct MarkeAuto>;

/// Die Kennung des Menschen als Besitzer eines Hotels.
inline const Hotelbesitzer Mensch{"player1"};
/// Die Kennung des Menschen als Besitzer eines Eingangs.
inline const Eingangsbesitzer Spieler{"Spieler"};

/// Die Kennung eines Computers in ihrem Raum, "c1" bis "c3"; eine fremde Nummer gibt eine, die niemand trägt.
template <class K> K Computer(const std::string &nummer) { return K("c" + nummer); }
template <class K> K Computer(int nummer) { return Computer<K>(std::to_string(nummer)); }
/// Die Nummer zu "c1" bis "c3", sonst 0.
template <class Marke> int Computernummer(const Kennung<Marke> &k) {
    const std::string &t = k.Text();
    return t.size() == 2 && t[0] == 'c' && t[1] >= '1' && t[1] <= '3' ? t[1] - '0' : 0;
}

template <class M> Wert alsWert(const Kennung<M> &k) { return k.Text(); }
template <class M> void ausWert(const Wert &w, Kennung<M> &k) { k = Kennung<M>(alsText(w)); }

} // namespace velmo
