#include "platform/Laufzeit.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace velmo {

namespace {

auto findeIn(const std::vector<std::unique_ptr<Form>> &formen, Formularname Name) {
    return std::find_if(formen.begin(), formen.end(),
                        [&](const auto &form) { return Name == Formularname(form->Name); });
}

/// Hebt eine Zahl auf einen Wert, solange sie lebt.
struct Solange {
    Solange(int &zahl, int neu) : zahl(zahl), alt(std::exchange(zahl, neu)) {}
    ~Solange() { zahl = alt; }
    int &zahl;
    const int alt;
};

/// Führt aus einem Warten, das nicht zurückkehrt, durch die Behandlung hinaus.
struct Abbruch {};

} // namespace

Laufzeit::Laufzeit(Oberfläche &o, std::span<const Formeintrag> tafel) : oberfläche(o), tafel(tafel) {}
Laufzeit::~Laufzeit() = default;

std::optional<Formularname> Laufzeit::formular(const std::string &Name) const {
    for (const Formeintrag &e : tafel)
        if (Name == e.Name.Text) return e.Name;
    return std::nullopt;
}

const Formeintrag &Laufzeit::eintrag(Formularname Name) const {
    const auto hier = std::find_if(tafel.begin(), tafel.end(), [&](const Formeintrag &e) { return Name == e.Name; });
    if (hier == tafel.end()) throw std::logic_error(std::string("unbekannte Form ") + Name.Text);
    return *hier;
}

Form *Laufzeit::geladene(Formularname Name) const {
    eintrag(Name);
    const auto hier = findeIn(formen, Name);
    return hier == formen.end() ? nullptr : hier->get();
}

Form &Laufzeit::lade(Formularname Name) {
    if (Form *form = geladene(Name)) return *form;
    formen.insert(formen.begin(), eintrag(Name).erzeuge(*this));
    Form &form = *formen.front();
    form.geladen = true;
    behandle([&] { form.Form_Load(); });
    return form;
}

void Laufzeit::zeige(Formularname Name) {
    Form &form = lade(Name);
    // Eine Form, die sich beim Laden selbst entladen hat, erscheint nicht.
    if (!form.geladen) return;
    form.Visible = true;
    nachVorn(form);
}

void Laufzeit::verstecke(Formularname Name) { lade(Name).Visible = false; }

void Laufzeit::entlade(Formularname Name) {
    Form *form = geladene(Name);
    if (!form || !form->geladen) return;
    form->geladen = false; // ein Entladen aus Form_Unload heraus beginnt nicht von vorn
    form->entladen = true;
    behandle([&] {
        try {
            form->Form_Unload();
        } catch (const Programmende &) { // auch wer im Gehen das Programm beendet, ist fort
            nimmHeraus(*form);
            throw;
        }
        nimmHeraus(*form);
    });
}

void Laufzeit::nimmHeraus(Form &form) {
    if (form.trägtSpiel()) gibWartendeAuf();
    std::erase_if(zeitplan, [&](const Timer *t) { return &t->form == &form; });
    eingabe.vergiss(form);
    const auto hier = std::find_if(formen.begin(), formen.end(), [&](const auto &f) { return f.get() == &form; });
    entladene.push_back(std::move(*hier));
    formen.erase(hier);
}

std::vector<Form *> Laufzeit::Formen() const {
    std::vector<Form *> alle;
    for (const auto &form : formen)
        alle.push_back(form.get());
    std::stable_partition(alle.begin(), alle.end(), [](const Form *f) { return !f->Topmost(); });
    return alle;
}

void Laufzeit::warteBis(const std::function<bool()> &bedingung) {
    while (!bedingung())
        gibAb(Rast::BisEreignis);
}

void Laufzeit::gibAb(Rast rast) {
    {
        const Solange wartend(wartende, tiefe);
        oberfläche.gibAb(rast);
    }
    if (tiefe <= aufgegeben) throw Abbruch{};
}

void Laufzeit::Ende() { throw Programmende{}; }

Bildschirm Laufzeit::Screen() const {
    const Anzeige a = oberfläche.anzeige();
    const double twips = 1440.0 / a.DPI;
    return {a.Breite * twips, a.Höhe * twips, twips, twips};
}

bool Laufzeit::Fälliges() {
    const Zeit bis = oberfläche.jetzt();
    bool etwas = false;
    for (;;) {
        Timer *nächster = nullptr;
        for (Timer *t : zeitplan)
            if (!t->inArbeit && t->fällig <= bis &&
                (!nächster || std::tie(t->fällig, t->nummer) < std::tie(nächster->fällig, nächster->nummer)))
                nächster = t;
        if (!nächster || imAufgegebenen()) return etwas;
        etwas = true;
        behandle([this, nächster] {
            struct InArbeit {
                explicit InArbeit(Timer &t) : timer(t) { timer.inArbeit = true; }
                ~InArbeit() { timer.inArbeit = false; }
                Timer &timer;
            } inArbeit{*nächster};
            // Ein verspäteter Takt holt die versäumten nicht nach.
            const Zeit abstand = std::max(Zeit(nächster->Interval()), oberfläche.kürzesterTakt());
            const Zeit jetzt = oberfläche.jetzt();
            nächster->fällig += abstand;
            if (nächster->fällig <= jetzt) nächster->fällig = jetzt + abstand;
            if (nächster->Tick) nächster->Tick();
        });
    }
}

std::optional<Zeit> Laufzeit::nächsteFälligkeit() const {
    std::optional<Zeit> nächste;
    for (const Timer *t : zeitplan)
        if (!t->inArbeit && (!nächste || t->fällig < *nächste)) nächste = t->fällig;
    return nächste;
}

void Laufzeit::behandle(const Handler &handler) {
    if (tiefe > wartende) return ruf(handler); // Teil einer Behandlung
    if (imAufgegebenen()) return;
    try {
        ruf(handler);
    } catch (const Abbruch &) {
    } catch (...) {
        ausnahme = std::current_exception();
        gibWartendeAuf();
    }
    if (tiefe > 0) return;
    aufgegeben = 0;
    entladene.clear();
    if (ausnahme) std::rethrow_exception(std::exchange(ausnahme, {}));
}

void Laufzeit::ruf(const Handler &handler) {
    const Solange eineMehr(tiefe, tiefe + 1);
    if (handler) handler();
}

void Laufzeit::plane(Timer &t) {
    if (t.form.entladen) return;
    t.fällig = oberfläche.jetzt() + std::max(Zeit(t.Interval()), oberfläche.kürzesterTakt());
    if (std::find(zeitplan.begin(), zeitplan.end(), &t) == zeitplan.end()) zeitplan.push_back(&t);
}

void Laufzeit::streiche(Timer &t) { std::erase(zeitplan, &t); }

void Laufzeit::nachVorn(Form &form) {
    const auto hier = std::find_if(formen.begin(), formen.end(), [&](const auto &f) { return f.get() == &form; });
    std::rotate(hier, hier + 1, formen.end());
    form.geändert();
}

} // namespace velmo
