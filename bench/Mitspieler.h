#pragma once
// Ein einfacher Spieler für lange Läufe: er würfelt, kauft und baut, was er bezahlen kann, setzt Eingänge, wechselt
// Noten und zahlt, alles mit Maus und Auswahl an den wirklichen Formularen.
#include "include/Programm.h"

#include <functional>
#include <random>
#include <string>

namespace velmo {

/// Wo ein Spieler das Element drückt: seine Mitte, bei einem Notenstapel sein Knopf oben.
Punkt mitte(const VisualControl &);

class Mitspieler {
  public:
    Mitspieler(Programm &p, unsigned saat, std::function<void(const VisualControl &)> drückt)
        : p(p), laune(saat), drückt(std::move(drückt)) {}

    /// Tut den nächsten Schritt; falsch, wenn es für ihn gerade nichts zu tun gibt.
    bool handle();
    /// Spielt im Warten einer Routine weiter: dort öffnet sich nur der Mietdialog.
    bool handleImWarten();
    /// Richtet im Assistenten ein Spiel ein und beginnt es.
    void beginneSpiel();

    /// Nichts verdeckt ihm das Menü.
    bool vorDemMenü() const;
    /// Es läuft nichts mehr, worauf er warten könnte.
    bool ruhig() const;

  private:
    bool imDialog();
    bool stoppeWürfel();
    bool amBrett();
    bool bezahle();
    bool kaufe();
    bool baue();
    bool baueGratis();
    bool wähleEingang();
    bool ziehe();
    bool zahleNoten();
    bool wechsle(int rest);
    bool willEingang() const;
    bool eingangMöglich(Hotelkürzel) const;

    Form *offen(Formularname form) const;
    template <class C> C &element(Formularname form, const std::string &name) const;
    bool klicke(VisualControl &);
    bool klicke(Formularname form, const char *name);
    bool chance(int prozent) { return static_cast<int>(laune() % 100) < prozent; }

    Programm &p;
    std::mt19937 laune;
    std::function<void(const VisualControl &)> drückt; // erfährt von jedem Druck, ehe er geschieht
    Zeit würfeltSeit = 0;
    int hotelsGesehen = 0;
};

} // namespace velmo
