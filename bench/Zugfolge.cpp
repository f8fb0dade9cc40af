#include "bench/Zugfolge.h"

#include "bench/Befund.h"

#include <algorithm>

namespace velmo {

namespace {

using namespace richtwerte;

constexpr std::string_view Autobuchstaben = "gebr";

Autokürzel auto_(char buchstabe) { return AlleAutos[Autobuchstaben.find(buchstabe)]; }
std::string name(Autokürzel k) { return std::string("Auto ") + Autobuchstaben[static_cast<std::size_t>(k)]; }

int fahrer(const Spielzustand &z, Autokürzel k) { return Computernummer(z.Autos[k].Autobesitzer); }

} // namespace

Autokürzel menschenauto(const Spielzustand &z) { return auto_(z.Spielerfarbe.back()); }

Autokürzel computerauto(const Spielzustand &z, int computer) {
    const auto meins = static_cast<std::size_t>(menschenauto(z));
    return auto_(Computerautos[meins][static_cast<std::size_t>(computer - 1)]);
}

bool ausgeschieden(const Spielzustand &z, int computer) {
    return z.Autos[computerauto(z, computer)].Autobesitzer != Computer<Autobesitzer>(computer);
}

Zugfolge::Soll Zugfolge::rechne(const Spielzustand &z, Autokürzel k) {
    const Autodaten &wagen = z.Autos[k];
    int ziel = static_cast<int>(wagen.Autofeld.Zahl() + z.Wurf.Zahl()) - (z.ErsteRundeVorbei ? 0 : 1);
    int von = static_cast<int>(wagen.Autofeld.Zahl());
    Soll s{0, wagen.Rundenmerker, wagen.Bankmerker, z.Rundenzähler, 0, 0};
    const auto amRathaus = [&] { s.Rundenmerker = s.Rundenmerker || ziel >= Rathausfeld; };
    const auto amStart = [&] {
        if (ziel <= Weglänge) return;
        ziel -= Weglänge;
        von = 1;
        s.Rundenmerker = s.Bankmerker = false;
        if (fahrer(z, k) == 0) ++s.Runden;
    };
    for (;; ++ziel) {
        if (k == Autokürzel::g) amRathaus();
        amStart();
        if (k != Autokürzel::g) amRathaus();
        if (ziel >= Bankfeld && !s.Bankmerker) {
            s.Bankmerker = true;
            if (s.Runden >= 1) s.Bankgeld += Bankgeld;
        }
        if (std::ranges::none_of(AlleAutos, [&](Autokürzel a) { return a != k && z.Autos[a].Autoziel == ziel; })) break;
    }
    s.Ziel = ziel;
    s.Schritte = ziel - von + 1;
    return s;
}

int Zugfolge::fälligesBankgeld(const Spielzustand &z, int wer) const {
    if (!start) return 0;
    return rechne(*start, wer == 0 ? menschenauto(z) : computerauto(z, wer)).Bankgeld;
}

void Zugfolge::prüfeFahrer(const Spielzustand &z, Autokürzel k) {
    const Autokürzel soll = z.AmZug == 0 ? menschenauto(z) : computerauto(z, z.AmZug);
    if (k != soll || (z.AmZug > 0 && fahrer(*start, k) != z.AmZug))
        throw Befund(name(k) + " fährt, wo " + name(soll) + " an der Reihe ist");
    bool &schon = gefahren[static_cast<std::size_t>(z.AmZug)];
    if (schon) throw Befund(name(k) + " fährt zweimal in einer Runde");
    schon = true;
}

std::optional<Ankunft> Zugfolge::schritt(const Spielzustand &z, Autokürzel k, int &bankgeld) {
    if (start) {
        prüfeFahrer(z, k);
        if (z.Wurf.Zahl() > 6) throw Befund("ein Wurf von " + z.Wurf.Text());
        const Soll s = rechne(*start, k);
        const Autodaten &wagen = z.Autos[k];
        if (wagen.Autoziel != s.Ziel)
            throw Befund(name(k) + " fährt nach " + wagen.Autoziel.Text() + " statt " + std::to_string(s.Ziel));
        if (wagen.Rundenmerker != s.Rundenmerker || wagen.Bankmerker != s.Bankmerker || z.Rundenzähler != s.Runden)
            throw Befund(name(k) + " kommt falsch an Rathaus, Bank oder Start vorbei");
        bankgeld = s.Bankgeld;
        schritte = s.Schritte;
        start.reset();
    }
    if (schritte == 0) throw Befund(name(k) + " fährt über sein Ziel hinaus");
    if (--schritte > 0) return std::nullopt;
    return Ankunft{fahrer(z, k), k, static_cast<int>(z.Autos[k].Autoziel.Zahl())};
}

/// "Fertig" rückt um einen weiter; wer ausgeschieden ist, wird übersprungen; am Ende der Runde ist der Mensch dran.
void Zugfolge::wechsel(const Spielzustand &vorher, const Spielzustand &jetzt) {
    int platz = vorher.AmZug;
    const auto übergeht = [&] {
        return platz >= 1 && platz < 3 && ausgeschieden(jetzt, platz) && !gefahren[static_cast<std::size_t>(platz)];
    };
    const auto prüfeGefahren = [&] {
        if (platz >= 1 && !gefahren[static_cast<std::size_t>(platz)] && !ausgeschieden(jetzt, platz))
            throw Befund("c" + std::to_string(platz) + " ist an der Reihe gewesen und nicht gefahren");
    };
    if (fertig && jetzt.AmZug > platz) {
        prüfeGefahren();
        ++platz;
        fertig = false;
    }
    while (platz != jetzt.AmZug && übergeht())
        ++platz;
    if (jetzt.AmZug == 0) {
        prüfeGefahren();
        if (platz < jetzt.Gegnerzahl) throw Befund("die Runde endet vor dem letzten Computer");
        gefahren = {};
    } else if (platz != jetzt.AmZug) {
        throw Befund("an der Reihe ist " + std::to_string(jetzt.AmZug) + " statt " + std::to_string(platz));
    }
}

} // namespace velmo
