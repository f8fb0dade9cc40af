// Die Laufzeit an eigenen kleinen Formularen: Reihenfolge der Zeitgeber, wartende Behandlungen, Formulare, die sich in
// ihrer eigenen Behandlung entladen.
#include "bench/Prüffläche.h"
#include "bench/Prüfung.h"
#include "include/Programm.h"

#include <string>
#include <utility>

using namespace velmo;

namespace {

/// Was die Handler taten, in ihrer Reihenfolge.
std::string Spur;

class Uhrform : public Form {
  public:
    static constexpr Formularname Formname{"Uhrform"};
    explicit Uhrform(Programm &p) : Form(p, Formname, {0, 0, 1000, 1000}) {
        später.Tick = [] { Spur += 's'; };
        früher.Tick = [] { Spur += 'f'; };
        wartend.Tick = [&p] {
            Spur += '(';
            for (int i = 0; i < 25; ++i)
                p.DoEvents();
            Spur += ')';
        };
    }
    void Form_Load() override { Spur += 'L'; }
    void Form_Unload() override { Spur += 'U'; }

    Timer später{*this, "später", 20, false};
    Timer früher{*this, "früher", 10, false};
    Timer wartend{*this, "wartend", 10, false};
};

class Knopfform : public Form {
  public:
    static constexpr Formularname Formname{"Knopfform"};
    explicit Knopfform(Programm &p) : Form(p, Formname, {0, 0, 1000, 1000}) {
        Knopf.Click = [this, &p] {
            p.entlade(Formname);
            Caption = "noch da"; // lebt, bis keine Behandlung mehr läuft
            Spur += Caption;
        };
    }
    CommandButton Knopf{*this, "Knopf", {100, 100, 500, 500}};
};

class Spielform : public Form {
  public:
    static constexpr Formularname Formname{"Spielform"};
    explicit Spielform(Programm &p) : Form(p, Formname, {0, 0, 1000, 1000}) {
        erster.Tick = [this, &p] { warte(p, '1'); };
        zweiter.Tick = [this, &p] { warte(p, '2'); };
    }
    bool trägtSpiel() const override { return true; }
    Timer erster{*this, "erster", 10, false};
    Timer zweiter{*this, "zweiter", 20, false};

  private:
    void warte(Programm &p, char wer) {
        Spur += wer;
        p.warteBis([] { return false; });
        Spur += '!';
    }
};

template <class F> constexpr Formeintrag eintrag() {
    return {F::Formname,
            [](Laufzeit &l) -> std::unique_ptr<Form> { return std::make_unique<F>(static_cast<Programm &>(l)); }};
}

constexpr Formeintrag Tafel[] = {eintrag<Uhrform>(), eintrag<Knopfform>(), eintrag<Spielform>()};

/// Ein Programm auf der Prüffläche, deren Wartende die Uhr selbst weiterdrehen.
struct Stand {
    Stand() {
        Spur.clear();
        fläche.Fahrer = [this] {
            if (dann && fläche.Uhr == 30)
                p.behandle(std::exchange(dann, {}));
            else if (!p.Fälliges())
                ++fläche.Uhr;
        };
    }
    void warte(Zeit ms) {
        for (const Zeit ende = fläche.Uhr + ms; fläche.Uhr < ende; p.Fälliges())
            ++fläche.Uhr;
    }
    Prüffläche fläche;
    Handler dann; // läuft in einem Warten, sobald die Uhr 30 zeigt
    Programm p{fläche, Tafel, ""};
};

void prüfeReihenfolge(Prüfung &t) {
    Stand s;
    auto &form = s.p.form<Uhrform>();
    form.früher.Enabled = true;
    form.später.Enabled = true;
    s.warte(40);
    t.gleich("nach Fälligkeit, dann nach Entstehung", Spur, std::string("Lfsffsf"));
    Spur.clear();
    form.früher.Interval = 0.0;
    s.warte(40);
    t.gleich("ein Abstand von 0 ist aus", Spur, std::string("ss"));
    Spur.clear();
    form.später.Enabled = false;
    form.später.Enabled = true;
    s.warte(19);
    t.gleich("das Einschalten beginnt den Abstand neu", Spur, std::string(""));
}

/// Der Rechner hat geschlafen, oder die Uhr sprang: versäumte Takte kommen nicht nach.
void prüfeVersäumtes(Prüfung &t) {
    Stand s;
    auto &form = s.p.form<Uhrform>();
    form.früher.Enabled = true;
    form.später.Enabled = true;
    s.fläche.Uhr += 3'600'000;
    s.p.Fälliges();
    t.gleich("nach einer Stunde ein Takt von jedem", Spur, std::string("Lfs"));
    s.warte(20);
    t.gleich("dann geht es in den Abständen weiter", Spur, std::string("Lfsfsf"));
}

void prüfeWarten(Prüfung &t) {
    Stand s;
    auto &form = s.p.form<Uhrform>();
    form.wartend.Enabled = true;
    form.früher.Enabled = true;
    s.warte(10);
    t.gleich("eine wartende Behandlung beginnt nicht von vorn, andere laufen in ihr", Spur, std::string("Lf(ff)"));
}

void prüfeEntladen(Prüfung &t) {
    Stand s;
    s.p.zeige(Knopfform::Formname);
    s.p.eingabe.drücke(Maustaste::Links, {300, 300});
    s.p.eingabe.löse(Maustaste::Links, {300, 300});
    t.gleich("ein Knopf schließt seine eigene Form", Spur, std::string("noch da"));
    t.gilt("danach ist sie nicht geladen", !s.p.geladene(Knopfform::Formname));

    Spur.clear();
    s.p.form<Uhrform>().früher.Enabled = true;
    s.p.entlade(Uhrform::Formname);
    s.warte(50);
    t.gleich("mit der Form schweigen ihre Zeitgeber", Spur, std::string("LU"));
}

/// Zwei Behandlungen warten ineinander; was in ihrem Warten das Spiel verlässt, läuft zu Ende, sie kehren nicht zurück.
void prüfeVerlassen(Prüfung &t) {
    for (const bool fehler : {false, true}) {
        Stand s;
        auto &form = s.p.form<Spielform>();
        form.erster.Enabled = form.zweiter.Enabled = true;
        s.dann = [&] {
            if (fehler) throw Laufzeitfehler(Fehlerart::Index);
            s.p.entlade(Spielform::Formname);
            s.p.form<Uhrform>().früher.Enabled = true;
            Spur += 'v';
        };
        std::string geworfen;
        try {
            s.warte(25);
        } catch (const Laufzeitfehler &f) {
            geworfen = f.what();
        }
        t.gleich("ein Fehler erreicht die äußerste Behandlung", !geworfen.empty(), fehler);
        if (!fehler) s.warte(25);
        t.gleich("nach dem Verlassen läuft nur das Neue", Spur, std::string(fehler ? "12" : "12Lvff"));
    }
}

} // namespace

int main() {
    Prüfung t;
    prüfeReihenfolge(t);
    prüfeVersäumtes(t);
    prüfeWarten(t);
    prüfeEntladen(t);
    prüfeVerlassen(t);
    return t.ende();
}
