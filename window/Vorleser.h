#pragma once
// Was Vorleseprogramme vom Spiel erfahren: die Formen und das Benannte auf ihnen als Baum, und jede Änderung daran
// einmal. Was sie auslösen, geht durch die Eingabe wie ein Klick.
#include "surface/Lesefolge.h"

#include <QAccessible>
#include <QObject>
#include <QPointer>
#include <QRect>

#include <chrono>
#include <functional>
#include <map>
#include <vector>

class QWidget;

namespace velmo {

class Fenster;
class Formfläche;
struct Umgebung;

class Vorleser : public QObject {
  public:
    Vorleser(Fenster &, Umgebung &);
    ~Vorleser() override;

    /// Bringt alles auf den Stand der Formulare und meldet, was sich geändert hat.
    void folge();

    // Für die Objekte des Baums.
    using Element = Lesestelle;
    /// Die Formen, die zu sehen sind, die vorderste zuerst.
    std::vector<Form *> formen() const;
    Form *form(const Formfläche &) const;
    const std::vector<Element> &elemente(const Form &);
    /// Das Element; null, solange es nicht zu sehen ist.
    const Element *element(std::uint64_t form, const VisualControl *);
    /// Die Elemente in der Gruppe; ohne Gruppe die auf der Form selbst.
    std::vector<const Element *> kinder(const Form &, const VisualControl *gruppe);

    QAccessibleInterface *objekt(const Form &);
    QAccessibleInterface *objekt(const Element &);
    /// Wo das Element auf dem Bildschirm ist.
    QRect ort(const VisualControl &) const;
    bool hatFokus(const VisualControl &) const;
    bool kannFokus(const VisualControl &) const;
    void gibFokus(std::uint64_t form, VisualControl *);
    /// Drückt wie die Maus, sobald die Schleife wieder frei ist: das Vorleseprogramm wartet auf die Antwort.
    void löseAus(std::uint64_t form, VisualControl *);
    /// Drückt die bloße Form.
    void löseAus(std::uint64_t form);
    void wähle(std::uint64_t form, VisualControl *liste, int zeile);
    Fenster &fenster() const { return f; }

  private:
    struct Ansicht {
        std::uint64_t stand = 0;
        std::vector<Element> elemente;                            // wie zuletzt gefragt
        std::vector<Element> gemeldete;                           // wie zuletzt gemeldet
        std::map<const VisualControl *, QAccessible::Id> objekte; // derer ohne Widget
    };
    struct Verstummt {
        std::string text;
        std::chrono::steady_clock::time_point seit;
    };
    Form *form(std::uint64_t nummer) const;
    void sobaldFrei(std::function<void()> tat, int ms = 0);
    std::vector<Element> sammle(const Form &);
    void melde(const Form &, Ansicht &);
    void meldeFormen();
    void meldeFokus();
    void verkünde(const Element &);
    bool eben(const Element &) const;
    void vergissEntladenes();

    Fenster &f;
    Umgebung &u;
    std::map<std::uint64_t, Ansicht> ansichten; // nach der Nummer der Form
    std::vector<std::uint64_t> gezeigte;
    std::map<std::string, Verstummt> verstummte; // Ansagen, die eben noch zu sehen waren, nach ihrer Form
    Ganzersatz satz;
    const VisualControl *fokus = nullptr;
};

} // namespace velmo
