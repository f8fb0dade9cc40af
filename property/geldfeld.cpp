#include "property/geldfeld.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "media/Ton.h"
#include "model/Feldtabelle.h"
#include "platform/Zeichen.h"
#include "property/Grundstück.h"
#include "property/Hilfeadresse.h"

#include <algorithm>

namespace velmo {

namespace {

const std::string Kauf = " Kaufen", Zwang = "Zwangskaufen";

constexpr const char *Schmähungen[] = {
    "Sie Idiot! Sie haben nicht mal genug Geld für dieses Hotel!",
    "Sie können wohl nicht richtig zählen! Sie können sich dieses Hotel nicht leisten!",
    "Dummdödel! Sie können sich so einen Luxus-Schuppen gar nicht leisten!",
    "Schon mal was von Mathe gehört? Sie haben nicht genug Geld!",
};
constexpr const char *LetzteSchmähung =
    "Wo haben sie denn ihren Hauptschulabschluss gemacht? Ihr Geld reicht ja gar nicht!";

void schmähe(Programm &p) {
    const int n = p.Zufallszahl(4) + 1;
    brett(p).Label1.Caption = n >= 1 && n <= 4 ? Schmähungen[n - 1] : LetzteSchmähung;
}

bool innen(const VisualControl &c, double X, double Y) {
    return X > c.Left && X < c.Left + c.Width && Y > c.Top && Y < c.Top + c.Height;
}

/// Das Hotel dieser Seite, mit dem die Beschriftung des Knopfs beginnt.
const Hotel *angebotenes(const std::string &beschriftung, Seite seite) {
    const auto h = std::ranges::find_if(
        Hotels, [&](const Hotel &h) { return h.Wegseite == seite && beschriftung.starts_with(h.Name); });
    return h == Hotels.end() ? nullptr : &*h;
}

void trageEin(Spielzustand &z, const char *schlüssel) {
    const auto frei = std::ranges::find_if(z.Hotelliste, &Lose::leer);
    if (frei != z.Hotelliste.end()) *frei = schlüssel;
}

/// Der Kauf ist getan; offen bleibt das Geld, Note für Note.
void eröffneSchuld(Programm &p, const std::string &satz) {
    Brett &b = brett(p);
    b.Label1.Caption = satz;
    b.Fertig.Enabled = false;
    for (Notenstapel &stapel : b.Stapel)
        stapel.g.Enabled = true;
    Besitzanzeige(p);
    p.Zustand.Kaufmerker = 1;
}

} // namespace

geldfeld::geldfeld(Programm &programm) : Brettdialog(programm, Formname, 4332, 1860) {
    MouseUp = [this](Maustaste, double X, double Y) { Form_MouseUp(X, Y); };
    SSCommand1.FontSize = SSCommand2.FontSize = 7.5; // "Boomerang Zwangskaufen" füllt den Knopf
    SSCommand1.Zeicheneinzug.links = 72;
    SSCommand2.Zeicheneinzug.rechts = 72;
    Image2.Zeicheneinzug = {24, -60, -444, -264}; // groß zu beiden Seiten von "Nichts Kaufen"
    Image1.Zeicheneinzug = {-192, -60, -228, -264};
    SSCommand1.Click = [this] { kaufe(SSCommand1, Seite::links); };
    SSCommand2.Click = [this] { kaufe(SSCommand2, Seite::rechts); };
    SSCommand3.Click = [this] { SSCommand3_Click(); };
}

void geldfeld::Form_Load() {
    p.Zustand.Zwangskaufmerker = false;
    Brettdialog::Form_Load();
    MMControl1.FileName = p.Zustand.Programmpfad + "/sound/command_click.wav";
    const auto eigenes = AutoDesMenschen(p.Zustand);
    if (!eigenes) {
        p.MsgBox("Programmfehler in Geldfeld_form_load. Schicken sie diesen Fehler an " + std::string(Hilfeadresse));
        p.Ende();
    }
    const std::string anlieger = feld(p.Zustand.Autos[*eigenes].Autoziel.Zahl()).Anlieger;
    const Hotel *links = hotelZuBuchstabe(anlieger.front()), *rechts = hotelZuBuchstabe(anlieger.back());
    biete(SSCommand1, links);
    biete(SSCommand2, rechts);
    zeigePreise(links, rechts);
}

/// Große Scheine stehen bei einem teuren Grundstück, Münzen bei einem günstigen.
void geldfeld::zeigePreise(const Hotel *links, const Hotel *rechts) {
    constexpr int Teuer = 2000; // DM
    const velmo::Picture scheine = Image1.Picture, münzen = Image2.Picture;
    for (const auto &[h, bild] : {std::pair{links, &Image2}, std::pair{rechts, &Image1}})
        if (h) bild->Picture = grundstück(h->Kürzel).Preis >= Teuer ? scheine : münzen;
}

void geldfeld::biete(SSCommand &knopf, const Hotel *h) {
    knopf.Visible = h != nullptr;
    if (!h) return;
    knopf.Caption = h->Name + Kauf;
    const Hotelbesitzer &besitzer = p.Zustand.Hotels[h->Kürzel].Besitzer;
    if (besitzer.leer()) return;
    if (besitzer == Mensch || steht(p.Zustand, h->Kürzel, Baustufe::H)) {
        knopf.Enabled = false;
    } else {
        knopf.Caption = h->Name + (" " + Zwang);
        p.Zustand.Zwangskaufmerker = true; // für den ganzen Dialog: mit Absicht so
    }
}

void geldfeld::kaufe(const SSCommand &knopf, Seite seite) {
    Spielzustand &z = p.Zustand;
    spieleWartend(MMControl1);
    z.Kaufmerker = 0;
    const Hotel *h = angebotenes(knopf.Caption, seite);
    if (!h) return;
    const Grundstück &g = grundstück(h->Kürzel);
    Hotelbesitzer &besitzer = z.Hotels[h->Kürzel].Besitzer;
    const bool zwang = Rechts(knopf.Caption(), Zeichenzahl(Zwang)) == Zwang && z.Zwangskaufmerker;
    const int preis = zwang ? g.Zwangspreis : g.Preis;
    if (zwang) z.Vorbesitzer = besitzer;
    if (!zwang && g.Doppelkaufmeldung && besitzer == Mensch) p.MsgBox(g.Doppelkaufmeldung + std::string(Hilfeadresse));
    besitzer = Mensch;
    z.Restbetrag = std::to_string(preis);
    if (z.Gesamtgeld < preis) {
        if (zwang) besitzer = {}; // mit Absicht nicht wieder des Vorbesitzers
        // Am rechten Knopf bleibt es des Menschen: mit Absicht so.
        if (seite == Seite::links) besitzer = {};
        return schmähe(p);
    }
    trageEin(z, zwang ? g.Zwangsschlüssel : g.Schlüssel);
    eröffneSchuld(p, zwang ? "Sie haben dem Computer " + z.Vorbesitzer.letztes() +
                                 " das Hotel weggenommen. Sie müssen ihm nur " + z.Restbetrag + " DM bezahlen."
                           : "Sie müssen jetzt noch " + z.Restbetrag + " DM bezahlen.");
    p.entlade(Formname);
    Scheinanzeige(p);
}

void geldfeld::SSCommand3_Click() {
    spieleWartend(MMControl1);
    p.entlade(Formname);
    Scheinanzeige(p);
}

// Ein gesperrter Knopf lässt die Maus zum Dialog durch.
void geldfeld::Form_MouseUp(double X, double Y) {
    for (const SSCommand *knopf : {&SSCommand1, &SSCommand2})
        if (!knopf->Enabled && innen(*knopf, X, Y))
            Ansagen(p, "Sie können das Grundstück nicht kaufen, da es schon gekauft wurde!", 0);
}

} // namespace velmo
