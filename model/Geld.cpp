#include "model/Geld.h"

#include <algorithm>

namespace velmo {

namespace {

/// Die Abbuchung Note für Note. Zahlen heißt: Summe, Notenzahl und Betrag sinken um eine Note.
class Abbuchung {
  public:
    Abbuchung(Spielzustand &z, Lose &betrag) : z(z), betrag(betrag) {}

    void bucheAlles() {
        while (bucheEine()) {
        }
    }

  private:
    /// Die Schritte von der größten Note zur kleinsten; wer nicht zahlen kann, reicht an den nächsten weiter.
    bool bucheEine() {
        return (reicht(5000) && mit5000()) || (reicht(1000) && mit1000()) || (reicht(500) && mit500()) ||
               (reicht(100) && mit100()) || (reicht(50) && mit50());
    }

    bool mit5000() { return zahl(5000) >= 1 && zahle(5000); }

    bool mit1000() {
        if (zahl(1000) >= 1) return zahle(1000);
        if (zahl(5000) < 1) return false;
        wechsle(5000, 1000);
        return zahle(1000);
    }

    bool mit500() {
        if (zahl(500) < 1 && zahl(1000) < 1 && zahl(5000) < 1) return false;
        // Gewechselt wird auch, wenn ein 500er bereitliegt: mit Absicht so.
        if (zahl(1000) < 1 && zahl(5000) > 0) wechsle(5000, 1000);
        if (zahl(500) < 1 && zahl(1000) > 0) wechsle(1000, 500);
        return zahl(500) >= 1 && zahle(500);
    }

    bool mit100() {
        // Ob ein 1000er da ist, wird nicht gefragt; die Zahl kann unter 0 fallen: mit Absicht so.
        if (zahl(100) < 1 && zahl(500) < 1) wechsle(1000, 100);
        if (zahl(100) < 1 && zahl(500) > 0) wechsle(500, 100);
        return zahle(100);
    }

    bool mit50() {
        // Ebenso ohne Frage nach dem 500er.
        if (zahl(50) < 1 && zahl(100) < 1) wechsle(500, 50);
        if (zahl(50) < 1) wechsle(100, 50);
        return zahle(50);
    }

    bool reicht(int note) const { return betrag.Zahl() >= note; }
    int zahl(int note) const { return z.Notenbestand[note]; }
    void wechsle(int groß, int klein) {
        z.Notenbestand[groß] -= 1;
        z.Notenbestand[klein] += groß / klein;
    }
    bool zahle(int note) {
        z.Gesamtgeld -= note;
        z.Notenbestand[note] -= 1;
        betrag -= note;
        return true;
    }

    Spielzustand &z;
    Lose &betrag;
};

} // namespace

/// Ein Rest unter 50 DM verfällt: mit Absicht so.
void bucheDazu(Spielzustand &z, Lose &betrag) {
    while (betrag.Zahl() >= 50) {
        const int note = *std::find_if(Noten.rbegin(), Noten.rend(), [&](int n) { return betrag.Zahl() >= n; });
        z.Gesamtgeld += note;
        z.Notenbestand[note] += 1;
        betrag -= note;
    }
}

void bucheAb(Spielzustand &z, Lose &betrag) { Abbuchung(z, betrag).bucheAlles(); }

} // namespace velmo
