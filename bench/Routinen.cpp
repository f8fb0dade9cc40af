// Die Routinen des Spiels, die ein Skript unmittelbar ruft.
#include "bench/Befehle.h"

#include "assistant/Ansagen.h"
#include "assistant/Assistent.h"
#include "assistant/Regionen.h"
#include "board/Autofahrt.h"
#include "board/Landung.h"
#include "boardform/Kasse.h"
#include "computer/Zufallsentscheid.h"
#include "computer/kibaufeld.h"
#include "computer/kibauphase.h"
#include "computer/kieingang.h"
#include "computer/kigeldfeld.h"
#include "media/Bilder.h"
#include "model/Autotafel.h"
#include "model/Spielbeginn.h"
#include "platform/FormAnpassen.h"
#include "property/Bauen.h"
#include "property/Eingangskauf.h"
#include "property/Grundstück.h"
#include "property/Miete.h"
#include "property/Pleite.h"
#include "shell/Menu.h"

#include <algorithm>

namespace velmo {

namespace {

// Was ein Argument ist. Zahlen, die ein Text sein sollen, gelten als ihre Ziffern.
std::string text(const Wort &w) { return alsText(liesWert(w)); }

template <class T> T wert(const Wort &w) {
    T ziel;
    ausWert(liesWert(w), ziel);
    return ziel;
}

Autokürzel wagen(const Wort &w) {
    const auto kürzel = AutoZuText(liesText(w));
    if (!kürzel) throw Schreibfehler("es gibt kein Auto " + zitiere(w.text));
    return *kürzel;
}

std::optional<Autokürzel> wagenOderKeiner(const Wort &w) {
    if (w.zitiert && w.text.empty()) return std::nullopt;
    return wagen(w);
}

bool flagge(const Wort &w) {
    if (!w.ist("wahr") && !w.ist("falsch")) throw Schreibfehler(w.text + " ist nicht wahr oder falsch");
    return w.ist("wahr");
}

Form &form(Programm &p, Szene &s, const Wort &w) { return p.lade(s.namen->formular(w.text)); }

Wert geldbuchen(Programm &p, Wörter w) {
    auto betrag = wert<Lose>(w[0]);
    Geldbuchen(p, betrag, wert<Flagge>(w[1]));
    return alsWert(betrag);
}

struct Routine {
    const char *Name;
    std::size_t Argumente;
    Wert (*rufe)(Szene &, Programm &, Wörter);
};

// Ein Ruf ohne Ergebnis und eine Frage, deren Wert das Ergebnis ist; s, p und w sind Szene, Programm und Argumente.
#define BEIRUF [[maybe_unused]] Szene &s, [[maybe_unused]] Programm &p, [[maybe_unused]] Wörter w
#define RUFE(...) [](BEIRUF) -> Wert { return __VA_ARGS__, Leer{}; }
#define FRAGE(...) [](BEIRUF) -> Wert { return __VA_ARGS__; }

// clang-format off
const Routine Routinentafel[] = {
    {"Geldbuchen",           2, FRAGE(geldbuchen(p, w))},
    {"Scheinanzeige",        0, RUFE(Scheinanzeige(p))},
    {"Notenzahlung",         1, RUFE(Notenzahlung(p, liesGanzzahl(w[0])))},
    {"Autofahrt",            1, RUFE(Autofahrt(p, wagen(w[0])))},
    {"Bankdurchfahrt",       1, RUFE(Bankdurchfahrt(p, wagen(w[0])))},
    {"Eingangsknopf",        1, RUFE(Eingangsknopf(p, flagge(w[0])))},
    {"Mietdialog",           1, RUFE(Mietdialog(p, wagen(w[0])))},
    {"Mietzahlen",           1, RUFE(Mietzahlen(p, wagen(w[0])))},
    {"Besitzanzeige",        0, RUFE(Besitzanzeige(p))},
    {"Baudurchführung",      0, RUFE(Baudurchführung(p))},
    {"Hochbauen",            1, RUFE(Hochbauen(p, text(w[0])))},
    {"Eingangsanzeige",      1, RUFE(Eingangsanzeige(p, text(w[0])))},
    {"Eingangsauffrischung", 1, RUFE(Eingangsauffrischung(p, flagge(w[0])))},
    {"Pleitegehen",          3, RUFE(Pleitegehen(p, text(w[0]), wert<Kurz>(w[1]), text(w[2])))},
    {"Zwangsverkauf",        3, RUFE(Zwangsverkauf(p, liesGanzzahl(w[0]), Hotelbesitzer(text(w[1])), text(w[2])))},
    {"kigeldfeld",           0, RUFE(kigeldfeld(p))},
    {"kibaufeld",            0, RUFE(kibaufeld(p))},
    {"kibauen",              1, RUFE(kibauen(p, text(w[0])))},
    {"kieingang",            2, RUFE(kieingang(p, flagge(w[0]), wagenOderKeiner(w[1])))},
    {"kibauphase",           0, RUFE(kibauphase(p))},
    {"Zufallsentscheid",     1, FRAGE(double(Zufallsentscheid(p, wert<Lose>(w[0]))))},
    {"Grundstücksmeldung",   2, RUFE(Grundstücksmeldung(p, liesGanzzahl(w[0]), text(w[1])))},
    {"Ansagen",              2, RUFE(Ansagen(p, text(w[0]), liesGanzzahl(w[1])))},
    {"ImmerOben",            2, RUFE(ImmerOben(form(p, s, w[0]), flagge(w[1])))},
    {"BlaseAnlegen",         0, RUFE(BlaseAnlegen(p))},
    {"Tabelle_X",            1, FRAGE(double(Tabelle_X(liesGanzzahl(w[0]))))},
    {"Tabelle_Y",            1, FRAGE(double(Tabelle_Y(liesGanzzahl(w[0]))))},
    {"AuflösungSetzen",      2, RUFE(AuflösungSetzen(p, float(liesZahlwort(w[0])), float(liesZahlwort(w[1]))))},
    {"GewinnZeigen",         0, RUFE(GewinnZeigen(p))},
    {"FormAnpassen",         2, RUFE(FormAnpassen(form(p, s, w[0]), liesGanzzahl(w[1])))},
    {"IstKleineSchrift",     0, FRAGE(IstKleineSchrift(p))},
    {"SpielZurücksetzen",    0, RUFE(SpielZurücksetzen(p.Zustand))},
    {"Bildladen",            2, FRAGE(alsWert(Bildladen(p, liesGanzzahl(w[0]), liesText(w[1]))))},
};
// clang-format on

} // namespace

void ruf(Szene &s, Wörter w) {
    const auto routine = std::ranges::find_if(Routinentafel, [&](const Routine &r) { return w[0].ist(r.Name); });
    if (routine == std::end(Routinentafel)) throw Schreibfehler("unbekannte Routine " + w[0].text);
    if (w.size() - 1 != routine->Argumente)
        throw Schreibfehler(w[0].text + " hat " + std::to_string(routine->Argumente) + " Argumente");
    s.ergebnis = Leer{};
    s.p().behandle([&] { s.ergebnis = routine->rufe(s, s.p(), w.subspan(1)); });
}

} // namespace velmo
