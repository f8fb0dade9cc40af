#include "include/Spielzustand.h"

namespace velmo {

namespace {

template <class T, class Nach> void reihe(const Namensempfänger &e, const std::string &name, Reihe<T, Nach> &r) {
    int i = 0;
    for (T &wert : r)
        e(name + "(" + Nach::name(i++) + ")", feldzugang(wert));
}

/// Die Felder des Teilsatzes je Schlüssel: "Name(Schlüssel)".
void hotelfelder(const Namensempfänger &e, const std::string &k, Hoteldaten &h) {
    e("Besitzer(" + k + ")", feldzugang(h.Besitzer));
    int i = 0;
    for (std::string &stufe : h.Baustufen)
        e("Baustufen(" + k + "," + NachStufe::name(i++) + ")", feldzugang(stufe));
    e("Eingangszahl(" + k + ")", feldzugang(h.Eingangszahl));
    e("Vollmerker(" + k + ")", feldzugang(h.Vollmerker));
    e("Eingangssperre(" + k + ")", feldzugang(h.Eingangssperre));
}

void autofelder(const Namensempfänger &e, const std::string &k, Autodaten &a) {
    e("Autobesitzer(" + k + ")", feldzugang(a.Autobesitzer));
    e("Autofeld(" + k + ")", feldzugang(a.Autofeld));
    e("Autoziel(" + k + ")", feldzugang(a.Autoziel));
    e("Landefeldart(" + k + ")", feldzugang(a.Landefeldart));
    e("Rundenmerker(" + k + ")", feldzugang(a.Rundenmerker));
    e("Bankmerker(" + k + ")", feldzugang(a.Bankmerker));
    e("Quetschmerker(" + k + ")", feldzugang(a.Quetschmerker));
    int i = 0;
    for (Flagge &merker : a.Eingangsmerker)
        e("Eingangsmerker(" + k + "," + NachHotel::name(i++) + ")", feldzugang(merker));
}

} // namespace

#define FELD(name) e(#name, feldzugang(name))
#define REIHE(name) reihe(e, #name, name)

void Spielzustand::zähleAuf(const Namensempfänger &e) {
    FELD(Spielername);
    FELD(Spitzname);
    FELD(Spielerfarbe);
    FELD(Spielerbild);
    FELD(Bildnummer);
    FELD(Charakterpfad);
    FELD(Gesamtgeld);
    REIHE(Notenbestand);
    REIHE(Hotelliste);
    FELD(Restbetrag);
    FELD(Notenflug);
    REIHE(Computergeld);
    FELD(Gegnerzahl);
    FELD(Schwierigkeit);
    int i = 0;
    for (Autodaten &a : Autos)
        autofelder(e, NachAuto::name(i++), a);
    i = 0;
    for (Hoteldaten &h : Hotels)
        hotelfelder(e, NachHotel::name(i++), h);
    REIHE(Eingang);
    REIHE(Eingangsbesitzer);
    FELD(AmZug);
    FELD(ErsteRundeVorbei);
    FELD(Computerphase);
    FELD(Wartelauf);
    FELD(Rundenzähler);
    FELD(Wurf);
    FELD(Rohwurf);
    FELD(Bauwürfel);
    FELD(Baumodus);
    FELD(Bauergebnis);
    FELD(Aktivcomputer);
    FELD(Anlieger);
    REIHE(Anliegername);
    FELD(Gratiseingang);
    FELD(Eingangfehler);
    FELD(Mietefertig);
    FELD(Quetschbild);
    FELD(Quetschhöhe);
    FELD(Quetschtop);
    FELD(Zwangskaufmerker);
    FELD(Vorbesitzer);
    FELD(Kaufmerker);
    FELD(Hotelposition);
    FELD(Bauhotel);
    FELD(Gratisbau);
    FELD(LetztesBild);
    FELD(Baubild);
    FELD(Endhöhe);
    FELD(Miete);
    FELD(Miethotel);
    FELD(Gastgeber);
    FELD(Verlierermerker);
    FELD(Siegmerker);
    FELD(Arbeitsgeld);
    FELD(Kaufstufe);
    FELD(Gekauftmerker);
    FELD(Hotelzahl);
    FELD(Gruppe1);
    FELD(Gruppe2);
    FELD(Gruppe3);
    FELD(Zufallsmerker);
    FELD(Wahlzahl);
    FELD(Durchlauf);
    FELD(Stufenname);
    FELD(Computerbauwurf);
    FELD(Satzlänge);
    FELD(TrauerMusik);
    FELD(Musikstück);
    FELD(Bildschirmbreite);
    FELD(Bildschirmhöhe);
    FELD(KleineSchrift);
    FELD(Programmpfad);
}

} // namespace velmo
