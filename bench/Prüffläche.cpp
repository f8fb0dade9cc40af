#include "bench/Prüffläche.h"

#include "media/Avi.h"
#include "platform/Dateien.h"
#include "platform/Form.h"

#include <array>
#include <utility>

namespace velmo {

std::string vollerName(const Control &c) { return std::string(c.form.Name) + "." + c.Name; }

void Prüffläche::leere() {
    Vorgaben.clear();
    Antworten.clear();
    Meldungen.clear();
    Fragen.clear();
    Töne.clear();
    Modus.reset();
}

double Prüffläche::Rnd() {
    if (Vorgaben.empty()) return static_cast<double>(Erzeuger() >> 11) * 0x1p-53;
    const double ziehung = Vorgaben.front();
    Vorgaben.pop_front();
    return ziehung;
}

std::optional<std::string> Prüffläche::InputBox(const std::string &frage, const std::string &titel) {
    Fragen.push_back({frage, titel});
    if (Antworten.empty()) return std::nullopt;
    auto antwort = std::move(Antworten.front());
    Antworten.pop_front();
    return antwort;
}

void Prüffläche::ton(MMControl &c, Befehl befehl, bool warten) {
    static constexpr std::array Worte = {"open", "play", "close"};
    std::string &buch = Töne[vollerName(c)];
    if (!buch.empty()) buch += ' ';
    if (warten) buch += "wait ";
    buch += Worte[static_cast<std::size_t>(befehl)];
}

void Prüffläche::öffneFilm(Animation &c, const std::string &Datei) {
    liesAvi(liesDatei(Datei));
    Filme[&c] = {Datei};
}

void Prüffläche::spieleFilm(Animation &c) {
    if (const auto film = Filme.find(&c); film != Filme.end()) film->second.Beginn = Uhr;
}

void Prüffläche::vergiss(const Control &c) { Filme.erase(&c); }

} // namespace velmo
