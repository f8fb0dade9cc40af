#include "browser/Merkmale.h"

#include "browser/Abschrift.h"
#include "surface/Malplatz.h"
#include "surface/Schrifttafel.h"
#include "surface/Textseite.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace velmo {

namespace {

constexpr const char *Sortennamen[] = {"Schatten", "Beschriftung", "Bild",  "Bildfeld", "Rahmen",
                                       "Linie",    "Film",         "Knopf", "Feld"};
constexpr const char *Rollennamen[] = {"", "Text", "Ansage", "Bild", "Gruppe", "Knopf", "Feld"};

template <class E> constexpr std::size_t stelle(E e) { return static_cast<std::size_t>(e); }

/// Ein Teil einer Region als Pfad; alle laufen in derselben Richtung um, damit sie sich vereinigen.
struct AlsPfad {
    std::string operator()(const Ellipse &e) const {
        return bogen(e.links, e.oben, e.rechts, e.unten, (e.rechts - e.links) / 2.0, (e.unten - e.oben) / 2.0);
    }
    std::string operator()(const GerundetesRechteck &r) const {
        return bogen(r.links, r.oben, r.rechts, r.unten, r.eckenbreite / 2.0, r.eckenhöhe / 2.0);
    }
    std::string operator()(const Vieleck &v) const {
        double fläche = 0;
        for (std::size_t i = 0, j = v.ecken.size() - 1; i < v.ecken.size(); j = i++)
            fläche += double(v.ecken[j].x) * v.ecken[i].y - double(v.ecken[i].x) * v.ecken[j].y;
        std::string pfad;
        const auto ecke = [&](const Regionspunkt &e) { pfad += (pfad.empty() ? "M" : "L") + paar(e.x, e.y); };
        if (fläche > 0)
            for (auto e = v.ecken.begin(); e != v.ecken.end(); ++e)
                ecke(*e);
        else
            for (auto e = v.ecken.rbegin(); e != v.ecken.rend(); ++e)
                ecke(*e);
        return pfad + "Z";
    }

  private:
    static std::string paar(double x, double y) { return Zahltext(x) + " " + Zahltext(y) + " "; }
    static std::string bogen(double l, double o, double r, double u, double rx, double ry) {
        const std::string a = "A" + paar(rx, ry) + "0 0 1 ";
        return "M" + paar(l, o + ry) + a + paar(l + rx, o) + "L" + paar(r - rx, o) + a + paar(r, o + ry) + "L" +
               paar(r, u - ry) + a + paar(r - rx, u) + "L" + paar(l + rx, u) + a + paar(l, u - ry) + "Z";
    }
};

std::string pfad(const Region &region) {
    std::string text;
    for (const Region::Teil &teil : region.Teile())
        text += std::visit(AlsPfad{}, teil);
    return text;
}

/// Rechtecke, in eine Form gezeichnet: je Left, Top, Width, Height, Farbe.
std::string zeichnung(const Form &form) {
    std::string text = "[";
    for (const auto &[r, farbe] : *form.Zeichnung())
        text += (text.size() > 1 ? ",[" : "[") + json(r) + "," + json(farbe) + "]";
    return text + "]";
}

void nimmSchrift(Merkmale &m, const Stück &s) {
    const Schriftzeile &z = schriftzeile(s.schriftart);
    m["schrift"] = json(z.hier);
    m["grad"] = json(s.schriftgrad * PunkteJeGrad * z.grad);
    m["stärke"] = json(s.fett || s.erhaben ? z.fett : z.normal);
    m["farbe"] = json(s.farbe);
    m["text"] = json(s.text);
}

/// Je Zeile: ihr Text, Abstand darüber, Einzug, Größe, Farbe.
std::string absätze(const std::string &text) {
    std::string alle = "[";
    for (std::size_t von = 0; von <= text.size();) {
        const std::size_t bis = std::min(text.find('\n', von), text.size());
        const std::string zeile = text.substr(von, bis - von);
        const Zeilensatz &s = zeilensatz(zeile);
        alle += (von ? ",[" : "[") + json(zeile) + "," + json(s.darüber) + "," + json(s.links) + "," + json(s.groß) +
                "," + json(s.farbe) + "]";
        von = bis + 1;
    }
    return alle + "]";
}

void nimmFeld(Merkmale &m, const Control &c) {
    if (const auto *e = dynamic_cast<const Schriftelement *>(&c)) {
        const Schriftzeile &z = schriftzeile(e->FontName());
        m["schrift"] = json(z.hier);
        m["grad"] = json(e->FontSize * e->Schriftmaß * PunkteJeGrad * z.grad);
        m["stärke"] = json(e->FontBold ? z.fett : z.normal);
    }
    if (const auto *t = dynamic_cast<const TextBox *>(&c)) {
        m["feld"] = json(t->MultiLine ? "Textfläche" : "Textfeld");
        m["text"] = json(t->Text());
        if (t->MultiLine) {
            m["absätze"] = absätze(t->Text);
            m["schleier"] = json(Schleier);
        }
    } else if (const auto *l = dynamic_cast<const Listenelement *>(&c)) {
        m["feld"] = json(dynamic_cast<const ComboBox *>(l) ? "Auswahl" : "Liste");
        m["zeilen"] = json(l->Zeilen());
        m["zeile"] = json(l->ListIndex());
        m["doppelt"] = json(bool(l->DblClick));
    } else if (const auto *r = dynamic_cast<const VScrollBar *>(&c)) {
        m["feld"] = json("Rollbalken");
        m["wert"] = json(r->Value());
    }
}

/// Was nur die eine Sorte hat.
void nimmEigenes(Merkmale &m, const Programm &p, const Stück &s) {
    switch (s.sorte) {
    case Sorte::Schatten:
        m["bild"] = bildort(p, s.bild);
        m["deckung"] = json(schattenkraft(s));
        break;
    case Sorte::Beschriftung:
        nimmSchrift(m, s);
        m["lage"] = json(static_cast<int>(stelle(s.ausrichtung)));
        m["mittig"] = json(s.mittig);
        if (s.deckend) m["grund"] = json(s.grund);
        if (s.liste)
            m["liste"] = json(
                std::vector<double>{double(s.liste->Zeilen), double(s.liste->Rang), double(s.liste->Hervorgehoben)});
        break;
    case Sorte::Bild:
        m["bild"] = bildort(p, s.bild);
        m["rand"] = json(s.rand);
        if (s.wächst) m["voll"] = json(bildplatz(s));
        m["deckung"] = json(s.deckung);
        m["schein"] = s.schein ? json(*s.schein) : "null";
        m["drehung"] = json(s.drehung);
        m["schwebt"] = json(s.gebaren == Gebaren::Schwebt);
        break;
    case Sorte::Knopf:
        nimmSchrift(m, s);
        m["erhaben"] = json(s.erhaben);
        m["bild"] = bildort(p, s.bild);
        break;
    case Sorte::Bildfeld:
        m["bild"] = bildort(p, s.bild);
        m["rand"] = json(s.rand);
        break;
    case Sorte::Rahmen:
    case Sorte::Linie:
        m["farbe"] = json(s.farbe);
        m["rand"] = json(s.rand);
        m["gestalt"] = json(static_cast<int>(stelle(s.gestalt)));
        break;
    case Sorte::Film:
        break;
    case Sorte::Bedienelement:
        nimmFeld(m, *s.control);
        break;
    }
}

} // namespace

