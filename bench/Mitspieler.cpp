#include "bench/Mitspieler.h"

#include "boardform/Brett.h"
#include "model/Feldtabelle.h"
#include "property/Bauen.h"
#include "property/Eingangskauf.h"
#include "property/Exchange.h"
#include "property/Grundstück.h"

#include <algorithm>
#include <stdexcept>

namespace velmo {

namespace {

constexpr Zeit Würfelzeit = 150; // ms, die der Würfel rollt
constexpr int Reserve = 1500;    // DM, die er nach einem Kauf behalten will
constexpr int Versuch = 10;   // in so vielen von hundert Fällen zieht er einen Eingang auch auf einen vergebenen Platz
constexpr int Unvernunft = 3; // in so vielen von hundert Fällen kauft er, ohne zu rechnen

bool endetMit(const std::string &text, const std::string &ende) {
    return text.size() >= ende.size() && text.compare(text.size() - ende.size(), ende.size(), ende) == 0;
}

} // namespace

Punkt mitte(const VisualControl &c) {
    const Punkt ecke = Eingabe::ort(c);
    // Ein Stapel ragt unten aus der Anzeige.
    return {ecke.x + c.Width / 2, ecke.y + std::min<double>(c.Height, 600) / 2};
}

template <class C> C &Mitspieler::element(Formularname form, const std::string &name) const {
    auto *c = dynamic_cast<C *>(p.geladene(form)->control(name));
    if (!c) throw std::logic_error("kein Element " + std::string(form.Text) + "." + name);
    return *c;
}

Form *Mitspieler::offen(Formularname form) const {
    Form *f = p.geladene(form);
    return f && f->Visible ? f : nullptr;
}

/// Drückt die Mitte des Elements; falsch, wenn ein Druck dort etwas anderes träfe.
bool Mitspieler::klicke(VisualControl &c) {
    const Punkt ort = mitte(c);
    if (p.eingabe.trifft(ort).control != &c) return false;
    drückt(c);
    p.eingabe.bewege(ort);
    p.eingabe.drücke(Maustaste::Links, ort);
    p.eingabe.löse(Maustaste::Links, ort);
    return true;
}

bool Mitspieler::klicke(Formularname form, const char *name) { return klicke(element<VisualControl>(form, name)); }

bool Mitspieler::ruhig() const {
    return std::ranges::none_of(p.Zeitplan(), [](const Timer *t) {
        const std::string name = t->Name;
        return name != "Midi" && name != "pfeilTimer" && std::string(t->form.Name) != "Gewinn";
    });
}

bool Mitspieler::vorDemMenü() const {
    const auto &knopf = element<VisualControl>(formular::Menu, "Spieln");
    return p.eingabe.trifft(mitte(knopf)).control == &knopf;
}

void Mitspieler::beginneSpiel() {
    klicke(formular::Menu, "Spieln");
    p.eingabe.wähle(element<ListBox>(formular::Menu2, "List1"), static_cast<int>(laune() % 4));
    p.eingabe.wähle(element<ListBox>(formular::Menu2, "List2"), static_cast<int>(laune() % 3));
    p.eingabe.wähle(element<ListBox>(formular::Menu2, "List3"), static_cast<int>(laune() % 3));
    klicke(formular::Menu2, "Command2");
}

bool Mitspieler::handle() {
    if (stoppeWürfel()) return true;
    // Ein Würfel, der hinter einem Dialog rollt, hält ihn nicht auf.
    const bool verdeckt = brett(p).Timer1.Enabled && !brett(p).Enabled;
    if (!ruhig() && !verdeckt) return false;
    return imDialog() || amBrett();
}

bool Mitspieler::handleImWarten() { return p.geladene(formular::Bezahlen) && handle(); }

/// Ein Würfel, den der Spieler selbst gestartet hat, rollt eine kleine Weile.
bool Mitspieler::stoppeWürfel() {
    Brett &b = brett(p);
    const bool fährt = b.Timer1.Enabled && p.Zustand.Computerphase != 1;
    const bool nächte = offen(formular::Bezahlen) && element<Timer>(formular::Bezahlen, "Timer1").Enabled;
    if (!fährt && !b.Timer2.Enabled && !nächte) return false;
    // Den Bauwürfel, den ein anderer gestartet hat, lässt er wenigstens einmal fallen.
    if (p.oberfläche.jetzt() < würfeltSeit + Würfelzeit || (b.Timer2.Enabled && p.Zustand.Bauwürfel.leer()))
        return false;
    return nächte ? klicke(formular::Bezahlen, "würfeln") : klicke(b.WüButton);
}

bool Mitspieler::imDialog() {
    if (offen(formular::Verloren)) return klicke(formular::Verloren, "SSCommand3");
    if (offen(formular::Gewinn)) return klicke(formular::Gewinn, "SSCommand1");
    if (offen(formular::Bezahlen)) return bezahle();
    if (offen(formular::geldfeld)) return kaufe();
    if (offen(formular::Baufeld)) return baue();
    if (offen(formular::Bauphase)) return baueGratis();
    if (offen(formular::eingang)) return wähleEingang();
    return false;
}

bool Mitspieler::amBrett() {
    Brett &b = brett(p);
    if (!b.Visible || !b.Enabled) return false;
    if (b.Imagee.DragMode) return ziehe();
    // Ein gescheiterter Kauf lässt einen Restbetrag zurück, aber keine Schuld: nur sie gibt die Stapel frei.
    if (std::ranges::any_of(b.Stapel, [](const Notenstapel &s) { return s.g.Enabled(); })) return zahleNoten();
    if (b.WüButton.Enabled) {
        würfeltSeit = p.oberfläche.jetzt();
        return klicke(b.WüButton);
    }
    if (!b.Fertig.Enabled) return false;
    return willEingang() ? klicke(b.Command1) : klicke(b.Fertig);
}

bool Mitspieler::bezahle() {
    würfeltSeit = p.oberfläche.jetzt();
    const bool gewürfelt = element<SSCommand>(formular::Bezahlen, "SSCommand1").Enabled;
    return klicke(formular::Bezahlen, gewürfelt ? "SSCommand1" : "würfeln");
}

bool Mitspieler::kaufe() {
    const Spielzustand &z = p.Zustand;
    const std::string anlieger = feld(z.Autos[*AutoDesMenschen(z)].Autoziel.Zahl()).Anlieger;
    const std::pair<const char *, char> knöpfe[] = {{"SSCommand1", anlieger.front()}, {"SSCommand2", anlieger.back()}};
    for (const auto &[name, buchstabe] : knöpfe) {
        auto &knopf = element<SSCommand>(formular::geldfeld, name);
        const Hotel *h = hotelZuBuchstabe(buchstabe);
        if (!h || !knopf.Visible || !knopf.Enabled) continue;
        const Grundstück &g = grundstück(h->Kürzel);
        const int preis = endetMit(knopf.Caption, "Zwangskaufen") ? g.Zwangspreis : g.Preis;
        const bool hatSchon = z.Hotels[h->Kürzel].Besitzer == Mensch;
        if (!hatSchon && (z.Gesamtgeld >= preis + Reserve || chance(Unvernunft))) return klicke(knopf);
    }
    return klicke(formular::geldfeld, "SSCommand3");
}

/// Blättert durch seine Hotels, bis er eins bauen will; nach einer Runde lässt er es.
bool Mitspieler::baue() {
    const Spielzustand &z = p.Zustand;
    const auto hotel = HotelZuSchlüssel(element<Label>(formular::Baufeld, "Label1").Caption);
    if (hotel && !ausgebaut(z, *hotel, grundstück(*hotel).Schlusspark) && !steht(z, *hotel, Baustufe::P)) {
        const bool bezahlbar = z.Gesamtgeld >= nächsteBaustufe(z, *hotel).Doppelt || chance(Unvernunft);
        if (bezahlbar && element<SSCommand>(formular::Baufeld, "Command9").Enabled) {
            hotelsGesehen = 0;
            return klicke(formular::Baufeld, "Command9");
        }
    }
    if (++hotelsGesehen <= 9 && element<CommandButton>(formular::Baufeld, "Command3").Enabled)
        return klicke(formular::Baufeld, "Command3");
    hotelsGesehen = 0;
    return klicke(formular::Baufeld, "Command2");
}

bool Mitspieler::baueGratis() {
    for (int i = 1; i <= 8; ++i) {
        auto &knopf = element<SSCommand>(formular::Bauphase, "SSCommand" + std::to_string(i));
        if (knopf.Visible && knopf.Enabled) return klicke(knopf);
    }
    return klicke(formular::Bauphase, "Command1");
}

bool Mitspieler::eingangMöglich(Hotelkürzel k) const {
    const auto h = std::ranges::find(Hoteleingänge, k, &Hoteleingang::Hotel);
    return p.Zustand.Hotels[k].Besitzer == Mensch && steht(p.Zustand, k, Baustufe::H) &&
           std::ranges::any_of(h->Plätze(), [&](int platz) { return !vergeben(p.Zustand, platz); });
}

bool Mitspieler::willEingang() const {
    return p.Zustand.Gesamtgeld >= 1000 && !p.Zustand.Hotelliste[1].leer() &&
           std::ranges::any_of(AlleHotels,
                               [&](Hotelkürzel k) { return eingangMöglich(k) && !p.Zustand.Hotels[k].Eingangssperre; });
}

bool Mitspieler::wähleEingang() {
    for (std::size_t i = 0; i < Hoteleingänge.size(); ++i) {
        auto &knopf = element<SSCommand>(formular::eingang, "SSCommand" + std::to_string(i + 1));
        const bool bezahlbar = p.Zustand.Gratiseingang || p.Zustand.Gesamtgeld >= Hoteleingänge[i].Mindestgeld + 250;
        if (bezahlbar && knopf.Visible && knopf.Enabled && eingangMöglich(Hoteleingänge[i].Hotel)) return klicke(knopf);
    }
    return klicke(formular::eingang, "SSCommand9");
}

/// Zieht den gelben Eingang auf einen freien Platz; manchmal versucht er es erst mit einem vergebenen.
bool Mitspieler::ziehe() {
    Brett &b = brett(p);
    for (const Eingangsplatz &platz : Eingangsplätze) {
        const Image &ziel = b.Platzbild(platz.Nummer);
        if (!ziel.Visible || (vergeben(p.Zustand, platz.Nummer) && !chance(Versuch))) continue;
        const Punkt von = mitte(b.Imagee), nach = mitte(ziel);
        p.eingabe.bewege(von);
        p.eingabe.drücke(Maustaste::Links, von);
        p.eingabe.bewege(nach);
        p.eingabe.löse(Maustaste::Links, nach);
        if (!b.Imagee.DragMode) return true;
    }
    return false;
}

bool Mitspieler::zahleNoten() {
    const Spielzustand &z = p.Zustand;
    const int rest = std::stoi(z.Restbetrag);
    for (auto note = Noten.rbegin(); note != Noten.rend(); ++note)
        if (*note <= rest && z.Notenbestand[*note] >= 1) return klicke(brett(p).stapel(*note).k);
    return wechsle(rest);
}

/// Gibt die kleinste Note, die zu groß ist, für die größten, die passen; sonst für die kleinsten, die es dafür gibt.
bool Mitspieler::wechsle(int rest) {
    for (const int gegeben : Noten) {
        if (p.Zustand.Notenbestand[gegeben] < 1 || gegeben == Noten.front()) continue;
        int gewünscht = 0;
        for (const int note : Noten) {
            const bool erlaubt = gegeben / note >= 2 && gegeben / note <= 10;
            if (erlaubt && (gewünscht == 0 || note <= rest)) gewünscht = note;
        }
        if (!offen(formular::Exchange) && !klicke(brett(p).SSCommand2)) return false;
        auto &von = element<ComboBox>(formular::Exchange, "Combo1");
        auto &in = element<ComboBox>(formular::Exchange, "Combo2");
        const auto zeile = [](const ComboBox &liste, int note) {
            return static_cast<int>(std::ranges::find(liste.Zeilen(), std::to_string(note)) - liste.Zeilen().begin());
        };
        p.eingabe.wähle(von, zeile(von, gegeben));
        p.eingabe.wähle(in, zeile(in, gewünscht));
        return klicke(formular::Exchange, "Command1");
    }
    return false;
}

} // namespace velmo
