// Ein Spiel nur mit Tasten: vom Film bis in die vierte Runde, mit Kauf und Zahlung; und ein Eingang. Läuft ohne
// Bildschirm und ohne Lautsprecher.
#include "bench/Prüfung.h"
#include "boardform/Brett.h"
#include "tests/window/Lauf.h"
#include "window/Fenster.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <string>

using namespace velmo;

namespace {

/// Jede Ziehung ist 0,7: der Würfel zeigt 4, und die erste Fahrt endet auf einem Kauffeld.
class Vierer : public QtOberfläche {
  public:
    double Rnd() override { return 0.7; }
};

Fokus &fokus() { return dynamic_cast<Fenster &>(*fenster()).fokus(); }

bool sichtbar(const Programm &p, Formularname form) { return p.geladene(form) && p.geladene(form)->Visible; }
std::string vorn() { return fokus().form() ? fokus().form()->Name : ""; }
std::string hier() { return fokus().control() ? fokus().control()->Name : ""; }

void taste(Qt::Key k, const QString &zeichen = {}, bool nurDrücken = false) {
    QWidget *w = QApplication::activeModalWidget();
    if (!w) w = fenster()->focusWidget() ? fenster()->focusWidget() : fenster();
    QKeyEvent ab(QEvent::KeyPress, k, Qt::NoModifier, zeichen), auf(QEvent::KeyRelease, k, Qt::NoModifier, zeichen);
    QApplication::sendEvent(w, &ab);
    if (!nurDrücken) QApplication::sendEvent(w, &auf);
}

void schreibe(const QString &wort) {
    for (const QChar z : wort)
        taste(Qt::Key(z.toUpper().unicode()), z);
}

/// Tab, bis der Fokus auf dem Element steht; falsch, wenn es nicht zu erreichen ist.
bool gehe(const std::string &name) {
    for (int i = 0; i < 60 && hier() != name; ++i)
        taste(Qt::Key_Tab, "\t");
    return hier() == name;
}

bool drücke(const std::string &name) {
    if (!gehe(name)) return false;
    taste(Qt::Key_Return, "\r");
    return true;
}

template <class T> T &element(Programm &p, Formularname form, const char *name) {
    return dynamic_cast<T &>(*p.geladene(form)->control(name));
}

/// Was ein Spieler mit Tasten täte, um seinen Zug zu beenden; wahr, wenn er eine gedrückt hat.
class Zugspieler {
  public:
    explicit Zugspieler(Programm &p) : p(p) {}
    int Käufe = 0, Zahlungen = 0, Würfe = 0;

    void zieh() {
        if (++pause < 30) return; // der Würfel soll rollen
        pause = 0;
        if (QApplication::activeModalWidget()) return taste(Qt::Key_Return, "\r");
        const std::string form = vorn();
        if (form == "geldfeld") return kaufe();
        if (form == "Bezahlen") return void(drücke("SSCommand1") || drücke("würfeln"));
        if (form != "Form1") return taste(Qt::Key_Escape, "\x1b");
        if (zahle()) return;
        if (frei("WüButton")) {
            Würfe += brett(p).WüButton.Caption() == "Würfeln";
            taste(Qt::Key_W, "w");
        } else if (frei("Fertig")) {
            taste(Qt::Key_F, "f");
        }
    }

  private:
    bool frei(const char *name) {
        auto *c = dynamic_cast<VisualControl *>(p.geladene(formular::Form1)->control(name));
        return p.eingabe.druckort(*c).has_value();
    }
    void kaufe() {
        const bool kann = Käufe < 2 && (drücke("SSCommand1") || drücke("SSCommand2"));
        if (!kann) return taste(Qt::Key_Escape, "\x1b");
        ++Käufe;
    }
    /// Die größte Note, die noch in die Schuld passt.
    bool zahle() {
        const double rest = p.Zustand.Restbetrag.empty() ? 0 : std::stod(p.Zustand.Restbetrag);
        for (int i = 4; i >= 0; --i) {
            const int note = Noten[static_cast<std::size_t>(i)];
            Notenstapel &s = brett(p).stapel(note);
            if (note > rest || p.Zustand.Notenbestand[note] < 1 || !s.g.Enabled || s.p.Top != 0) continue;
            const int vorher = p.Zustand.Gesamtgeld;
            taste(Qt::Key(Qt::Key_1 + i), QString::number(i + 1));
            if (p.Zustand.Gesamtgeld == vorher - note) ++Zahlungen;
            return true;
        }
        return false;
    }

