// Was ein Spieler mit Maus und Tastatur tut. Orte sind Twips.
#include "bench/Befehle.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmo {

namespace {

/// Weit außerhalb der Anzeige liegt nichts.
constexpr Punkt Nirgends{-1e6, -1e6};
/// So eng liegen die Orte, an denen nach bloßer Fläche gesucht wird.
constexpr double Raster = 120;

bool bloß(const Eingabe &eingabe, const Form &form, Punkt p) {
    const Treffer t = eingabe.trifft(p);
    return t.form == &form && !t.control;
}

/// Ein Ort auf der bloßen Fläche der Form: ihre Mitte oder der nächste daran; ohne einen solchen die Mitte.
Punkt bloßeFläche(const Eingabe &eingabe, const Form &form) {
    const Punkt mitte{form.Left + form.Width / 2, form.Top + form.Height / 2};
    const auto entfernung = [&](Punkt p) { return std::hypot(p.x - mitte.x, p.y - mitte.y); };
    if (bloß(eingabe, form, mitte)) return mitte;
    std::optional<Punkt> bester;
    for (double x = form.Left + 1; x < form.Left + form.Width; x += Raster)
        for (double y = form.Top + 1; y < form.Top + form.Height; y += Raster)
            if (bloß(eingabe, form, {x, y}) && (!bester || entfernung({x, y}) < entfernung(*bester)))
                bester = Punkt{x, y};
    return bester.value_or(mitte);
}

/// Der Ort von "F.C [X Y]" oder "F [X Y]" auf der Anzeige.
Punkt ort(Szene &s, Wörter w) {
    if (w.size() == 2) throw Schreibfehler("zu X fehlt Y");
    const std::string &name = w[0].text;
    const bool form = name.find('.') == std::string::npos;
    const VisualControl *c = form ? nullptr : &s.namen->control<VisualControl>(name);
    const Form &f = form ? s.namen->form(name) : c->form;
    if (form && w.size() == 1) return bloßeFläche(s.p().eingabe, f);
    const Punkt ecke = form ? Punkt{f.Left, f.Top} : Eingabe::ort(*c);
    if (w.size() == 1) return {ecke.x + c->Width / 2, ecke.y + c->Height / 2};
    return {ecke.x + liesZahlwort(w[1]), ecke.y + liesZahlwort(w[2])};
}

/// Wo "F.C" oder "F" auf der Anzeige liegt.
Rechteck fläche(Szene &s, const std::string &name) {
    if (name.find('.') == std::string::npos) {
        const Form &f = s.namen->form(name);
        return {f.Left, f.Top, f.Width, f.Height};
    }
    const auto &c = s.namen->control<VisualControl>(name);
    const Punkt ecke = Eingabe::ort(c);
    return {ecke.x, ecke.y, c.Width, c.Height};
}

/// "X Y BREITE HÖHE" in der Fläche.
Rechteck teil(const Rechteck &ganz, Wörter w) {
    if (w.size() < 4) throw Schreibfehler("ein Ausschnitt ist X Y BREITE HÖHE");
    return {ganz.Left + liesZahlwort(w[0]), ganz.Top + liesZahlwort(w[1]), liesZahlwort(w[2]), liesZahlwort(w[3])};
}

/// Hin und drücken und los.
void drückeUndLöse(Szene &s, Punkt hier, Maustaste taste) {
    s.p().eingabe.bewege(hier);
    s.p().eingabe.drücke(taste, hier);
    s.p().eingabe.löse(taste, hier);
}

} // namespace

/// Ein Klick mit Ort oder ohne, oder auf mehrere Elemente nacheinander.
void klick(Szene &s, Wörter w) {
    double zahl = 0;
    if (w.size() == 1 || liesZahl(w[1].text, zahl)) {
        if (w.size() > 3) throw Schreibfehler("klick: da steht zu viel");
        drückeUndLöse(s, ort(s, w), Maustaste::Links);
        return;
    }
    std::vector<std::string> zeilen;
    for (const Wort &wort : w)
        zeilen.push_back("klick " + wort.text);
    s.schiebeEin(zeilen);
}

