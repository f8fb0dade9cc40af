#include "bench/Spiellauf.h"

#include "boardform/Brett.h"
#include "shell/Formtafel.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr int Rundengrenze = 3000;
constexpr Zeit Stillstand = 600'000; // ms ohne eine Regung des Spielers: das Spiel hängt
constexpr Zeit Geduld = 300'000;     // nach so langer Zeit im selben Zug gibt ein unruhiger Spieler auf
constexpr unsigned Störung = 30, Störung_im_Warten = 400; // eins von so vielen Malen

// Was der Spieler im Assistenten wählt, und was daraus folgt.
constexpr const char *Gewähltes[] = {"Spielerfarbe", "Gegnerzahl", "Schwierigkeit", "Computergeld(", "Autobesitzer(",
                                     "Autog.",       "Autoe.",     "Autob.",        "Autor."};

/// Der Spieler schließt das Fenster.
struct Schluss {};

constexpr const char *Name(Ausgang a) {
    constexpr std::array namen = {"Sieg", "Niederlage", "Überlauf", "Umwandlung", "Verlassen", "Gesperrt"};
    return namen[static_cast<std::size_t>(a)];
}

} // namespace

Spiellauf::Spiellauf(unsigned saat, Mitschrift &m) : mitschrift(m), saat(saat) {
    fläche.Erzeuger.seed(saat);
    fläche.Fahrer = [this] { imWarten(); };
    fläche.Zeuge = [this](const Ereignis &e) { bezeuge(e); };
}

Ausgang Spiellauf::spiele() {
    mitschrift.beginneSpiel(++spiel);
    beginn = fläche.Uhr;
    if (!programm) starte();
    const Ausgang ausgang = spieleBisEnde();
    schreibe(Name(ausgang));
    return ausgang;
}

Ausgang Spiellauf::spieleBisEnde() {
    runden = 0;
    try {
        beginne();
        return laufe();
    } catch (const Schluss &) {
        verwirf();
        return Ausgang::Gesperrt;
    } catch (const Laufzeitfehler &fehler) {
        // Ein Überlauf des Geldes und die Umwandlung bei Safari sind Regeln des Spiels.
        const bool überlauf = fehler.Art() == Fehlerart::Überlauf && richter->überlaufGeboten();
        const bool umwandlung = fehler.Art() == Fehlerart::Typ && richter->umwandlungGeboten();
        if (!überlauf && !umwandlung) throw Befund(fehler.what());
        beobachter->vergleiche();
        verwirf(); // das nächste Spiel beginnt mit einem neuen Programm
        return überlauf ? Ausgang::Überlauf : Ausgang::Umwandlung;
    }
}

void Spiellauf::starte() {
    fläche.leere();
    programm = std::make_unique<Programm>(fläche, Formtafel(), ordner.Pfad());
    beobachter = std::make_unique<Beobachter>(*programm, [this](const std::string &zeile) { schreibe(zeile); });
    richter = std::make_unique<Schiedsrichter>(*programm);
    spieler = std::make_unique<Mitspieler>(*programm, ++saat, [this](const VisualControl &c) { drückt(c); });
    unruhe = std::make_unique<Unruhe>(*programm, saat, [this](const VisualControl &c) { drückt(c); });
    velmo::starte(*programm);
    const Punkt mitte{4800, 3600};
    programm->eingabe.drücke(Maustaste::Links, mitte);
    programm->eingabe.löse(Maustaste::Links, mitte);
}

void Spiellauf::verwirf() {
    unruhe.reset();
    spieler.reset();
    richter.reset();
    beobachter.reset();
    programm.reset();
}

void Spiellauf::beginne() {
    fläche.Töne.clear();
    unruhig = spiel % 2 == 0;
    verlassen = gefragt = false;
    räumeAuf();
    spieler->beginneSpiel();
    schreibeMit();
    prüfeAnfang();
    richter->beginneSpiel();
    regung = fläche.Uhr;
}

