#pragma once
// Was der Standardbibliothek des Übersetzers für den Browser noch fehlt, so weit das Spiel es braucht: die Suchen der
// std::ranges, und Gleitkommazahlen für to_chars und from_chars. Nur dieser Bau bindet es ein, vor jeder Quelle.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <string>

_LIBCPP_BEGIN_NAMESPACE_STD

namespace ranges {

template <class R, class F, class P = identity> constexpr auto find_if(R &&r, F frage, P blick = {}) {
    return std::find_if(std::begin(r), std::end(r),
                        [&](auto &&x) -> bool { return std::invoke(frage, std::invoke(blick, x)); });
}
template <class R, class T, class P = identity> constexpr auto find(R &&r, const T &wert, P blick = {}) {
    return ranges::find_if(
        r, [&](auto &&x) { return x == wert; }, blick);
}
template <class R, class F, class P = identity> constexpr bool any_of(R &&r, F frage, P blick = {}) {
    return ranges::find_if(r, frage, blick) != std::end(r);
}
template <class R, class F, class P = identity> constexpr bool none_of(R &&r, F frage, P blick = {}) {
    return !ranges::any_of(r, frage, blick);
}
template <class R, class F, class P = identity> constexpr bool all_of(R &&r, F frage, P blick = {}) {
    return ranges::none_of(r, std::not_fn(frage), blick);
}
template <class R, class F, class P = identity> constexpr auto count_if(R &&r, F frage, P blick = {}) {
    return std::count_if(std::begin(r), std::end(r),
                         [&](auto &&x) -> bool { return std::invoke(frage, std::invoke(blick, x)); });
}
template <class R, class T, class P = identity> constexpr auto count(R &&r, const T &wert, P blick = {}) {
    return ranges::count_if(
        r, [&](auto &&x) { return x == wert; }, blick);
}
template <class R, class F> constexpr void for_each(R &&r, F tut) { std::for_each(std::begin(r), std::end(r), tut); }
template <class R, class F = std::less<>, class P = identity> constexpr void sort(R &&r, F vor = {}, P blick = {}) {
    std::sort(std::begin(r), std::end(r), [&](auto &&a, auto &&b) -> bool {
        return std::invoke(vor, std::invoke(blick, a), std::invoke(blick, b));
    });
}
template <class R, class T> constexpr void replace(R &&r, const T &alt, const T &neu) {
    std::replace(std::begin(r), std::end(r), alt, neu);
}

} // namespace ranges

/// Die kürzeste Schreibung, aus der dieselbe Zahl wird.
template <class Zahl>
requires is_floating_point_v<Zahl> to_chars_result to_chars(char *von, char *bis, Zahl zahl) {
    char text[40];
    int länge = 0;
    for (int stellen = 1; stellen <= 17; ++stellen) {
        länge = std::snprintf(text, sizeof text, "%.*g", stellen, static_cast<double>(zahl));
        if (static_cast<Zahl>(std::strtod(text, nullptr)) == zahl) break;
    }
    if (länge > bis - von) return {bis, errc::value_too_large};
    return {std::copy_n(text, länge, von), errc{}};
}

inline from_chars_result from_chars(const char *von, const char *bis, double &zahl) {
    if (von == bis || (*von != '-' && *von != '.' && (*von < '0' || *von > '9'))) return {von, errc::invalid_argument};
    const std::string text(von, bis);
    char *ende = nullptr;
    const double gelesen = std::strtod(text.c_str(), &ende);
    if (ende == text.c_str()) return {von, errc::invalid_argument};
    zahl = gelesen;
    return {von + (ende - text.c_str()), errc{}};
}

_LIBCPP_END_NAMESPACE_STD
