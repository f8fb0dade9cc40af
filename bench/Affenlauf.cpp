#include "bench/Affenlauf.h"

#include "bench/Affenhand.h"
#include "bench/Befehle.h"
#include "bench/Regelenden.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <iostream>
#include <string_view>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmo {

namespace {

constexpr itimerval LängsteHandlung{{0, 0}, {20, 0}}; // s Rechenzeit, danach hängt sie
constexpr auto Kürzungszeit = std::chrono::minutes(3);

// Der Prozess erzählt in Zeilen: ein Zeichen, dann der Text. Was ohne Zeichen kommt, hat die Szene gesagt.
enum Kennung : char { Tat = '>', Regelfall = '+', Fund = '!' };

void sage(Kennung k, const std::string &text) { std::cout << static_cast<char>(k) << text << std::endl; }

bool beginntNeu(const std::string &zeile) { return zeile == "start" || zeile == "menü" || zeile.starts_with("spiel "); }

/// Gibt der Szene Zeile um Zeile und prüft, was die vorige hinterließ.
class Wärter {
  public:
    using Quelle = std::function<std::optional<std::string>()>;

    Wärter(Szene &s, Quelle quelle, Handler beginneNeu)
        : s(s), quelle(std::move(quelle)), beginneNeu(std::move(beginneNeu)) {
        s.nachschub = [this] { return nächste(); };
    }

    void laufe() {
        s.spiele();
        prüfeEnde();
        if (!amEnde) finde("die Szene brach ab"); // ihren Grund hat sie gesagt
    }

  private:
    std::optional<std::string> nächste() {
        setitimer(ITIMER_VIRTUAL, &LängsteHandlung, nullptr);
        prüfeEnde();
        prüfeSackgasse();
        for (auto zeile = quelle(); zeile; zeile = quelle()) {
            if (!geht(*zeile)) continue;
            sage(Tat, *zeile);
            geschlossen |= zeile->starts_with("schließe ");
            if (beginntNeu(*zeile)) geschlossen = sackgasse = false;
            return zeile;
        }
        amEnde = true;
        return std::nullopt;
    }

    /// Gäbe es bei dieser Zeile nichts zu bedienen, wäre sie ein Schreibfehler der Szene.
    bool geht(const std::string &zeile) {
        try {
            const auto wörter = zerlege(zeile);
            const Befehlseintrag &befehl = findeBefehl(wörter);
            if (s.fehler() != std::string_view("keiner") && !befehl.auchAmEnde) return false;
            if (wörter[0].ist("anzeige") || wörter[0].ist("spiel")) return !s.gestartet || wörter[0].ist("spiel");
            if (wörter[0].ist("wähle"))
                return liesGanzzahl(wörter[2]) < s.namen->control<Listenelement>(wörter[1].text).ListCount();
            for (const Wort &w : Wörter(wörter).subspan(1))
                if (double zahl = 0; !w.zitiert && !liesZahl(w.text, zahl) && !w.ist("=") && !w.ist("weg"))
                    prüfeName(w.text);
            return true;
        } catch (const Schreibfehler &) {
            return false;
        }
    }

    void prüfeName(const std::string &name) {
        const auto punkt = name.find('.');
        if (punkt == std::string::npos)
            s.namen->form(name);
        else
            s.namen->control<VisualControl>(name.substr(0, name.find('.', punkt + 1)));
    }

    void prüfeEnde() {
        const std::string ende = std::exchange(vorigesEnde, s.fehler());
        if (vorigesEnde == ende || vorigesEnde == "keiner") return;
        if (vorigesEnde == "ende") return;
        const char *regel = Regelende(s.p(), vorigesEnde);
        if (!regel) finde("Laufzeitfehler " + vorigesEnde + " ohne Regel");
        sage(Regelfall, regel);
    }

    void prüfeSackgasse() {
        if (sackgasse || !istSackgasse(s)) return;
        const char *regel = Sackgassenregel(s.p(), geschlossen);
        if (!regel) finde("eine Sackgasse ohne Regel");
        sage(Regelfall, regel);
        sackgasse = true;
        beginneNeu();
    }

