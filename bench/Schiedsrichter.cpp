#include "bench/Schiedsrichter.h"

#include "bench/Befund.h"
#include "platform/Form.h"

#include <algorithm>

namespace velmo {

namespace {

using namespace richtwerte;

constexpr int Höchstbetrag = 32767; // DM

/// 0 der Mensch, 1 bis 3 die Computer, -1 niemand.
int wem(const Hotelbesitzer &b) { return b.leer() ? -1 : Computernummer(b); }

} // namespace

void Schiedsrichter::beginneSpiel() {
    vorher = z;
    buch.eröffne(z);
    folge.beginne();
    läuft = true;
    gestört = gratis = gestundet = false;
    ankunft.reset();
    mietschuld.reset();
    letzteMiete.reset();
    mussPleite = schuld = 0;
    prüfeBrettordnung(z, false);
}

void Schiedsrichter::sieh() {
    if (z.Spielerfarbe.empty()) läuft = false; // das Spiel ist verlassen
    if (!läuft) return;
    prüfeBrettordnung(z, gestört || folge.unterwegs());
    if (!gestört && z.Verlierermerker == "Spieler") {
        menschVerliert();
        gestört = true; // was er danach noch drückt, ändert nichts mehr
    } else if (!gestört) {
        if (z.AmZug != vorher.AmZug) folge.wechsel(vorher, z);
        siehRuin();
        bool gekauft = false;
        for (const Hotelkürzel k : AlleHotels) {
            if (z.Hotels[k].Besitzer != vorher.Hotels[k].Besitzer) {
                siehBesitzer(k);
                gekauft = true;
            }
            siehStufen(k);
        }
        for (int platz = ErsterPlatz; platz <= LetzterPlatz; ++platz)
            if (z.Eingang[platz] != vorher.Eingang[platz]) siehEingang(platz);
        siehSchuld(gekauft);
        siehMiete();
    }
    vorher = z;
}

void Schiedsrichter::höre(const Ereignis &e) {
    if (e.Was == Ereignis::Art::Ziehung) letzteZiehung = e.Zahl;
    if (e.Was == Ereignis::Art::Meldung && !e.Text.starts_with("Fehler in geldfeld_sscommand_click") &&
        !e.Text.starts_with("Du hast gar kein "))
        throw Befund("Meldung: " + e.Text);
    if (!läuft || gestört) return;
    if (e.Was == Ereignis::Art::Ziehung && mietschuld && mietschuld->Gast && !mietschuld->Betrag) würfeltNächte(e.Zahl);
    if (e.Was == Ereignis::Art::Ton && e.Wer == "Form1.Hauscontrol1") Hausziehung = letzteZiehung;
    if (e.Was == Ereignis::Art::Ton && e.Wer == "Form1.MMControl3" && e.Text == "open") {
        folge.fahrtBeginnt(z);
        ankunft.reset();
    }
    if (e.Was != Ereignis::Art::Schritt) return;
    for (const Autokürzel k : AlleAutos)
        if (e.Wer == "Form1.Auto" + NachAuto::name(static_cast<int>(k))) {
            int bankgeld = 0;
            const int fahrer = Computernummer(z.Autos[k].Autobesitzer);
            const auto am = folge.schritt(z, k, bankgeld);
            buch.buche(fahrer, bankgeld);
            if (am) kommtAn(*am);
        }
}

void Schiedsrichter::drückt(const VisualControl &c, bool imWarten) {
    if (!läuft || gestört) return;
    const std::string name = vollerName(c);
    if (name == "Form1.Command1") gratis = false;
    if (name != "Form1.Fertig") return;
    if (tickt("Timer4")) return; // solange ein Computer am Zug ist, wirkt es nicht
    if (imWarten) {
        // Es beendet den eigenen Zug, ehe die Fahrt zu Ende ist.
        gestört = true;
        return;
    }
    if (schuld > 0 && !gestundet) throw Befund("der Zug endet mit " + std::to_string(schuld) + " DM Schuld");
    folge.fertigGedrückt();
}

bool Schiedsrichter::tickt(const char *timer) const {
    return dynamic_cast<const Timer &>(*p.geladene(formular::Form1)->control(timer)).Enabled;
}

void Schiedsrichter::ruhe() {
    if (läuft) prüfeBrettordnung(z, false);
    if (!läuft || gestört) return;
    if (const auto fehler = buch.schließeAb(z)) throw Befund(*fehler);
    if (mietschuld) throw Befund(teilnehmer(mietschuld->Gast) + " hat seine Miete nicht bezahlt");
    if (mussPleite && !ausgeschieden(z, mussPleite)) throw Befund(teilnehmer(mussPleite) + " müsste pleite sein");
    mussPleite = 0;
    for (const Autokürzel k : AlleAutos)
        if (!z.Autos[k].Autoziel.leer() && z.Autos[k].Autofeld != z.Autos[k].Autoziel)
            throw Befund("ein Auto steht auf " + z.Autos[k].Autoziel.Text() + " und fährt von " +
                         z.Autos[k].Autofeld.Text());
    if (z.AmZug > 0 && !tickt("Timer1") && !tickt("Timer4") && z.AmZug >= z.Gegnerzahl)
        throw Befund("die Runde endet nicht nach dem letzten Computer");
}

/// Der erste fremde Eingang am Feld, in der Folge des Nachsehens.
void Schiedsrichter::kommtAn(const Ankunft &a) {
    ankunft = a;
    if (a.Fahrer == 0 && Art(a.Feld) == 'e') gratis = true;
    for (const Nachsehen &zeile : Folge)
        for (const char hotel : zeile.Hotels)
            for (int n = ErsterPlatz; n <= LetzterPlatz; ++n) {
                const bool hier = zeile.von <= a.Feld && a.Feld <= zeile.bis && platz(n).Feld == a.Feld;
                if (mietschuld || !hier || platz(n).Hotel != hotel || !z.Eingang[n]) continue;
                if (Computernummer(z.Eingangsbesitzer[n]) != a.Fahrer)
                    mietschuld = Mietschuld{a.Fahrer, Computernummer(z.Eingangsbesitzer[n]), hotelAm(n)};
            }
}

void Schiedsrichter::würfeltNächte(double ziehung) {
    mietschuld->Betrag = Miete(mietschuld->Hotel, static_cast<int>(ziehung * 6) + 1);
    if (z.Computergeld[mietschuld->Gast] >= mietschuld->Betrag) {
        buch.buche(mietschuld->Gast, -mietschuld->Betrag);
        buch.buche(mietschuld->Gastgeber, mietschuld->Betrag);
    } else {
        mussPleite = mietschuld->Gast;
    }
    letzteMiete = mietschuld;
    mietschuld.reset();
}

int Schiedsrichter::Miete(Hotelkürzel k, int nächte) const {
    int satz = 0;
    for (const Baustufe s : AlleStufen)
        if (!z.Hotels[k].Baustufen[s].empty()) satz = von(richtwerte::Miete, k, s);
    return satz * nächte;
}

/// Der Mensch zahlt seine Miete, wenn der Dialog schließt, auch einer, der sie nicht hat.
void Schiedsrichter::siehMiete() {
    if (!mietschuld || mietschuld->Gast || vorher.Mietefertig || !z.Mietefertig) return;
    const int betrag = Miete(mietschuld->Hotel, static_cast<int>(z.Wurf.Zahl()));
    buch.buche(0, -betrag);
    buch.buche(mietschuld->Gastgeber, betrag);
    mietschuld.reset();
}

int Schiedsrichter::menschenfeld() const { return static_cast<int>(z.Autos[menschenauto(z)].Autoziel.Zahl()); }

bool Schiedsrichter::überlaufGeboten() const {
    const auto zuviel = [&](int teilnehmer, int betrag) { return geld(vorher, teilnehmer) + betrag > Höchstbetrag; };
    for (int t = 0; t <= 3; ++t) {
        if (gestört && zuviel(t, 15000)) return true;
        if (folge.unterwegs() && zuviel(t, folge.fälligesBankgeld(z, t))) return true;
        if (schuld > 0 && t > 0 && zuviel(t, 5000)) return true;
        if (letzteMiete && letzteMiete->Gastgeber == t && zuviel(t, letzteMiete->Betrag)) return true;
        if (mietschuld && mietschuld->Gastgeber == t &&
            zuviel(t, Miete(mietschuld->Hotel, static_cast<int>(z.Wurf.Zahl()))))
            return true;
        for (const Hotelkürzel k : AlleHotels)
            if (ankunft && grenztAn(ankunft->Feld, k) && wem(vorher.Hotels[k].Besitzer) == t &&
                zuviel(t, von(ZwangspreisComp, k)))
                return true;
    }
    return false;
}

/// Safari mit bloßem Hauptgebäude.
bool Schiedsrichter::umwandlungGeboten() const {
    const auto &stufen = z.Hotels[Hotelkürzel::s].Baustufen;
    return gestört ||
           (mietschuld && !mietschuld->Gast && mietschuld->Hotel == Hotelkürzel::s && stufen[Baustufe::N1].empty());
}

} // namespace velmo
