#include "bench/Prüffläche.h"

#include "media/Avi.h"
#include "platform/Dateien.h"
#include "platform/Form.h"

#include <array>
#include <cmath>
#include <utility>

namespace velmo {

std::string vollerName(const Control &c) { return std::string(c.form.Name) + "." + c.Name; }

std::string Ereignis::Zeile() const {
    static constexpr std::array Worte = {"Ziehung", "Ton", "Schritt", "Meldung", "Frage", "Piep"};
    std::string zeile = Worte[static_cast<std::size_t>(Was)];
    if (!Wer.empty()) zeile += ' ' + Wer;
    if (!Text.empty()) zeile += ' ' + Text;
    return zeile;
}

void Prüffläche::leere() {
    Vorgaben.clear();
    Antworten.clear();
    Meldungen.clear();
    Fragen.clear();
    Töne.clear();
    Modus.reset();
}

double Prüffläche::Rnd() {
    if (Vorgaben.empty()) {
        const std::uint64_t bits = Erzeuger() >> 11; // 53
        const double ziehung = static_cast<double>(bits) * 0x1p-53;
        if (Zeuge) Zeuge({Ereignis::Art::Ziehung, "", std::to_string(bits), ziehung});
        return ziehung;
    }
    const double ziehung = Vorgaben.front();
    Vorgaben.pop_front();
    return ziehung;
}

void Prüffläche::zeigeSchritt(const Control &c, double) {
    const auto *bild = dynamic_cast<const Image *>(&c);
    if (!Zeuge || !bild) return;
    Zeuge({Ereignis::Art::Schritt, vollerName(c),
           std::to_string(std::lround(bild->Left)) + " " + std::to_string(std::lround(bild->Top)) + " " +
               bild->Picture().Name});
}

void Prüffläche::MsgBox(const std::string &text, const std::string &, Meldungsart art) {
    bezeuge({Ereignis::Art::Meldung, "", text});
    Meldungen.push_back({text, art});
}

std::optional<std::string> Prüffläche::InputBox(const std::string &frage, const std::string &titel) {
    bezeuge({Ereignis::Art::Frage, "", frage});
    Fragen.push_back({frage, titel});
    if (Antworten.empty()) return std::nullopt;
    auto antwort = std::move(Antworten.front());
    Antworten.pop_front();
    return antwort;
}

void Prüffläche::ton(MMControl &c, Befehl befehl, bool warten) {
    static constexpr std::array Worte = {"open", "play", "close"};
    const std::string name = vollerName(c);
    bezeuge({Ereignis::Art::Ton, name, (warten ? "wait " : "") + std::string(Worte[static_cast<std::size_t>(befehl)])});
    std::string &buch = Töne[name];
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
