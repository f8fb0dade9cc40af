#include "window/QtOberfläche.h"

#include "include/Programm.h"
#include "shell/Formtafel.h"
#include "window/Fenster.h"
#include "window/Kästen.h"
#include "window/Schrift.h"

#include <QApplication>
#include <QShortcut>
#include <QTime>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <thread>

namespace velmo {

namespace {

using Dauer = std::chrono::duration<double, std::milli>;

/// Solange sie lebt, ruhen Zeitgeber und Eingaben.
class Halt {
  public:
    explicit Halt(bool &flagge) : flagge(flagge), vorher(flagge) { flagge = true; }
    ~Halt() { flagge = vorher; }

  private:
    bool &flagge;
    const bool vorher;
};

} // namespace

QtOberfläche::QtOberfläche(QString merkdatei) : würfel(std::random_device{}()), gedächtnis(std::move(merkdatei)) {
    uhr.start();
    takt.setSingleShot(true);
    takt.setTimerType(Qt::PreciseTimer);
    takt.callOnTimeout([this] { takte(); });
}

QtOberfläche::~QtOberfläche() = default;

int QtOberfläche::laufe(Programm &p, const Handler &beginn) {
    umgebung.reset(new Umgebung{p,
                                {},
                                [this](const Handler &h) { bearbeite(h); },
                                [this](const Control *c, const QSize &größe) {
                                    const auto film = filme.find(c);
                                    return film == filme.end() ? nullptr : &film->second->bild(größe);
                                }});
    umgebung->bilder.nebenher = true;
    fenster = std::make_unique<Fenster>(*umgebung, [this] { schließe(); });
    if (!gedächtnis.Fenster.isEmpty()) fenster->restoreGeometry(gedächtnis.Fenster);
    richteLautstärkeEin();
    fenster->show();
    QTimer::singleShot(0, fenster.get(), [&] {
        bearbeite(beginn);
        QTimer::singleShot(0, fenster.get(), [this] { töne.beginne(); }); // nach dem ersten Bild
    });
    QApplication::exec();
    merkeFenster();
    return endstand();
}

/// Null ändert nichts an der Stufe, sondern macht stumm oder wieder laut; jede andere Änderung macht laut.
void QtOberfläche::stelleLautstärke(int um) {
    gedächtnis.Stumm = um == 0 && !gedächtnis.Stumm;
    gedächtnis.Lautstärke = std::clamp(gedächtnis.Lautstärke + um, 0, Gedächtnis::Stufen);
    töne.stelleLautstärke(gedächtnis.anteil());
    fenster->notiere(gedächtnis.Stumm ? "Ton aus"
                                      : "Lautstärke " + QString::number(gedächtnis.Lautstärke) + " von " +
                                            QString::number(Gedächtnis::Stufen));
    merkeFenster();
}

void QtOberfläche::richteLautstärkeEin() {
    töne.stelleLautstärke(gedächtnis.anteil());
    for (const auto &[taste, um] : {std::pair{Qt::Key_F6, 0}, {Qt::Key_F7, -1}, {Qt::Key_F8, 1}})
        QObject::connect(new QShortcut(QKeySequence(taste), fenster.get()), &QShortcut::activated, fenster.get(),
                         [this, um = um] { stelleLautstärke(um); });
}

void QtOberfläche::merkeFenster() {
    gedächtnis.Fenster = fenster->saveGeometry();
    gedächtnis.schreibe();
}

int QtOberfläche::endstand() {
    hält = true;
    try {
        if (ausnahme) std::rethrow_exception(ausnahme);
    } catch (const Laufzeitfehler &fehler) {
        brichAb(umgebung->p, fehler);
        return 1;
    } catch (const Programmende &) {
    } catch (const std::exception &fehler) {
        std::cerr << fehlersatz(fehler) << '\n';
        MsgBox(fehlersatz(fehler), "Velmo", Meldungsart::Kritisch);
        return 1;
    }
    return 0;
}

void QtOberfläche::bearbeite(const Handler &handler) {
    if (hält || ausnahme) return;
    tat = true;
    try {
        umgebung->p.behandle(handler);
    } catch (...) {
        ausnahme = std::current_exception(); // darf Qt nicht durchqueren
        return QApplication::exit();
    }
    fenster->folge();
    plane();
}

void QtOberfläche::plane() {
    const auto nächste = umgebung->p.nächsteFälligkeit();
    if (sollSchließen)
        takt.start(0);
    else if (nächste)
        takt.start(static_cast<int>(std::max<Zeit>(0, *nächste - jetzt())));
    else
        takt.stop();
}

void QtOberfläche::takte() {
    if (hält) return;
    if (sollSchließen) return schließe();
    bearbeite([this] { umgebung->p.Fälliges(); });
}

/// Wer das Fenster schließt, geht: das Entladen des Menüs beendet das Programm, wo immer der Spieler gerade ist.
void QtOberfläche::schließe() {
    sollSchließen = hält;
    bearbeite([this] {
        Programm &p = umgebung->p;
        if (p.geladene(formular::Menu))
            p.entlade(formular::Menu);
        else
            p.Ende();
    });
}

double QtOberfläche::Sekunden() const { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }
Zeit QtOberfläche::kürzesterTakt() const { return Bildzeit; }

void QtOberfläche::gibAb(Rast rast) {
    fenster->folge();
    if (rast == Rast::BisEreignis) {
        plane();
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return;
    }
    if (sollSchließen) plane();
    tat = false;
    QCoreApplication::processEvents();
    if (!umgebung->p.Fälliges() && !tat) std::this_thread::sleep_for(Dauer(0.9));
}

double QtOberfläche::nun() const { return static_cast<double>(uhr.nsecsElapsed()) / 1e6; }

void QtOberfläche::zeigeBild() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

void QtOberfläche::zeigeSchritt(const Form &, double ms) {
    if (fenster->ruhig() || !schritte.beginne(nun(), ms)) return;
    const Halt halt(hält);
    fenster->folge(true);
    zeigeBild();
    const double rest = schritte.ende() - nun();
    if (rest > 0) std::this_thread::sleep_for(Dauer(rest));
}

void QtOberfläche::zeigeSchritt(const Control &c, double ms) {
    Formfläche *fläche = fenster->fläche(c.form);
    const auto beginn = fläche ? schritte.beginne(nun(), ms) : std::nullopt;
    if (!beginn) return;
    const Halt halt(hält);
    const Stück *vorher = fläche->stück(c);
    if (!vorher) return fenster->folge();
    const Punkt alt{vorher->Left, vorher->Top};
    const std::string altesBild = vorher->bild;
    fenster->folge();
    const Stück *nachher = fläche->stück(c);
    if (!nachher) return;
    const Punkt weg{alt.x - nachher->Left, alt.y - nachher->Top};
    const std::string bild = nachher->bild;
    for (;;) {
        const double jetzt = nun();
        const double anteil = std::clamp((jetzt - *beginn) / ms, 0.0, 1.0);
        if (anteil < 1)
            fläche->versetze(c, fenster->ruhig() ? Haltung{} : fahrt(weg, anteil, altesBild, bild));
        else
            fläche->stelleHin();
        zeigeBild();
        if (anteil >= 1) return;
        const double dann = std::min(jetzt + Bildzeit, schritte.ende()) - nun();
        if (dann > 0) std::this_thread::sleep_for(Dauer(dann));
    }
}

double QtOberfläche::Rnd() { return static_cast<double>(würfel() >> 8) / (1 << 24); }

// Das Fenster behält seine Größe; die Anzeige darin ist immer die des Entwurfs.
void QtOberfläche::setzeModus(int Breite, int Höhe) {
    gemerkteAnzeige.Breite = Breite;
    gemerkteAnzeige.Höhe = Höhe;
}

void QtOberfläche::MsgBox(const std::string &t, const std::string &titel, Meldungsart art) {
    const Halt halt(hält);
    if (!ausnahme) fenster->folge();
    melde(*fenster, text(t), text(titel), art);
}

std::optional<std::string> QtOberfläche::InputBox(const std::string &frage, const std::string &titel) {
    const Halt halt(hält);
    fenster->folge();
    return frageNach(*fenster, text(frage), text(titel));
}

void QtOberfläche::Beep() { QApplication::beep(); }

void QtOberfläche::ton(MMControl &c, Befehl befehl, bool warten) {
    töne.befehl(c, befehl);
    if (!warten || !fenster) return;
    const Halt halt(hält);
    fenster->folge();
    while (töne.klingt(c)) {
        zeigeBild();
        std::this_thread::sleep_for(Dauer(Bildzeit));
    }
}

long QtOberfläche::Position(const MMControl &c) { return töne.Position(c); }
long QtOberfläche::Length(const MMControl &c) { return töne.Length(c); }

void QtOberfläche::öffneFilm(Animation &c, const std::string &Datei) {
    auto film = std::make_unique<Film>(Datei);
    film->neuesBild = [this, &c] {
        if (Formfläche *fläche = fenster->fläche(c.form)) fläche->erneuere(c);
    };
    filme[&c] = std::move(film);
}

void QtOberfläche::spieleFilm(Animation &c) {
    if (const auto film = filme.find(&c); film != filme.end()) film->second->spiele();
}

void QtOberfläche::vergiss(const Control &c) {
    töne.vergiss(c);
    filme.erase(&c);
}

} // namespace velmo
