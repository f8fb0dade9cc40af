#include "platform/Eingabe.h"

#include "platform/Laufzeit.h"

#include <algorithm>
#include <utility>

namespace velmo {

namespace {

bool darin(Punkt p, double links, double oben, double breite, double höhe) {
    return p.x >= links && p.x < links + breite && p.y >= oben && p.y < oben + höhe;
}

/// Das vorderste Element am Ort p (bezogen auf den Behälter), für das die Frage gilt; Fenster liegen über Gezeichnetem.
template <class Frage>
VisualControl *vorderstes(const std::vector<VisualControl *> &kinder, Punkt p, const Frage &frage) {
    for (const bool fenster : {true, false})
        for (auto hier = kinder.rbegin(); hier != kinder.rend(); ++hier) {
            VisualControl *const c = *hier;
            if (c->Fenster() != fenster || !c->Visible || !darin(p, c->Left, c->Top, c->Width, c->Height)) continue;
            if (auto *feld = dynamic_cast<PictureBox *>(c); feld && feld->Enabled)
                if (VisualControl *kind = vorderstes(feld->Kinder, {p.x - c->Left, p.y - c->Top}, frage)) return kind;
            if (frage(*c)) return c;
        }
    return nullptr;
}

bool nimmtMaus(const VisualControl &c) { return c.nimmtMaus() && c.Enabled; }
bool nimmtAblage(const VisualControl &c) { return c.DragDrop && c.Enabled; }

/// Die vorderste sichtbare Form, deren Region den Ort enthält.
Form *vordersteForm(const Laufzeit &laufzeit, Punkt p) {
    const Bildschirm schirm = laufzeit.Screen();
    const auto formen = laufzeit.Formen();
    for (auto hier = formen.rbegin(); hier != formen.rend(); ++hier) {
        Form *const f = *hier;
        if (!f->Visible || !darin(p, f->Left, f->Top, f->Width, f->Height)) continue;
        if (f->region() && !f->region()->enthält(alsGanz((p.x - f->Left) / schirm.TwipsPerPixelX),
                                                 alsGanz((p.y - f->Top) / schirm.TwipsPerPixelY)))
            continue;
        return f;
    }
    return nullptr;
}

/// Ein Ort auf dem Element und der Anzeige, an dem die Frage gilt: die Mitte, sonst der erste eines Gitters.
template <class Frage>
std::optional<Punkt> ortAuf(const Laufzeit &laufzeit, const VisualControl &c, const Frage &frage) {
    constexpr int Gitter = 9;
    const Bildschirm schirm = laufzeit.Screen();
    const auto gilt = [&](Punkt p) { return darin(p, 0, 0, schirm.Width, schirm.Height) && frage(p); };
    const Punkt ecke = Eingabe::ort(c), mitte{ecke.x + c.Width / 2, ecke.y + c.Height / 2};
    if (gilt(mitte)) return mitte;
    for (int zeile = 0; zeile < Gitter; ++zeile)
        for (int spalte = 0; spalte < Gitter; ++spalte) {
            const Punkt hier{ecke.x + c.Width * (spalte + 0.5) / Gitter, ecke.y + c.Height * (zeile + 0.5) / Gitter};
            if (gilt(hier)) return hier;
        }
    return std::nullopt;
}

Punkt aufForm(const Form &f, Punkt p) { return {p.x - f.Left, p.y - f.Top}; }

/// Ruft den Handler der Form oder des Elements mit dem Ort, bezogen auf das Getroffene.
template <class Ruf> void rufe(const Treffer &t, Punkt p, const Ruf &ruf) {
    if (!t.form) return;
    const Punkt ecke = t.control ? Eingabe::ort(*t.control) : Punkt{t.form->Left, t.form->Top};
    ruf(p.x - ecke.x, p.y - ecke.y);
}

} // namespace

Punkt Eingabe::ort(const VisualControl &c) {
    const Punkt eltern = c.behälter ? ort(*c.behälter) : Punkt{c.form.Left, c.form.Top};
    return {eltern.x + c.Left, eltern.y + c.Top};
}

Treffer Eingabe::trifft(Punkt p) const {
    Form *form = vordersteForm(laufzeit, p);
    if (!form || !form->Enabled) return {};
    return {form, vorderstes(form->Kinder, aufForm(*form, p), nimmtMaus)};
}

bool Eingabe::bewirktEtwas(const VisualControl &c) {
    return c.Click || c.DblClick || c.DragMode || (c.MouseDown && c.MouseUp);
}

std::optional<Punkt> Eingabe::druckort(const VisualControl &c) const {
    if (!kannBedienen(c)) return std::nullopt;
    return ortAuf(laufzeit, c, [&](Punkt p) { return trifft(p).control == &c; });
}

std::optional<Punkt> Eingabe::ablageort(const VisualControl &c) const {
    if (!kannBedienen(c) || !nimmtAblage(c)) return std::nullopt;
    return ortAuf(laufzeit, c, [&](Punkt p) { return ziel(p) == &c; });
}

void Eingabe::bewege(Punkt p) {
    letzterOrt = p;
    if (quelle) return ziehe(p);
    if (gezogeneForm) {
        gezogeneForm->Left = p.x - griff.x;
        gezogeneForm->Top = p.y - griff.y;
        return;
    }
    const Treffer t = gedrückt.form ? gedrückt : trifft(p);
    laufzeit.behandle([&] {
        rufe(t, p, [&](double X, double Y) {
            auto &handler = t.control ? t.control->MouseMove : t.form->MouseMove;
            if (handler) handler(X, Y);
        });
    });
}

void Eingabe::drücke(Maustaste taste, Punkt p) {
    letzterOrt = p;
    if ((gedrückt.form || quelle) && taste != haltende) return;
    haltende = taste;
    gedrückt = trifft(p);
    if (taste == Maustaste::Links && gedrückt.control && gedrückt.control->DragMode) {
        quelle = gedrückt.control;
        gedrückt = {};
        quelle->geändert();
        return;
    }
    laufzeit.behandle([&, t = gedrückt] {
        rufe(t, p, [&](double X, double Y) {
            auto &handler = t.control ? t.control->MouseDown : t.form->MouseDown;
            if (handler) handler(taste, X, Y);
        });
    });
}

void Eingabe::löse(Maustaste taste, Punkt p) {
    letzterOrt = p;
    if (taste != haltende) return;
    gezogeneForm = nullptr;
    if (quelle) {
        VisualControl *abgelegt = std::exchange(quelle, nullptr), *wo = std::exchange(überZiel, nullptr);
        abgelegt->geändert();
        if (wo) laufzeit.behandle([&] { wo->DragDrop(*abgelegt); });
        return;
    }
    // Der Druck hat die Maus gefangen: das Loslassen gehört dem Gedrückten, auch anderswo.
    const Treffer t = std::exchange(gedrückt, {});
    if (!t.form) return;
    laufzeit.behandle([&] {
        Form *const form = t.form;
        const Treffer jetzt = trifft(p);
        rufe(t, p, [&](double X, double Y) {
            auto &handler = t.control ? t.control->MouseUp : t.form->MouseUp;
            if (handler) handler(taste, X, Y);
        });
        if (taste != Maustaste::Links || !form->geladen || !form->Enabled) return;
        if (jetzt.form != t.form || jetzt.control != t.control) return;
        auto &klick = t.control ? t.control->Click : t.form->Click;
        if (klick && (!t.control || (t.control->Visible && t.control->Enabled))) klick();
    });
}

void Eingabe::gibFrei() {
    gedrückt = {};
    gezogeneForm = nullptr;
}

void Eingabe::doppelklick(Punkt p) {
    const Treffer t = trifft(p);
    if (t.control && t.control->DblClick) laufzeit.behandle(t.control->DblClick);
}

void Eingabe::taste(Form &form, const std::string &taste) {
    if (form.Visible && form.Enabled && form.KeyPress) laufzeit.behandle([&] { form.KeyPress(taste); });
}

bool Eingabe::kannBedienen(const VisualControl &c) const {
    for (const VisualControl *v = &c; v; v = v->behälter)
        if (!v->Visible || !v->Enabled) return false;
    return c.form.geladen && c.form.Visible && c.form.Enabled;
}

bool Eingabe::tippe(TextBox &feld, const std::string &text) {
    if (!kannBedienen(feld) || feld.MultiLine) return false;
    laufzeit.behandle([&] { feld.Text = text; });
    return true;
}

bool Eingabe::wähle(Listenelement &liste, int zeile) {
    if (!kannBedienen(liste) || zeile < 0 || zeile >= liste.ListCount()) return false;
    laufzeit.behandle([&] {
        liste.ListIndex = zeile;
        if (liste.Click) liste.Click();
    });
    return true;
}

bool Eingabe::rolle(VScrollBar &leiste, double wert) {
    if (!kannBedienen(leiste)) return false;
    laufzeit.behandle([&] { leiste.Value = wert; });
    return true;
}

void Eingabe::schließe(Form &form) {
    if (form.Visible && form.Enabled) laufzeit.behandle([&] { laufzeit.entlade(Formularname(form.Name)); });
}

void Eingabe::zieheForm(Form &form) {
    gezogeneForm = &form;
    griff = aufForm(form, letzterOrt);
}

/// Beim Ziehen zählt nur, was eine Ablage nimmt: ein Gebäude, das über einem Ziel steht, verdeckt es nicht.
VisualControl *Eingabe::ziel(Punkt p) const {
    Form *form = vordersteForm(laufzeit, p);
    return form && form->Enabled ? vorderstes(form->Kinder, aufForm(*form, p), nimmtAblage) : nullptr;
}

void Eingabe::ziehe(Punkt p) {
    VisualControl *neu = ziel(p);
    laufzeit.behandle([&] {
        if (neu != überZiel && überZiel && überZiel->DragOver) überZiel->DragOver(*quelle, Ziehzustand::Verlassen);
        if (neu && neu->DragOver)
            neu->DragOver(*quelle, neu == überZiel ? Ziehzustand::Darüber : Ziehzustand::Betreten);
        überZiel = neu;
    });
    quelle->geändert(); // die Oberfläche zeichnet das Gezogene unter dem Zeiger
}

void Eingabe::vergiss(const Form &form) {
    if (gedrückt.form == &form) gedrückt = {};
    if (gezogeneForm == &form) gezogeneForm = nullptr;
    if (überZiel && &überZiel->form == &form) überZiel = nullptr;
    if (quelle && &quelle->form == &form) quelle = nullptr;
}

} // namespace velmo
