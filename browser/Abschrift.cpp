#include "browser/Abschrift.h"

#include "shell/Umland.h"
#include "surface/Malplatz.h"
#include "surface/Tasten.h"

#include <algorithm>

namespace velmo {

int Abschrift::nummer(const Control &c) {
    const auto &alle = c.form.Controls();
    return static_cast<int>(std::find(alle.begin(), alle.end(), &c) - alle.begin());
}

Form *Abschrift::form(std::uint64_t nummer) const {
    for (Form *f : p.Formen())
        if (f->Nummer == nummer) return f;
    return nullptr;
}

VisualControl *Abschrift::control(std::uint64_t wo, int nummer) const {
    const Form *f = form(wo);
    if (!f || nummer < 0 || nummer >= static_cast<int>(f->Controls().size())) return nullptr;
    return dynamic_cast<VisualControl *>(f->Controls()[static_cast<std::size_t>(nummer)]);
}

const Stück *Abschrift::stück(const Control &c) const {
    const auto f = formen.find(c.form.Nummer);
    if (f == formen.end()) return nullptr;
    const auto s = f->second.stücke.find(nummer(c));
    return s == f->second.stücke.end() ? nullptr : &s->second.stück;
}

void Abschrift::folge() {
    const auto alle = p.Formen();
    std::erase_if(formen, [&](const auto &eintrag) {
        if (form(eintrag.first)) return false;
        bündel.nimm("weg", {{"form", json(eintrag.first)}});
        return true;
    });
    std::vector<std::uint64_t> neu;
    for (const Form *f : alle) {
        folgeForm(*f, formen[f->Nummer]);
        neu.push_back(f->Nummer);
    }
    if (neu != reihenfolge) {
        reihenfolge = std::move(neu);
        bündel.nimm("formfolge", {{"formen", json(reihenfolge)}});
    }
    folgeUmland();
}

/// Was rings um die Anzeige ist.
void Abschrift::folgeUmland() {
    const auto [szene, ton] = umland(p);
    const bool füllt = szene && 2 * szene->Width > p.Screen().Width;
    Merkmale neu{{"ton", json(ton)}, {"bild", bildort(p, füllt ? szene->Picture().Datei : "")}};
    if (neu == umgebung) return;
    umgebung = std::move(neu);
    bündel.nimm("umland", umgebung);
}

void Abschrift::folgeForm(const Form &f, Seitenform &seite) {
    const VisualControl *gezogen = p.eingabe.gezogen();
    if (gezogen && &gezogen->form != &f) gezogen = nullptr;
    if (seite.stand == f.Stand() + 1 && seite.gezogen == gezogen) return;
    seite.stand = f.Stand() + 1; // 0: noch nie gezeigt
    seite.gezogen = gezogen;
    Merkmale neu = merkmale(p, f);
    Merkmale anders = unterschied(seite.merkmale, neu);
    seite.merkmale = std::move(neu);
    if (!anders.empty()) {
        anders["form"] = json(f.Nummer);
        bündel.nimm("form", anders);
    }
    Zeichenliste liste = zeichenliste(f);
    if (gezogen) blendeVerdeckendes(liste, gezogen);
    std::vector<int> folge;
    for (Stück &s : liste) {
        s.hinweis = mitTaste(s.hinweis, f.Name, s.control->Name);
        folgeStück(f, seite, s);
        folge.push_back(nummer(*s.control));
    }
    if (folge == seite.reihenfolge) return;
    seite.reihenfolge = std::move(folge);
    bündel.nimm("stückfolge", {{"form", json(f.Nummer)}, {"stücke", json(seite.reihenfolge)}});
}

void Abschrift::folgeStück(const Form &f, Seitenform &seite, const Stück &s) {
    const auto *c = dynamic_cast<const VisualControl *>(s.control);
    const Benennung name = c && s.sichtbar ? benenne(p, *c) : Benennung{};
    const int n = nummer(*s.control);
    auto [hier, frisch] = seite.stücke.try_emplace(n);
    Seitenstück &alt = hier->second;
    // Was in einem Feld steht, weiß das Stück nicht.
    if (!frisch && s.sorte != Sorte::Bedienelement && alt.stück == s && alt.name == name) return;
    alt.stück = s;
    alt.name = name;
    Merkmale neu = merkmale(p, s, name);
    Merkmale anders = unterschied(alt.merkmale, neu);
    alt.merkmale = std::move(neu);
    if (anders.empty()) return;
    anders["form"] = json(f.Nummer);
    anders["stück"] = json(n);
    bündel.nimm("stück", anders);
}

} // namespace velmo