    [[noreturn]] void finde(const std::string &was) {
        sage(Fund, was);
        _exit(1);
    }

    Szene &s;
    Quelle quelle;
    Handler beginneNeu;
    bool amEnde = false;
    bool geschlossen = false, sackgasse = false; // seit dem letzten Neuanfang
    std::string vorigesEnde = "keiner";
};

void lies(Affenlauf &lauf, const std::string &zeile) {
    if (zeile.empty()) return;
    const std::string text = zeile.substr(1);
    if (zeile[0] == Tat) lauf.Zeilen.push_back(text);
    if (zeile[0] == Regelfall) ++lauf.Regelfälle[text];
    if (zeile[0] == Fund) lauf.Befund = text;
}

/// Führt die Arbeit in einem eigenen Prozess aus und liest, was er erzählt.
Affenlauf getrennt(const Handler &arbeit) {
    std::array<int, 2> rohr{};
    if (pipe(rohr.data()) != 0) throw std::runtime_error("kein Rohr");
    std::cout.flush();
    const pid_t kind = fork();
    if (kind == 0) {
        dup2(rohr[1], STDOUT_FILENO);
        close(rohr[0]);
        arbeit();
        std::cout.flush();
        _exit(0);
    }
    close(rohr[1]);
    Affenlauf lauf;
    std::string gelesen;
    std::array<char, 65536> puffer{};
    for (ssize_t zahl; (zahl = read(rohr[0], puffer.data(), puffer.size())) > 0;) {
        gelesen.append(puffer.data(), static_cast<std::size_t>(zahl));
        std::size_t anfang = 0;
        for (std::size_t ende; (ende = gelesen.find('\n', anfang)) != std::string::npos; anfang = ende + 1)
            lies(lauf, gelesen.substr(anfang, ende - anfang));
        gelesen.erase(0, anfang);
    }
    close(rohr[0]);
    int status = 0;
    waitpid(kind, &status, 0);
    if (lauf.Befund.empty() && status != 0)
        lauf.Befund = WIFSIGNALED(status) && WTERMSIG(status) == SIGVTALRM ? "hängt" : "stürzt ab";
    return lauf;
}

} // namespace

Affenlauf laufe(unsigned saat, int handlungen) {
    return getrennt([=] {
        Szene s("affe", "");
        Affenhand hand(s, saat);
        int rest = handlungen;
        Wärter(
            s,
            [&]() -> std::optional<std::string> {
                if (rest-- == 0) return std::nullopt;
                return hand.nächste();
            },
            [&] { hand.beginneNeu(); })
            .laufe();
    });
}

Affenlauf wiederhole(const std::vector<std::string> &zeilen) {
    return getrennt([&] {
        Szene s("affe", "");
        auto hier = zeilen.begin();
        Wärter(
            s,
            [&]() -> std::optional<std::string> {
                if (hier == zeilen.end()) return std::nullopt;
                return *hier++;
            },
            [] {})
            .laufe();
    });
}

std::vector<std::string> verkürze(Affenlauf lauf) {
    const auto schluss = std::chrono::steady_clock::now() + Kürzungszeit;
    std::size_t stück = lauf.Zeilen.size() / 2;
    while (stück > 0 && std::chrono::steady_clock::now() < schluss) {
        bool kürzer = false;
        for (std::size_t von = 0; von < lauf.Zeilen.size() && std::chrono::steady_clock::now() < schluss;) {
            auto weniger = lauf.Zeilen;
            const auto hier = weniger.begin() + static_cast<std::ptrdiff_t>(von);
            weniger.erase(hier, hier + static_cast<std::ptrdiff_t>(std::min(stück, weniger.size() - von)));
            Affenlauf versuch = wiederhole(weniger);
            if (versuch.Befund == lauf.Befund) {
                lauf = std::move(versuch);
                kürzer = true;
            } else {
                von += stück;
            }
        }
        if (!kürzer) stück /= 2;
        stück = std::min(stück, lauf.Zeilen.size());
    }
    return lauf.Zeilen;
}

} // namespace velmo
