#include "surface/Fokus.h"

#include "include/Programm.h"
#include "model/Eingangstafel.h"
#include "surface/Tastentafel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace velmo {

namespace {

constexpr Punkt Draußen{-1e6, -1e6}; // Twips: dort liegt nichts

/// Was das System selbst bedient: es nimmt seine Tasten allein.
bool vomSystem(const VisualControl &c) {
    return dynamic_cast<const TextBox *>(&c) || dynamic_cast<const Listenelement *>(&c) ||
           dynamic_cast<const VScrollBar *>(&c);
}

/// Ein Bildfeld, das den größten Teil der Form einnimmt, ist ihr Grund und nichts zum Drücken.
bool istGrund(const VisualControl &c) {
    return dynamic_cast<const PictureBox *>(&c) && c.Width * c.Height * 2 > c.form.Width * c.form.Height;
}

bool istStelle(const VisualControl &c) { return vomSystem(c) || (Eingabe::bewirktEtwas(c) && !istGrund(c)); }

/// Sammelt, wofür die Frage gilt; was in einem solchen liegt, gehört zu ihm.
template <class Frage>
void sammle(const std::vector<VisualControl *> &kinder, std::vector<VisualControl *> &alle, const Frage &gilt) {
    for (VisualControl *c : kinder) {
        if (gilt(*c))
            alle.push_back(c);
        else if (const auto *feld = dynamic_cast<const PictureBox *>(c))
            sammle(feld->Kinder, alle, gilt);
    }
}

struct Platz {
    double links, oben, rechts, unten;
    double mitteX() const { return (links + rechts) / 2; }
    double mitteY() const { return (oben + unten) / 2; }
};

/// Der Platz auf der Anzeige, soweit er zu sehen ist.
Platz platz(const VisualControl &c) {
    const Punkt ecke = Eingabe::ort(c);
    const Bildschirm schirm = c.form.laufzeit.Screen();
    return {std::max(0.0, ecke.x), std::max(0.0, ecke.y), std::min(schirm.Width, ecke.x + c.Width),
            std::min(schirm.Height, ecke.y + c.Height)};
}

/// Zeilen von oben nach unten, in jeder von links nach rechts. In eine Zeile gehört, was über der Mitte ihres Ersten
/// beginnt.
void ordne(std::vector<VisualControl *> &alle) {
    const auto höher = [](const VisualControl *a, const VisualControl *b) { return platz(*a).oben < platz(*b).oben; };
    const auto weiterLinks = [](const VisualControl *a, const VisualControl *b) {
        return platz(*a).links < platz(*b).links;
    };
    std::stable_sort(alle.begin(), alle.end(), höher);
    for (auto zeile = alle.begin(); zeile != alle.end();) {
        const VisualControl *erster = *zeile;
        const auto ende =
            std::stable_partition(zeile, alle.end(), [erster, mitte = platz(*erster).mitteY()](const VisualControl *c) {
                return c == erster || platz(*c).oben < mitte;
            });
        std::stable_sort(zeile, ende, weiterLinks);
        zeile = ende;
    }
}

/// Auf einem Platz, den schon ein Eingang hat, ist nichts abzulegen.
bool vergebenerPlatz(const Spielzustand &z, const VisualControl &c) {
    return std::ranges::any_of(Eingangsplätze, [&](const Eingangsplatz &e) {
        return c.Name == std::string_view(e.Control) && z.Eingang[e.Nummer];
    });
}

/// Wie weit es in der Richtung von a nach b ist; quer zählt mehr. Unendlich, wenn b dort nicht liegt.
double abstand(const Platz &a, const Platz &b, Richtung r) {
    const bool waagrecht = r == Richtung::Links || r == Richtung::Rechts;
    const double vor = r == Richtung::Rechts || r == Richtung::Ab ? 1 : -1;
    const double dx = b.mitteX() - a.mitteX(), dy = b.mitteY() - a.mitteY();
    const double längs = (waagrecht ? dx : dy) * vor;
    const auto lücke = [](double a1, double a2, double b1, double b2) { return std::max({0.0, b1 - a2, a1 - b2}); };
    const double quer =
        waagrecht ? lücke(a.oben, a.unten, b.oben, b.unten) : lücke(a.links, a.rechts, b.links, b.rechts);
    if (längs <= 0 || quer > längs * 2) return std::numeric_limits<double>::infinity();
    return längs + 2 * quer + std::abs(waagrecht ? dy : dx) / 4;
}

const Formtasten *tasten(const Form &form) {
    const auto hier = std::ranges::find(Formtastentafel, Formularname(form.Name), &Formtasten::Form);
    return hier == Formtastentafel.end() ? nullptr : &*hier;
}

VisualControl *benanntes(const Form &form, const char *name) {
    return dynamic_cast<VisualControl *>(form.control(name));
}

} // namespace

