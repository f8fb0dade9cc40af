#include "window/Vorleser.h"

#include "include/Formulare.h"
#include "window/Fenster.h"
#include "window/Schrift.h"
#include "window/Sprecher.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace velmo {

namespace {

using Uhr = std::chrono::steady_clock;

constexpr auto Flackern = std::chrono::milliseconds(500); // so kurz verborgen, hat niemand es verschwinden sehen

} // namespace

Vorleser::Vorleser(Fenster &f, Umgebung &u) : f(f), u(u) {
    QAccessible::installFactory(sprecherFür);
    f.fokus().beiWechsel([this] { meldeFokus(); });
    // Qt nennt das Fenster, wenn es die Tasten bekommt; gemeint ist, was darin den Fokus hat.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        fokus = nullptr;
        QTimer::singleShot(0, this, [this] { meldeFokus(); });
    });
}

Vorleser::~Vorleser() {
    for (auto &[nummer, ansicht] : ansichten)
        for (const auto &[c, id] : ansicht.objekte)
            QAccessible::deleteAccessibleInterface(id);
}

std::vector<Form *> Vorleser::formen() const {
    std::vector<Form *> alle = lesbareFormen(u.p);
    std::erase_if(alle, [&](const Form *form) { return !f.fläche(*form); });
    return alle;
}

Form *Vorleser::form(const Formfläche &fläche) const {
    for (Form *form : u.p.Formen())
        if (f.fläche(*form) == &fläche) return form;
    return nullptr;
}

Form *Vorleser::form(std::uint64_t nummer) const {
    for (Form *form : u.p.Formen())
        if (form->Nummer == nummer) return form;
    return nullptr;
}

std::vector<Vorleser::Element> Vorleser::sammle(const Form &form) {
    std::vector<Element> alle = lesefolge(u.p, form, satz);
    std::erase_if(alle,
                  [&](const Element &e) { return e.b.rolle == Rolle::Feld && !f.fläche(form)->feld(*e.control); });
    return alle;
}

const std::vector<Vorleser::Element> &Vorleser::elemente(const Form &form) {
    Ansicht &a = ansichten[form.Nummer];
    if (a.stand == form.Stand() + 1) return a.elemente;
    a.elemente = sammle(form);
    a.stand = form.Stand() + 1; // 0: noch nie
    return a.elemente;
}

const Vorleser::Element *Vorleser::element(std::uint64_t nummer, const VisualControl *c) {
    for (const Form *form : formen()) {
        if (form->Nummer != nummer) continue;
        const auto &alle = elemente(*form);
        const auto hier = std::ranges::find(alle, c, &Element::control);
        return hier == alle.end() ? nullptr : &*hier;
    }
    return nullptr;
}

std::vector<const Vorleser::Element *> Vorleser::kinder(const Form &form, const VisualControl *gruppe) {
    std::vector<const Element *> alle;
    for (const Element &e : elemente(form))
        if (e.gruppe == gruppe) alle.push_back(&e);
    return alle;
}

QAccessibleInterface *Vorleser::objekt(const Form &form) {
    return QAccessible::queryAccessibleInterface(f.fläche(form));
}

QAccessibleInterface *Vorleser::objekt(const Element &e) {
    if (e.b.rolle == Rolle::Feld)
        return QAccessible::queryAccessibleInterface(f.fläche(e.control->form)->feld(*e.control));
    const std::uint64_t nummer = e.control->form.Nummer;
    auto [hier, neu] = ansichten[nummer].objekte.try_emplace(e.control);
    if (neu) hier->second = QAccessible::registerAccessibleInterface(neuerSprecher(*this, nummer, e.control));
    return QAccessible::accessibleInterface(hier->second);
}

QRect Vorleser::ort(const VisualControl &c) const {
    const Formfläche *fläche = f.fläche(c.form);
    if (!fläche) return {};
    const Punkt ecke = Eingabe::ort(c);
    const double je = f.vergrößerung() / 12;
    const QRectF r(ecke.x * je, ecke.y * je, c.Width * je, c.Height * je);
    return r.toRect().translated(fläche->parentWidget()->mapToGlobal(QPoint()));
}

bool Vorleser::hatFokus(const VisualControl &c) const { return f.isActiveWindow() && f.fokus().control() == &c; }

bool Vorleser::kannFokus(const VisualControl &c) const {
    const auto reihe = f.fokus().reihe();
    return std::ranges::find(reihe, &c) != reihe.end();
}

void Vorleser::gibFokus(std::uint64_t nummer, VisualControl *c) {
    if (!element(nummer, c)) return;
    f.fokus().setze(*c);
    f.fokus().setzeSichtbar(true);
}

/// Tut es, wenn die Schleife wieder Eingaben nimmt: während etwas gleitet oder fährt, später.
void Vorleser::sobaldFrei(std::function<void()> tat, int ms) {
    constexpr int Geduld = 20; // ms
    QTimer::singleShot(ms, this, [this, tat = std::move(tat)] {
        bool frei = false;
        u.bearbeite([&] { frei = true; });
        frei ? tat() : sobaldFrei(tat, Geduld);
    });
}

void Vorleser::löseAus(std::uint64_t nummer, VisualControl *c) {
    sobaldFrei([this, nummer, c] {
        if (!element(nummer, c)) return;
        if (c->DragDrop && !c->Click && !u.p.eingabe.gezogen()) {
            auto *quelle = dynamic_cast<VisualControl *>(c->form.control("Imagee"));
            if (!quelle || !f.fokus().löseAus(*quelle)) return;
        }
        f.fokus().löseAus(*c);
    });
}

