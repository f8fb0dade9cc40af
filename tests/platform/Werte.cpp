// Die Arten der Werte, Zeichen und Dateien, wo kein Befehl einer Szene hinreicht.
#include "include/Werte.h"
#include "bench/Programmordner.h"
#include "bench/Prüfung.h"
#include "platform/Bilderordner.h"
#include "platform/Dateien.h"
#include "platform/Laufzeitfehler.h"
#include "platform/Region.h"
#include "platform/Zeichen.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

using namespace velmo;

namespace {

template <class F> bool wirft(Fehlerart art, const F &tu) {
    try {
        tu();
    } catch (const Laufzeitfehler &f) {
        return f.Art() == art;
    }
    return false;
}

void prüfeKurz(Prüfung &t) {
    Kurz k = 32767;
    t.gilt("32767 + 1 läuft über", wirft(Fehlerart::Überlauf, [&] { k += 1; }));
    t.gleich("und bleibt", int(k), 32767);
    t.gilt("-32768 - 1 läuft über", wirft(Fehlerart::Überlauf, [] { Kurz(-32768) -= 1; }));
}

void prüfeLose(Prüfung &t) {
    t.gilt("Ziffern gelten als Zahl", Lose("6") == Lose(6));
    t.gilt("leer ist nicht 0", !(Lose() == Lose(0)));
    t.gilt("leer ist der leere Text", Lose() == Lose(""));
    t.gleich("leer rechnet als 0", Lose().Zahl(), 0.0);
    for (const char *text : {"s", "", " "})
        t.gilt("Text ist keine Zahl", wirft(Fehlerart::Typ, [&] { static_cast<void>(Lose(text).Zahl()); }));
}

void prüfeZeichen(Prüfung &t) {
    t.gleich("Länge in Zeichen", Zeichenzahl("Tschüß…"), 7);
    t.gleich("Links schneidet Zeichen", Links("Tschüß", 5), std::string("Tschü"));
    t.gleich("Rechts auch", Rechts("Tschüß", 2), std::string("üß"));
    t.gleich("mehr, als da ist", Links("ab", 9), std::string("ab"));
    t.gilt("weniger als nichts", wirft(Fehlerart::Argument, [] { Links("ab", -1); }));
    std::string alle;
    for (int b = 1; b < 256; ++b)
        alle += static_cast<char>(b);
    t.gilt("jedes Byte kommt durch Windows-1252 hin und zurück", nachWindows1252(ausWindows1252(alle)) == alle);
    t.gleich("was es dort nicht gibt", nachWindows1252("a→b"), std::string("a?b"));
}

void prüfeRegion(Prüfung &t) {
    Region r;
    t.gilt("leer", !r.enthält(0, 0));
    r.vereinige(GerundetesRechteck{0, 0, 100, 60, 20, 20});
    r.vereinige(Vieleck{{{100, 20}, {140, 30}, {100, 40}}});
    t.gilt("die Ecke ist rund", !r.enthält(0, 0) && r.enthält(10, 1) && r.enthält(4, 4));
    t.gilt("das Vieleck gehört dazu", r.enthält(130, 30) && !r.enthält(130, 22));
}

void prüfeDateien(Prüfung &t) {
    const Programmordner ordner;
    const std::filesystem::path wurzel = ordner.Pfad();
    ordner.schreibe("Charakter/Änne.cha", "alt");
    t.gleich("jede Schreibung findet", liesDatei(wurzel / "charakter" / "Änne.CHA"), std::string("alt"));
    schreibeDatei(wurzel / "CHARAKTER" / "Änne.cha", "neu");
    t.gleich("ersetzt wird die eine Datei", liesDatei(wurzel / "Charakter" / "Änne.cha"), std::string("neu"));
    t.gilt("nichts bleibt daneben liegen", std::distance(std::filesystem::directory_iterator(wurzel / "Charakter"),
                                                         std::filesystem::directory_iterator()) == 1);
    t.gilt("der Ordner fehlt", wirft(Fehlerart::Datei, [&] { schreibeDatei(wurzel / "fehlt" / "x", ""); }));
    ordner.sperre("Charakter/Änne.cha");
    t.gilt("Gesperrtes bleibt", wirft(Fehlerart::Datei, [&] { schreibeDatei(wurzel / "Charakter" / "Änne.cha", ""); }));
    t.gleich("und ist zu lesen", liesDatei(wurzel / "Charakter" / "Änne.cha"), std::string("neu"));
    schreibeDatei(wurzel / "Charakter" / "zweite.cha", "geht");
    ordner.sperre("Charakter");
    t.gilt("in Gesperrtem entsteht nichts",
           wirft(Fehlerart::Datei, [&] { schreibeDatei(wurzel / "Charakter" / "dritte.cha", ""); }));
}

/// Liest niemand eine Röhre, wartet, wer sie öffnet, für immer.
void prüfeKeineDateien(Prüfung &t) {
    alarm(20);
    const Programmordner ordner;
    const auto ort = [&](const char *name) { return ordner.ort(std::string("charakter/") + name); };
    ordner.schreibe("charakter/echt.cha", "echt");
    ordner.schreibe("bilder/formen/a.png", "bild");
    for (const char *röhre : {"röhre.cha", "echt.cha.neu", "../bilder/formen/b.png", "../bilder/c"})
        t.gleich(röhre, mkfifo(ort(röhre).c_str(), 0600), 0);
    std::filesystem::create_symlink("kreis.cha", ort("kreis.cha"));
    std::filesystem::create_symlink("nirgends", ort("leer.cha"));
    std::filesystem::create_symlink("/dev/zero", ort("gerät.cha"));
    std::filesystem::create_symlink(".", ort("ordner.cha"));
    for (const char *keine : {"röhre.cha", "kreis.cha", "leer.cha", "gerät.cha"}) {
        t.gilt(keine, wirft(Fehlerart::Datei, [&] { liesDatei(ort(keine)); }));
        t.gilt(keine, wirft(Fehlerart::Datei, [&] { löscheDatei(ort(keine)); }));
    }
    t.gilt("gelistet wird die eine", Dateinamen(ordner.ort("charakter")) == std::vector<std::string>{"echt.cha"});
    t.gilt("im Kreis nichts", Dateinamen(ort("kreis.cha")).empty());
    for (const char *neu : {"röhre.cha", "kreis.cha", "leer.cha", "echt.cha"}) {
        schreibeDatei(ort(neu), "neu");
        t.gleich(neu, liesDatei(ort(neu)), std::string("neu"));
    }
    Bilderordner bilder((ordner.ort("bilder")).string());
    t.gilt("ein Bild", !bilder.datei("formen/a").empty());
    t.gilt("kein Bild", bilder.datei("formen/b").empty() && bilder.datei("c").empty());
    alarm(0);
}

} // namespace

int main() {
    Prüfung t;
    prüfeKurz(t);
    prüfeLose(t);
    prüfeZeichen(t);
    prüfeRegion(t);
    prüfeDateien(t);
    prüfeKeineDateien(t);
    return t.ende();
}
