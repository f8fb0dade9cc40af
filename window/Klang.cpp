#include "window/Klang.h"

#include "window/Tonwerk.h"

#include <algorithm>

namespace velmo {

namespace {

using Stand = Stimme::Stand;

constexpr long Geduld = 500; // ms, die auf ein säumiges Gerät gewartet wird

} // namespace

Klang::Klang() : werk(std::make_unique<Tonwerk>()) {}
Klang::~Klang() = default;

void Klang::beginne() { werk->beginne(); }
void Klang::stelleLautstärke(double neue) { werk->stelleLautstärke(neue); }

const Stimme *Klang::stimme(const Control &c) const {
    const auto hier = stimmen.find(&c);
    return hier == stimmen.end() ? nullptr : hier->second.get();
}

void Klang::befehl(const MMControl &c, Befehl befehl) {
    const auto hier = stimmen.find(&c);
    const bool offen = hier != stimmen.end();
    switch (befehl) {
    case Befehl::Open: // ein offenes Gerät bleibt, wie es ist
        if (!offen) stimmen[&c] = std::make_shared<Stimme>(c.FileName);
        break;
    case Befehl::Play: // am Ende angekommen, bliebe es am Ende
        if (!offen || hier->second->stand != Stand::Offen) break;
        hier->second->Bestellt = Tonuhr::now();
        hier->second->stand = Stand::Bestellt;
        werk->spiele(hier->second);
        break;
    case Befehl::Close:
        vergiss(c);
        break;
    }
}

void Klang::vergiss(const Control &c) {
    const auto hier = stimmen.find(&c);
    if (hier == stimmen.end()) return;
    if (hier->second->stand != Stand::Offen) werk->schließe(hier->second);
    stimmen.erase(hier);
}

bool Klang::klingt(const MMControl &c) const {
    const Stimme *s = stimme(c);
    if (!s) return false;
    switch (s->stand) {
    case Stand::Bestellt:
        return seit(s->Bestellt) < Geduld;
    case Stand::Klingt: // von einem Stück ist die Länge nicht bekannt
        return s->Länge == 0 || seit(s->Beginn) < s->Länge;
    default:
        return false;
    }
}

long Klang::Position(const MMControl &c) const {
    const Stimme *s = stimme(c);
    if (!s) return 0;
    return klingt(c) && s->stand == Stand::Klingt ? seit(s->Beginn) : s->Länge.load();
}

/// Solange ein Stück klingt oder gleich klingen wird, liegt sein Ende vor ihm.
long Klang::Length(const MMControl &c) const {
    const Stimme *s = stimme(c);
    if (!s) return 0;
    return klingt(c) && s->Länge == 0 ? Position(c) + 1 : s->Länge.load();
}

} // namespace velmo
