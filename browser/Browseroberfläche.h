#pragma once
// Die Oberfläche im Browser: ihre Uhr und Schleife, und was die Seite davon zeigt. Während eine Behandlung wartet,
// liegt ihr Stapel beiseite und der Browser läuft weiter.
#include "browser/Ereignisse.h"
#include "browser/Klänge.h"
#include "platform/Oberfläche.h"
#include "surface/Schrittfolge.h"

#include <chrono>
#include <memory>
#include <optional>
#include <random>

namespace velmo {

class Browseroberfläche : public Oberfläche {
  public:
    Browseroberfläche();
    /// Beginnt das Programm und läuft bis zu seinem Ende; gibt den Endstand.
    int laufe(Programm &, const Handler &beginn);

    Zeit jetzt() const override { return static_cast<Zeit>(nun()); }
    double Sekunden() const override;
    Zeit kürzesterTakt() const override { return Bildzeit; }
    void gibAb(Rast) override;
    void zeigeSchritt(const Form &, double ms) override;
    void zeigeSchritt(const Control &, double ms) override;

    double Rnd() override { return static_cast<double>(würfel() >> 8) / (1 << 24); }
    Anzeige anzeige() const override { return gemerkteAnzeige; }
    void setzeModus(int Breite, int Höhe) override;

    void MsgBox(const std::string &text, const std::string &titel, Meldungsart) override;
    std::optional<std::string> InputBox(const std::string &frage, const std::string &titel) override;
    void Beep() override;

    void ton(MMControl &, Befehl, bool warten) override;
    long Position(const MMControl &c) override { return klänge.Position(c); }
    long Length(const MMControl &c) override { return klänge.Length(c); }
    void öffneFilm(Animation &, const std::string &Datei) override;
    void spieleFilm(Animation &) override;
    void vergiss(const Control &) override;

  private:
    double nun() const; // ms
    void bearbeite(const Handler &);
    void folge();
    /// Ruht so viele ms, ohne etwas anzunehmen.
    void ruhe(double ms);
    bool nimmEreignis();
    void nimmWunsch(const Angaben &);
    std::optional<std::string> frage(Merkmale kasten);

    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    std::mt19937 würfel{std::random_device{}()};
    Anzeige gemerkteAnzeige;
    Bündel bündel;
    Klänge klänge{bündel, [this] { return jetzt(); }};
    Schrittfolge schritte;
    Programm *p = nullptr;
    std::unique_ptr<Abschrift> abschrift;
    std::unique_ptr<Ereignisse> ereignisse;
    double schuld = 0; // ms, die gezählte Durchgänge noch zu ruhen haben
    bool tat = false;  // seit dem letzten Abgeben lief eine Behandlung
};

} // namespace velmo
