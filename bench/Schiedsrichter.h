#pragma once
// Der Schiedsrichter langer Läufe: er sieht jede Änderung des Spielzustands, hört, was das Programm an der Oberfläche
// tut, und urteilt nach seinen Richtwerten. Er wirft Befund.
#include "bench/Kassenbuch.h"
#include "bench/Prüffläche.h"
#include "bench/Zugfolge.h"
#include "include/Programm.h"

#include <optional>
#include <string>

namespace velmo {

class Schiedsrichter {
  public:
    explicit Schiedsrichter(const Programm &p) : p(p), z(p.Zustand) {}

    void beginneSpiel();
    /// Am Spielzustand hat sich etwas geändert.
    void sieh();
    void höre(const Ereignis &);
    /// Der Spieler drückt das Element; imWarten: während ein Zug noch läuft.
    void drückt(const VisualControl &, bool imWarten);
    /// Keine Behandlung läuft mehr: die Kassen müssen stimmen.
    void ruhe();

    // Ob ein Laufzeitfehler, der gerade das Programm beendet hat, nach den Regeln kommen musste.
    bool überlaufGeboten() const;
    bool umwandlungGeboten() const;

  private:
    struct Mietschuld {
        int Gast;      // 0 der Mensch, 1 bis 3 die Computer
        int Gastgeber; // ebenso
        Hotelkürzel Hotel;
        int Betrag = 0; // sobald die Nächte gewürfelt sind
    };

    void siehRuin();
    void siehBesitzer(Hotelkürzel);
    void siehStufen(Hotelkürzel);
    void siehEingang(int platz);
    void siehSchuld(bool gekauft);
    void siehMiete();
    void menschKauft(Hotelkürzel);
    void menschVerliert();
    void computerKauft(Hotelkürzel, int computer);
    int Computerpreis(Hotelkürzel, int computer, bool frei) const;
    void kommtAn(const Ankunft &);
    void würfeltNächte(double ziehung);
    int Miete(Hotelkürzel, int nächte) const;
    int menschenfeld() const;
    bool tickt(const char *timer) const; // des Bretts
    bool gehtVerloren(Hotelkürzel) const;
    void kauftZurück(Hotelkürzel, int computer);
    int hotelsVon(int computer) const;

    const Programm &p;
    const Spielzustand &z;
    Spielzustand vorher;
    Kassenbuch buch;
    Zugfolge folge;
    bool läuft = false;
    // Der Spieler hat in einen laufenden Zug eingegriffen oder ist pleite: es gilt nur noch, was immer gilt.
    bool gestört = false;
    std::optional<Ankunft> ankunft; // der laufenden Fahrt
    std::optional<Mietschuld> mietschuld;
    std::optional<Mietschuld> letzteMiete;     // die zuletzt gewürfelte eines Computers
    int mussPleite = 0;                        // der Computer, der seine Miete nicht zahlen kann
    int schuld = 0;                            // DM in Noten, die der Mensch für ein Grundstück noch zu zahlen hat
    bool gestundet = false;                    // er darf trotzdem weiter
    bool gratis = false;                       // der nächste Eingang des Menschen
    double letzteZiehung = 0, Hausziehung = 0; // die zweite vor dem letzten Hausbau
};

/// Was in jedem Augenblick gilt, wie auch immer gespielt wird.
void prüfeBrettordnung(const Spielzustand &, bool unterwegs);

} // namespace velmo
