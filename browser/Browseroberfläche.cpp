#include "browser/Browseroberfläche.h"

#include "browser/Brücke.h"
#include "include/Programm.h"
#include "platform/Dateien.h"
#include "shell/Formtafel.h"
#include "surface/Farbtöne.h"
#include "surface/Tastentafel.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace velmo {

namespace {

/// Die Tasten einer Tafel: je Name und Wirkung.
template <class Tafel> std::string tastenliste(const Tafel &tafel) {
    std::string text = "[";
    for (const auto &t : tafel)
        text += (text.size() > 1 ? ",[" : "[") + json(t.Name) + "," + json(t.Wirkung) + "]";
    return text + "]";
}

std::optional<Angaben> nächstesEreignis() {
    char *text = seite_ereignis();
    if (!text) return std::nullopt;
    Angaben a = zerlegt(text);
    std::free(text);
    return a;
}

} // namespace

Browseroberfläche::Browseroberfläche() = default;

int Browseroberfläche::laufe(Programm &programm, const Handler &beginn) {
    p = &programm;
    abschrift = std::make_unique<Abschrift>(*p, bündel);
    ereignisse = std::make_unique<Ereignisse>(*p, *abschrift, bündel, [this](const Handler &h) { bearbeite(h); });
    bündel.nimm("tasten", {{"überall", tastenliste(Fenstertastentafel)}, {"brett", tastenliste(Brettastentafel)}});
    bündel.nimm("farben", {{"tinte", json(farbe::Tinte)},
                           {"papier", json(farbe::Papier)},
                           {"papierlicht", json(farbe::Papierlicht)},
                           {"holz", json(farbe::Holz)},
                           {"holzschatten", json(farbe::Holzschatten)},
                           {"messing", json(farbe::Messing)},
                           {"blass", json(farbe::Blass)}});
    int endstand = 0;
    try {
        while (nimmEreignis()) // womit die Seite beginnt: Dauern, Wünsche
            ;
        bearbeite(beginn);
        for (;;)
            gibAb(Rast::BisEreignis);
    } catch (const Programmende &) {
    } catch (const Laufzeitfehler &fehler) {
        brichAb(*p, fehler);
        endstand = 1;
    } catch (const std::exception &fehler) {
        MsgBox(std::string("Velmo muss enden, weil dem Rechner etwas misslang: ") + fehler.what(), "Velmo",
               Meldungsart::Kritisch);
        endstand = 1;
    }
    bündel.nimm("ende", {});
    bündel.sende();
    return endstand;
}

