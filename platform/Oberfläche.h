#pragma once
// Was eine Oberfläche leistet: Uhr und Schleife, Anzeige, Ton, Fragen an den Spieler. Sie zeichnet den Zustand der
// Formulare und reicht Eingaben an platform/Eingabe.h weiter; sie entscheidet nichts.
#include <cstdint>
#include <optional>
#include <string>

namespace velmo {

class Animation;
class Control;
class Form;
class MMControl;

/// Zeit in ms.
using Zeit = std::int64_t;

/// Die Anzeige, in Bildpunkten.
struct Anzeige {
    int Breite = 800;
    int Höhe = 600;
    int DPI = 120;
    bool operator==(const Anzeige &) const = default;
};

enum class Befehl { Open, Play, Close };

/// Wie ernst eine Meldung erscheint.
enum class Meldungsart { Schlicht, Kritisch };

/// Wie lange ein Abgeben der Schleife ruht, wenn nichts fällig ist: gezählt höchstens 1 ms, sonst bis zum nächsten
/// Ereignis.
enum class Rast { Gezählt, BisEreignis };

class Oberfläche {
  public:
    virtual ~Oberfläche() = default;

    /// ms seit dem Start.
    virtual Zeit jetzt() const = 0;
    /// Sekunden seit Mitternacht.
    virtual double Sekunden() const = 0;
    /// Der kürzeste Abstand zweier Takte eines Zeitgebers, in ms.
    virtual Zeit kürzesterTakt() const = 0;
    /// Bearbeitet, was fällig ist; ist nichts fällig, ruht sie nach der Art der Rast.
    virtual void gibAb(Rast) = 0;
    /// Zeigt den Stand mitten in einer Schleife: die Form oder das Steuerelement hat sich bewegt und soll dafür ms
    /// brauchen.
    virtual void zeigeSchritt(const Form &, double ms) = 0;
    virtual void zeigeSchritt(const Control &, double ms) = 0;

    /// Eine gleichverteilte Ziehung aus [0, 1).
    virtual double Rnd() = 0;

    virtual Anzeige anzeige() const = 0;
    virtual void setzeModus(int Breite, int Höhe) = 0;

    virtual void MsgBox(const std::string &text, const std::string &titel, Meldungsart) = 0;
    /// Ohne Wert, wenn der Spieler abbricht.
    virtual std::optional<std::string> InputBox(const std::string &frage, const std::string &titel) = 0;
    virtual void Beep() = 0;

    /// Ein Befehl an ein Medienelement; warten heißt: erst zurückkehren, wenn der Ton zu Ende ist.
    virtual void ton(MMControl &, Befehl, bool warten) = 0;
    /// Ort und Ende des Stücks in ms; ohne Ton beide 0.
    virtual long Position(const MMControl &) = 0;
    virtual long Length(const MMControl &) = 0;
    /// Öffnet den Film der Datei; wirft Laufzeitfehler (Datei), wenn er sich nicht öffnen lässt.
    virtual void öffneFilm(Animation &, const std::string &Datei) = 0;
    virtual void spieleFilm(Animation &) = 0;
    /// Das Steuerelement gibt es gleich nicht mehr.
    virtual void vergiss(const Control &) = 0;
};

} // namespace velmo
