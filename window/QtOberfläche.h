#pragma once
// Die Oberfläche für den Spieler: die Schleife von Qt, das Fenster, Fragen, Ton und Film.
#include "platform/Oberfläche.h"
#include "surface/Schrittfolge.h"
#include "window/Film.h"
#include "window/Formfläche.h"
#include "window/Gedächtnis.h"
#include "window/Klang.h"

#include <QElapsedTimer>
#include <QTimer>

#include <exception>
#include <map>
#include <memory>
#include <random>

namespace velmo {

class Fenster;

class QtOberfläche : public Oberfläche {
  public:
    /// gedächtnis: die Datei, in der sich das Fenster merkt, was bleibt; leer: es merkt sich nichts.
    explicit QtOberfläche(QString gedächtnis = {});
    ~QtOberfläche() override;
    /// Zeigt das Fenster, beginnt das Programm und läuft bis zu seinem Ende; gibt den Endstand.
    int laufe(Programm &, const Handler &beginn);

    Zeit jetzt() const override { return uhr.elapsed(); }
    double Sekunden() const override;
    Zeit kürzesterTakt() const override;
    void gibAb(Rast) override;
    void zeigeSchritt(const Form &, double ms) override;
    void zeigeSchritt(const Control &, double ms) override;

    double Rnd() override;
    Anzeige anzeige() const override { return gemerkteAnzeige; }
    void setzeModus(int Breite, int Höhe) override;

    void MsgBox(const std::string &text, const std::string &titel, Meldungsart) override;
    std::optional<std::string> InputBox(const std::string &frage, const std::string &titel) override;
    void Beep() override;

    void ton(MMControl &, Befehl, bool warten) override;
    long Position(const MMControl &) override;
    long Length(const MMControl &) override;
    void öffneFilm(Animation &, const std::string &Datei) override;
    void spieleFilm(Animation &) override;
    void vergiss(const Control &) override;

  private:
    void bearbeite(const Handler &);
    void plane();
    void takte();
    void schließe();
    void richteLautstärkeEin();
    void stelleLautstärke(int um);
    void merkeFenster();
    double nun() const;
    void zeigeBild();
    int endstand();

    QElapsedTimer uhr;
    std::mt19937 würfel;
    Anzeige gemerkteAnzeige;
    std::unique_ptr<Umgebung> umgebung;
    std::unique_ptr<Fenster> fenster;
    Gedächtnis gedächtnis;
    Klang töne;
    std::map<const Control *, std::unique_ptr<Film>> filme;

    QTimer takt;                 // der nächste fällige Zeitgeber
    bool hält = false;           // Zeitgeber und Eingaben ruhen
    bool sollSchließen = false;  // der Spieler hat währenddessen das Fenster geschlossen
    bool tat = false;            // seit dem letzten Abgeben lief eine Behandlung
    std::exception_ptr ausnahme; // was das Programm beendet
    Schrittfolge schritte;
};

} // namespace velmo