std::string bildort(const Programm &p, const std::string &datei) {
    return datei.empty() ? "null" : json(datei.substr(p.Ordner.size() + sizeof "/bilder"));
}

Merkmale merkmale(const Programm &p, const Form &form) {
    const Saum s = saum(form);
    const Formbenennung name = benenne(form);
    Merkmale m{
        {"name", json(form.Name)},          {"ort", json(Rechteck{form.Left, form.Top, form.Width, form.Height})},
        {"sichtbar", json(form.Visible())}, {"gesperrt", json(!form.Enabled())},
        {"farbe", json(form.BackColor())},  {"bild", bildort(p, form.Picture().Datei)},
        {"schatten", json(s.Schatten)},     {"saum", json(std::vector<double>{s.links, s.oben, s.rechts, s.unten})},
        {"heißt", json(name.Name)},         {"dialog", json(name.istDialog)}};
    if (form.region()) m["umriss"] = json(pfad(*form.region()));
    if (form.Zeichnung()) m["zeichnung"] = zeichnung(form);
    return m;
}

Merkmale merkmale(const Programm &p, const Stück &s, const Benennung &b) {
    Merkmale m{{"name", json(s.control->Name)},
               {"sorte", json(Sortennamen[stelle(s.sorte)])},
               {"ort", json(malplatz(s))},
               {"sichtbar", json(s.sichtbar)},
               {"gesperrt", json(s.gesperrt)},
               {"hinweis", json(s.hinweis)},
               {"rolle", json(Rollennamen[stelle(b.rolle)])},
               {"heißt", json(b.name)},
               {"dazu", json(b.beschreibung)},
               {"schatten", json(s.schatten)},
               {"taste", json(s.wieKnopf)},
               {"glanz", json(s.nurUnterZeiger)}};
    nimmEigenes(m, p, s);
    return m;
}

namespace {

constexpr int Haltungen = 12; // so viele nennt die Seite einer Bewegung; dazwischen gleitet sie

} // namespace

Merkmale schwung(const Programm &p, const Stück &s, double ms, const std::function<Haltung(double)> &lauf) {
    std::string alle = "[";
    for (int i = 0; i <= Haltungen; ++i) {
        const Haltung h = lauf(double(i) / Haltungen);
        alle += (i ? ",[" : "[") + json(h.versatz.x) + "," + json(h.versatz.y) + "," + json(h.drehung) + "," +
                json(h.breite * h.maß) + "," + json(h.maß) + "," + bildort(p, h.bild) + "]";
    }
    return {{"form", json(s.control->form.Nummer)},
            {"stück", json(Abschrift::nummer(s))},
            {"ms", json(ms)},
            {"haltungen", alle + "]"}};
}

Merkmale wolke(const Stück &s, int n) {
    std::string alle = "[";
    for (const double alter : {0.0, 0.1, 0.4, 1.0}) {
        const Wölkchen w = wölkchen(s, n, alter);
        alle += (alter > 0 ? ",[" : "[") + json(alter) + "," + json(w.mitte.x) + "," + json(w.mitte.y) + "," +
                json(w.größe) + "," + json(w.deckung) + "]";
    }
    return {{"form", json(s.control->form.Nummer)}, {"ms", json(Wölkchenzeit)}, {"stand", alle + "]"}};
}

} // namespace velmo
