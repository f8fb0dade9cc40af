#include "bench/Sammelnamen.h"

#include "bench/Zerlegung.h"
#include "include/Reihe.h"

#include <algorithm>
#include <sstream>
#include <utility>
#include <vector>

namespace velmo {

namespace {

using Felder = std::map<std::string, Zugang>;

std::vector<std::string> wörter(const Wert &w) {
    std::istringstream strom(alsText(w));
    std::vector<std::string> alle;
    for (std::string wort; strom >> wort;)
        alle.push_back(wort);
    return alle;
}

std::string gereiht(const std::vector<std::string> &worte) {
    std::string text;
    for (const std::string &wort : worte)
        text += (text.empty() ? "" : " ") + wort;
    return text;
}

/// Die Werte der Felder in ihrer Folge.
Zugang reihe(const std::vector<Zugang> &felder) {
    return {[felder]() -> Wert {
                std::vector<std::string> werte;
                for (const Zugang &z : felder)
                    werte.push_back(alsText(z.lies()));
                return gereiht(werte);
            },
            [felder](const Wert &w) {
                const auto werte = wörter(w);
                if (werte.size() != felder.size())
                    throw Schreibfehler(zitiere(alsText(w)) + " sind nicht " + std::to_string(felder.size()) +
                                        " Werte");
                for (std::size_t i = 0; i < felder.size(); ++i)
                    felder[i].setze(liesWert({werte[i]}));
            }};
}

/// Was zur Menge gehört, unter seinem Wort.
struct Glied {
    std::string Wort;
    std::function<bool()> gehört;
    std::function<void(bool)> setze;
};

/// Die Wörter derer, die dazugehören.
Zugang menge(const std::vector<Glied> &glieder) {
    return {[glieder]() -> Wert {
                std::vector<std::string> worte;
                for (const Glied &g : glieder)
                    if (g.gehört()) worte.push_back(g.Wort);
                return gereiht(worte);
            },
            [glieder](const Wert &w) {
                const auto worte = wörter(w);
                for (const std::string &wort : worte)
                    if (std::ranges::find(glieder, wort, &Glied::Wort) == glieder.end())
                        throw Schreibfehler(wort + " gehört nicht dazu");
                for (const Glied &g : glieder)
                    if (const bool soll = std::ranges::find(worte, g.Wort) != worte.end(); soll || g.gehört())
                        g.setze(soll);
            }};
}

/// Das Feld gehört dazu, wenn es den Wert hat; sonst hat es den anderen.
Glied mitWert(const std::string &wort, const Zugang &feld, const Wert &dabei, const Wert &sonst) {
    return {wort, [=] { return gleich(feld.lies(), dabei); }, [=](bool ja) { feld.setze(ja ? dabei : sonst); }};
}

Glied vonBesitzer(const std::string &platz, const Felder &felder, const std::string &wer) {
    const Zugang eingang = felder.at("Eingang(" + platz + ")"), besitzer = felder.at("Eingangsbesitzer(" + platz + ")");
    return {platz, [=] { return alsFlagge(eingang.lies()) && alsText(besitzer.lies()) == wer; },
            [=](bool ja) {
                eingang.setze(ja);
                if (ja) besitzer.setze(wer);
            }};
}

template <class Nach> std::vector<std::string> schlüssel() {
    std::vector<std::string> namen;
    for (int i = 0; i < Nach::Zahl; ++i)
        namen.push_back(Nach::name(i));
    return namen;
}

} // namespace

void sammle(Felder &felder) {
    const auto zahlen = [&](const std::string &name, const std::vector<std::string> &schlüssel) {
        std::vector<Zugang> alle;
        for (const std::string &k : schlüssel)
            alle.push_back(felder.at(name + "(" + k + ")"));
        felder[name] = reihe(alle);
    };
    // Je Schlüssel das Feld VOR SCHLÜSSEL ")".
    const auto wahre = [&](const std::string &name, const std::string &vor, const std::vector<std::string> &schlüssel,
                           const Wert &dabei, const Wert &sonst) {
        std::vector<Glied> alle;
        for (const std::string &k : schlüssel)
            alle.push_back(mitWert(k, felder.at(vor + k + ")"), dabei, sonst));
        felder[name] = menge(alle);
    };
    const auto hotels = schlüssel<NachHotel>(), plätze = schlüssel<NachEingang>();
    zahlen("Notenbestand", schlüssel<NachNote>());
    zahlen("Computergeld", schlüssel<NachComputer>());
    wahre("Eingang", "Eingang(", plätze, true, false);
    wahre("Eingangssperre", "Eingangssperre(", hotels, true, false);
    wahre("Vollmerker", "Vollmerker(", hotels, true, false);
    for (const std::string wer : {"player1", "c1", "c2", "c3"})
        wahre("Besitz(" + wer + ")", "Besitzer(", hotels, wer, "");
    for (const std::string &h : hotels)
        wahre("Baustufen(" + h + ")", "Baustufen(" + h + ",", schlüssel<NachStufe>(), "true", "");
    for (const std::string &a : schlüssel<NachAuto>())
        wahre("Eingangsmerker(" + a + ")", "Eingangsmerker(" + a + ",", hotels, true, false);
    for (const std::string wer : {"Spieler", "c1", "c2", "c3"}) {
        std::vector<Glied> alle;
        for (const std::string &platz : plätze)
            alle.push_back(vonBesitzer(platz, felder, wer));
        felder["Eingänge(" + wer + ")"] = menge(alle);
    }
}

} // namespace velmo