void Vorleser::löseAus(std::uint64_t nummer) {
    sobaldFrei([this, nummer] {
        const Form *ziel = form(nummer);
        if (!ziel) return;
        const Punkt mitte{ziel->Left + ziel->Width / 2, ziel->Top + ziel->Height / 2};
        u.bearbeite([&] {
            u.p.eingabe.drücke(Maustaste::Links, mitte);
            u.p.eingabe.löse(Maustaste::Links, mitte);
        });
    });
}

void Vorleser::wähle(std::uint64_t nummer, VisualControl *liste, int zeile) {
    sobaldFrei([this, nummer, liste, zeile] {
        if (!element(nummer, liste)) return;
        u.bearbeite([&] { u.p.eingabe.wähle(static_cast<Listenelement &>(*liste), zeile); });
    });
}

void Vorleser::folge() {
    vergissEntladenes();
    if (!QAccessible::isActive()) return;
    meldeFormen();
    const auto alle = formen();
    for (auto &[nummer, ansicht] : ansichten)
        if (std::ranges::none_of(alle, [n = nummer](const Form *form) { return form->Nummer == n; }))
            if (const Form *verborgen = form(nummer)) melde(*verborgen, ansicht);
    for (const Form *form : alle)
        melde(*form, ansichten[form->Nummer]);
    meldeFokus();
}

void Vorleser::vergissEntladenes() {
    std::erase_if(ansichten, [&](auto &eintrag) {
        if (form(eintrag.first)) return false;
        for (const auto &[c, id] : eintrag.second.objekte)
            QAccessible::deleteAccessibleInterface(id);
        return true;
    });
}

void Vorleser::meldeFormen() {
    std::vector<std::uint64_t> neue;
    for (const Form *form : formen()) {
        neue.push_back(form->Nummer);
        if (std::ranges::find(gezeigte, form->Nummer) != gezeigte.end()) continue;
        QAccessibleEvent e(objekt(*form), QAccessible::ObjectCreated);
        QAccessible::updateAccessibility(&e);
    }
    for (const std::uint64_t alte : gezeigte)
        if (const Form *form = this->form(alte); form && std::ranges::find(neue, alte) == neue.end()) {
            QAccessibleEvent e(objekt(*form), QAccessible::ObjectDestroyed);
            QAccessible::updateAccessibility(&e);
        }
    gezeigte = std::move(neue);
}

/// Neue und verschwundene Elemente, neue Namen, Sperren; Ansagen werden verkündet.
void Vorleser::melde(const Form &form, Ansicht &a) {
    static const std::vector<Element> keine;
    const bool zuSehen = std::ranges::find(gezeigte, form.Nummer) != gezeigte.end();
    const std::vector<Element> &jetzt = zuSehen ? elemente(form) : keine;
    if (jetzt == a.gemeldete) return;
    const std::vector<Element> vorher = std::exchange(a.gemeldete, jetzt);
    const auto sende = [](QAccessibleInterface *o, QAccessible::Event was) {
        if (!o) return;
        QAccessibleEvent e(o, was);
        QAccessible::updateAccessibility(&e);
    };
    for (const Element &e : vorher)
        if (std::ranges::find(a.gemeldete, e.control, &Element::control) == a.gemeldete.end()) {
            if (e.b.rolle == Rolle::Ansage) verstummte[form.Name] = {e.b.name, Uhr::now()};
            sende(objekt(e), QAccessible::ObjectDestroyed);
        }
    for (const Element &e : jetzt) {
        const auto alt = std::ranges::find(vorher, e.control, &Element::control);
        const bool neu = alt == vorher.end();
        if (e.b.rolle == Rolle::Feld) f.fläche(form)->feld(*e.control)->setAccessibleName(text(e.b.name));
        if (neu) sende(objekt(e), QAccessible::ObjectCreated);
        if (!neu && alt->b.name != e.b.name && e.b.rolle != Rolle::Feld) sende(objekt(e), QAccessible::NameChanged);
        if (!neu && alt->b.beschreibung != e.b.beschreibung) sende(objekt(e), QAccessible::DescriptionChanged);
        if (!neu && alt->gesperrt != e.gesperrt && e.b.rolle != Rolle::Feld) {
            QAccessible::State was;
            was.disabled = true;
            QAccessibleStateChangeEvent zustand(objekt(e), was);
            QAccessible::updateAccessibility(&zustand);
        }
        // Nach der Antwort verschwinden die Knöpfe einer Frage: das ist kein neuer Satz.
        if (e.b.rolle == Rolle::Ansage && (neu ? !eben(e) : !alt->b.name.starts_with(e.b.name))) verkünde(e);
    }
}

/// War dieselbe Ansage eben noch zu sehen?
bool Vorleser::eben(const Element &e) const {
    const auto alt = verstummte.find(e.control->form.Name);
    return alt != verstummte.end() && alt->second.text == e.b.name && Uhr::now() - alt->second.seit < Flackern;
}

/// Was wie eine Nachricht erscheint, lesen Vorleseprogramme von selbst vor.
void Vorleser::verkünde(const Element &e) {
    QAccessibleEvent nachricht(objekt(e), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&nachricht);
}

void Vorleser::meldeFokus() {
    if (!QAccessible::isActive()) return;
    const VisualControl *neu = f.isActiveWindow() ? f.fokus().control() : nullptr;
    if (neu == fokus) return;
    fokus = neu;
    const Element *e = neu ? element(neu->form.Nummer, neu) : nullptr;
    if (!e || e->b.rolle == Rolle::Feld) return; // die Felder melden sich selbst
    QAccessibleEvent ereignis(objekt(*e), QAccessible::Focus);
    QAccessible::updateAccessibility(&ereignis);
}

} // namespace velmo
