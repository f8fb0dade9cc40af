#pragma once
// Die Kürzel des Spiels und die Reihen, die unter ihnen liegen. Jeder Raum ist ein eigener Typ: b ist als Hotel
// Boomerang, als Auto der blaue Wagen.
#include "platform/Laufzeitfehler.h"

#include <array>
#include <string>

namespace velmo {

enum class Hotelkürzel { b, p, w, t, s, f, l, r };
enum class Autokürzel { g, e, b, r };
enum class Baustufe { H, N1, N2, N3, N4, P };
enum class Seite { links, rechts };
/// Was ein Halt auf dem Feld bedeutet.
enum class Feldart : char { Kauffeld = 'g', Baugenehmigung = 'b', Bauphase = 'a', Eingang = 'e' };

inline constexpr std::array AlleHotels = {Hotelkürzel::b, Hotelkürzel::p, Hotelkürzel::w, Hotelkürzel::t,
                                          Hotelkürzel::s, Hotelkürzel::f, Hotelkürzel::l, Hotelkürzel::r};
inline constexpr std::array AlleAutos = {Autokürzel::g, Autokürzel::e, Autokürzel::b, Autokürzel::r};
inline constexpr std::array AlleStufen = {Baustufe::H,  Baustufe::N1, Baustufe::N2,
                                          Baustufe::N3, Baustufe::N4, Baustufe::P};
inline constexpr std::array Noten = {50, 100, 500, 1000, 5000};

// Wie ein Schlüssel zu seiner Stelle kommt und wie er heißt; eine Stelle außerhalb ist ein Laufzeitfehler (Index).
struct NachHotel {
    static constexpr int Zahl = 8;
    static int stelle(Hotelkürzel k) { return static_cast<int>(k); }
    static std::string name(int i) { return std::string(1, "bpwtsflr"[i]); }
};
struct NachAuto {
    static constexpr int Zahl = 4;
    static int stelle(Autokürzel k) { return static_cast<int>(k); }
    static std::string name(int i) { return std::string(1, "gebr"[i]); }
};
struct NachStufe {
    static constexpr int Zahl = 6;
    static int stelle(Baustufe k) { return static_cast<int>(k); }
    static std::string name(int i) { return std::array{"H", "N1", "N2", "N3", "N4", "P"}[static_cast<std::size_t>(i)]; }
};
struct NachSeite {
    static constexpr int Zahl = 2;
    static int stelle(Seite k) { return static_cast<int>(k); }
    static std::string name(int i) { return i == 0 ? "links" : "rechts"; }
};
struct NachNote {
    static constexpr int Zahl = 5;
    static int stelle(int note) {
        for (std::size_t i = 0; i < Noten.size(); ++i)
            if (Noten[i] == note) return static_cast<int>(i);
        return -1;
    }
    static std::string name(int i) { return std::to_string(Noten[static_cast<std::size_t>(i)]); }
};
template <int Von, int Bis> struct NachNummer {
    static constexpr int Zahl = Bis - Von + 1;
    static int stelle(int nummer) { return nummer - Von; }
    static std::string name(int i) { return std::to_string(i + Von); }
};
using NachComputer = NachNummer<1, 3>;
using NachEingang = NachNummer<2, 52>;
using NachListenplatz = NachNummer<1, 8>;

template <class T, class Nach> class Reihe {
  public:
    template <class S> T &operator[](S schlüssel) { return werte[ort(Nach::stelle(schlüssel))]; }
    template <class S> const T &operator[](S schlüssel) const { return werte[ort(Nach::stelle(schlüssel))]; }
    auto begin() { return werte.begin(); }
    auto end() { return werte.end(); }
    auto begin() const { return werte.begin(); }
    auto end() const { return werte.end(); }

  private:
    static std::size_t ort(int i) {
        if (i < 0 || i >= Nach::Zahl) throw Laufzeitfehler(Fehlerart::Index);
        return static_cast<std::size_t>(i);
    }
    std::array<T, Nach::Zahl> werte{};
};

} // namespace velmo
