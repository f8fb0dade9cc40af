// Der Aufbau eines Films: Takt und Bilder; was abgeschnitten oder keiner ist, ist ein Dateifehler.
#include "bench/Prüfung.h"
#include "media/Avi.h"
#include "platform/Laufzeitfehler.h"
#include "tests/Probefilm.h"

using namespace velmo;

namespace {

bool istFilm(const std::string &bytes) {
    try {
        liesAvi(bytes);
        return true;
    } catch (const Laufzeitfehler &fehler) {
        return fehler.Art() != Fehlerart::Datei;
    }
}

} // namespace

int main() {
    Prüfung prüfung;
    const std::string film = probefilm({"eins", "", "drei!"});
    const Avi avi = liesAvi(film);
    prüfung.gleich("Bilder", avi.Bilder.size(), 3u);
    prüfung.gleich("das erste", film.substr(avi.Bilder[0].Ort, avi.Bilder[0].Länge), "eins");
    prüfung.gleich("ein leeres", avi.Bilder[1].Länge, 0u);
    prüfung.gleich("nach ungerader Länge", film.substr(avi.Bilder[2].Ort, avi.Bilder[2].Länge), "drei!");
    prüfung.gleich("Verfahren", avi.Verfahren, "VP90");
    prüfung.gleich("Takt der Spur", avi.Bildzeit, 40.0);
    prüfung.gleich("Takt der Datei", liesAvi(probefilm({"eins"}, 1, 0)).Bildzeit, 50.0);
    prüfung.gilt("Anhang stört nicht", istFilm(film + "mehr"));

    prüfung.gilt("kein Bild", !istFilm(probefilm({})));
    prüfung.gilt("kein Takt", !istFilm(probefilm({"eins"}, 1, 0, 0)));
    prüfung.gilt("zu langsam", !istFilm(probefilm({"eins"}, 11, 1)));
    prüfung.gilt("eine Wellendatei", !istFilm(abschnitt("RIFF", "WAVE" + film.substr(12))));
    std::string ragt = film;
    ragt.replace(film.find("00dc") + 4, 4, wort(1000));
    prüfung.gilt("ein Bild ragt hinaus", !istFilm(ragt));
    bool jederSchnittFällt = true;
    for (std::size_t länge = 0; länge < film.size(); ++länge)
        jederSchnittFällt &= !istFilm(film.substr(0, länge));
    prüfung.gilt("abgeschnitten", jederSchnittFällt);
    return prüfung.ende();
}
