#pragma once
// Der Tastaturfokus: welches Steuerelement der vordersten Form die Tasten meint, und wie sie es drücken. Gedrückt wird
// durch dieselbe Eingabe wie mit der Maus: was verdeckt oder gesperrt ist, lässt sich nicht drücken.
#include "platform/Eingabe.h"
#include "surface/Bearbeiter.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace velmo {

class Programm;

enum class Richtung { Links, Rechts, Auf, Ab };

class Fokus {
  public:
    Fokus(Programm &, Bearbeiter);

    /// Die Form, der die Tasten gelten: eine gestellte Frage, sonst die vorderste; null ohne sichtbare Form.
    Form *form() const;
    /// Was sich mit Tasten erreichen lässt, in Lesefolge: auf dieser Form, dann auf Figur und Blase. Während der
    /// Spieler zieht, die Ablagen.
    std::vector<VisualControl *> reihe() const;
    /// Das Steuerelement, das den Fokus hat und gerade zu erreichen ist; sonst null.
    VisualControl *control() const;
    /// Wo der Fokus steht, auch wenn dort gerade nichts zu drücken ist.
    VisualControl *stelle() const;
    /// Hat der Spieler zuletzt die Tasten benutzt? Dann ist der Fokus zu sehen.
    bool sichtbar() const { return zeigt; }
    void setzeSichtbar(bool);

    /// Gibt den Fokus; falsch, wenn das Element nicht zu erreichen ist.
    bool setze(VisualControl &);
    void weiter(bool vorwärts);
    /// Zum nächsten Nachbarn in der Richtung; falsch, wenn dort keiner ist.
    bool nachbar(Richtung);

    /// Drückt das Element mit dem Fokus und hält es, bis lass() es löst. Was sich ziehen lässt, ist danach aufgehoben;
    /// ein gezogenes legt der Druck ab. Falsch, wenn nichts gedrückt wurde.
    bool drücke();
    void lass();
    /// Löst, ohne zu klicken: das Fenster hat die Tasten verloren.
    void verliere();
    /// Drückt und löst ein Element irgendeiner Form, wo eine Maus es träfe; falsch, wenn keine es träfe.
    bool löseAus(VisualControl &);
    /// Der Knopf, der die vorderste Form schließt oder ihre Frage verneint; ein Gezogenes fällt zurück. Falsch ohne
    /// einen solchen.
    bool brichAb();
    /// Was die Tasten gerade halten; sonst null.
    const VisualControl *gehalten() const { return gehaltenes; }

    /// Wird nach jedem Wechsel gerufen: des Elements, der Form, der Sichtbarkeit, des Gehaltenen.
    void beiWechsel(std::function<void()>);
    /// Auf den Stand der Formulare bringen.
    void folge();

  private:
    struct Stand {
        std::uint64_t form;
        const VisualControl *control;
        bool operator==(const Stand &) const = default;
    };
    bool erreichbar(const VisualControl &) const;
    std::vector<VisualControl *> stellen() const;
    VisualControl *anfang(const Form &) const;
    void merke(VisualControl &);
    bool zeigeErst();
    bool druckAn(VisualControl &);
    void legeAb(const VisualControl *auf);
    void meldeWechsel();
    void vergissEntladenes();

    Programm &p;
    Bearbeiter bearbeite;
    std::vector<std::function<void()>> empfänger;
    std::map<std::uint64_t, VisualControl *> zuletzt; // der Fokus jeder geladenen Form, nach ihrer Nummer
    VisualControl *ablage = nullptr;                  // worüber das Gezogene schwebt
    const VisualControl *gehaltenes = nullptr;
    Punkt haltort{0, 0};
    Stand stand{0, nullptr}; // der zuletzt gemeldete
    bool zeigt = false;
};

} // namespace velmo
