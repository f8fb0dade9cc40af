#include "bench/Beobachter.h"

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

// Der Pfad des Prüfordners ist in jedem Lauf ein anderer.
constexpr const char *Unstetes[] = {"Programmpfad", "Charakterpfad"};
// Hier bewegt sich viel und geschieht nichts.
constexpr const char *Beiwerk[] = {"Assistent", "Intro"};

/// Ohne Gleitkomma: ganze Zahlen, Brüche in Tausendsteln.
std::string geschrieben(const Wert &wert) {
    if (const auto *zahl = std::get_if<double>(&wert)) {
        const auto tausendstel = std::llround(*zahl * 1000);
        return tausendstel % 1000 ? std::to_string(tausendstel) + "/1000" : std::to_string(tausendstel / 1000);
    }
    if (const auto *flagge = std::get_if<bool>(&wert)) return *flagge ? "wahr" : "falsch";
    if (const auto *text = std::get_if<std::string>(&wert)) return '"' + *text + '"';
    return "leer";
}

template <class C> const Picture *bildVon(const VisualControl &c) {
    const auto *mitBild = dynamic_cast<const C *>(&c);
    return mitBild ? &mitBild->Picture() : nullptr;
}

} // namespace

Beobachter::Beobachter(Programm &p, Empfänger melde) : p(p), melde(std::move(melde)) {
    p.Zustand.zähleAuf([this](const std::string &name, const Zugang &z) {
        if (std::ranges::find(Unstetes, name) == std::end(Unstetes)) felder.push_back({name, z, z.lies()});
    });
}

bool Beobachter::vergleiche() {
    const bool anders = vergleicheFelder();
    vergleicheFormen();
    return anders;
}

bool Beobachter::vergleicheFelder() {
    bool anders = false;
    for (Feld &feld : felder) {
        Wert jetzt = feld.Wert.lies();
        if (jetzt == feld.zuletzt) continue;
        feld.zuletzt = std::move(jetzt);
        melde(feld.Name + " = " + geschrieben(feld.zuletzt));
        anders = true;
    }
    return anders;
}

void Beobachter::vergleicheFormen() {
    std::erase_if(formulare, [this](const auto &eintrag) {
        const Form *form = p.geladene(Formularname(eintrag.second.Name.c_str()));
        const bool fort = !form || form->Nummer != eintrag.first;
        if (fort) melde(eintrag.second.Name + " entladen");
        return fort;
    });
    for (const Form *form : p.Formen()) {
        if (std::ranges::find(Beiwerk, std::string(form->Name)) != std::end(Beiwerk)) continue;
        auto hier = formulare.find(form->Nummer);
        if (hier == formulare.end()) {
            melde(std::string(form->Name) + " geladen");
            hier = formulare.emplace(form->Nummer, lerneKennen(*form)).first;
        } else if (hier->second.Stand == form->Stand()) {
            continue;
        }
        vergleicheForm(*form, hier->second);
    }
}

void Beobachter::vergleicheForm(const Form &form, Formular &zuletzt) {
    zuletzt.Stand = form.Stand();
    if (form.Visible != zuletzt.Visible || form.Enabled != zuletzt.Enabled) {
        zuletzt.Visible = form.Visible;
        zuletzt.Enabled = form.Enabled;
        melde(zuletzt.Name + (form.Visible ? ": sichtbar" : ": verborgen") + (form.Enabled ? "" : ", gesperrt"));
    }
    for (Element &element : zuletzt.elemente)
        vergleicheElement(zuletzt.Name, element);
}

void Beobachter::vergleicheElement(const std::string &form, Element &e) {
    const bool gleicheSchrift = !e.Aufschrift || *e.Aufschrift == e.aufschrift;
    const bool gleichesBild = !e.Bild || e.Bild->Name == e.bild;
    if (e.c->Visible == e.Visible && e.c->Enabled == e.Enabled && gleicheSchrift && gleichesBild) return;
    e.Visible = e.c->Visible;
    e.Enabled = e.c->Enabled;
    if (e.Aufschrift) e.aufschrift = *e.Aufschrift;
    if (e.Bild) e.bild = e.Bild->Name;
    melde(form + "." + e.c->Name + (e.Visible ? ": sichtbar" : ": verborgen") + (e.Enabled ? "" : ", gesperrt") +
          (e.Aufschrift ? ", \"" + e.aufschrift + '"' : "") + (e.Bild ? ", " + e.bild : ""));
}

Beobachter::Formular Beobachter::lerneKennen(const Form &form) {
    Formular neu{form.Name, form.Stand(), false, false, {}};
    for (const Control *control : form.Controls()) {
        const auto *c = dynamic_cast<const VisualControl *>(control);
        if (!c) continue;
        const auto *label = dynamic_cast<const Label *>(c);
        const auto *knopf = dynamic_cast<const CommandButton *>(c);
        const Picture *bild = bildVon<Image>(*c);
        if (!bild) bild = bildVon<PictureBox>(*c);
        neu.elemente.push_back({c,
                                label   ? &label->Caption()
                                : knopf ? &knopf->Caption()
                                        : nullptr,
                                bild,
                                false,
                                false,
                                {},
                                {}});
    }
    return neu;
}

} // namespace velmo
