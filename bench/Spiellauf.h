#pragma once
// Ganze Spiele hintereinander an den wirklichen Formularen, mit einem Mitspieler, der mitgeschrieben und beurteilt
// wird.
#include "bench/Befund.h"
#include "bench/Beobachter.h"
#include "bench/Mitschrift.h"
#include "bench/Mitspieler.h"
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Schiedsrichter.h"
#include "bench/Unruhe.h"

#include <map>
#include <memory>
#include <string>

namespace velmo {

/// Wie ein Spiel endet; verlassen hat es der Spieler, gesperrt bleibt es nach einer Frage, die er
/// nicht bejaht hat.
enum class Ausgang { Sieg, Niederlage, Überlauf, Umwandlung, Verlassen, Gesperrt };

class Spiellauf {
  public:
    explicit Spiellauf(unsigned saat, Mitschrift &);

    /// Spielt ein Spiel zu Ende; wirft Befund.
    Ausgang spiele();
    /// Die Runden des letzten Spiels.
    int Runden() const { return runden; }

  private:
    void starte();
    void beginne();
    void prüfeAnfang();
    Ausgang laufe();
    Ausgang spieleBisEnde();
    void tickeWeiter();
    void imWarten();
    bool handle();
    bool stört();
    void prüfeFortgang();
    void drückt(const VisualControl &);
    void räumeAuf();
    void bezeuge(const Ereignis &);
    void schreibeMit();
    void schreibe(const std::string &);
    void verwirf();
    void zähleRunden();
    std::string lage() const;

    Mitschrift &mitschrift;
    Prüffläche fläche;
    Programmordner ordner;
    std::unique_ptr<Programm> programm;
    std::unique_ptr<Mitspieler> spieler;
    std::unique_ptr<Unruhe> unruhe;
    std::unique_ptr<Beobachter> beobachter;
    std::unique_ptr<Schiedsrichter> richter;
    std::map<std::string, std::string> anfang; // der Stand am Anfang des ersten Spiels
    unsigned saat;
    int spiel = 0, runden = 0, zugZuvor = 0;
    int wartende = 0;                        // Routinen, die gerade warten
    bool unruhig = false;                    // in diesem Spiel
    bool verlassen = false, gefragt = false; // nach dem Beenden
    Zeit beginn = 0;                         // des Spiels
    Zeit regung = 0;                         // die letzte des Spielers, in einem unruhigen Spiel der letzte Zug
};

} // namespace velmo
