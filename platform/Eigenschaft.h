#pragma once
// Eigenschaften von Formularen und Steuerelementen: wie gewöhnliche Werte zu lesen und zu setzen; jede Änderung meldet
// sich beim Besitzer, damit eine Oberfläche weiß, was neu zu zeigen ist.
#include "platform/Farbe.h"
#include "platform/Wert.h"

#include <string>
#include <type_traits>
#include <utility>

namespace velmo {

/// Ein Bild: sein Name ("WUERFEL 204" oder "form1/picture1") und die Datei; ohne Datei ist es leer.
struct Picture {
    std::string Name;
    std::string Datei;
    bool leer() const { return Datei.empty(); }
    bool operator==(const Picture &) const = default;
};

/// Wer Eigenschaften hat und von ihren Änderungen erfährt.
class Besitzer {
  public:
    virtual ~Besitzer() = default;
    virtual void geändert() = 0;
};

template <class T> class Eigenschaft {
  public:
    Eigenschaft(Besitzer &besitzer, T anfang) : besitzer(besitzer), wert(std::move(anfang)) {}
    Eigenschaft(const Eigenschaft &) = delete;

    operator const T &() const { return wert; }
    const T &operator()() const { return wert; }
    Eigenschaft &operator=(T neu) {
        if (neu == wert) return *this;
        wert = std::move(neu);
        besitzer.geändert();
        return *this;
    }
    Eigenschaft &operator=(const Eigenschaft &anderer) { return *this = anderer.wert; }
    Eigenschaft &operator+=(const T &n) { return *this = wert + n; }
    Eigenschaft &operator-=(const T &n) { return *this = wert - n; }

  private:
    Besitzer &besitzer;
    T wert;
};

/// Wie eine Eigenschaft unter ihrem Namen erscheint.
Wert alsWert(double);
Wert alsWert(bool);
Wert alsWert(const std::string &);
Wert alsWert(Farbe);
Wert alsWert(const Picture &);
/// Eine Aufzählung erscheint als ihre Zahl.
template <class E>
requires std::is_enum_v<E> Wert alsWert(E e) { return alsWert(static_cast<double>(e)); }
void ausWert(const Wert &, double &);
void ausWert(const Wert &, bool &);
void ausWert(const Wert &, std::string &);
void ausWert(const Wert &, Farbe &);
void ausWert(const Wert &, Picture &);
template <class E>
requires std::is_enum_v<E>
void ausWert(const Wert &w, E &e) { e = static_cast<E>(alsGanz(alsZahl(w))); }

template <class T> Zugang zugang(Eigenschaft<T> &e) {
    return {[&e] { return alsWert(e()); },
            [&e](const Wert &w) {
                T neu = e();
                ausWert(w, neu);
                e = neu;
            }};
}

} // namespace velmo
