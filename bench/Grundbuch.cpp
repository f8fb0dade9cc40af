// Wie der Schiedsrichter urteilt, wenn Grundstücke, Gebäude und Eingänge ihren Besitzer finden oder verlieren.
#include "bench/Befund.h"
#include "bench/Schiedsrichter.h"

#include <algorithm>

namespace velmo {

namespace {

using namespace richtwerte;

int hotelzahl(const Spielzustand &z, int computer, std::string_view unter = "bpwtsflr") {
    return static_cast<int>(std::ranges::count_if(AlleHotels, [&](Hotelkürzel k) {
        return Computernummer(z.Hotels[k].Besitzer) == computer && unter.find(NachHotel::name(stelle(k))) != unter.npos;
    }));
}

bool amRechtenKnopf(Hotelkürzel k) {
    return std::string_view("flr").find(NachHotel::name(stelle(k))) != std::string_view::npos;
}

/// Was die nächste Stufe des Hotels kostet; 0, wenn alles steht.
int nächsterPreis(const Spielzustand &z, Hotelkürzel k, const std::array<Stufenreihe, 8> &tafel) {
    for (const Baustufe s : AlleStufen)
        if (von(Baukosten, k, s) && z.Hotels[k].Baustufen[s].empty()) return von(tafel, k, s);
    return 0;
}

} // namespace

/// Ein Computer scheidet nur aus, wenn er seine Miete oder den doppelten Preis nicht zahlen kann; alles Seine wird
/// frei.
void Schiedsrichter::siehRuin() {
    for (const int c : {1, 2, 3}) {
        if (ausgeschieden(vorher, c) || !ausgeschieden(z, c)) continue;
        const bool würfeltDoppelt = ankunft && ankunft->Fahrer == c && Art(ankunft->Feld) == 'b' &&
                                    BauwurfComp[static_cast<std::size_t>(letzteZiehung * 6)] == 2;
        const bool zuTeuer = std::ranges::any_of(AlleHotels, [&](Hotelkürzel k) {
            return Computernummer(vorher.Hotels[k].Besitzer) == c &&
                   geld(vorher, c) <= nächsterPreis(vorher, k, DoppeltComp);
        });
        if (mussPleite != c && !(würfeltDoppelt && zuTeuer)) throw Befund(teilnehmer(c) + " ist ohne Grund pleite");
        mussPleite = 0;
        for (const Hotelkürzel k : AlleHotels)
            if (gehtVerloren(k) && Computernummer(z.Hotels[k].Besitzer) == c) kauftZurück(k, c);
    }
}

/// Wer im eigenen Zug ausscheidet, kauft auf einem Kauffeld noch, auch was er eben verloren hat.
void Schiedsrichter::kauftZurück(Hotelkürzel k, int computer) {
    if (!ankunft || Art(ankunft->Feld) != 'g' || !grenztAn(ankunft->Feld, k))
        throw Befund(teilnehmer(computer) + " ist pleite und behält " + hotelname(k));
    buch.buche(computer, -von(LandpreisComp, k));
}

/// Das Hotel gehörte einem Computer, der gerade ausgeschieden ist.
bool Schiedsrichter::gehtVerloren(Hotelkürzel k) const {
    const int computer = Computernummer(vorher.Hotels[k].Besitzer);
    return computer && !ausgeschieden(vorher, computer) && ausgeschieden(z, computer);
}

void Schiedsrichter::menschVerliert() {
    const int geld = vorher.Gesamtgeld;
    if (mietschuld && !mietschuld->Gast) {
        if (geld >= Miete(mietschuld->Hotel, static_cast<int>(z.Wurf.Zahl())))
            throw Befund("der Mensch könnte seine Miete zahlen");
        return;
    }
    const int mal = z.Bauergebnis == 2 ? 2 : 1;
    const bool zuTeuer = std::ranges::any_of(AlleHotels, [&](Hotelkürzel k) {
        return z.Hotels[k].Besitzer.Text() == "player1" && geld < mal * nächsterPreis(z, k, Baukosten);
    });
    if (!zuTeuer) throw Befund("der Mensch ist ohne Grund pleite");
}

void Schiedsrichter::siehBesitzer(Hotelkürzel k) {
    const Hotelbesitzer &neu = z.Hotels[k].Besitzer;
    const int früher = Computernummer(vorher.Hotels[k].Besitzer);
    if (const int computer = Computernummer(neu)) return computerKauft(k, computer);
    if (!neu.leer()) return menschKauft(k);
    const bool misslungen =
        Art(menschenfeld()) == 'g' && grenztAn(menschenfeld(), k) && z.Gesamtgeld < von(Zwangspreis, k);
    if (!früher || !(gehtVerloren(k) || misslungen)) throw Befund(hotelname(k) + " wird ohne Grund frei");
}

void Schiedsrichter::menschKauft(Hotelkürzel k) {
    const bool zwang = !vorher.Hotels[k].Besitzer.leer();
    const int preis = von(zwang ? Zwangspreis : Landpreis, k);
    if (ankunft && ankunft->Fahrer) throw Befund("der Mensch kauft " + hotelname(k) + " im Zug eines Computers");
    if (Art(menschenfeld()) != 'g' || !grenztAn(menschenfeld(), k))
        throw Befund("der Mensch kauft " + hotelname(k) + " von Feld " + std::to_string(menschenfeld()));
    if (zwang && !z.Hotels[k].Baustufen[Baustufe::H].empty())
        throw Befund(hotelname(k) + " ist bebaut und wird genommen");
    if (z.Restbetrag != std::to_string(preis))
        throw Befund(hotelname(k) + " kostet den Menschen " + z.Restbetrag + " statt " + std::to_string(preis));
    gestundet = false;
    if (z.Gesamtgeld >= preis)
        schuld = preis;
    else if (zwang || !amRechtenKnopf(k))
        throw Befund("der Mensch bekommt " + hotelname(k) + " ohne das Geld dafür");
}

/// Wie viele Hotels der Computer vor einem Kauf hat.
int Schiedsrichter::hotelsVon(int computer) const {
    const bool ausgeschiedenEben = !ausgeschieden(vorher, computer) && ausgeschieden(z, computer);
    return ausgeschiedenEben ? 0 : hotelzahl(vorher, computer);
}

int Schiedsrichter::Computerpreis(Hotelkürzel k, int computer, bool frei) const {
    const int hatte = hotelsVon(computer);
    if (!frei) return hatte >= 2 ? 0 : von(ZwangspreisComp, k);
    if (hatte == 0) return von(LandpreisComp, k);
    const bool alsBesetzt = hatte == 1 && hotelzahl(vorher, computer, "pl") == 1;
    if (alsBesetzt && std::string_view("bpl").find(NachHotel::name(stelle(k))) != std::string_view::npos)
        return von(ZwangspreisComp, k);
    return von(hatte == 1 ? ZweitpreisComp : LandpreisComp, k);
}

void Schiedsrichter::computerKauft(Hotelkürzel k, int computer) {
    const Hotelbesitzer &früher = vorher.Hotels[k].Besitzer;
    const std::string wer = teilnehmer(computer) + " nimmt " + hotelname(k);
    if (!ankunft || ankunft->Fahrer != computer || Art(ankunft->Feld) != 'g' || !grenztAn(ankunft->Feld, k))
        throw Befund(wer + ", wo er nicht kaufen kann");
    const int preis = Computerpreis(k, computer, früher.leer());
    const bool dritte = hotelsVon(computer) >= 2;
    if (dritte && (z.Rundenzähler < 5 || !früher.leer() || k == Hotelkürzel::s || k == Hotelkürzel::t))
        throw Befund(wer + " als drittes Hotel");
    const Hotelkürzel maßgeblich = k == Hotelkürzel::t ? Hotelkürzel::s : k;
    if (!früher.leer() && !z.Hotels[maßgeblich].Baustufen[Baustufe::H].empty()) throw Befund(wer + ", das bebaut ist");
    buch.buche(computer, -preis);
    if (const int verkäufer = Computernummer(früher))
        buch.buche(verkäufer, preis);
    else if (!früher.leer())
        buch.buche(0, preis);
}

/// Wer eine neue Stufe nicht gratis bekommt, hat sie bezahlt: der Mensch nach seinem Bauwürfel, ein Computer nach der
/// Ziehung vor dem Bau; ein Park kostet immer den einfachen Preis.
void Schiedsrichter::siehStufen(Hotelkürzel k) {
    for (const Baustufe s : AlleStufen) {
        const std::string &jetzt = z.Hotels[k].Baustufen[s];
        if (jetzt == vorher.Hotels[k].Baustufen[s]) continue;
        if (jetzt.empty()) {
            if (!gehtVerloren(k)) throw Befund(hotelname(k) + " verliert eine Stufe");
            continue;
        }
        // Ein Bauwurf des Menschen kann aus einer früheren Runde übrig sein.
        const bool mensch = vorher.AmZug == 0;
        if (!mensch && !ankunft) throw Befund("an " + hotelname(k) + " wird außer der Reihe gebaut");
        const int computer = mensch ? 0 : ankunft->Fahrer, feld = mensch ? menschenfeld() : ankunft->Feld;
        // Das Taj Mahal, das ihm mit Zwang genommen wurde, bleibt auf der Liste des Menschen.
        const bool aufListe =
            k == Hotelkürzel::t && std::ranges::find(z.Hotelliste, Lose("Taj Mahal")) != z.Hotelliste.end();
        if (Computernummer(z.Hotels[k].Besitzer) != computer && (computer || !aufListe))
            throw Befund(teilnehmer(computer) + " baut an einem fremden Hotel");
        if (Art(feld) == 'a') continue;
        if (Art(feld) != 'b') throw Befund(teilnehmer(computer) + " baut auf Feld " + std::to_string(feld));
        const int gesicht = static_cast<int>(computer ? Hausziehung * 6 : z.Bauwürfel.Zahl());
        const int mal = s == Baustufe::P ? 1
                        : computer       ? BauwurfComp[static_cast<std::size_t>(gesicht)]
                                         : Bauwurf[static_cast<std::size_t>(gesicht)];
        if (mal < 0) throw Befund(teilnehmer(computer) + " baut, obwohl der Würfel es verbietet");
        const int einfach = von(computer ? BaukostenComp : Baukosten, k, s);
        const int preis = computer && mal == 2 ? von(DoppeltComp, k, s) : mal * einfach;
        buch.buche(computer, -preis);
    }
}

void Schiedsrichter::siehEingang(int nummer) {
    const Platz &hier = platz(nummer);
    const Hotelkürzel k = hotelAm(nummer);
    const std::string name = "Eingang " + std::to_string(nummer);
    if (!z.Eingang[nummer]) {
        const bool mitgerissen = nummer == PlatzMitBoomerang && gehtVerloren(Hotelkürzel::b);
        if (!gehtVerloren(k) && !mitgerissen) throw Befund(name + " verschwindet");
        return;
    }
    const int computer = Computernummer(z.Eingangsbesitzer[nummer]);
    if (computer != Computernummer(z.Hotels[k].Besitzer))
        throw Befund(name + " gehört nicht zum Hotel seines Besitzers");
    if (computer == 0) {
        if (!gratis) buch.buche(0, -hier.Kosten);
        gestundet = true; // mit dem Eingang kommt "Fertig" wieder, auch vor der letzten Note
        return;
    }
    if (computer != (ankunft ? ankunft->Fahrer : z.AmZug))
        throw Befund(teilnehmer(computer) + " setzt einen Eingang außer der Reihe");
    const int preis = von(EingangspreisComp, k);
    if (ankunft && Art(ankunft->Feld) == 'e')
        buch.bucheEinenVon(computer, {0, -preis}); // davor kann er auch einen gekauft haben
    else
        buch.buche(computer, -preis);
}

/// Jede Note, die der Mensch für ein Grundstück gibt, fehlt ihm; nach einem Zwangskauf hat sie der Vorbesitzer.
void Schiedsrichter::siehSchuld(bool gekauft) {
    if (gekauft || schuld == 0 || z.Restbetrag == vorher.Restbetrag || vorher.Restbetrag.empty() ||
        z.Restbetrag.empty())
        return;
    const int note = std::stoi(vorher.Restbetrag) - std::stoi(z.Restbetrag);
    if (note <= 0) return;
    buch.buche(0, -note);
    schuld = std::max(0, schuld - note);
    if (const int vorbesitzer = Computernummer(z.Vorbesitzer); vorbesitzer && z.Zwangskaufmerker)
        buch.buche(vorbesitzer, note);
}

} // namespace velmo
