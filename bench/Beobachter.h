#pragma once
// Der Beobachter eines Programms: er findet, was sich am Spielzustand und auf den Formularen geändert hat, und meldet
// es in Zeilen. Die Regeln wissen nichts von ihm.
#include "include/Programm.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace velmo {

class Beobachter {
  public:
    using Empfänger = std::function<void(const std::string &)>;

    Beobachter(Programm &, Empfänger);
    /// Meldet die Änderungen seit dem letzten Mal: Felder als "Name = Wert", Elemente als "Form.Element: …". Wahr, wenn
    /// sich am Spielzustand etwas geändert hat.
    bool vergleiche();

  private:
    struct Feld {
        std::string Name;
        Zugang Wert;
        velmo::Wert zuletzt;
    };
    /// Was ein Spieler von einem Element sieht, und was er damit tun kann.
    struct Element {
        const VisualControl *c;
        const std::string *Aufschrift; // null: es hat keine
        const Picture *Bild;           // null: es hat keins
        bool Visible = false, Enabled = false;
        std::string aufschrift, bild;
    };
    struct Formular {
        std::string Name;
        std::uint64_t Stand;
        bool Visible = false, Enabled = false;
        std::vector<Element> elemente;
    };

    bool vergleicheFelder();
    void vergleicheFormen();
    void vergleicheForm(const Form &, Formular &);
    void vergleicheElement(const std::string &form, Element &);
    static Formular lerneKennen(const Form &);

    Programm &p;
    Empfänger melde;
    std::vector<Feld> felder;
    std::map<std::uint64_t, Formular> formulare; // nach der Nummer der Form
};

} // namespace velmo
