#include "property/Bezahlen.h"

#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "media/Bilder.h"
#include "media/Ton.h"
#include "property/Miete.h"
#include "property/Pleite.h"

namespace velmo {

namespace {

constexpr double Rollschritt = 200; // Twips

/// Wo das Rollen endet; die Schrift mit 96 DPI hat eigene Maße.
struct Rollgrenzen {
    double zu, offen;
};
constexpr Rollgrenzen GroßeSchrift{1680, 6800};
constexpr Rollgrenzen KleineSchrift{2200, 8560};
constexpr double GeschlosseneHöhe = 2100; // bei 96 DPI

/// Der Satz, wie der Dialog ihn nachschlägt. Bei Safari wandelt er, wenn weder Park noch zweites Nebengebäude stehen,
/// den Text des ersten Nebengebäudes in eine Flagge um; ist er leer, endet das Programm. Mit Absicht so.
std::optional<int> satzDesDialogs(const Spielzustand &z, const Mietzeile &zeile) {
    constexpr auto s = Hotelkürzel::s;
    if (zeile.Hotel == s && !steht(z, s, Baustufe::P) && !steht(z, s, Baustufe::N2) && !steht(z, s, Baustufe::N1))
        throw Laufzeitfehler(Fehlerart::Typ);
    return Tagessatz(z, zeile);
}

} // namespace

Bezahlen::Bezahlen(Programm &programm) : Form(programm, Formname, {0, 240, 7476, 1620}), p(programm) {
    Image2.Visible = false;
    Image2.gebaren = Gebaren::Purzelt;
    SSCommand1.Enabled = false;
    Label1.FontSize = 10;
    Label1.Zeicheneinzug = {36, -48, 0, 48};
    Shape1.Zeicheneinzug = {120, 108, 120, 120};
    Image3.MouseDown = [this](Maustaste, double, double) { p.eingabe.zieheForm(*this); };
    würfeln.Click = [this] { würfeln_Click(); };
    SSCommand1.Click = [this] { SSCommand1_Click(); };
    SSCommand2.Click = [this] { SSCommand2_Click(); };
    Timer1.Tick = [this] { Timer1_Timer(); };
    Timer2.Tick = [this] { Timer2_Timer(); };
}

void Bezahlen::Form_Load() {
    beginneTrauermusik();
    Left = alsGanz((p.Screen().Width - Width) / 2);
    brett(p).Enabled = false;
    Preiszustand = true;
    Label1.Caption = "Willkommen im " + p.Zustand.Miethotel + " von Computer " + p.Zustand.Gastgeber.letztes() +
                     "! Wieviel Nächte wollen Sie bleiben?";
    ladeKarte();
    wendeKarte();
}

void Bezahlen::Form_Unload() {
    p.Zustand.Mietefertig = true;
    brett(p).Enabled = true;
}

void Bezahlen::eigeneWerte(const Namensempfänger &e) { e("Preiszustand", feldzugang(Preiszustand)); }

/// Trauermusik nur, wenn gerade kein Stück läuft.
void Bezahlen::beginneTrauermusik() {
    MMControl &musik = brett(p).MMControl1;
    if (p.Zustand.TrauerMusik || musik.Length() - musik.Position() > 0) return;
    musik.Command(Befehl::Close);
    musik.FileName = p.Zustand.Programmpfad + "/sound/traurig.mid";
    musik.Command(Befehl::Open);
    musik.Command(Befehl::Play);
    p.Zustand.TrauerMusik = true;
}

void Bezahlen::ladeKarte() {
    if (const Mietzeile *zeile = miethotel(p.Zustand)) Picture1.Picture = Bildladen(p, zeile->Karte, "Besitzkarten");
}

void Bezahlen::wendeKarte() {
    SSCommand2.Caption = SSCommand2.Caption() == "Preise Anschauen" ? "Preise Weg" : "Preise Anschauen";
    Preiszustand = !Preiszustand;
    Timer2.Enabled = true;
}

void Bezahlen::SSCommand2_Click() {
    ladeKarte();
    wendeKarte();
}

void Bezahlen::würfeln_Click() {
    Spielzustand &z = p.Zustand;
    if (!Timer1.Enabled) {
        Timer1.Enabled = true;
        würfeln.Caption = "Stopp";
        Label1.Caption = "Drücken Sie auf Stopp, um den Würfel zu stoppen";
        return;
    }
    Timer1.Enabled = false;
    if (const Mietzeile *zeile = miethotel(z))
        if (const auto satz = satzDesDialogs(z, *zeile)) z.Miete = *satz * z.Wurf.Ganz();
    würfeln.Caption = "Würfeln";
    Label1.Caption =
        "Sie haben " + z.Wurf.Text() + " gewürfelt, Sie müssen " + std::to_string(z.Miete) + "DM bezahlen.";
    würfeln.Enabled = false;
    SSCommand1.Enabled = true;
}

void Bezahlen::SSCommand1_Click() {
    Spielzustand &z = p.Zustand;
    if (z.Gesamtgeld < z.Miete) Pleitegehen(p, "Spieler", z.Miete, "");
    // Der Gastgeber bekommt auch von einem Ruinierten alles: mit Absicht so.
    if (const int gastgeber = Computernummer(z.Gastgeber)) z.Computergeld[gastgeber] += z.Miete;
    Geldbuchen(p, int(z.Miete), false);
    p.entlade(Formname);
}

void Bezahlen::Timer1_Timer() {
    p.Zustand.Wurf = p.Zufallszahl(6) + 1;
    Image2.Picture = Bildladen(p, 200 + p.Zustand.Wurf.Ganz(), "Wuerfel");
    Würfel.Picture = Image2.Picture();
}

void Bezahlen::Timer2_Timer() {
    const bool klein = p.Zustand.KleineSchrift;
    const Rollgrenzen &grenzen = klein ? KleineSchrift : GroßeSchrift;
    if (Preiszustand) {
        Height -= Rollschritt;
        if (Height > grenzen.zu) return;
        if (klein) Height = GeschlosseneHöhe;
    } else {
        Height += Rollschritt;
        if (klein ? Height <= grenzen.offen : Height < grenzen.offen) return;
    }
    Timer2.Enabled = false;
}

} // namespace velmo
