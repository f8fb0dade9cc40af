#include "bench/Kassenbuch.h"

namespace velmo {

int geld(const Spielzustand &z, int wer) { return wer == 0 ? z.Gesamtgeld : z.Computergeld[wer]; }

std::string teilnehmer(int wer) { return wer == 0 ? "der Mensch" : "c" + std::to_string(wer); }

void Kassenbuch::eröffne(const Spielzustand &z) {
    for (int wer = 0; wer <= 3; ++wer)
        soll[static_cast<std::size_t>(wer)] = {geld(z, wer)};
}

void Kassenbuch::buche(int wer, int betrag) { bucheEinenVon(wer, {betrag}); }

void Kassenbuch::bucheEinenVon(int wer, const std::set<int> &beträge) {
    std::set<int> neu;
    for (const int stand : soll[static_cast<std::size_t>(wer)])
        for (const int betrag : beträge)
            neu.insert(stand + betrag);
    soll[static_cast<std::size_t>(wer)] = std::move(neu);
}

std::optional<std::string> Kassenbuch::schließeAb(const Spielzustand &z) {
    for (int wer = 0; wer <= 3; ++wer) {
        const std::set<int> &stände = soll[static_cast<std::size_t>(wer)];
        if (stände.contains(geld(z, wer))) continue;
        std::string text = teilnehmer(wer) + " hat " + std::to_string(geld(z, wer)) + " DM statt";
        for (const int stand : stände)
            text += " " + std::to_string(stand);
        return text;
    }
    eröffne(z);
    return std::nullopt;
}

} // namespace velmo
