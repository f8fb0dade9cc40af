#include "browser/Ereignisse.h"

#include <algorithm>
#include <cstdlib>

namespace velmo {

namespace {

Maustaste maustaste(const std::string &name) { return name == "2" ? Maustaste::Rechts : Maustaste::Links; }

Punkt ort(const Angaben &a, std::size_t i) { return {std::atof(a[i].c_str()), std::atof(a[i + 1].c_str())}; }

constexpr std::pair<std::string_view, Taste> Tastennamen[] = {
    {"ArrowLeft", Taste::Links}, {"ArrowRight", Taste::Rechts}, {"ArrowUp", Taste::Auf}, {"ArrowDown", Taste::Ab},
    {"Tab", Taste::Tab},         {"Escape", Taste::Escape},     {" ", Taste::Leer},      {"Enter", Taste::Eingabe},
};

/// Wie der Browser eine Taste nennt: mit dem Zeichen, das sie schreibt, oder mit einem Namen.
Tastendruck tastendruck(const Angaben &a) {
    const std::string &name = a[2], &lage = a[3];
    Tastendruck t;
    for (const auto &[wort, taste] : Tastennamen)
        if (wort == name) t.taste = taste;
    const auto hat = [&](char c) { return lage.find(c) != std::string::npos; };
    t.umschalt = hat('u');
    t.alsBefehl = hat('b');
    t.wiederholt = hat('w');
    if (name.size() == 1)
        t.zeichen = static_cast<char>(name[0] >= 'a' && name[0] <= 'z' ? name[0] - 'a' + 'A' : name[0]);
    if (hat('z')) t.text = name;
    if (t.taste == Taste::Eingabe) t.text = "\r";
    if (t.taste == Taste::Tab) t.text = "\t";
    if (t.taste == Taste::Escape) t.text = "\x1b";
    return t;
}

constexpr double Ziehgröße = 1.75; // das Gezogene ist größer, damit man es unter dem Zeiger sieht

} // namespace

Angaben zerlegt(const std::string &ereignis) {
    Angaben teile{""};
    for (const char c : ereignis) {
        if (c == '\t')
            teile.emplace_back();
        else
            teile.back() += c;
    }
    return teile;
}

const std::map<std::string, Ereignisse::Nehmer, std::less<>> Ereignisse::tafel = {
    {"bewege", &Ereignisse::bewege},    {"drücke", &Ereignisse::drücke},   {"löse", &Ereignisse::löse},
    {"lange", &Ereignisse::lange},      {"taste", &Ereignisse::taste},     {"tippe", &Ereignisse::tippe},
    {"wähle", &Ereignisse::wähle},      {"rolle", &Ereignisse::rolle},     {"doppelt", &Ereignisse::doppelt},
    {"fokus", &Ereignisse::setzeFokus}, {"löseAus", &Ereignisse::löseAus}, {"verliere", &Ereignisse::verliere},
};

void Ereignisse::nimm(const Angaben &a) {
    if (const auto zeile = tafel.find(a[0]); zeile != tafel.end()) (this->*zeile->second)(a);
}

VisualControl *Ereignisse::control(const Angaben &a) const {
    return abschrift.control(std::strtoull(a[1].c_str(), nullptr, 10), std::atoi(a[2].c_str()));
}

void Ereignisse::bewege(const Angaben &a) {
    bearbeite([&] { p.eingabe.bewege(ort(a, 1)); });
}

/// Zwei rasche Drücke sind zwei, außer wo ein Doppelklick etwas bedeutet.
void Ereignisse::drücke(const Angaben &a) {
    const Punkt wo = ort(a, 2);
    const VisualControl *c = p.eingabe.trifft(wo).control;
    if (a[4] == "2" && c && c->DblClick) return bearbeite([&] { p.eingabe.doppelklick(wo); });
    fokus.verliere();
    fokus.setzeSichtbar(false);
    if (a[5] == "allein") p.eingabe.gibFrei(); // das Loslassen einer früheren Taste kann anderswo geblieben sein
    bearbeite([&] { p.eingabe.drücke(maustaste(a[1]), wo); });
}

void Ereignisse::löse(const Angaben &a) {
    bearbeite([&] { p.eingabe.löse(maustaste(a[1]), ort(a, 2)); });
}

/// Ein Finger, der liegen bleibt, wo ein Druck sonst nichts bewirkt, ist die rechte Taste.
void Ereignisse::lange(const Angaben &a) {
    const Punkt wo = ort(a, 1);
    const VisualControl *c = p.eingabe.trifft(wo).control;
    if (!c || !c->MouseDown || Eingabe::bewirktEtwas(*c)) return;
    p.eingabe.gibFrei();
    bearbeite([&] { p.eingabe.drücke(Maustaste::Rechts, wo); });
    bearbeite([&] { p.eingabe.löse(Maustaste::Rechts, wo); });
}

void Ereignisse::taste(const Angaben &a) {
    const Tastendruck t = tastendruck(a);
    if (a[1] == "ab")
        tasten.drücke(t);
    else
        tasten.löse(t);
}

void Ereignisse::tippe(const Angaben &a) {
    if (auto *feld = dynamic_cast<TextBox *>(control(a))) bearbeite([&] { p.eingabe.tippe(*feld, a[3]); });
}

void Ereignisse::wähle(const Angaben &a) {
    if (auto *liste = dynamic_cast<Listenelement *>(control(a)))
        bearbeite([&] { p.eingabe.wähle(*liste, std::atoi(a[3].c_str())); });
}

void Ereignisse::rolle(const Angaben &a) {
    if (auto *leiste = dynamic_cast<VScrollBar *>(control(a)))
        bearbeite([&] { p.eingabe.rolle(*leiste, std::atof(a[3].c_str())); });
}

void Ereignisse::doppelt(const Angaben &a) {
    VisualControl *c = control(a);
    if (!c) return;
    if (const auto wo = p.eingabe.druckort(*c)) bearbeite([&] { p.eingabe.doppelklick(*wo); });
}

void Ereignisse::setzeFokus(const Angaben &a) {
    if (VisualControl *c = control(a)) fokus.setze(*c);
}

void Ereignisse::löseAus(const Angaben &a) {
    if (VisualControl *c = control(a)) fokus.löseAus(*c);
}

void Ereignisse::verliere(const Angaben &) { fokus.verliere(); }

void Ereignisse::melde(const char *art, Merkmale &alt, Merkmale neu) {
    if (alt == neu) return;
    alt = std::move(neu);
    bündel.nimm(art, alt);
}

void Ereignisse::folge() {
    fokus.folge();
    const VisualControl *frei = fokus.control(), *c = frei ? frei : fokus.stelle();
    const Stück *s = c ? abschrift.stück(*c) : nullptr;
    Merkmale neu;
    if (s && s->sichtbar) {
        // Was ein gehaltenes Bild zeigt, soll der Ring nicht verdecken.
        const bool gehalten = c == fokus.gehalten(), verdeckt = gehalten && s->sorte == Sorte::Bild;
        neu = {{"form", json(c->form.Nummer)},
               {"stück", json(Abschrift::nummer(*c))},
               {"ort", json(Rechteck{c->form.Left + s->Left, c->form.Top + s->Top, s->Width, s->Height})},
               {"sichtbar", json(fokus.sichtbar() && !verdeckt)},
               {"lage", json(!frei      ? "gesperrt"
                             : gehalten ? "gedrückt"
                                        : "frei")}};
    }
    melde("fokus", ring, std::move(neu));

    neu = {};
    const auto *bild = dynamic_cast<const Image *>(p.eingabe.gezogen());
    if (const Stück *was = bild ? abschrift.stück(*bild) : nullptr) {
        const Punkt hier = p.eingabe.zeiger();
        const double breit = was->Width * Ziehgröße, hoch = was->Height * Ziehgröße;
        neu = {{"form", json(bild->form.Nummer)},
               {"stück", json(Abschrift::nummer(*bild))},
               {"ort", json(Rechteck{hier.x - breit / 2, hier.y - hoch / 2, breit, hoch})}};
    }
    melde("ziehbild", gezogenes, std::move(neu));

    const Treffer t = p.eingabe.trifft(p.eingabe.zeiger());
    neu = {{"wie", json("default")}};
    if (t.control && t.control->Click) neu["wie"] = json("pointer");
    if (t.control && t.control->DragMode) neu["wie"] = json("grab");
    if (t.control && !t.control->MouseIcon().leer()) neu["bild"] = bildort(p, t.control->MouseIcon().Datei);
    if (bild) neu = {{"wie", json("grabbing")}};
    melde("zeiger", zeiger, std::move(neu));
}

} // namespace velmo
