#include "property/Eingangskauf.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "media/Bilder.h"

#include <algorithm>

namespace velmo {

namespace {

constexpr Farbe ScheinMöglich{0x2A8CFF}, ScheinGetroffen{0x35D94A};

void zeigeGekauft(Programm &p, int platz) {
    Image &bild = brett(p).Platzbild(platz);
    bild.Picture = Bildladen(p, 700 + platz, "Eingangn");
    bild.Schein = std::nullopt;
}

void zeigeMöglich(Programm &p, int platz) {
    Image &bild = brett(p).Platzbild(platz);
    bild.Picture = Bildladen(p, 800 + platz, "Eingangs");
    bild.Schein = ScheinMöglich;
}

bool gegenüberVergeben(const Spielzustand &z, int platz) {
    const int gegenüber = eingangsplatz(platz).Gegenüber;
    return gegenüber != 0 && z.Eingang[gegenüber];
}

/// Was ein vorher gewähltes Hotel anbot, bleibt stehen: mit Absicht so.
void bietePlätzeAn(Programm &p, const Hoteleingang &h) {
    for (const int platz : h.Plätze()) {
        Image &bild = brett(p).Platzbild(platz);
        bild.Visible = true;
        if (p.Zustand.Eingang[platz]) {
            zeigeGekauft(p, platz);
        } else {
            zeigeMöglich(p, platz);
            bild.nachHinten();
        }
    }
}

void weiseAb(Programm &p, const char *text) {
    p.oberfläche.Beep();
    brett(p).Label1.Caption = text;
}

} // namespace

bool vergeben(const Spielzustand &z, int platz) { return z.Eingang[platz] || gegenüberVergeben(z, platz); }

void Eingangsanzeige(Programm &p, const std::string &Text) {
    Spielzustand &z = p.Zustand;
    if (z.Eingangfehler) {
        Ansagen(p,
                "Sie können diesen Eingang nicht bauen, weil sie entweder kein Hauptgebäude haben, oder schon alle "
                "Eingänge gekauft haben",
                0);
        z.Eingangfehler = false;
        return;
    }
    Brett &b = brett(p);
    b.Fertig.Enabled = false;
    b.pfeilTimer.Enabled = true;
    b.Label1.Caption = "Ziehen Sie den Eingang auf die gewünschte Stelle!";
    b.Imagee.DragMode = true;
    const auto h = std::ranges::find(Hoteleingänge, Text, &Hoteleingang::Text);
    if (h == Hoteleingänge.end() || z.Hotels[h->Hotel].Besitzer != Mensch) {
        p.MsgBox("Dieses Hotel hast du noch nicht gekauft!");
        return;
    }
    bietePlätzeAn(p, *h);
    p.entlade(formular::eingang);
}

void Eingangsauffrischung(Programm &p, Flagge nachKauf) {
    Brett &b = brett(p);
    int zahl = 0;
    for (const Eingangsplatz &platz : Eingangsplätze) {
        Image &bild = b.Platzbild(platz.Nummer);
        bild.Visible = false;
        bild.nachHinten();
    }
    for (const Eingangsplatz &platz : Eingangsplätze) {
        if (!p.Zustand.Eingang[platz.Nummer]) continue;
        ++zahl;
        zeigeGekauft(p, platz.Nummer);
        b.Platzbild(platz.Nummer).Visible = true;
    }
    if (nachKauf) {
        b.Fertig.Enabled = true; // mit Absicht auch, solange Noten geschuldet sind
        // Wer vor dem Würfeln setzt, verliert den Wurf dieses Zuges: mit Absicht so.
        b.WüButton.Enabled = false;
    }
    b.Imagee.DragMode = false;
    b.pfeilTimer.Enabled = false;
    b.Pfeil.Visible = false;
    b.toteinG.Caption = std::to_string(zahl);
}

void Eingangsknopf(Programm &p, Flagge hervor) {
    if (hervor && p.Zustand.Hotelliste[1].leer()) return;
    SSCommand &knopf = brett(p).Command1;
    knopf.Font3D = hervor ? Betonung::Stark : Betonung::Keine;
    knopf.ForeColor = hervor ? farbe::Schwarz : farbe::Weiß;
}

void Pfeiltakt(Programm &p) {
    Image &pfeil = brett(p).Pfeil;
    pfeil.Visible = !pfeil.Visible;
}

void EingangÜberPlatz(Programm &p, int Platz, Ziehzustand zustand) {
    if (p.Zustand.Eingang[Platz]) return;
    if (zustand == Ziehzustand::Betreten) {
        zeigeGekauft(p, Platz);
        brett(p).Platzbild(Platz).Schein = ScheinGetroffen;
    }
    if (zustand == Ziehzustand::Verlassen) zeigeMöglich(p, Platz);
}

void EingangAufPlatz(Programm &p, int Platz) {
    Spielzustand &z = p.Zustand;
    // Nach einer Abweisung bleibt das Bild, das der gezogene Eingang gemacht hat: mit Absicht so.
    if (z.Eingang[Platz]) return weiseAb(p, "Sie haben den Eingang schon gekauft!");
    if (gegenüberVergeben(z, Platz))
        return weiseAb(p, "Dieses Feld ist schon besetzt. Es dürfen keine 2 Eingänge gegenüber sein.");
    if (!z.Gratiseingang) Geldbuchen(p, eingangsplatz(Platz).Kosten, false);
    z.Eingang[Platz] = true;
    z.Eingangsbesitzer[Platz] = Spieler;
    zeigeGekauft(p, Platz);
    Scheinanzeige(p);
    brett(p).Label1.Caption = "Ok! Eingang gebaut.";
    Eingangsauffrischung(p, true);
}

} // namespace velmo
