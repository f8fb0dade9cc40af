#include "bench/Szene.h"

#include "bench/Befehle.h"
#include "shell/Formtafel.h"

#include <array>
#include <iostream>
#include <sstream>

namespace velmo {

namespace {

/// Das Skript ist zu Ende, während eine Routine wartet.
struct Skriptende {};
/// Ein neues Programm soll beginnen, während eine Routine des alten wartet.
struct Neuanfang {};

constexpr const char *TafelOhneZeilen = "die Tafel hat keine Zeile";
constexpr std::array Fehlerworte = {"argument", "überlauf", "index", "typ", "datei"};

} // namespace

Szene::Szene(std::string name, std::string_view skript) : datei(std::move(name)) {
    if (skript.starts_with("\xEF\xBB\xBF")) skript.remove_prefix(3);
    int nummer = 0;
    bool setztFort = false; // die Zeile davor endet auf einen umgekehrten Schrägstrich
    std::istringstream zeilen{std::string(skript)};
    for (std::string text; std::getline(zeilen, text);) {
        if (text.ends_with('\r')) text.pop_back();
        ++nummer;
        if (setztFort) {
            rest.back().text += ' ' + text;
        } else {
            rest.push_back({nummer, text});
        }
        setztFort = text.ends_with(" \\") && text.find('#') == std::string::npos;
        if (setztFort) rest.back().text.pop_back();
    }
    fläche.Fahrer = [this] { imWarten(); };
    neuesProgramm();
}

Bilanz Szene::spiele() {
    laufe();
    return bilanz;
}

void Szene::laufe() {
    while (zeitbefehl || zweiterDruck || hatZeile()) {
        try {
            if (zeitbefehl)
                zeitschritt();
            else
                nächsterBefehl();
            if (gestartet && p().Formen().empty()) beende("ende");
        } catch (const Laufzeitfehler &fehler) {
            brichAb(p(), fehler);
            schlusswort = fehler.what();
            beende(Fehlerworte[static_cast<std::size_t>(fehler.Art())]);
        } catch (const Programmende &) {
            beende("ende");
        } catch (const Neuanfang &) {
        } catch (const Skriptende &) {
            break;
        } catch (const std::exception &fehler) {
            return scheitere(fehler.what());
        }
    }
    if (ohneZeilen()) scheitere(TafelOhneZeilen);
}

bool Szene::hatZeile() {
    if (!rest.empty()) return true;
    auto neue = nachschub ? nachschub() : std::nullopt;
    if (neue) rest.push_back({zeile + 1, std::move(*neue)});
    return neue.has_value();
}

void Szene::nächsterBefehl() {
    const int außen = zeile;
    try {
        führeAus();
    } catch (const Schreibfehler &fehler) {
        tafel.reset();
        scheitere(fehler.what());
        throw Skriptende{};
    }
    zeile = außen;
}

void Szene::führeAus() {
    if (zweiterDruck) return drückeNochmals(*this);
    std::vector<Wort> wörter;
    Zeile hier;
    while (wörter.empty()) {
        if (!hatZeile()) {
            if (wartende > 0) throw Skriptende{};
            return;
        }
        hier = std::move(rest.front());
        rest.pop_front();
        zeile = hier.nummer;
        wörter = zerlege(hier.text);
    }
    if (const auto teile = zerteile(wörter); teile.size() > 1 && !istTafelzeile(wörter[0])) {
        std::vector<std::string> zeilen;
        for (const auto &teil : teile) {
            findeBefehl(teil);
            zeilen.push_back(schreibe(teil));
        }
        return schiebeEin(zeilen);
    }
    const Befehlseintrag &befehl = findeBefehl(wörter);
    if (ende != std::string_view("keiner") && !befehl.auchAmEnde)
        throw Schreibfehler("das Programm ist zu Ende" + (schlusswort.empty() ? "" : ": " + schlusswort));
    if (befehl.beginntNeu && wartende > 0) {
        rest.push_front(std::move(hier));
        throw Neuanfang{};
    }
    befehl.führeAus(*this, Wörter(wörter).subspan(1));
}

void Szene::starte() {
    if (gestartet || ende != std::string_view("keiner")) {
        fläche.leere();
        neuesProgramm();
    }
    gestartet = true;
    p().behandle([this] { velmo::starte(p()); });
}

void Szene::neuesProgramm() {
    namen.reset();
    programm.reset();
    ende = "keiner";
    schlusswort.clear();
    ergebnis = Leer{};
    gestartet = false;
    programm = std::make_unique<Programm>(fläche, Formtafel(), ordner.Pfad());
    namen = std::make_unique<Namen>(*programm, fläche);
}

void Szene::schiebeEin(const std::vector<std::string> &zeilen) {
    std::size_t stelle = 0;
    for (const std::string &text : zeilen)
        rest.insert(rest.begin() + static_cast<std::ptrdiff_t>(stelle++), {zeile, text});
}

void Szene::beginneTafel(Wörter kopf) {
    if (ohneZeilen()) throw Schreibfehler(TafelOhneZeilen);
    tafel.emplace(kopf);
    tafelkopf = zeile;
}

/// Hat die Tafel keine Zeile, so prüft sie nichts; der Fehler steht in ihrem Kopf.
bool Szene::ohneZeilen() {
    if (!tafel || !tafel->ohneZeilen()) return false;
    zeile = tafelkopf;
    return true;
}

void Szene::beende(const char *fehler) {
    if (ende != std::string_view("keiner")) return;
    ende = fehler;
    gestartet = false;
    zweiterDruck.reset();
    if (zeitbefehl) zeitIstUm();
}

Zugang Szene::finde(const std::string &Name) {
    if (Name == "ergebnis") return {[this] { return ergebnis; }, {}};
    if (Name == "fehler") return {[this] { return Wert(std::string(ende)); }, {}};
    return namen->finde(Name);
}

void Szene::prüfe(bool gilt, const std::string &ist, const std::string &erwartet) {
    ++(gilt ? bilanz.bestanden : bilanz.gescheitert);
    if (!gilt) melde(ist + ", erwartet " + erwartet);
}

void Szene::scheitere(const std::string &grund) {
    melde(grund);
    ++bilanz.gescheitert;
}

void Szene::melde(const std::string &text) const { std::cout << datei << ':' << zeile << ": " << text << '\n'; }

} // namespace velmo
