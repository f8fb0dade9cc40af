#pragma once
// Die Eingabe: welches Steuerelement ein Druck erreicht, entscheidet sich hier für alle Oberflächen. Orte sind Twips
// auf der Anzeige.
#include "platform/Control.h"

#include <optional>
#include <string>

namespace velmo {

class Laufzeit;

struct Punkt {
    double x, y;
};

/// Was an einem Ort liegt: die Form und darauf das Steuerelement; ohne Steuerelement die bloße Form.
struct Treffer {
    Form *form = nullptr;
    VisualControl *control = nullptr;
};

class Eingabe {
  public:
    explicit Eingabe(Laufzeit &laufzeit) : laufzeit(laufzeit) {}

    void bewege(Punkt);
    /// Solange eine Taste etwas festhält, bewirken eine zweite und ihr Loslassen nichts.
    void drücke(Maustaste, Punkt);
    void löse(Maustaste, Punkt);
    /// Ein Kasten hat die Maus genommen: was eine Taste festhielt, ist frei, und ihr Loslassen kommt nicht mehr.
    void gibFrei();
    /// Der zweite Klick eines Doppelklicks, nach drücke und löse des ersten.
    void doppelklick(Punkt);
    void taste(Form &, const std::string &Taste);
    /// Der Spieler hat den Inhalt eines Textfelds oder eine Zeile einer Liste gewählt; falsch, wenn er es nicht kann.
    bool tippe(TextBox &, const std::string &text);
    bool wähle(Listenelement &, int zeile);
    bool rolle(VScrollBar &, double wert);
    /// Der Spieler schließt das Fenster der Form.
    void schließe(Form &);

    /// Was ein Druck an diesem Ort erreicht. Eine gesperrte Form nimmt nichts, verdeckt aber, was hinter ihr liegt.
    Treffer trifft(Punkt) const;
    /// Bewirkt ein Druck mit der linken Taste etwas: einen Klick, ein Ziehen, eine Ansicht, solange er hält?
    static bool bewirktEtwas(const VisualControl &);
    /// Wo ein Druck dieses Element erreicht, möglichst in seiner Mitte; ohne Wert, wenn er es nirgends erreicht: es ist
    /// verborgen, gesperrt oder verdeckt.
    std::optional<Punkt> druckort(const VisualControl &) const;
    /// Wo ein Gezogenes auf dieses Element abgelegt wird; ebenso.
    std::optional<Punkt> ablageort(const VisualControl &) const;
    /// Die linke obere Ecke des Elements auf der Anzeige.
    static Punkt ort(const VisualControl &);

    /// Die Form folgt der Maus, bis die Taste losgelassen wird: für rahmenlose Dialoge in MouseDown.
    void zieheForm(Form &);
    /// Die Quelle eines laufenden Ziehens und der Ort des Zeigers darin; null ohne Ziehen.
    const VisualControl *gezogen() const { return quelle; }
    /// Ist eine Maustaste auf einer Form gedrückt?
    bool hält() const { return gedrückt.form; }
    Punkt zeiger() const { return letzterOrt; }

    /// Die Form wird entladen: nichts darf mehr auf sie zeigen.
    void vergiss(const Form &);

  private:
    VisualControl *ziel(Punkt) const;
    void ziehe(Punkt);
    bool kannBedienen(const VisualControl &) const;

    Laufzeit &laufzeit;
    Treffer gedrückt;
    Maustaste haltende = Maustaste::Links; // von gedrückt, quelle und gezogeneForm
    VisualControl *quelle = nullptr;
    VisualControl *überZiel = nullptr;
    Form *gezogeneForm = nullptr;
    Punkt griff{0, 0};
    Punkt letzterOrt{0, 0};
};

} // namespace velmo
