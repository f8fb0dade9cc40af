#include "surface/Benennung.h"

#include "boardform/Brett.h"
#include "include/Formulare.h"
#include "model/Feldtabelle.h"
#include "property/Bauen.h"
#include "property/Eingangskauf.h"
#include "property/Grundstück.h"
#include "property/Miete.h"

#include <algorithm>
#include <cstring>

namespace velmo {

namespace {

namespace f = formular;

// clang-format off
constexpr Formbenennung Formnamen[] = {
    {f::Intro,     "Vorspann",          false}, {f::Menu,     "Menü",               false},
    {f::Menu2,     "Neues Spiel",       true},  {f::Form1,    "Spiel",              false},
    {f::Assistent, "Assistent",         false}, {f::Sprech,   "Sprechblase",        false},
    {f::geldfeld,  "Grundstück kaufen", true},  {f::Baufeld,  "Baugenehmigung",     true},
    {f::Bauphase,  "Bauphase gratis",   true},  {f::eingang,  "Eingang setzen",     true},
    {f::Bezahlen,  "Übernachtung",      true},  {f::Exchange, "Geld umtauschen",    true},
    {f::Karten,    "Besitzkarten",      true},  {f::Verloren, "Ausgeschieden",      true},
    {f::Gewinn,    "Gewonnen",          true},  {f::HoF,      "Die Besten",         true},
    {f::frmHilfe,  "Hilfe",             true},  {f::Überf,    "Über Velmo",         true},
    {f::Dank,      "Abspann",           true},
};

struct Namenszeile {
    Formularname Form;
    const char *Control, *Text = nullptr;
};

/// Bilder und Felder ohne eigene Schrift.
constexpr Namenszeile Festnamen[] = {
    {f::Menu2,     "klickl",     "Voriges Bild"},
    {f::Menu2,     "klickr",     "Nächstes Bild"},
    {f::Karten,    "Image1",     "Vorige Karte"},
    {f::Karten,    "Image2",     "Nächste Karte"},
    {f::Karten,    "Image3",     "Karten schließen"},
    {f::Form1,     "Picture2",   "Wechselkasse"},
    {f::Assistent, "Image1",     "Dorvin"},
    {f::Sprech,    "VScroll1",   "Satz rollen"},
    {f::frmHilfe,  "Text6",      "Hilfetext"},
    {f::Intro,     "Animation1", "Film"},
};

/// Was nach der Beschriftung daneben heißt; Text ist deren Name.
constexpr Namenszeile Beschriftete[] = {
    {f::Menu2,    "Text1",     "Label1"}, {f::Menu2,    "Text2",   "Label2"}, {f::Menu2, "List1", "Label3"},
    {f::Menu2,    "List2",     "Label5"}, {f::Menu2,    "List3",   "Label6"}, {f::Menu2, "File1", "Label4"},
    {f::Exchange, "Combo1",    "Label2"}, {f::Exchange, "Combo2",  "Label3"},
    {f::Form1,    "Geldlabel", "label9"}, {f::Form1,    "toteinG", "Label4"},
};

/// Zeilen, die sagen, was gerade geschieht.
constexpr Namenszeile Ansagezeilen[] = {
    {f::Form1, "Label1"}, {f::Sprech, "Label1"}, {f::Bezahlen, "Label1"}, {f::Baufeld, "Label1"}, {f::Verloren, "Label1"},
};

constexpr const char *Stufennamen[] = {"Hauptgebäude",     "1. Nebengebäude", "2. Nebengebäude",
                                       "3. Nebengebäude", "4. Nebengebäude", "Freizeitpark"};

struct Feldname {
    Feldart Art;
    const char *Name;
};
constexpr Feldname Feldnamen[] = {
    {Feldart::Kauffeld, "Kauffeld"},        {Feldart::Baugenehmigung, "Baugenehmigung"},
    {Feldart::Bauphase, "Bauphase gratis"}, {Feldart::Eingang,        "Eingang gratis"},
};

constexpr const char *Bauwürfelseiten[] = {"grün", "rot", "gratis", "doppelter Preis", "grün", "grün"};
// clang-format on

constexpr int RangAutos = 1, RangHotels = 100, RangPlätze = 1000;
constexpr int ErstesGesicht = 140; // die Bilder des Spielers zählen von 141 an

template <class Tafel> const auto *finde(const Tafel &tafel, const VisualControl &c) {
    const auto zeile = std::ranges::find_if(tafel, [&](const Namenszeile &z) {
        return z.Form == Formularname(c.form.Name) && std::strcmp(z.Control, c.Name) == 0;
    });
    return zeile == std::end(tafel) ? nullptr : &*zeile;
}

/// Die Zeile der Tafel, deren Spalte das Steuerelement nennt.
template <class Tafel, class Spalte> const auto *zeileVon(const Tafel &tafel, Spalte spalte, const VisualControl &c) {
    const auto zeile = std::ranges::find_if(tafel, [&](const auto &z) { return std::strcmp(z.*spalte, c.Name) == 0; });
    return zeile == std::end(tafel) ? nullptr : &*zeile;
}

/// Die Nummer am Ende eines Bildnamens, etwa 204 von "WUERFEL 204"; 0 ohne eine.
int bildnummer(const Picture &bild) {
    const auto vor = bild.Name.rfind(' ');
    return vor == std::string::npos ? 0 : std::atoi(bild.Name.c_str() + vor);
}

std::string mitDM(int betrag) { return std::to_string(betrag) + " DM"; }

template <class K> std::string wer(const Programm &p, const K &kennung, const K &mensch) {
    if (kennung == mensch) return p.Zustand.Spielername;
    const int computer = Computernummer(kennung);
    return computer ? "Computer " + std::to_string(computer) : "niemand";
}

std::string besitzer(const Programm &p, Hotelkürzel k) { return wer(p, p.Zustand.Hotels[k].Besitzer, Mensch); }

std::string hotelnamen(const char *anlieger) {
    std::string namen;
    for (const char *c = anlieger; *c; ++c)
        if (const Hotel *h = hotelZuBuchstabe(*c)) namen += (namen.empty() ? ": " : ", ") + std::string(h->Name);
    return namen;
}

std::string standort(const Lose &ziel) {
    if (ziel.leer()) return "am Start";
    const Feld &hier = feld(ziel.Zahl());
    const auto art = std::ranges::find(Feldnamen, hier.Art, &Feldname::Art);
    return "Feld " + std::to_string(hier.Nummer) + ", " + art->Name + hotelnamen(hier.Anlieger);
}

Benennung auto_(const Programm &p, const Auto &a) {
    const Autodaten &daten = p.Zustand.Autos[a.Kürzel];
    const int computer = Computernummer(daten.Autobesitzer);
    const bool mensch = p.Zustand.Spielerfarbe == a.Text;
    if (!computer && !mensch) return {};
    const std::string fahrer = computer ? "Computer " + std::to_string(computer) : p.Zustand.Spielername;
    const int geld = computer ? p.Zustand.Computergeld[computer] : p.Zustand.Gesamtgeld;
    return {Rolle::Bild, std::string("Auto ") + a.Farbe + ": " + fahrer + ", " + standort(daten.Autoziel),
            "Geld: " + mitDM(geld), RangAutos};
}

int hotelrang(Hotelkürzel k) { return RangHotels + 10 * static_cast<int>(k); }

Benennung gebäude(const Programm &p, const Stufe &s) {
    const int stufe = static_cast<int>(s.Stand);
    return {Rolle::Bild, hotel(s.Hotel).Name + (": " + besitzer(p, s.Hotel)) + ", " + Stufennamen[stufe], "",
            hotelrang(s.Hotel) + 1 + stufe};
}

Benennung schild(const Programm &p, const Hotel &h) {
    return {Rolle::Bild, h.Name + (": " + besitzer(p, h.Kürzel)), "", hotelrang(h.Kürzel)};
}

Benennung platz(const Programm &p, const Eingangsplatz &e, const VisualControl &c) {
    const std::string nummer = "Eingangsplatz " + std::to_string(e.Nummer), hotelname = hotel(e.Hotel).Name;
    const std::string ort = "am Feld " + std::to_string(e.Feld);
    if (p.Zustand.Eingang[e.Nummer])
        return {Rolle::Bild,
                nummer + ", " + wer(p, p.Zustand.Eingangsbesitzer[e.Nummer], Spieler) + ", für " + hotelname, ort,
                RangPlätze + e.Nummer};
    const std::string stand = vergeben(p.Zustand, e.Nummer) ? ", gegenüber besetzt, für " : ", frei, für ";
    const std::string kosten = p.Zustand.Gratiseingang ? "gratis" : mitDM(e.Kosten);
    return {c.DragDrop ? Rolle::Knopf : Rolle::Bild, nummer + stand + hotelname + ", " + kosten, ort,
            RangPlätze + e.Nummer};
}

Benennung stapel(const Programm &p, const VisualControl &c) {
    for (const int note : Noten) {
        const std::string wert = std::to_string(note);
        if (c.Name == "g" + wert) {
            const int zahl = p.Zustand.Notenbestand[note];
            return {Rolle::Knopf,
                    "Note " + mitDM(note) + ", " + std::to_string(zahl) + (zahl == 1 ? " Schein" : " Scheine"), "", 0};
        }
    }
    return {};
}

std::string würfel(const Picture &bild) {
    const int augen = bildnummer(bild) - 200;
    return augen >= 1 && augen <= 6 ? "Würfel: " + std::to_string(augen) : "Würfel";
}

std::string bauwürfel(const Picture &bild) {
    const int seite = bildnummer(bild) - 300;
    return seite >= 1 && seite <= 6 ? std::string("Bauwürfel: ") + Bauwürfelseiten[seite - 1] : "Bauwürfel";
}

/// Was auf der Besitzkarte steht.
Benennung besitzkarte(const Picture &bild) {
    const auto zeile = std::ranges::find(Miettafel, bildnummer(bild), &Mietzeile::Karte);
    if (zeile == Miettafel.end()) return {};
    const Grundstück &g = grundstück(zeile->Hotel);
    std::string text = "Grundstück " + mitDM(g.Preis) + ", Zwangskauf " + mitDM(g.Zwangspreis);
    for (const Baukosten &b : Baufolge(zeile->Hotel)) {
        const auto stufe = static_cast<std::size_t>(b.Stand);
        text +=
            std::string("; ") + Stufennamen[stufe] + " " + mitDM(b.Kosten) + ", je Nacht " + mitDM(zeile->Satz[stufe]);
    }
    const auto platz = std::ranges::find(Eingangsplätze, zeile->Hotel, &Eingangsplatz::Hotel);
    text += "; Eingang " + mitDM(platz->Kosten);
    return {Rolle::Bild, std::string("Besitzkarte ") + hotel(zeile->Hotel).Name, text};
}

std::string gesicht(const Picture &bild) { return "Bild " + std::to_string(bildnummer(bild) - ErstesGesicht); }

Benennung brettbild(const Programm &p) {
    return {Rolle::Gruppe, "Brett, Runde " + std::to_string(p.Zustand.Rundenzähler + 1), ""};
}

const Picture &bild(const VisualControl &c) {
    if (const auto *i = dynamic_cast<const Image *>(&c)) return i->Picture;
    return static_cast<const PictureBox &>(c).Picture;
}

struct Bildzeile {
    Formularname Form;
    const char *Control;
    Benennung (*benenne)(const Programm &, const VisualControl &);
};

// Bilder, deren Inhalt das Spiel kennt.
constexpr Bildzeile Bildtafel[] = {
    {f::Form1, "Picture1", [](const Programm &p, const VisualControl &) { return brettbild(p); }},
    {f::Form1, "Picture7",
     [](const Programm &, const VisualControl &c) {
         return Benennung{Rolle::Bild, bauwürfel(bild(c)), ""};
     }},
    {f::Form1, "Picture8",
     [](const Programm &, const VisualControl &c) {
         return Benennung{Rolle::Bild, würfel(bild(c)), ""};
     }},
    {f::Bezahlen, "Würfel",
     [](const Programm &, const VisualControl &c) {
         return Benennung{Rolle::Bild, würfel(bild(c)), ""};
     }},
    {f::Bezahlen, "Picture1", [](const Programm &, const VisualControl &c) { return besitzkarte(bild(c)); }},
    {f::Karten, "picture1", [](const Programm &, const VisualControl &c) { return besitzkarte(bild(c)); }},
    {f::Menu2, "Picture1",
     [](const Programm &, const VisualControl &c) {
         return Benennung{Rolle::Bild, gesicht(bild(c)), ""};
     }},
    {f::Form1, "Imagee",
     [](const Programm &, const VisualControl &c) {
         return c.DragMode ? Benennung{Rolle::Knopf, "Eingang setzen", "Auf einen freien Eingangsplatz"} : Benennung{};
     }},
};

Benennung ausTafeln(const Programm &p, const VisualControl &c) {
    for (const Bildzeile &z : Bildtafel)
        if (z.Form == Formularname(c.form.Name) && std::strcmp(z.Control, c.Name) == 0) return z.benenne(p, c);
    if (Brett::Formname != Formularname(c.form.Name)) return {};
    if (const auto *a = zeileVon(Autotafel, &Auto::Control, c)) return auto_(p, *a);
    if (const auto *s = zeileVon(Stufen, &Stufe::Bild, c)) return gebäude(p, *s);
    if (const auto *h = zeileVon(Hotels, &Hotel::Schild, c)) return schild(p, *h);
    if (const auto *e = zeileVon(Eingangsplätze, &Eingangsplatz::Control, c)) return platz(p, *e, c);
    return stapel(p, c);
}

/// Schrift in einer Zeile; eine Trennung am Zeilenende ist keine.
std::string inEinerZeile(std::string text) {
    for (std::size_t i; (i = text.find("- ")) != std::string::npos;)
        text.erase(i, 2);
    std::ranges::replace(text, '\n', ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    text.erase(0, text.find_first_not_of(' '));
    return text;
}

std::string schrift(const VisualControl &c) {
    if (const auto *l = dynamic_cast<const Label *>(&c)) return inEinerZeile(l->Caption);
    if (const auto *k = dynamic_cast<const CommandButton *>(&c)) return inEinerZeile(k->Caption);
    return "";
}

std::string mitBeschriftung(const VisualControl &c, const Namenszeile &z) {
    const auto *label = dynamic_cast<const Label *>(c.form.control(z.Text));
    std::string name = label ? schrift(*label) : "";
    if (name.ends_with(':')) name.pop_back();
    const std::string inhalt = schrift(c);
    return inhalt.empty() ? name : name + ": " + inhalt;
}

bool beschriftetAnderes(const VisualControl &c) {
    return std::ranges::any_of(Beschriftete, [&](const Namenszeile &z) {
        return z.Form == Formularname(c.form.Name) && std::strcmp(z.Text, c.Name) == 0;
    });
}

Rolle rolleVon(const VisualControl &c) {
    if (dynamic_cast<const TextBox *>(&c) || dynamic_cast<const Listenelement *>(&c) ||
        dynamic_cast<const VScrollBar *>(&c))
        return Rolle::Feld;
    if (finde(Ansagezeilen, c)) return Rolle::Ansage;
    if (c.Click || dynamic_cast<const CommandButton *>(&c)) return Rolle::Knopf;
    return dynamic_cast<const Label *>(&c) ? Rolle::Text : Rolle::Bild;
}

/// Der Knopf auf einem Notenstapel sagt, was der Stapel schon sagt.
bool imStapel(const Programm &p, const VisualControl &c) {
    return c.behälter && stapel(p, *c.behälter).rolle != Rolle::Zierde;
}

} // namespace

Benennung benenne(const Programm &p, const VisualControl &c) {
    if (imStapel(p, c)) return {};
    if (Benennung b = ausTafeln(p, c); b.rolle != Rolle::Zierde) return b;
    if (beschriftetAnderes(c) && !c.Click) return {};
    std::string name;
    if (const auto *z = finde(Beschriftete, c))
        name = mitBeschriftung(c, *z);
    else if (const auto *fest = finde(Festnamen, c))
        name = fest->Text;
    else if (name = schrift(c); name.empty())
        name = inEinerZeile(c.ToolTipText);
    return name.empty() ? Benennung{} : Benennung{rolleVon(c), name, ""};
}

Formbenennung benenne(const Form &form) {
    const auto zeile =
        std::ranges::find_if(Formnamen, [&](const Formbenennung &z) { return z.Form == Formularname(form.Name); });
    return zeile == std::end(Formnamen) ? Formbenennung{Formularname(form.Name), form.Name, false} : *zeile;
}

} // namespace velmo
