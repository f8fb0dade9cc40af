#include "bench/Affenhand.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace velmo {

namespace {

constexpr const char *Farben[] = {"Rot", "Grün", "Blau", "Gelb"};
constexpr const char *Anzeigen[] = {"96", "120", "120 1600 1200", "144"};
constexpr const char *Zeiten[] = {"0", "1", "40", "100", "100", "100", "150", "150", "500", "1000", "2500"};
constexpr const char *Spielernamen[] = {
    "Ada", "", " ", "a/b", "..", "Grün\\n", "Ein Name von mehr als dreizehn Buchstaben", "1e300", "x.cha"};
constexpr const char *Tasten[] = {"a", " ", "\\n", "ß", "-"};
constexpr const char *Konsolenworte[] = {"vorg",    "vorb",    "vore",   "vorr",         "vorg KI", "vorb KI",
                                         "vore KI", "vorr KI", "bilanz", "immer gratis", "pleite",  "xyz"};
constexpr const char *Antworten[] = {"1", "2", "3", "4", "5", "6", "6", "Spieler", "-1", "0", "70", "1e300", "viele"};
constexpr const char *Dateien[] = {
    R"(datei "charakter/gut.cha" "Ada" "A" "Rot" " 145 ")",
    R"(datei "charakter/kurz.cha" "Ada")",
    R"(datei "charakter/zahl.cha" "Ada" "A" "Blau" "1e300")",
    R"(datei "charakter/bild.cha" "Ada" "A" "Gelb" "32767")",
    R"(datei "charakter/farbe.cha" "Ada" "A" "Lila" "150")",
    R"(bytes "charakter/leer.cha" "00")",
    R"(lösche "besten.sav" / datei "besten.sav" "Ada" " 20000 " "Bob" "viele")",
    R"(lösche "besten.sav" / bytes "besten.sav" "FF0D0D0A0A00")",
    R"(lösche "besten.sav")",
    R"(lösche "charakter")",
    R"(ordner "charakter")",
    R"(lösche "besten.sav" / ordner "besten.sav")",
    R"(lösche "ani.hvi")",
};

bool hatBehandlung(const VisualControl &c) {
    return c.Click || c.DblClick || c.MouseDown || c.DragMode || dynamic_cast<const Listenelement *>(&c) ||
           dynamic_cast<const VScrollBar *>(&c);
}

bool bedienbar(const VisualControl &c) {
    for (const VisualControl *v = &c; v; v = v->behälter)
        if (!v->Visible || !v->Enabled) return false;
    return c.form.Visible && c.form.Enabled && hatBehandlung(c);
}

std::vector<Form *> sichtbare(Szene &s) {
    auto formen = s.p().Formen();
    std::erase_if(formen, [](const Form *f) { return !f->Visible; });
    return formen;
}

} // namespace

struct Affenhand::Tat {
    int Gewicht;
    bool (Affenhand::*tu)();
};

bool istSackgasse(Szene &s) {
    if (!s.gestartet || !s.ruhig()) return false;
    return std::ranges::none_of(sichtbare(s), [](const Form *f) {
        return f->Enabled && (f->Click || f->KeyPress || std::ranges::any_of(f->Controls(), [](Control *c) {
                                  const auto *v = dynamic_cast<VisualControl *>(c);
                                  return v && bedienbar(*v);
                              }));
    });
}

/// Nicht jeder wächst gleich auf: die Anzeige, der Ordner der Charaktere, und wie weit das erste Programm schon ist.
void Affenhand::werdeGeboren(unsigned saat) {
    tu("saat " + std::to_string(saat));
    if (würfle(3) == 0) tu("anzeige " + std::string(eins(Anzeigen)));
    if (würfle(3) > 0) tu(R"(ordner "charakter")");
    beginneNeu();
}

void Affenhand::beginneNeu() {
    const int wie = würfle(10);
    if (wie < 7) {
        tu("spiel " + std::string(eins(Farben)) + " " + std::to_string(würfle(3) + 1) + " " +
           std::to_string(würfle(3) + 1));
    } else {
        tu(wie < 9 ? "menü" : "start");
    }
}

std::string Affenhand::nächste() {
    while (vorhaben.empty())
        lebe();
    std::string zeile = std::move(vorhaben.front());
    vorhaben.pop_front();
    return zeile;
}

void Affenhand::lebe() {
    if (!s.gestartet) return beginneNeu();
    // clang-format off
    static constexpr Tat Taten[] = {
        {600, &Affenhand::klicke},
        {120, &Affenhand::klickeIrgendwo},
        { 30, &Affenhand::drückeZweiTasten},
        { 60, &Affenhand::ziehe},
        { 20, &Affenhand::tippe},
        { 20, &Affenhand::drückeTaste},
        { 40, &Affenhand::wähle},
        { 10, &Affenhand::rolle},
        {  8, &Affenhand::schließe},
        {  5, &Affenhand::frageKonsole},
        {  3, &Affenhand::legeDateiAn},
        {300, &Affenhand::warte},
        {  1, &Affenhand::fangeNeuAn},
    };
    // clang-format on
    int los = 0;
    for (const Tat &t : Taten)
        los += t.Gewicht;
    los = würfle(los);
    const auto tat = std::ranges::find_if(Taten, [&](const Tat &t) { return (los -= t.Gewicht) < 0; });
    (this->*tat->tu)();
}

