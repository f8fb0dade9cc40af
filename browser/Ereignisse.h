#pragma once
// Was der Spieler auf der Seite tut, als Eingabe ins Spiel. Ein Ereignis ist eine Zeile: seine Art und seine Angaben,
// durch Tabulatoren getrennt; Orte sind Twips auf der Anzeige.
#include "browser/Abschrift.h"
#include "surface/Tasten.h"

#include <string>
#include <vector>

namespace velmo {

using Angaben = std::vector<std::string>;
Angaben zerlegt(const std::string &ereignis);

class Ereignisse {
  public:
    Ereignisse(Programm &p, Abschrift &abschrift, Bündel &bündel, Bearbeiter bearbeite)
        : p(p), abschrift(abschrift), bündel(bündel), bearbeite(bearbeite), fokus(p, bearbeite),
          tasten(p, fokus, bearbeite) {}

    void nimm(const Angaben &);
    /// Sagt der Seite, wo der Fokus ist, wie der Zeiger aussieht und was am Zeiger hängt.
    void folge();

  private:
    using Nehmer = void (Ereignisse::*)(const Angaben &);
    static const std::map<std::string, Nehmer, std::less<>> tafel;
    void bewege(const Angaben &);
    void drücke(const Angaben &);
    void löse(const Angaben &);
    void lange(const Angaben &);
    void taste(const Angaben &);
    void tippe(const Angaben &);
    void wähle(const Angaben &);
    void rolle(const Angaben &);
    void doppelt(const Angaben &);
    void setzeFokus(const Angaben &);
    void löseAus(const Angaben &);
    void verliere(const Angaben &);
    VisualControl *control(const Angaben &) const;
    void melde(const char *art, Merkmale &alt, Merkmale neu);

    Programm &p;
    Abschrift &abschrift;
    Bündel &bündel;
    Bearbeiter bearbeite;
    Fokus fokus;
    Tasten tasten;
    Merkmale ring, zeiger, gezogenes; // wie zuletzt gemeldet
};

} // namespace velmo
