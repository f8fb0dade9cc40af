// Der Dauerlauf: spielt ganze Spiele an den wirklichen Formularen und prüft, dass nichts geschieht, was keine Regel
// erlaubt. Aufruf: dauerlauf [SPIELE [SAAT]]
#include "bench/Kassenbuch.h"
#include "bench/Mitspieler.h"
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "boardform/Brett.h"
#include "shell/Formtafel.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <unistd.h>

namespace velmo {

namespace {

constexpr int Rundengrenze = 3000;
constexpr Zeit Stillstand = 600'000; // ms ohne eine Regung des Spielers: das Spiel hängt

// Was der Spieler im Assistenten wählt, und was daraus folgt.
constexpr const char *Gewähltes[] = {"Spielerfarbe", "Gegnerzahl", "Schwierigkeit", "Computergeld(", "Autobesitzer(",
                                     "Autog.",       "Autoe.",     "Autob.",        "Autor."};

enum class Ausgang { Sieg, Niederlage, Überlauf, Umwandlung, Unbeendet };

struct Befund : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class Dauerlauf {
  public:
    explicit Dauerlauf(unsigned saat) : saat(saat) { fläche.Erzeuger.seed(saat); }

    /// Spielt ein Spiel zu Ende; wirft Befund, wenn etwas geschah, was keine Regel erlaubt.
    Ausgang spiele() {
        if (!programm) starte();
        runden = 0;
        try {
            beginne();
            return laufe();
        } catch (const Laufzeitfehler &fehler) {
            const bool safari = programm->Zustand.Miethotel == "Safari" && programm->geladene(formular::Bezahlen);
            programm.reset(); // das nächste Spiel beginnt mit einem neuen Programm
            // Ein Überlauf des Geldes und die Umwandlung bei Safari sind Regeln des Spiels.
            if (fehler.Art() == Fehlerart::Überlauf) return Ausgang::Überlauf;
            if (fehler.Art() == Fehlerart::Typ && safari) return Ausgang::Umwandlung;
            throw Befund(fehler.what());
        }
    }

    int Runden() const { return runden; }

  private:
    void starte() {
        fläche.leere();
        fläche.Uhr = 0;
        programm = std::make_unique<Programm>(fläche, Formtafel(), ordner.Pfad());
        spieler = std::make_unique<Mitspieler>(*programm, ++saat);
        fläche.Fahrer = [this] { imWarten(); };
        velmo::starte(*programm);
        const Punkt mitte{4800, 3600};
        programm->eingabe.drücke(Maustaste::Links, mitte);
        programm->eingabe.löse(Maustaste::Links, mitte);
    }

    void beginne() {
        spieler->beginneSpiel();
        prüfeAnfang();
        buch.eröffne(programm->Zustand);
        regung = fläche.Uhr;
    }

    /// Jedes Spiel beginnt wie das erste, bis auf das, was der Spieler im Assistenten wählt.
    void prüfeAnfang() {
        std::map<std::string, std::string> stand;
        const auto sammle = [&](const std::string &vor) {
            return [&stand, vor](const std::string &name, const Zugang &z) { stand[vor + name] = alsText(z.lies()); };
        };
        programm->Zustand.zähleAuf(sammle(""));
        for (Control *c : brett(*programm).Controls())
            c->zähleAuf(sammle(std::string(c->Name) + "."));
        std::erase_if(stand, [](const auto &eintrag) {
            return std::ranges::any_of(Gewähltes, [&](const char *w) { return eintrag.first.starts_with(w); });
        });
        if (anfang.empty()) anfang = stand;
        for (const auto &[name, wert] : stand)
            if (wert != anfang[name]) throw Befund("am Anfang ist " + name + " " + wert + ", zuerst " + anfang[name]);
    }

    Ausgang laufe() {
        for (;;) {
            const bool warSieg = programm->geladene(formular::Gewinn) != nullptr;
            if (!spieler->handle()) {
                tickeWeiter();
            } else {
                regung = fläche.Uhr;
            }
            if (warSieg && !programm->geladene(formular::Gewinn)) return Ausgang::Sieg;
            if (programm->geladene(formular::Menu)->Visible) return Ausgang::Niederlage;
            prüfe();
            if (runden >= Rundengrenze) {
                programm.reset();
                return Ausgang::Unbeendet;
            }
        }
    }