Fokus::Fokus(Programm &p, Bearbeiter bearbeite) : p(p), bearbeite(std::move(bearbeite)) {}

bool Fokus::erreichbar(const VisualControl &c) const { return p.eingabe.druckort(c).has_value(); }

/// Figur und Blase stehen neben dem Spiel: nur eine Frage in ihnen geht vor.
Form *Fokus::form() const {
    const auto formen = p.Formen();
    const auto fragt = [&](const Form *f) {
        return f->Visible() && f->Enabled() && f->region() &&
               std::ranges::any_of(f->Kinder, [&](const VisualControl *c) {
                   return dynamic_cast<const CommandButton *>(c) && erreichbar(*c);
               });
    };
    const auto spielt = [](const Form *f) { return f->Visible() && f->Enabled() && !f->region(); };
    if (const auto f = std::find_if(formen.rbegin(), formen.rend(), fragt); f != formen.rend()) return *f;
    const auto f = std::find_if(formen.rbegin(), formen.rend(), spielt);
    return f == formen.rend() ? nullptr : *f;
}

/// Alle Stellen in Lesefolge, auch die gerade nicht zu erreichen sind.
std::vector<VisualControl *> Fokus::stellen() const {
    std::vector<VisualControl *> alle;
    const Form *vorn = form();
    if (!vorn) return alle;
    const auto nimm = [&](const Form &f) {
        std::vector<VisualControl *> hier;
        if (p.eingabe.gezogen())
            sammle(f.Kinder, hier, [&](const VisualControl &c) {
                return p.eingabe.ablageort(c).has_value() && !vergebenerPlatz(p.Zustand, c);
            });
        else
            sammle(f.Kinder, hier, istStelle);
        ordne(hier);
        alle.insert(alle.end(), hier.begin(), hier.end());
    };
    nimm(*vorn);
    for (const Form *f : p.Formen())
        if (f != vorn && f->region() && f->Visible() && f->Enabled()) nimm(*f);
    return alle;
}

std::vector<VisualControl *> Fokus::reihe() const {
    std::vector<VisualControl *> alle = stellen();
    if (!p.eingabe.gezogen()) std::erase_if(alle, [&](const VisualControl *c) { return !erreichbar(*c); });
    return alle;
}

VisualControl *Fokus::stelle() const {
    if (p.eingabe.gezogen()) return ablage;
    const Form *vorn = form();
    const auto hier = vorn ? zuletzt.find(vorn->Nummer) : zuletzt.end();
    return hier == zuletzt.end() ? nullptr : hier->second;
}

VisualControl *Fokus::control() const {
    VisualControl *c = stelle();
    if (!c) return nullptr;
    if (p.eingabe.gezogen()) return p.eingabe.ablageort(*c) ? c : nullptr;
    if (erreichbar(*c)) return c;
    // Was sich beim Überfahren genau davorlegt, steht für es.
    const Platz hier = platz(*c);
    VisualControl *davor = p.eingabe.trifft({hier.mitteX(), hier.mitteY()}).control;
    const bool ebenda =
        davor && std::hypot(platz(*davor).mitteX() - hier.mitteX(), platz(*davor).mitteY() - hier.mitteY()) < 24;
    return ebenda && istStelle(*davor) && davor->Width == c->Width ? davor : nullptr;
}

