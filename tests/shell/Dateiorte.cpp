// Woher das Programm liest, wohin es schreibt, und was geschieht, wenn dort anderes liegt als Dateien.
#include "bench/Programmordner.h"
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "shell/Bestenliste.h"
#include "shell/Formtafel.h"
#include "shell/Menu2.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace velmo;

namespace {

bool liegt(const Programmordner &o, const char *name) { return std::filesystem::is_regular_file(o.ort(name)); }

void prüfeZweiOrdner(Prüfung &t) {
    const Programmordner geliefert, eigener;
    eigener.legeOrdnerAn("charakter");
    geliefert.sperre(".");
    Prüffläche fläche;
    Programm p(fläche, Formtafel(), geliefert.Pfad(), eigener.Pfad());
    p.zeige(formular::Menu);
    auto &dialog = p.form<Menu2>();
    dialog.Text1.Text = "Anna";
    dialog.Command4.Click();
    trageEin(p, 2000);
    t.gilt("der Charakter beim Spieler", liegt(eigener, "charakter/Anna.cha"));
    t.gleich("gelistet", dialog.File1.ListCount(), 1);
    t.gilt("die Bestenliste beim Spieler", liegt(eigener, "besten.sav"));
    t.gleich("und wird dort gelesen", liesBestenliste(p).size(), 1U);
    t.gleich("das Mitgelieferte beim Programm", p.Zustand.Programmpfad, geliefert.Pfad());
    t.gilt("dort liegt auch das Bild", dialog.Picture1.Picture().Datei.starts_with(geliefert.Pfad()));
    t.gilt("geschrieben wird dort nichts", !liegt(geliefert, "besten.sav") && !liegt(geliefert, "charakter/Anna.cha"));
}

/// Wer eine Röhre öffnet, in die niemand schreibt, wartet für immer.
void prüfeRöhren(Prüfung &t) {
    alarm(60);
    const Programmordner ordner;
    ordner.legeOrdnerAn("charakter");
    ordner.lösche("ani.hvi");
    for (const char *röhre : {"ani.hvi", "besten.sav", "charakter/x.cha", "bilder/formen/menu/menu.png"})
        t.gleich(röhre, mkfifo(ordner.ort(röhre).c_str(), 0600), 0);
    Prüffläche fläche;
    Programm p(fläche, Formtafel(), ordner.Pfad());
    p.zeige(formular::Intro);
    t.gilt("ohne Film",
           fläche.Meldungen.size() == 1 && fläche.Meldungen.front().Text == "Fehler Beim Intro: Datei nicht gefunden");
    p.zeige(formular::Menu);
    t.gleich("ohne Charakter", p.form<Menu2>().File1.ListCount(), 0);
    t.gilt("ohne Bestenliste", liesBestenliste(p).empty());
    trageEin(p, 2000);
    t.gilt("der nächste Sieg schreibt sie", liegt(ordner, "besten.sav") && liesBestenliste(p).size() == 1);
    alarm(0);
}

void prüfeKreis(Prüfung &t) {
    const Programmordner ordner;
    std::filesystem::create_symlink("charakter", ordner.ort("charakter"));
    std::filesystem::create_symlink("kreis", ordner.ort("bilder/kreis"));
    Prüffläche fläche;
    Programm p(fläche, Formtafel(), ordner.Pfad());
    p.zeige(formular::Menu);
    t.gleich("ein Verweis auf sich selbst ist kein Ordner", p.form<Menu2>().File1.ListCount(), 0);
}

} // namespace

int main() {
    Prüfung t;
    prüfeZweiOrdner(t);
    prüfeRöhren(t);
    prüfeKreis(t);
    return t.ende();
}