double Browseroberfläche::nun() const {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Browseroberfläche::Sekunden() const {
    const auto uhr = std::chrono::system_clock::now();
    const std::time_t zeit = std::chrono::system_clock::to_time_t(uhr);
    const std::tm *hier = std::localtime(&zeit);
    const auto bruch = std::chrono::duration<double>(uhr - std::chrono::system_clock::from_time_t(zeit)).count();
    return hier->tm_hour * 3600 + hier->tm_min * 60 + hier->tm_sec + bruch;
}

void Browseroberfläche::bearbeite(const Handler &handler) {
    tat = true;
    p->behandle(handler);
}

void Browseroberfläche::folge() {
    abschrift->folge();
    ereignisse->folge();
    bündel.sende();
}

void Browseroberfläche::ruhe(double ms) {
    bündel.sende();
    if (ms > 0) seite_ruhe(ms, false);
}

/// Nimmt das nächste Ereignis, wenn eines da ist.
bool Browseroberfläche::nimmEreignis() {
    const auto a = nächstesEreignis();
    if (!a) return false;
    nimmWunsch(*a);
    ereignisse->nimm(*a);
    return true;
}

void Browseroberfläche::nimmWunsch(const Angaben &a) {
    if (a[0] == "ruhig") abschrift->ruhig = a[1] == "ja";
    if (a[0] == "dauer") klänge.merkeDauer(a[1], std::atol(a[2].c_str()));
}

void Browseroberfläche::gibAb(Rast rast) {
    folge();
    if (rast == Rast::BisEreignis) {
        if (nimmEreignis()) return;
        const auto dann = p->nächsteFälligkeit();
        const double ms = dann ? std::max(0.0, static_cast<double>(*dann) - nun()) : -1;
        if (ms != 0) seite_ruhe(ms, true);
        if (!nimmEreignis()) bearbeite([this] { p->Fälliges(); });
        return;
    }
    tat = false;
    nimmEreignis();
    if (p->Fälliges() || tat) return;
    schuld += 1;
    if (schuld < Bildzeit) return;
    const double vorher = nun();
    seite_ruhe(schuld, false);
    schuld -= nun() - vorher;
}

void Browseroberfläche::zeigeSchritt(const Form &, double ms) {
    if (abschrift->ruhig || !schritte.beginne(nun(), ms)) return;
    folge();
    ruhe(schritte.ende() - nun());
}

/// Die Fahrt von Feld zu Feld; die Seite bewegt.
void Browseroberfläche::zeigeSchritt(const Control &c, double ms) {
    const Stück *s = abschrift->stück(c);
    if (!s || !schritte.beginne(nun(), ms)) return;
    const Stück vorher = *s;
    folge();
    const Punkt weg{vorher.Left - s->Left, vorher.Top - s->Top};
    const double rest = schritte.ende() - nun();
    const auto lauf = [&](double anteil) { return fahrt(weg, anteil, vorher.bild, s->bild); };
    if (!abschrift->ruhig && rest > 0) bündel.nimm("schwung", schwung(*p, *s, rest, lauf));
    ruhe(rest);
}

void Browseroberfläche::setzeModus(int Breite, int Höhe) {
    gemerkteAnzeige.Breite = Breite;
    gemerkteAnzeige.Höhe = Höhe;
}

/// Zeigt einen Kasten und wartet auf die Antwort; alles andere ruht.
std::optional<std::string> Browseroberfläche::frage(Merkmale kasten) {
    abschrift->folge();
    bündel.nimm("kasten", kasten);
    bündel.sende();
    for (;;) {
        if (const auto a = nächstesEreignis()) {
            nimmWunsch(*a);
            if ((*a)[0] != "kasten") continue;
            if ((*a)[1] != "ok") return std::nullopt;
            return (*a)[2];
        }
        seite_ruhe(-1, true);
    }
}

void Browseroberfläche::MsgBox(const std::string &text, const std::string &titel, Meldungsart art) {
    frage({{"text", json(text)}, {"titel", json(titel)}, {"kritisch", json(art == Meldungsart::Kritisch)}});
}

std::optional<std::string> Browseroberfläche::InputBox(const std::string &satz, const std::string &titel) {
    return frage({{"text", json(satz)}, {"titel", json(titel)}, {"feld", json(true)}});
}

void Browseroberfläche::Beep() { bündel.nimm("piep", {}); }

void Browseroberfläche::ton(MMControl &c, Befehl befehl, bool warten) {
    klänge.befehl(c, befehl);
    if (!warten || !abschrift) return;
    folge();
    ruhe(static_cast<double>(klänge.rest(c)));
}

void Browseroberfläche::öffneFilm(Animation &c, const std::string &Datei) {
    if (!istDatei(findePfad(Datei))) throw Laufzeitfehler::dateiFehlt();
    folge();
    bündel.nimm("film", {{"form", json(c.form.Nummer)}, {"stück", json(Abschrift::nummer(c))}, {"läuft", json(false)}});
}

void Browseroberfläche::spieleFilm(Animation &c) {
    bündel.nimm("film", {{"form", json(c.form.Nummer)}, {"stück", json(Abschrift::nummer(c))}, {"läuft", json(true)}});
}

void Browseroberfläche::vergiss(const Control &c) { klänge.vergiss(c); }

} // namespace velmo
