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

int Abschrift::nummer(const Stück &s) {
    const int n = nummer(*s.control);
    return s.sorte == Sorte::Schatten ? -1 - n : n;
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
    std::vector<std::uint64_t> gelesen;
    for (const Form *f : lesbareFormen(p))
        gelesen.push_back(f->Nummer);
    if (Merkmale neu{{"formen", json(gelesen)}}; neu != lesbare) {
        lesbare = std::move(neu);
        bündel.nimm("lesbare", lesbare);
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
    const auto namen = folgeLesefolge(f, seite);
    for (Stück &s : liste) {
        s.hinweis = mitTaste(s.hinweis, f.Name, s.control->Name);
        const auto name = s.sorte == Sorte::Schatten ? namen.end() : namen.find(s.control);
        folgeStück(f, seite, s, name == namen.end() ? Benennung{} : name->second);
        folge.push_back(nummer(s));
    }
    if (folge == seite.reihenfolge) return;
    seite.reihenfolge = std::move(folge);
    bündel.nimm("stückfolge", {{"form", json(f.Nummer)}, {"stücke", json(seite.reihenfolge)}});
}

/// Meldet, in welcher Folge vorgelesen wird; gibt, wie was heißt.
std::map<const Control *, Benennung> Abschrift::folgeLesefolge(const Form &f, Seitenform &seite) {
    std::map<const Control *, Benennung> namen;
    std::string stellen = "[";
    for (const Lesestelle &e : lesefolge(p, f, satz)) {
        namen[e.control] = e.b;
        stellen += (stellen.size() > 1 ? ",[" : "[") + json(nummer(*e.control)) + "," +
                   (e.gruppe ? json(nummer(*e.gruppe)) : "null") + "]";
    }
    Merkmale neu{{"form", json(f.Nummer)}, {"stellen", stellen + "]"}};
    if (neu != seite.lesefolge) {
        seite.lesefolge = std::move(neu);
        bündel.nimm("lesefolge", seite.lesefolge);
    }
    return namen;
}

void Abschrift::folgeStück(const Form &f, Seitenform &seite, const Stück &s, const Benennung &name) {
    const int n = nummer(s);
    auto [hier, frisch] = seite.stücke.try_emplace(n);
    Seitenstück &alt = hier->second;
    // Was in einem Feld steht, weiß das Stück nicht.
    if (!frisch && s.sorte != Sorte::Bedienelement && alt.stück == s && alt.name == name) return;
    if (!frisch && !ruhig) bewege(alt, s);
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

/// Was sich beim Ansehen bewegt: ein Würfel rollt auf sein neues Bild, um ein steigendes Haus wirbelt Staub.
void Abschrift::bewege(Seitenstück &alt, const Stück &neu) {
    if (neu.gebaren == Gebaren::Purzelt && alt.stück.sichtbar && neu.sichtbar && alt.stück.bild != neu.bild) {
        alt.wurf = wurfdrehung(static_cast<double>(p.oberfläche.jetzt()), alt.wurf);
        const auto lauf = [&](double anteil) { return wurf(anteil, alt.wurf); };
        bündel.nimm("schwung", schwung(p, neu, Wurfzeit, lauf));
    }
    if (neu.sorte == Sorte::Bild && (neu.wächst || alt.stück.wächst)) stäube(alt, neu);
}

void Abschrift::stäube(Seitenstück &alt, const Stück &neu) {
    const Zeit nun = p.oberfläche.jetzt();
    if (neu.wächst && neu.sichtbar && !(alt.stück.wächst && alt.stück.sichtbar)) {
        alt.staubt = nun;
        alt.wölkchen = -1;
    }
    if (alt.staubt < 0) return;
    const int letztes = static_cast<int>(static_cast<double>(nun - alt.staubt) / Wölkchenabstand);
    while (alt.wölkchen < letztes)
        bündel.nimm("wölkchen", wolke(neu, ++alt.wölkchen));
    if (!neu.wächst) alt.staubt = -1;
}

} // namespace velmo
