#include "property/Miete.h"

#include "assistant/Ansagen.h"
#include "boardform/Brett.h"
#include "boardform/Kasse.h"
#include "media/Bilder.h"
#include "property/Pleite.h"

#include <algorithm>
#include <functional>

namespace velmo {

namespace {

using H = Hotelkürzel;

/// Welche Hotels an den Feldern von bis liegen, in der Folge des Nachsehens.
struct Lagezeile {
    int von, bis;
    std::array<std::optional<H>, 2> Hotels;
};

// clang-format off
constexpr Lagezeile Lagetafel[] = {
    { 1,  1, {H::f}},       { 2,  3, {H::f, H::b}}, { 4,  5, {H::b, H::f}}, { 6,  6, {H::f}},
    { 8,  8, {H::l}},       { 9, 10, {H::l, H::p}}, {11, 15, {H::p, H::r}}, {16, 20, {H::w, H::r}},
    {21, 24, {H::t, H::l}}, {25, 25, {H::t}},       {26, 27, {H::s}},       {28, 29, {H::s, H::l}},
    {30, 30, {H::s}},
};
// clang-format on

/// Sucht am Feld des Autos den ersten Eingang, dessen Gastgeber fremd ist. Miethotel und Gastgeber behalten auch ohne
/// Fund, was zuletzt angesehen wurde.
bool findeGastgeber(Spielzustand &z, Autokürzel k, const std::function<bool(const Eingangsbesitzer &)> &fremd) {
    for (const Lagezeile &lage : Lagetafel)
        for (int feld = lage.von; feld <= lage.bis; ++feld) {
            if (z.Autos[k].Autoziel != feld) continue;
            for (const auto &hotel : lage.Hotels) {
                const Eingangsplatz *platz = hotel ? eingangsplatzVon(*hotel, feld) : nullptr;
                if (!platz || !z.Eingang[platz->Nummer]) continue;
                z.Miethotel = mietzeile(*hotel).Name;
                z.Gastgeber = z.Eingangsbesitzer[platz->Nummer];
                if (fremd(z.Gastgeber)) return true;
            }
        }
    return false;
}

void zeigeGesicht(Programm &p, int augen) { brett(p).Picture8.Picture = Bildladen(p, 200 + augen, "Wuerfel"); }

/// Das Flackern verrät nichts: die Nächte stehen schon fest.
void zeigeWürfeln(Programm &p, int nächte) {
    for (int gesicht = 0; gesicht < 6; ++gesicht) {
        for (int i = 0; i < 100; ++i)
            p.DoEvents();
        zeigeGesicht(p, p.Zufallszahl(6) + 1);
    }
    zeigeGesicht(p, nächte);
}

} // namespace

const Mietzeile *miethotel(const Spielzustand &z) {
    const auto zeile = std::ranges::find(Miettafel, z.Miethotel, &Mietzeile::Name);
    return zeile == Miettafel.end() ? nullptr : &*zeile;
}

std::optional<int> Tagessatz(const Spielzustand &z, const Mietzeile &zeile) {
    for (auto s = AlleStufen.rbegin(); s != AlleStufen.rend(); ++s)
        if (const auto satz = zeile.Satz[static_cast<std::size_t>(*s)]; satz && steht(z, zeile.Hotel, *s)) return satz;
    return std::nullopt;
}

void Mietdialog(Programm &p, Autokürzel k) {
    if (findeGastgeber(p.Zustand, k, [](const Eingangsbesitzer &g) { return g != Spieler; }))
        p.zeige(formular::Bezahlen);
    else
        p.Zustand.Mietefertig = true;
}

void Mietzahlen(Programm &p, Autokürzel k) {
    Spielzustand &z = p.Zustand;
    const std::string ich = z.Aktivcomputer.Text();
    if (!findeGastgeber(z, k, [&](const Eingangsbesitzer &g) { return g.letztes() != ich; })) return;
    const int nächte = p.Zufallszahl(6) + 1;
    brett(p).Label1.Caption = "Der Computer würfelt wieviel Nächte er im " + z.Miethotel + " bleiben muss.";
    zeigeWürfeln(p, nächte);
    if (const Mietzeile *zeile = miethotel(z))
        if (const auto satz = Tagessatz(z, *zeile)) z.Miete = *satz * nächte;
    const int gast = Computernummer(Computer<Autobesitzer>(ich));
    const int gastgeber = Computernummer(z.Gastgeber);
    if (!gast || (!gastgeber && z.Gastgeber != Spieler)) return;
    if (z.Computergeld[gast] < z.Miete)
        return Pleitegehen(p, ich, z.Miete, gastgeber ? z.Gastgeber.letztes() : Spieler.Text());
    z.Computergeld[gast] -= z.Miete;
    if (gastgeber) {
        z.Computergeld[gastgeber] += z.Miete;
        return;
    }
    Ansagen(p,
            "Der Computer " + ich + " bleibt " + std::to_string(nächte) + " Tage im " + z.Miethotel + ". Du bekommst " +
                std::to_string(z.Miete) + " DM.",
            4);
    Geldbuchen(p, int(z.Miete), true);
}

} // namespace velmo
