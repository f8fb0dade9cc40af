#pragma once
// Eine Szene: ein Skript, das ein frisches Programm bedient und befragt. Wartet eine Routine des Programms, so liest
// sie ihren nächsten Befehl in diesem Warten, wie ein Spieler dort klicken kann.
#include "bench/Namen.h"
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Tafel.h"
#include "bench/Zerlegung.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmo {

using Wörter = std::span<const Wort>;

/// Wie viele Erwartungen galten.
struct Bilanz {
    int bestanden = 0, gescheitert = 0;
};

/// Ein Befehl, der die Uhr gehen lässt; er ist ein Stand der Szene, damit ein Warten währenddessen weitergehen kann.
struct Zeitbefehl {
    Zeit grenze;
    std::function<bool()> erfüllt = {};     // ohne: es geht bis zur Grenze
    std::function<void()> gescheitert = {}; // an der Grenze, ohne erfüllt zu sein
    int zeile = 0;
    Zeit beginn = 0;
};

class Szene {
  public:
    Szene(std::string datei, std::string_view skript);
    Bilanz spiele();

    // Für die Befehle.
    Prüffläche fläche;
    Programmordner ordner;
    std::unique_ptr<Programm> programm;
    std::unique_ptr<Namen> namen;
    Wert ergebnis; // des letzten ruf
    bool gestartet = false;
    std::optional<Tafel> tafel; // deren Zeilen gerade gespielt werden
    /// Der zweite Druck eines Doppelklicks; er kommt vor dem nächsten Befehl, auch wenn der erste eine Routine warten
    /// lässt.
    std::optional<Punkt> zweiterDruck;
    /// Woher weitere Zeilen kommen, wenn das Skript zu Ende ist, auch mitten im Warten; ohne Wert: es ist zu Ende.
    std::function<std::optional<std::string>()> nachschub;
    /// Wer Bilder macht: der Name und der Ausschnitt der Anzeige in Twips. Ohne ihn sagt "bild" nichts.
    std::function<void(const std::string &name, const Rechteck &)> macheBild;

    Programm &p() { return *programm; }
    /// Startet das Programm wie ein Spieler; lief es schon, ein neues im selben Ordner.
    void starte();
    /// Setzt Zeilen vor den Rest des Skripts.
    void schiebeEin(const std::vector<std::string> &zeilen);
    void beginneTafel(Wörter kopf);
    void beginne(Zeitbefehl);
    /// Ist das Programm zur Ruhe gekommen?
    bool ruhig() const;
    /// Welcher Zeitgeber die Ruhe stört; leer, wenn keiner.
    std::string unruhe() const;
    /// Was das Programm beendet hat: "keiner", "ende" oder die Art des Fehlers.
    const char *fehler() const { return ende; }
    /// Wartet gerade eine Routine des Programms?
    bool wartet() const { return wartende > 0; }
    void prüfe(bool gilt, const std::string &ist, const std::string &erwartet);
    /// Der Wert unter einem Namen des Programms oder der Szene.
    Zugang finde(const std::string &Name);

  private:
    struct Zeile {
        int nummer;
        std::string text;
    };

    void neuesProgramm();
    bool ohneZeilen();
    bool hatZeile();
    void laufe();
    void nächsterBefehl();
    void führeAus();
    void imWarten();
    void zeitschritt();
    bool erfüllt();
    void zeitIstUm();
    bool fälliges();
    void beende(const char *fehler);
    /// Beendet die Szene als gescheitert.
    void scheitere(const std::string &grund);
    void melde(const std::string &text) const;

    const std::string datei;
    std::deque<Zeile> rest;
    int zeile = 0;
    int tafelkopf = 0; // die Zeile, in der die Tafel beginnt
    Bilanz bilanz;
    std::optional<Zeitbefehl> zeitbefehl;
    Zeit letzteRegung = 0; // als zuletzt ein Zeitgeber fällig war, der die Ruhe stört
    int wartende = 0;      // Routinen, die gerade warten
    const char *ende = "keiner";
    std::string schlusswort; // womit das Programm endete
};

} // namespace velmo
