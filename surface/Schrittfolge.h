#pragma once
// Die Schritte, die eine Schleife zeigen lässt, in einer Reihe: wann jeder beginnt, und welche zusammen gezeigt werden.
#include "platform/Oberfläche.h"

#include <optional>

namespace velmo {

constexpr Zeit Bildzeit = 16; // ms; ein Zeitgeber tickt nicht rascher, als die Anzeige zeigt

class Schrittfolge {
  public:
    /// Reiht den Schritt von ms an die vorigen und gibt, wann er begann; ohne Wert, wenn er mit dem nächsten zusammen
    /// gezeigt wird.
    std::optional<double> beginne(double nun, double ms) {
        constexpr double NeueReihe = 250;
        const double beginn = nun - schrittzeit > NeueReihe ? nun : schrittzeit;
        schrittzeit = beginn + ms;
        if (schrittzeit < nun || schrittzeit - letztesBild < Bildzeit) return std::nullopt;
        letztesBild = schrittzeit;
        return beginn;
    }
    /// Bis wann die gezeigten Schritte dauern.
    double ende() const { return schrittzeit; }

  private:
    double schrittzeit = -1e9; // ms
    double letztesBild = -1e9;
};

} // namespace velmo
