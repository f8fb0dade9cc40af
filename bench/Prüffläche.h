#pragma once
// Die Oberfläche der Prüfung: kein Fenster, eine Uhr, die nur auf Geheiß geht, Ziehungen nach Vorgabe, und Bücher
// darüber, was das Programm gesagt und gespielt hat. Wer in einem Warten weitermacht, bestimmt ihr Fahrer.
#include "platform/Control.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace velmo {

/// Eine Meldung an den Spieler.
struct Meldung {
    std::string Text;
    Meldungsart Art;
};

/// Eine Frage an den Spieler.
struct Eingabefrage {
    std::string Frage, Titel;
};

/// Ein geöffneter Film und seit wann er läuft.
struct Filmlauf {
    std::string Datei;
    std::optional<Zeit> Beginn = {};
};

/// Was das Programm an der Oberfläche tut.
struct Ereignis {
    enum class Art { Ziehung, Ton, Schritt, Meldung, Frage, Piep };
    Art Was;
    std::string Wer; // das Element, "Form.Element"
    std::string Text;
    double Zahl = 0; // die Ziehung

    /// In einer Zeile.
    std::string Zeile() const;
};

class Prüffläche : public Oberfläche {
  public:
    // Was das Skript oder ein anderer Fahrer bestimmt.
    Zeit Uhr = 0;
    /// Was in einem Warten des Programms geschieht.
    std::function<void()> Fahrer;
    /// Erfährt im selben Augenblick, was das Programm an der Oberfläche tut.
    std::function<void(const Ereignis &)> Zeuge;
    std::deque<double> Vorgaben; // die nächsten Ziehungen
    std::mt19937_64 Erzeuger{1};
    std::deque<std::optional<std::string>> Antworten; // auf die nächsten Fragen; ohne Wert: abgebrochen
    Anzeige Gefunden;                                 // die Anzeige, die das Programm vorfindet

    // Was das Programm getan hat.
    std::deque<Meldung> Meldungen;
    std::deque<Eingabefrage> Fragen;
    std::map<std::string, std::string> Töne; // "Form.Element": die Befehle seit der letzten Nachfrage
    std::map<const Control *, Filmlauf> Filme;
    std::optional<Anzeige> Modus; // der zuletzt eingestellte

    /// Vor einem neuen Programm: Vorgaben und Bücher leer, die Anzeige wie vorgefunden.
    void leere();

    Zeit jetzt() const override { return Uhr; }
    double Sekunden() const override { return static_cast<double>(Uhr % 86'400'000) / 1000; }
    Zeit kürzesterTakt() const override { return 1; }
    void gibAb(Rast) override { Fahrer(); }
    void zeigeSchritt(const Form &, double) override {}
    void zeigeSchritt(const Control &, double) override;
    double Rnd() override;
    Anzeige anzeige() const override { return Modus.value_or(Gefunden); }
    void setzeModus(int Breite, int Höhe) override { Modus = Anzeige{Breite, Höhe, Gefunden.DPI}; }
    void MsgBox(const std::string &text, const std::string &, Meldungsart) override;
    std::optional<std::string> InputBox(const std::string &frage, const std::string &titel) override;
    void Beep() override { bezeuge({Ereignis::Art::Piep, "", ""}); }
    void ton(MMControl &, Befehl, bool warten) override;
    long Position(const MMControl &) override { return 0; }
    long Length(const MMControl &) override { return 0; }
    void öffneFilm(Animation &, const std::string &Datei) override;
    void spieleFilm(Animation &) override;
    void vergiss(const Control &) override;

  private:
    void bezeuge(const Ereignis &e) const {
        if (Zeuge) Zeuge(e);
    }
};

/// Der Name, unter dem ein Element im Skript steht: "Form.Element".
std::string vollerName(const Control &);

} // namespace velmo
