#include "board/Autofahrt.h"

#include "assistant/Ansagen.h"
#include "board/Landung.h"
#include "board/Quetschen.h"
#include "boardform/Brett.h"
#include "media/Bilder.h"
#include "media/Ton.h"
#include "model/Feldtabelle.h"
#include "property/Eingangskauf.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace velmo {

namespace {

/// Zeit, in der das Fenster ein Auto von Feld zu Feld zeigt, in ms.
constexpr double Feldzeit = 110;

struct Blickzeile {
    int von, bis, Bild;
};

// Das Bild je Feld, als Abstand vom Grundbild: 0 nach unten, 1 links, 2 oben, 3 rechts. Feld 22 fehlt mit Absicht: dort
// behält das Auto seinen Blick.
constexpr Blickzeile Blicktafel[] = {
    {1, 3, 0}, {4, 13, 1}, {14, 16, 2}, {17, 21, 3}, {23, 25, 2}, {26, 26, 3}, {27, 29, 0}, {30, 30, 3},
};

/// Schiebt den Wert in Schritten von 5 Twips bis ans Ziel oder, mit Absicht, knapp darüber hinaus.
double herangefahren(double wert, double ziel) {
    const double schritt = wert >= ziel ? -5 : 5;
    while (schritt < 0 ? wert > ziel : wert < ziel)
        wert += schritt;
    return wert;
}

class Fahrt {
  public:
    Fahrt(Programm &p, Autokürzel k) : p(p), z(p.Zustand), k(k), wagen(z.Autos[k]) {}

    void fahre() {
        spieleWartend(brett(p).MMControl3);
        // Alle Autos beginnen auf Feld 1: der erste Wurf n soll auf Feld n führen.
        if (!z.ErsteRundeVorbei) z.Wurf -= 1;
        wagen.Autoziel = wagen.Autofeld.Zahl() + z.Wurf.Zahl();
        do
            prüfeVorbeifahrten();
        while (rücktWeiter());
        if (wagen.Quetschmerker) stelleQuetschbildHer(p, wagen);
        quetsche(p, wagen);
        // Das Ziel steht vor der Fahrt fest.
        const double ziel = std::trunc(wagen.Autoziel.Zahl());
        for (double i = std::trunc(wagen.Autofeld.Zahl()); i <= ziel; ++i)
            fahreAuf(i);
        Landung(p, k);
        wagen.Autofeld = wagen.Autoziel;
    }

  private:
    void prüfeVorbeifahrten() {
        const int computer = Computernummer(wagen.Autobesitzer);
        z.Aktivcomputer = computer ? Lose(computer) : Lose("s");
        if (auto_(k).RathausVorRunde) {
            prüfeRathaus();
            prüfeRunde();
        } else {
            prüfeRunde();
            prüfeRathaus();
        }
        if (wagen.Autoziel.Zahl() >= BankFeld && !wagen.Bankmerker) Bankdurchfahrt(p, k);
    }

    void prüfeRathaus() {
        if (wagen.Autoziel.Zahl() < RathausFeld || wagen.Rundenmerker) return;
        for (Flagge &merker : wagen.Eingangsmerker)
            merker = false;
        wagen.Rundenmerker = true;
        if (z.Aktivcomputer != "s") return;
        Ansagen(p, "Sie dürfen Eingänge kaufen.", 0);
        for (Hoteldaten &h : z.Hotels)
            h.Eingangssperre = false;
        Eingangsknopf(p, true);
    }

    void prüfeRunde() {
        if (wagen.Autoziel.Zahl() < 31) return;
        wagen.Autoziel -= 30;
        wagen.Autofeld = 1;
        wagen.Bankmerker = false;
        wagen.Rundenmerker = false;
        if (z.Aktivcomputer == "s") ++z.Rundenzähler;
    }

    /// Auf jedem Feld steht nur ein Auto; ein ausgeschiedenes hält seins besetzt: mit Absicht so.
    bool rücktWeiter() {
        const bool besetzt = std::ranges::any_of(
            AlleAutos, [&](Autokürzel anderes) { return anderes != k && z.Autos[anderes].Autoziel == wagen.Autoziel; });
        if (besetzt) wagen.Autoziel += 1;
        return besetzt;
    }

    void fahreAuf(double nummer) {
        Brett &b = brett(p);
        Image &bild = b.Autobild(k);
        const Feld &f = feld(nummer);
        const Feldort &ort = b.GroßesBrett ? f.groß : f.klein;
        bild.Left = herangefahren(bild.Left, ort.Left);
        bild.Top = herangefahren(bild.Top, ort.Top);
        const auto blick = std::ranges::find_if(
            Blicktafel, [&](const Blickzeile &zeile) { return zeile.von <= nummer && nummer <= zeile.bis; });
        if (blick != std::end(Blicktafel)) bild.Picture = Bildladen(p, auto_(k).Grundbild + blick->Bild, "Auto");
        p.oberfläche.zeigeSchritt(bild, Feldzeit);
    }

    Programm &p;
    Spielzustand &z;
    const Autokürzel k;
    Autodaten &wagen;
};

} // namespace

void Autofahrt(Programm &p, Autokürzel k) { Fahrt(p, k).fahre(); }

} // namespace velmo