    void tickeWeiter() {
        const auto nächste = programm->nächsteFälligkeit();
        if (!nächste || fläche.Uhr - regung > Stillstand) throw Befund("das Spiel hängt: " + lage());
        fläche.Uhr = std::max(fläche.Uhr, *nächste);
        programm->Fälliges();
    }

    void imWarten() {
        const auto nächste = programm->nächsteFälligkeit();
        if (nächste && *nächste <= fläche.Uhr) {
            programm->Fälliges();
        } else if (spieler->handleImWarten()) {
            regung = fläche.Uhr;
        } else {
            if (fläche.Uhr - regung > Stillstand) throw Befund("eine Routine wartet ohne Ende: " + lage());
            ++fläche.Uhr;
        }
    }

    void prüfe() {
        const Spielzustand &z = programm->Zustand;
        if (z.AmZug == 0 && zugZuvor != 0) ++runden;
        zugZuvor = z.AmZug;
        if (const auto fehler = buch.prüfe(z)) throw Befund(*fehler);
        while (!fläche.Meldungen.empty()) {
            const std::string text = fläche.Meldungen.front().Text;
            fläche.Meldungen.pop_front();
            if (text.find("ehler") != std::string::npos && text.find("geldfeld_sscommand") == std::string::npos)
                throw Befund(text);
        }
    }

    /// Was der Spieler vor sich hat.
    std::string lage() const {
        std::string text;
        for (const Form *f : programm->Formen())
            if (f->Visible) text += std::string(f->Name) + (f->Enabled ? " " : " (gesperrt) ");
        for (const Timer *t : programm->Zeitplan())
            text += std::string(t->form.Name) + "." + t->Name + " ";
        return text + "Rest " + programm->Zustand.Restbetrag + ", " + brett(*programm).Label1.Caption();
    }

    Prüffläche fläche;
    Programmordner ordner;
    std::unique_ptr<Programm> programm;
    std::unique_ptr<Mitspieler> spieler;
    Kassenbuch buch;
    std::map<std::string, std::string> anfang; // der Stand am Anfang des ersten Spiels
    unsigned saat;
    int runden = 0, zugZuvor = 0;
    Zeit regung = 0;
};

struct Ergebnis {
    std::map<Ausgang, int> ausgänge;
    std::vector<int> runden;
};

void berichte(Ergebnis &e, double sekunden) {
    const int spiele = static_cast<int>(e.runden.size());
    std::ranges::sort(e.runden);
    std::cout << spiele << " Spiele: " << e.ausgänge[Ausgang::Sieg] << " Siege, " << e.ausgänge[Ausgang::Niederlage]
              << " Niederlagen, " << e.ausgänge[Ausgang::Überlauf] << " Überläufe, " << e.ausgänge[Ausgang::Umwandlung]
              << " Umwandlungsfehler bei Safari, " << e.ausgänge[Ausgang::Unbeendet] << " unbeendet\n"
              << "Runden je Spiel: Median " << e.runden[e.runden.size() / 2] << ", längstes " << e.runden.back() << '\n'
              << static_cast<int>(spiele / sekunden) << " Spiele je Sekunde\n";
}

int laufe(int spiele, unsigned saat) {
    const auto beginn = std::chrono::steady_clock::now();
    const bool sichtbar = isatty(STDERR_FILENO) != 0;
    Dauerlauf lauf(saat);
    Ergebnis e;
    for (int i = 0; i < spiele; ++i) {
        try {
            ++e.ausgänge[lauf.spiele()];
        } catch (const Befund &befund) {
            std::cout << "Spiel " << i + 1 << ", Runde " << lauf.Runden() << ": " << befund.what() << '\n';
            return 1;
        }
        e.runden.push_back(lauf.Runden());
        if (sichtbar) std::cerr << "\r" << i + 1 << " von " << spiele << std::flush;
    }
    if (sichtbar) std::cerr << '\n';
    berichte(e, std::chrono::duration<double>(std::chrono::steady_clock::now() - beginn).count());
    return 0;
}

} // namespace

} // namespace velmo

int main(int zahl, char **worte) {
    const int spiele = zahl > 1 ? std::atoi(worte[1]) : 1000;
    const int saat = zahl > 2 ? std::atoi(worte[2]) : 1;
    if (spiele < 1 || zahl > 3) {
        std::cout << "Aufruf: dauerlauf [SPIELE [SAAT]]\n";
        return 2;
    }
    return velmo::laufe(spiele, static_cast<unsigned>(saat));
}