bool Affenhand::tu(std::string zeile) {
    vorhaben.push_back(std::move(zeile));
    return true;
}

Form *Affenhand::eineForm() {
    const auto formen = sichtbare(s);
    return formen.empty() ? nullptr : formen[static_cast<std::size_t>(würfle(static_cast<int>(formen.size())))];
}

template <class C, class Frage> C *Affenhand::eins(const Frage &frage) {
    std::vector<C *> alle;
    for (const Form *f : sichtbare(s))
        for (Control *c : f->Controls())
            if (auto *hier = dynamic_cast<C *>(c); hier && frage(*hier)) alle.push_back(hier);
    return alle.empty() ? nullptr : alle[static_cast<std::size_t>(würfle(static_cast<int>(alle.size())))];
}

VisualControl *Affenhand::irgendeins() {
    return eins<VisualControl>([](const VisualControl &) { return true; });
}

VisualControl *Affenhand::bedienbares() { return eins<VisualControl>(bedienbar); }

/// Die Mitte des Elements, oder ein Ort darin oder knapp daneben.
std::string Affenhand::ort(const VisualControl &c) {
    if (würfle(4) > 0) return vollerName(c);
    const auto zahl = [&](double länge) {
        return std::to_string(würfle(static_cast<int>(std::clamp(std::abs(länge), 0.0, 20000.0)) + 60) - 30);
    };
    return vollerName(c) + " " + zahl(c.Width) + " " + zahl(c.Height);
}

bool Affenhand::klicke() {
    const VisualControl *c = bedienbares();
    return c && tu("klick " + ort(*c));
}

bool Affenhand::klickeIrgendwo() {
    static constexpr const char *Weisen[] = {"klick ", "klick ", "rechts ", "doppelklick ", "maus "};
    const std::string weise = eins(Weisen);
    if (const Form *f = würfle(4) == 0 ? eineForm() : nullptr)
        return tu(weise + f->Name + " " + std::to_string(würfle(10000)) + " " + std::to_string(würfle(8000)));
    const VisualControl *c = irgendeins();
    return c && tu(weise + ort(*c));
}

/// Während eine Taste etwas hält, kommt die andere.
bool Affenhand::drückeZweiTasten() {
    const VisualControl *a = bedienbares(), *b = irgendeins(), *c = irgendeins();
    if (!a || !b || !c) return false;
    tu("drück " + ort(*a));
    tu("rechts " + ort(*b));
    if (würfle(3) == 0) tu("warte " + std::string(eins(Zeiten)));
    return tu("los " + ort(würfle(2) ? *a : *c));
}

bool Affenhand::ziehe() {
    const VisualControl *von = eins<VisualControl>([](const auto &c) { return c.DragMode && bedienbar(c); });
    const VisualControl *ziel = eins<VisualControl>([](const auto &c) { return c.DragDrop && c.Visible; });
    if (!von) von = irgendeins();
    if (!ziel || würfle(8) == 0) ziel = irgendeins();
    return von && ziel && tu("zieh " + vollerName(*von) + " " + vollerName(*ziel) + (würfle(8) ? "" : " weg"));
}

bool Affenhand::tippe() {
    const TextBox *feld = eins<TextBox>([](const auto &) { return true; });
    if (!feld) return false;
    const std::string text =
        würfle(100) ? eins(Spielernamen) : std::string(static_cast<std::size_t>(würfle(40000)), 'x');
    return tu("tippe " + vollerName(*feld) + " \"" + text + '"');
}

bool Affenhand::drückeTaste() {
    const Form *f = eineForm();
    return f && tu(std::string("taste ") + f->Name + " \"" + eins(Tasten) + '"');
}

bool Affenhand::wähle() {
    const auto *liste = eins<Listenelement>([](const auto &l) { return l.ListCount() > 0; });
    return liste && tu("wähle " + vollerName(*liste) + " " + std::to_string(würfle(liste->ListCount())));
}

/// Einen Rollbalken bewegt der Spieler mit der Maus; in der Szene ist es die Zuweisung, die daraus folgt.
bool Affenhand::rolle() {
    const auto *leiste = eins<VScrollBar>(bedienbar);
    return leiste && tu("setze " + vollerName(*leiste) + ".Value = " + std::to_string(würfle(2)));
}

bool Affenhand::schließe() {
    const Form *f = eineForm();
    return f && tu(std::string("schließe ") + f->Name);
}

bool Affenhand::frageKonsole() {
    const Form *brett = s.p().geladene(formular::Form1);
    if (!brett || !brett->Visible) return false;
    tu("antwort \"" + std::string(eins(Konsolenworte)) + "\" \"" + eins(Antworten) + '"');
    return tu("rechts Form1.Label1");
}

bool Affenhand::legeDateiAn() { return tu(eins(Dateien)); }
bool Affenhand::warte() { return tu(würfle(30) ? "warte " + std::string(eins(Zeiten)) : "ruhe"); }

bool Affenhand::fangeNeuAn() {
    beginneNeu();
    return true;
}

} // namespace velmo