/// Jedes Spiel beginnt wie das erste, bis auf das, was der Spieler im Assistenten wählt.
void Spiellauf::prüfeAnfang() {
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

/// Was vor dem Menü noch offen ist, schließt der Spieler zuerst.
void Spiellauf::räumeAuf() {
    for (int i = 0; i < 1000 && !spieler->vorDemMenü(); ++i)
        if (!unruhe->stört()) tickeWeiter();
}

Ausgang Spiellauf::laufe() {
    for (;;) {
        const bool warSieg = programm->geladene(formular::Gewinn) != nullptr;
        if (!handle()) tickeWeiter();
        schreibeMit();
        if (warSieg && !programm->geladene(formular::Gewinn)) return Ausgang::Sieg;
        if (programm->geladene(formular::Menu)->Visible) return verlassen ? Ausgang::Verlassen : Ausgang::Niederlage;
        richter->ruhe();
        zähleRunden();
        if (runden >= Rundengrenze) throw Befund("das Spiel endet nicht: " + lage());
    }
}

bool Spiellauf::handle() {
    if (unruhig && unruhe->eins(Störung) && stört()) return true;
    if (spieler->handle()) {
        if (!unruhig) regung = fläche.Uhr;
        return true;
    }
    return unruhig && spieler->ruhig() && stört();
}

bool Spiellauf::stört() { return (fläche.Uhr - regung > Geduld && unruhe->gibtAuf()) || unruhe->stört(); }

/// Ist das Beenden verneint oder die Frage von einem anderen Satz verdrängt, bleibt das Brett gesperrt; sonst kommt ein
/// Spieler immer weiter oder hinaus.
void Spiellauf::prüfeFortgang() {
    if (fläche.Uhr - regung <= Stillstand) return;
    if (gefragt) throw Schluss{};
    throw Befund(std::string(wartende ? "eine Routine wartet ohne Ende: " : "das Spiel hängt: ") + lage());
}

void Spiellauf::tickeWeiter() {
    const auto nächste = programm->nächsteFälligkeit();
    fläche.Uhr = nächste ? std::max(fläche.Uhr, *nächste) : fläche.Uhr + 1000;
    prüfeFortgang();
    programm->Fälliges();
}

void Spiellauf::imWarten() {
    struct EinsMehr {
        explicit EinsMehr(int &zahl) : zahl(zahl) { ++zahl; }
        ~EinsMehr() { --zahl; }
        int &zahl;
    } const einsMehr(wartende);
    const auto nächste = programm->nächsteFälligkeit();
    if (nächste && *nächste <= fläche.Uhr) {
        programm->Fälliges();
    } else if (spieler->handleImWarten()) {
        if (!unruhig) regung = fläche.Uhr;
    } else if (!(unruhig && unruhe->eins(Störung_im_Warten) && stört())) {
        prüfeFortgang();
        ++fläche.Uhr;
        return;
    }
    schreibeMit();
}

void Spiellauf::drückt(const VisualControl &c) {
    const std::string name = vollerName(c);
    if (name == "Sprech.Command1") verlassen = true;
    if (name == "Form1.SSCommand1") gefragt = true;
    richter->drückt(c, wartende > 0);
}

/// Was das Programm an der Oberfläche tut, steht hinter allem, was es bis dahin verändert hat.
void Spiellauf::bezeuge(const Ereignis &e) {
    schreibeMit();
    schreibe(e.Zeile());
    richter->höre(e);
}

/// Jedes Ereignis mit seiner Zeit im Spiel, in ms.
void Spiellauf::schreibe(const std::string &was) {
    mitschrift.ereignis(std::to_string(fläche.Uhr - beginn) + ' ' + was);
}

void Spiellauf::schreibeMit() {
    if (beobachter->vergleiche()) richter->sieh();
}

void Spiellauf::zähleRunden() {
    const int zug = programm->Zustand.AmZug;
    if (zug == 0 && zugZuvor != 0) ++runden;
    if (unruhig && zug != zugZuvor) regung = fläche.Uhr;
    zugZuvor = zug;
}

/// Was der Spieler vor sich hat.
std::string Spiellauf::lage() const {
    std::string text;
    for (const Form *f : programm->Formen())
        if (f->Visible) text += std::string(f->Name) + (f->Enabled ? " " : " (gesperrt) ");
    for (const Timer *t : programm->Zeitplan())
        text += std::string(t->form.Name) + "." + t->Name + " ";
    return text + "Rest " + programm->Zustand.Restbetrag + ", " + brett(*programm).Label1.Caption();
}

} // namespace velmo
