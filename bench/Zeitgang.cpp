// Der Zeitteil der Szene: wie die Uhr geht, oben in der Schleife und während eine Routine wartet.
#include "bench/Szene.h"

#include <algorithm>
#include <array>

namespace velmo {

namespace {

/// Wartet eine Routine und war so lange nichts fällig, so wartet sie auf den Spieler.
constexpr Zeit Stillstand = 1000;

/// Diese Zeitgeber laufen ohne Ende und stören keine Ruhe.
constexpr std::array Dauerläufer = {"Form1.Midi", "Form1.pfeilTimer", "Gewinn.Timer1", "Gewinn.Timer2"};

bool störtRuhe(const Timer *t) { return std::ranges::find(Dauerläufer, vollerName(*t)) == Dauerläufer.end(); }

/// Zählt die Routinen, die gerade warten.
struct Wartend {
    explicit Wartend(int &n) : zahl(n) { ++zahl; }
    ~Wartend() { --zahl; }
    int &zahl;
};

} // namespace

void Szene::beginne(Zeitbefehl neu) {
    zeitbefehl = std::move(neu);
    zeitbefehl->zeile = zeile;
    zeitbefehl->beginn = fläche.Uhr;
}

void Szene::imWarten() {
    const Wartend eine(wartende);
    if (zeitbefehl && !erfüllt()) {
        if (fälliges()) return;
        if (fläche.Uhr < zeitbefehl->grenze) {
            ++fläche.Uhr;
            return;
        }
        zeitIstUm();
    }
    zeitbefehl.reset();
    nächsterBefehl();
}

void Szene::zeitschritt() {
    if (erfüllt()) return zeitbefehl.reset();
    const auto nächste = p().nächsteFälligkeit();
    if (nächste && *nächste <= zeitbefehl->grenze) {
        fläche.Uhr = std::max(fläche.Uhr, *nächste);
        fälliges();
        return;
    }
    fläche.Uhr = std::max(fläche.Uhr, zeitbefehl->grenze);
    zeitIstUm();
}

bool Szene::erfüllt() {
    if (!zeitbefehl->erfüllt) return false;
    const int außen = zeile;
    zeile = zeitbefehl->zeile;
    const bool ja = zeitbefehl->erfüllt();
    zeile = außen;
    return ja;
}

/// Die Grenze ist erreicht: der Befehl ist zu Ende, und was noch aussteht, ist gescheitert.
void Szene::zeitIstUm() {
    const int außen = zeile;
    zeile = zeitbefehl->zeile;
    const Zeitbefehl alt = std::move(*zeitbefehl);
    zeitbefehl.reset();
    if (alt.gescheitert && !alt.erfüllt()) alt.gescheitert();
    zeile = außen;
}

bool Szene::fälliges() {
    const auto nächste = p().nächsteFälligkeit();
    if (!nächste || *nächste > fläche.Uhr) return false;
    const auto &plan = p().Zeitplan();
    if (std::ranges::any_of(plan,
                            [&](const Timer *t) { return !t->inArbeit && t->fällig <= fläche.Uhr && störtRuhe(t); }))
        letzteRegung = fläche.Uhr;
    return p().Fälliges();
}

std::string Szene::unruhe() const {
    const auto &plan = programm->Zeitplan();
    const auto hier = std::ranges::find_if(plan, störtRuhe);
    return hier == plan.end() ? "" : vollerName(**hier);
}

bool Szene::ruhig() const {
    if (ende != std::string_view("keiner")) return true;
    const Zeit seit = std::max(letzteRegung, zeitbefehl ? zeitbefehl->beginn : 0);
    return (wartende == 0 || fläche.Uhr - seit >= Stillstand) && unruhe().empty();
}

} // namespace velmo