/// Ein Würfel beginnt mit dem Klick und steht nach einem Takt.
void würfle(Szene &s, Wörter w) {
    const std::string knopf = "klick " + (w.size() > 1 ? w[1].text : "Form1.WüButton");
    s.schiebeEin({knopf, "zufall " + w[0].text, "warte 100", knopf});
}

void rechts(Szene &s, Wörter w) { drückeUndLöse(s, ort(s, w), Maustaste::Rechts); }

void doppelklick(Szene &s, Wörter w) {
    const Punkt hier = ort(s, w);
    s.zweiterDruck = hier;
    drückeUndLöse(s, hier, Maustaste::Links);
}

/// Wie im Fenster: zwei rasche Drücke sind zwei, außer wo ein Doppelklick etwas bedeutet.
void drückeNochmals(Szene &s) {
    const Punkt hier = *std::exchange(s.zweiterDruck, std::nullopt);
    const VisualControl *c = s.p().eingabe.trifft(hier).control;
    if (c && c->DblClick) return s.p().eingabe.doppelklick(hier);
    drückeUndLöse(s, hier, Maustaste::Links);
}

void drück(Szene &s, Wörter w) {
    const Punkt hier = ort(s, w);
    s.p().eingabe.bewege(hier);
    s.p().eingabe.drücke(Maustaste::Links, hier);
}

void los(Szene &s, Wörter w) {
    const Punkt hier = ort(s, w);
    s.p().eingabe.bewege(hier);
    s.p().eingabe.löse(Maustaste::Links, hier);
}

void maus(Szene &s, Wörter w) { s.p().eingabe.bewege(ort(s, w)); }

void zieh(Szene &s, Wörter w) {
    drück(s, w.first(1));
    const bool weg = w.back().ist("weg");
    Punkt hier{};
    for (const Wort &ziel : w.subspan(1, w.size() - 1 - weg))
        s.p().eingabe.bewege(hier = ort(s, Wörter(&ziel, 1)));
    if (weg) s.p().eingabe.bewege(hier = Nirgends);
    s.p().eingabe.löse(Maustaste::Links, hier);
}

void bild(Szene &s, Wörter w) {
    if (w[0].text.find('/') != std::string::npos) throw Schreibfehler("der Name eines Bildes hat kein /");
    const Bildschirm schirm = s.p().Screen();
    const Rechteck ausschnitt = w.size() > 1 ? fläche(s, w[1].text) : Rechteck{0, 0, schirm.Width, schirm.Height};
    if (s.macheBild) s.macheBild(w[0].text, w.size() > 2 ? teil(ausschnitt, w.subspan(2)) : ausschnitt);
}

void tippe(Szene &s, Wörter w) { s.p().eingabe.tippe(s.namen->control<TextBox>(w[0].text), liesText(w[1])); }

void taste(Szene &s, Wörter w) {
    const std::string &text = liesText(w[1]);
    s.namen->form(w[0].text);
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t anfang = i++;
        while (i < text.size() && (text[i] & 0xC0) == 0x80)
            ++i;
        // Eine Taste kann die Form schließen.
        if (Form *form = s.p().geladene(s.namen->formular(w[0].text)))
            s.p().eingabe.taste(*form, text.substr(anfang, i - anfang));
    }
}

void wähle(Szene &s, Wörter w) {
    auto &liste = s.namen->control<Listenelement>(w[0].text);
    const auto &zeilen = liste.Zeilen();
    const auto zeile =
        w[1].zitiert ? std::ranges::find(zeilen, w[1].text) - zeilen.begin() : std::ptrdiff_t{liesGanzzahl(w[1])};
    if (zeile < 0 || zeile >= liste.ListCount()) throw Schreibfehler(w[0].text + " hat keine Zeile " + w[1].text);
    s.p().eingabe.wähle(liste, static_cast<int>(zeile));
}

void schließe(Szene &s, Wörter w) { s.p().eingabe.schließe(s.namen->form(w[0].text)); }

} // namespace velmo
