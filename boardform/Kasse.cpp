#include "boardform/Kasse.h"

#include "boardform/Brett.h"
#include "media/Ton.h"
#include "model/Geld.h"

#include <algorithm>

namespace velmo {

void Geldbuchen(Programm &p, Lose &Betrag, Flagge Sinn) {
    if (Sinn.Zahl() == -1) {
        spieleFrisch(brett(p).Kasse);
        bucheDazu(p.Zustand, Betrag);
    } else if (Sinn.Zahl() == 0) {
        bucheAb(p.Zustand, Betrag);
    }
    Scheinanzeige(p);
}

void Geldbuchen(Programm &p, int Betrag, Flagge Sinn) {
    Lose rest = Betrag;
    Geldbuchen(p, rest, Sinn);
}

void Scheinanzeige(Programm &p) {
    const Spielzustand &z = p.Zustand;
    Brett &b = brett(p);
    b.Geldlabel.Caption = std::to_string(z.Gesamtgeld);
    for (Notenstapel &s : b.Stapel) {
        const int zahl = z.Notenbestand[s.Note];
        s.k.Caption = std::to_string(zahl) + (zahl == 1 ? " Schein" : " Scheine");
    }
}

void Notenzahlung(Programm &p, int v) {
    Spielzustand &z = p.Zustand;
    Brett &b = brett(p);
    // Eine Note fliegt zur Zeit.
    if (std::ranges::any_of(b.Stapel, [](const Notenstapel &s) { return s.p.Top != 0; })) return;
    spieleWartend(b.MMControl2);
    Lose rest = z.Restbetrag.empty() ? Lose(0) : Lose(z.Restbetrag);
    if (rest.Zahl() >= v && z.Notenbestand[v] >= 1 && z.Gesamtgeld >= v) {
        z.Gesamtgeld -= v;
        rest -= v;
        z.Restbetrag = rest.Text();
        z.Notenbestand[v] -= 1;
        z.Notenflug = std::to_string(v);
        if (z.Zwangskaufmerker)
            if (const int n = Computernummer(Computer<Autobesitzer>(z.Vorbesitzer.letztes()))) z.Computergeld[n] += v;
        b.Timer3.Enabled = true;
        Scheinanzeige(p);
    }
    if (rest.Zahl() < v && v != 50) b.stapel(v).g.Enabled = false;
    if (rest.Zahl() < 50)
        for (Notenstapel &s : b.Stapel)
            s.g.Enabled = false;
    if (rest.Zahl() <= 0) {
        b.Label1.Caption = "Alles klar!";
        b.Fertig.Enabled = true;
    } else {
        b.Label1.Caption = "Sie müssen noch " + z.Restbetrag + " DM Bezahlen!";
    }
}

void Notenflug(Programm &p) {
    Brett &b = brett(p);
    Image &note = b.stapel(p.Zustand.Notenflug.Ganz()).p;
    note.Visible = true;
    note.Top -= 100;
    if (note.Top > -1800) return;
    b.Timer3.Enabled = false;
    note.Visible = false;
    note.Top = 0;
}

} // namespace velmo
