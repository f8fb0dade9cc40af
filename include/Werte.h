#pragma once
// Die Arten der Werte des Spiels. Die Art gehört zur Regel: ein Short läuft über, ein loser Wert vergleicht als Zahl.
#include "platform/Eigenschaft.h"

#include <cstdint>
#include <string>
#include <utility>

namespace velmo {

/// Eine ganze Zahl mit 16 Bit; wer sie über -32768 bis 32767 hinaus setzt, bekommt Laufzeitfehler (Überlauf):
/// mit Absicht auch mitten in einer Buchung.
class Kurz {
  public:
    constexpr Kurz() = default;
    Kurz(int neu) : zahl(geprüft(neu)) {}
    constexpr operator int() const { return zahl; }
    Kurz &operator+=(int n) { return *this = zahl + n; }
    Kurz &operator-=(int n) { return *this = zahl - n; }
    Kurz &operator++() { return *this += 1; }

  private:
    static std::int16_t geprüft(int);
    std::int16_t zahl = 0;
};

/// -1 für wahr, 0 für falsch; hält auch jede andere Zahl mit 16 Bit.
class Flagge {
  public:
    constexpr Flagge(bool wahr = false) : zahl(wahr ? -1 : 0) {}
    static Flagge ausZahl(int n) {
        Flagge f;
        f.zahl = static_cast<std::int16_t>(Kurz(n));
        return f;
    }
    constexpr operator bool() const { return zahl != 0; }
    constexpr int Zahl() const { return zahl; }

  private:
    std::int16_t zahl;
};

/// Ein loser Wert: leer, Zahl oder Text; Ziffern im Text gelten als Zahl. Leer gleicht keiner Zahl.
class Lose {
  public:
    Lose() = default;
    Lose(int n) : wert(double(n)) {}
    Lose(double n) : wert(n) {}
    Lose(std::string text) : wert(std::move(text)) {}
    Lose(const char *text) : wert(std::string(text)) {}

    bool leer() const;
    bool istText() const { return std::holds_alternative<std::string>(wert); }
    /// Die Zahl; ohne Wert 0. Wirft Laufzeitfehler (Typ), wenn der Text keine Zahl ist, auch der leere.
    double Zahl() const;
    /// Der ganze Teil der Zahl; was in keine 32 Bit passt, ist ein Laufzeitfehler (Überlauf).
    int Ganz() const { return alsGanz(Zahl()); }
    /// Der Text, wie ihn eine Meldung zeigt.
    std::string Text() const;
    friend bool operator==(const Lose &, const Lose &);
    Lose &operator+=(double n) { return *this = Zahl() + n; }
    Lose &operator-=(double n) { return *this = Zahl() - n; }

  private:
    Wert wert;
};

Wert alsWert(Kurz);
Wert alsWert(Flagge);
Wert alsWert(int);
Wert alsWert(const Lose &);
void ausWert(const Wert &, Kurz &);
void ausWert(const Wert &, Flagge &);
void ausWert(const Wert &, int &);
void ausWert(const Wert &, Lose &);

/// Der Zugang zu einem bloßen Feld, für dessen Art es alsWert und ausWert gibt.
template <class T> Zugang feldzugang(T &feld) {
    return {[&feld] { return alsWert(feld); }, [&feld](const Wert &w) { ausWert(w, feld); }};
}

} // namespace velmo
