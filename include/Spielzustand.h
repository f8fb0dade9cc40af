#pragma once
// Der Zustand eines ganzen Spiels: ein flacher Satz von Werten, den alle Routinen unmittelbar lesen und schreiben. Geld
// in DM.
#include "include/Reihe.h"
#include "include/Teilnehmer.h"
#include "include/Werte.h"
#include "platform/Eigenschaft.h"

#include <string>

namespace velmo {

struct Hoteldaten {
    Hotelbesitzer Besitzer;
    /// "true", wenn die Stufe steht, sonst leer.
    Reihe<std::string, NachStufe> Baustufen;
    /// Eingänge, die Computer hier gesetzt haben.
    Lose Eingangszahl;
    /// Ein Computer fand hier keinen freien Platz mehr.
    Flagge Vollmerker;
    /// Der Mensch darf hier jetzt keinen Eingang kaufen.
    Flagge Eingangssperre;
};

struct Autodaten {
    velmo::Autobesitzer Autobesitzer;
    /// Das Feld, von dem die nächste Fahrt ausgeht, und das, auf dem das Auto steht; leer vor der ersten Fahrt.
    Lose Autofeld, Autoziel;
    std::string Landefeldart;
    /// Auf dieser Runde am Rathaus, an der Bank vorbeigekommen.
    Flagge Rundenmerker, Bankmerker;
    /// Das Auto hat ein Gebäude gequetscht, das noch gequetscht ist.
    Flagge Quetschmerker;
    /// Das Auto hat auf dieser Runde seinen Eingang an diesem Hotel gehabt.
    Reihe<Flagge, NachHotel> Eingangsmerker;
};

struct Spielzustand {
    // Der Mensch.
    std::string Spielername, Spitzname;
    std::string Spielerfarbe; // sein Auto: "autog", "autoe", "autob", "autor"
    Picture Spielerbild;
    Lose Bildnummer; // 141 bis 155
    std::string Charakterpfad;
    Kurz Gesamtgeld;
    Reihe<Kurz, NachNote> Notenbestand;
    Reihe<Lose, NachListenplatz> Hotelliste;
    std::string Restbetrag; // was der Mensch noch in Noten schuldet
    Lose Notenflug;         // die Note, die gerade fliegt

    // Die Computer.
    Reihe<Kurz, NachComputer> Computergeld;
    Kurz Gegnerzahl;    // die noch im Spiel sind
    Kurz Schwierigkeit; // 1 bis 3

    Reihe<Autodaten, NachAuto> Autos;
    Reihe<Hoteldaten, NachHotel> Hotels;

    // Die Eingänge am Weg.
    Reihe<Flagge, NachEingang> Eingang;
    Reihe<velmo::Eingangsbesitzer, NachEingang> Eingangsbesitzer;

    // Der Zug.
    int AmZug = 0; // 0 der Mensch, 1 bis 3 die Computer
    Flagge ErsteRundeVorbei;
    Lose Computerphase; // 1, sobald ein Computer an der Reihe ist
    Lose Wartelauf;     // 1, sobald die Wartezeit des Computers läuft
    Kurz Rundenzähler;  // Runden, die das Auto des Menschen vollendet hat
    Lose Wurf, Rohwurf, Bauwürfel;
    std::string Baumodus; // "s": der Bauwürfel ist fällig; "n" oder "nichts": der Fahrwürfel
    Lose Bauergebnis;     // 0 abgelehnt, 1 einfacher, 2 doppelter Preis, 10 gratis

    // Was eine Landung weitergibt.
    Lose Aktivcomputer; // 1 bis 3 oder "s"
    Lose Anlieger;      // des Feldes, etwa "b,f"
    Reihe<std::string, NachSeite> Anliegername;
    Flagge Gratiseingang, Eingangfehler, Mietefertig;
    std::string Quetschbild; // Name des gequetschten Gebäudebilds
    Lose Quetschhöhe;
    Kurz Quetschtop;

    // Kauf, Bau, Miete, Ruin.
    Flagge Zwangskaufmerker;
    Hotelbesitzer Vorbesitzer;
    Lose Kaufmerker;
    int Hotelposition = 0; // die Stelle in Hotelliste, die der Baudialog zeigt
    std::string Bauhotel;  // Schlüssel des gewählten Hotels
    Flagge Gratisbau;
    std::string LetztesBild;
    std::string Baubild; // Name des Bildes, das gerade steigt
    double Endhöhe = 0;
    Kurz Miete;
    std::string Miethotel;
    velmo::Eingangsbesitzer Gastgeber;
    std::string Verlierermerker;
    Flagge Siegmerker;

    // Die Überlegung der Computer.
    Lose Arbeitsgeld, Kaufstufe, Gekauftmerker, Hotelzahl;
    Kurz Gruppe1, Gruppe2, Gruppe3;
    Flagge Zufallsmerker;
    Lose Wahlzahl, Durchlauf;
    std::string Stufenname;
    Kurz Computerbauwurf;

    Kurz Satzlänge;
    Flagge TrauerMusik;
    Kurz Musikstück;

    // Vom Programmstart.
    double Bildschirmbreite = 0, Bildschirmhöhe = 0; // Bildpunkte
    Flagge KleineSchrift;                            // 96 DPI
    std::string Programmpfad;                        // ohne Trenner am Ende

    /// Alle Felder unter ihren Namen; Felder mit Index als "Name(Index)".
    void zähleAuf(const Namensempfänger &);
};

} // namespace velmo