    Programm &p;
    int pause = 0;
};

void prüfeGanzesSpiel(Prüfung &t) {
    Lauf<Vierer> l;
    l.geduld = 6000;
    Zugspieler spieler(l.p);
    l.schritte = {
        [&] {
            if (QWidget *kasten = QApplication::activeModalWidget()) kasten->close(); // ohne Film
            return sichtbar(l.p, formular::Intro);
        },
        [&] { // auf einem langsamen Rechner ist der Film von selbst zu Ende
            if (sichtbar(l.p, formular::Intro)) taste(Qt::Key_Space, " ");
            return true;
        },
        [&] { return sichtbar(l.p, formular::Menu) && !l.p.geladene(formular::Intro); },
        [&] {
            t.gleich("im Menü beginnt der Fokus beim neuen Spiel", hier(), std::string("Spieln"));
            for (const char *schild : {"Hilfe", "Ende", "Über", "Spieln"})
                t.gilt(schild, gehe(schild));
            taste(Qt::Key_Return, "\r");
            return true;
        },
        [&] { return vorn() == "Menu2"; },
        [&] {
            schreibe("wfk5");
            t.gleich("Buchstaben bleiben im Textfeld", element<TextBox>(l.p, formular::Menu2, "Text1").Text(),
                     std::string("wfk5"));
            for (const char *name : {"klickl", "klickr", "Text2", "List1", "List2", "File1", "Command4"})
                t.gilt(name, gehe(name));
            gehe("List2");
            taste(Qt::Key_Down);
            t.gleich("zwei Gegner", element<ListBox>(l.p, formular::Menu2, "List2").ListIndex(), 1.0);
            taste(Qt::Key_Up);
            return drücke("Command2");
        },
        [&] { return vorn() == "Form1"; },
        [&] {
            spieler.zieh();
            return spieler.Würfe == 4; // der erste der vierten Runde
        },
        [] { return fenster()->close() || true; },
    };
    t.gleich("drei Runden nur mit Tasten", l.laufe([&] { starte(l.p); }), 0);
    t.gilt("ein Kauf", spieler.Käufe > 0);
    t.gilt("mit Noten bezahlt", spieler.Zahlungen > 0);
}

/// Ein Hotel mit Hauptgebäude und freie Wahl, wo sein Eingang steht.
void gibHotel(Programm &p) {
    Spielzustand &z = p.Zustand;
    z.Hotels[Hotelkürzel::b].Besitzer = Hotelbesitzer("player1");
    z.Hotels[Hotelkürzel::b].Baustufen[Baustufe::H] = "true";
    z.Hotels[Hotelkürzel::b].Eingangssperre = false;
    z.Hotelliste[1] = "Boomrang";
    z.Spielerfarbe = "autog";
    z.Programmpfad = p.Ordner;
}

void prüfeEingang(Prüfung &t) {
    Lauf<> l;
    std::string erster;
    l.schritte = {
        [&] {
            taste(Qt::Key_E, "e");
            return vorn() == "eingang";
        },
        [&] {
            taste(Qt::Key_Tab, "\t");
            taste(Qt::Key_Return, "\r");
            return vorn() == "Form1";
        },
        [&] {
            taste(Qt::Key_S, "s");
            t.gilt("der Eingang hängt am Zeiger", l.p.eingabe.gezogen() != nullptr);
            erster = hier();
            taste(Qt::Key_Left);
            t.gilt("die Pfeile gehen zum nächsten Platz", !hier().empty() && hier() != erster);
            taste(Qt::Key_Escape);
            t.gilt("Escape lässt ihn fallen", !l.p.eingabe.gezogen() && l.p.Zustand.Gesamtgeld == 12000);
            drücke("Imagee");
            taste(Qt::Key_Left);
            taste(Qt::Key_Return, "\r");
            const auto &z = l.p.Zustand;
            t.gleich("gesetzt und bezahlt", int(z.Gesamtgeld), 11900);
            t.gleich("ein Eingang", std::ranges::count_if(z.Eingang, [](Flagge f) { return bool(f); }), 1);
            return fenster()->close() || true;
        },
    };
    t.gleich("ein Eingang mit Tasten", l.laufe([&] {
        l.p.zeige(formular::Form1);
        gibHotel(l.p);
    }),
             0);
}

void prüfeHalten(Prüfung &t) {
    Lauf<> l;
    l.schritte = {[&] {
        auto &haus = element<VisualControl>(l.p, formular::Form1, "royn2");
        haus.Visible = true;
        t.gilt("ein Haus ist zu erreichen", gehe("royn2"));
        taste(Qt::Key_Space, " ", true);
        t.gilt("gehalten verschwindet es", !haus.Visible);
        QKeyEvent auf(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier, " ");
        QApplication::sendEvent(fenster(), &auf);
        t.gilt("losgelassen ist es wieder da", haus.Visible);
        auto &fertig = element<VisualControl>(l.p, formular::Form1, "Fertig");
        bool geklickt = false;
        fertig.Click = [&] { geklickt = true; };
        taste(Qt::Key_F, "f");
        t.gilt("eine gesperrte Taste tut nichts", !geklickt);
        fertig.Enabled = true;
        l.p.zeige(formular::frmHilfe);
        taste(Qt::Key_F, "f");
        t.gilt("verdeckt auch nicht", !geklickt);
        taste(Qt::Key_Escape);
        taste(Qt::Key_F, "f");
        t.gilt("sonst schon", geklickt);
        return fenster()->close() || true;
    }};
    t.gleich("Halten endet", l.laufe([&] { l.p.zeige(formular::Form1); }), 0);
}

} // namespace

int main(int argc, char **argv) {
    return prüfeOhneBildschirm(argc, argv, {prüfeHalten, prüfeEingang, prüfeGanzesSpiel});
}