void Fokus::setzeSichtbar(bool neu) {
    if (zeigt == neu) return;
    zeigt = neu;
    meldeWechsel();
}

void Fokus::merke(VisualControl &c) {
    const bool zieht = p.eingabe.gezogen() != nullptr;
    if (zieht)
        ablage = &c;
    else if (const Form *vorn = form())
        zuletzt[vorn->Nummer] = &c;
    // Wohin der Fokus kommt, dorthin kommt auch der Zeiger des Spiels.
    const auto wo = zieht ? p.eingabe.ablageort(c) : p.eingabe.druckort(c);
    if (wo && (zeigt || zieht)) bearbeite([&] { p.eingabe.bewege(*wo); });
    meldeWechsel();
}

bool Fokus::setze(VisualControl &c) {
    const auto alle = reihe();
    if (std::ranges::find(alle, &c) == alle.end()) return false;
    if (stelle() != &c) merke(c);
    return true;
}

/// Nach der Maus zeigt der erste Schritt nur, wo der Fokus steht.
bool Fokus::zeigeErst() {
    VisualControl *c = control();
    if (zeigt || !c || vomSystem(*c)) {
        zeigt = true;
        return false;
    }
    zeigt = true;
    merke(*c);
    return true;
}

void Fokus::weiter(bool vorwärts) {
    if (zeigeErst()) return;
    const std::vector<VisualControl *> alle = stellen();
    if (alle.empty()) return meldeWechsel();
    const auto n = alle.size();
    const auto da = static_cast<std::size_t>(std::ranges::find(alle, stelle()) - alle.begin());
    const bool zieht = p.eingabe.gezogen() != nullptr;
    for (std::size_t schritt = 1; schritt <= n; ++schritt) {
        const std::size_t i =
            da == n ? (vorwärts ? schritt - 1 : n - schritt) : (vorwärts ? da + schritt : da + n - schritt) % n;
        if (zieht || erreichbar(*alle[i])) return merke(*alle[i]);
    }
    meldeWechsel();
}

bool Fokus::nachbar(Richtung r) {
    if (zeigeErst()) return true;
    VisualControl *von = stelle();
    if (!von) {
        weiter(true);
        return true;
    }
    const auto alle = reihe();
    const auto weite = [&, hier = platz(*von)](const VisualControl *c) {
        return c == von ? std::numeric_limits<double>::infinity() : abstand(hier, platz(*c), r);
    };
    const auto nächster =
        std::min_element(alle.begin(), alle.end(), [&](const auto *a, const auto *b) { return weite(a) < weite(b); });
    if (nächster == alle.end() || std::isinf(weite(*nächster))) {
        meldeWechsel();
        return false;
    }
    merke(**nächster);
    return true;
}

/// Der Druck an einer Stelle; was sich ziehen lässt, hängt danach am Zeiger und schwebt über der nächsten Ablage.
bool Fokus::druckAn(VisualControl &c) {
    const auto wo = p.eingabe.druckort(c);
    if (!wo || vomSystem(c)) return false;
    const Platz von = platz(c);
    bearbeite([&] {
        p.eingabe.gibFrei();
        p.eingabe.bewege(*wo);
        p.eingabe.drücke(Maustaste::Links, *wo);
    });
    haltort = *wo;
    if (!p.eingabe.gezogen()) return true;
    ablage = nullptr;
    const auto ziele = reihe();
    const auto weite = [&von](const VisualControl *z) {
        return std::hypot(platz(*z).mitteX() - von.mitteX(), platz(*z).mitteY() - von.mitteY());
    };
    const auto nah =
        std::min_element(ziele.begin(), ziele.end(), [&](const auto *a, const auto *b) { return weite(a) < weite(b); });
    if (nah != ziele.end()) merke(**nah);
    return true;
}

