#pragma once
// Die Laufzeit: die Liste der Formulare, der Zeitplan, das Abgeben der Schleife, die Anzeige. Ein Programm hat eine
// davon.
#include "platform/Eingabe.h"
#include "platform/Form.h"
#include "platform/Laufzeitfehler.h"
#include "platform/Oberfläche.h"

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmo {

/// Wie eine Form des Programms entsteht.
struct Formeintrag {
    Formularname Name;
    std::unique_ptr<Form> (*erzeuge)(Laufzeit &);
};

/// Die Maße der Anzeige.
struct Bildschirm {
    double Width, Height;                  // Twips
    double TwipsPerPixelX, TwipsPerPixelY; // 1440 / DPI
};

class Laufzeit {
  public:
    Laufzeit(Oberfläche &, std::span<const Formeintrag>);
    virtual ~Laufzeit();
    Laufzeit(const Laufzeit &) = delete;

    Oberfläche &oberfläche;
    Eingabe eingabe{*this};

    // Die Formulare. Jede Berührung lädt; Laden baut die Form und ruft Form_Load. Ein Name, der nicht in der Tafel
    // steht, ist ein logic_error.
    std::optional<Formularname> formular(const std::string &Name) const;
    Form *geladene(Formularname) const;
    Form &lade(Formularname);
    void zeige(Formularname);
    void verstecke(Formularname);
    /// Entlädt die Form; eine nicht geladene bleibt es.
    void entlade(Formularname);
    /// Die geladenen Formulare von hinten nach vorn, die obersten (Topmost) zuletzt.
    std::vector<Form *> Formen() const;

    /// Gibt der Schleife einen Durchgang: Fälliges läuft, sonst ruht sie höchstens 1 ms.
    void DoEvents() { gibAb(Rast::Gezählt); }
    /// Wartet auf den Spieler oder einen Zeitgeber, bis die Bedingung gilt.
    void warteBis(const std::function<bool()> &bedingung);
    /// Beendet das Programm sofort.
    [[noreturn]] void Ende();

    Bildschirm Screen() const;
    /// Fragt den Spieler; ohne Wert, wenn er abbricht.
    std::optional<std::string> InputBox(const std::string &frage, const std::string &titel) {
        eingabe.gibFrei();
        return oberfläche.InputBox(frage, titel);
    }
    double Rnd() { return oberfläche.Rnd(); }
    /// Der ganze Teil einer Ziehung mal n: 0 bis n - 1.
    int Zufallszahl(int n) { return static_cast<int>(oberfläche.Rnd() * n); }
    void MsgBox(const std::string &text, Meldungsart art = Meldungsart::Schlicht) {
        oberfläche.MsgBox(text, "Velmo", art);
    }

    // Für die Oberfläche: der Zeitplan.
    /// Lässt alle fälligen Zeitgeber laufen; wahr, wenn einer fällig war.
    bool Fälliges();
    /// Wann der nächste Zeitgeber fällig ist, der nicht selbst gerade läuft.
    std::optional<Zeit> nächsteFälligkeit() const;
    /// Die laufenden Zeitgeber.
    const std::vector<Timer *> &Zeitplan() const { return zeitplan; }
    /// Führt eine Ereignisbehandlung aus; danach verschwinden entladene Formulare, wenn keine andere mehr läuft. Was
    /// sie wirft, beendet auch alle, in deren Warten sie begann; erst die äußerste reicht es weiter. In einem Warten,
    /// das zu Ende ist, beginnt keine mehr.
    void behandle(const Handler &);

    // Für Formulare und Zeitgeber.
    std::uint64_t nächsteNummer() { return ++nummern; }
    void plane(Timer &);
    void streiche(Timer &);
    void nachVorn(Form &);

  private:
    const Formeintrag &eintrag(Formularname) const;
    void nimmHeraus(Form &);
    void ruf(const Handler &);
    void gibAb(Rast);
    void gibWartendeAuf() { aufgegeben = wartende; }
    bool imAufgegebenen() const { return wartende > 0 && wartende <= aufgegeben; }

    std::span<const Formeintrag> tafel;
    std::vector<std::unique_ptr<Form>> formen;    // von hinten nach vorn
    std::vector<std::unique_ptr<Form>> entladene; // leben, bis keine Behandlung mehr läuft
    std::vector<Timer *> zeitplan;
    std::uint64_t nummern = 0;
    int tiefe = 0;               // so viele Behandlungen liegen ineinander
    int wartende = 0;            // so viele davon warten, während die oberen laufen
    int aufgegeben = 0;          // so viele enden, statt aus ihrem Warten zurückzukehren
    std::exception_ptr ausnahme; // was die äußerste danach weiterreicht
};

} // namespace velmo