/// Legt ab, was am Zeiger hängt: auf der Ablage, ohne sie daneben.
void Fokus::legeAb(const VisualControl *auf) {
    const auto wo = auf ? p.eingabe.ablageort(*auf) : std::nullopt;
    ablage = nullptr;
    bearbeite([&, ort = wo.value_or(Draußen)] {
        p.eingabe.bewege(ort);
        p.eingabe.löse(Maustaste::Links, ort);
    });
    meldeWechsel();
}

bool Fokus::drücke() {
    zeigt = true;
    VisualControl *c = control();
    if (!c || gehaltenes) {
        meldeWechsel();
        return false;
    }
    if (p.eingabe.gezogen()) {
        legeAb(c);
        return true;
    }
    if (c->DblClick && !c->Click) {
        if (const auto wo = p.eingabe.druckort(*c)) bearbeite([&] { p.eingabe.doppelklick(*wo); });
        return true;
    }
    gehaltenes = c;
    if (!druckAn(*c) || p.eingabe.gezogen()) gehaltenes = nullptr;
    meldeWechsel();
    return true;
}

void Fokus::lass() {
    if (!std::exchange(gehaltenes, nullptr)) return;
    meldeWechsel();
    bearbeite([&, ort = haltort] { p.eingabe.löse(Maustaste::Links, ort); });
}

void Fokus::verliere() {
    if (!std::exchange(gehaltenes, nullptr)) return;
    bearbeite([&] { p.eingabe.löse(Maustaste::Links, Draußen); });
    meldeWechsel();
}

bool Fokus::löseAus(VisualControl &c) {
    if (p.eingabe.gezogen()) {
        if (!p.eingabe.ablageort(c)) return false;
        legeAb(&c);
        return true;
    }
    verliere();
    if (!druckAn(c)) return false;
    if (!p.eingabe.gezogen()) bearbeite([&, ort = haltort] { p.eingabe.löse(Maustaste::Links, ort); });
    return true;
}

bool Fokus::brichAb() {
    if (p.eingabe.gezogen()) {
        legeAb(nullptr);
        return true;
    }
    const Form *vorn = form();
    const Formtasten *t = vorn ? tasten(*vorn) : nullptr;
    VisualControl *knopf = t ? benanntes(*vorn, t->Abbruch) : nullptr;
    return knopf && löseAus(*knopf);
}

void Fokus::beiWechsel(std::function<void()> ruf) { empfänger.push_back(std::move(ruf)); }

void Fokus::meldeWechsel() {
    for (const auto &ruf : empfänger)
        ruf();
}

/// Wo der Fokus einer Form beginnt.
VisualControl *Fokus::anfang(const Form &vorn) const {
    const auto alle = reihe();
    const auto aufIhr = [&](const VisualControl *c) { return &c->form == &vorn; };
    if (const Formtasten *t = tasten(vorn)) {
        VisualControl *c = benanntes(vorn, t->Anfang);
        if (c && std::ranges::find(alle, c) != alle.end()) return c;
    }
    const auto erstes = std::ranges::find_if(alle, aufIhr);
    return erstes == alle.end() ? nullptr : *erstes;
}

/// Was es nicht mehr gibt, hat keinen Fokus.
void Fokus::vergissEntladenes() {
    const auto formen = p.Formen();
    const auto lebt = [&](const VisualControl *c) {
        return std::ranges::any_of(formen, [&](const Form *f) {
            return std::ranges::find(f->Controls(), static_cast<const Control *>(c)) != f->Controls().end();
        });
    };
    std::erase_if(zuletzt, [&](const auto &eintrag) { return !lebt(eintrag.second); });
    if (gehaltenes && !lebt(gehaltenes)) gehaltenes = nullptr;
    if (!p.eingabe.gezogen() || (ablage && !lebt(ablage))) ablage = nullptr;
}

void Fokus::folge() {
    vergissEntladenes();
    const Form *vorn = form();
    if (vorn && !zuletzt.contains(vorn->Nummer))
        if (VisualControl *c = anfang(*vorn)) zuletzt[vorn->Nummer] = c;
    const Stand neu{vorn ? vorn->Nummer : 0, control()};
    if (neu == stand) return;
    stand = neu;
    meldeWechsel();
}

} // namespace velmo
