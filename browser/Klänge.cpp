#include "browser/Klänge.h"

#include "platform/Zeichen.h"

#include <algorithm>

namespace velmo {

const Klänge::Stimme *Klänge::stimme(const Control &c) const {
    const auto hier = stimmen.find(&c);
    return hier == stimmen.end() ? nullptr : &hier->second;
}

void Klänge::befehl(const MMControl &c, Befehl befehl) {
    const auto hier = stimmen.find(&c);
    const bool offen = hier != stimmen.end();
    switch (befehl) {
    case Befehl::Open: // ein offenes Gerät bleibt, wie es ist
        if (!offen) {
            const std::string name = klein(c.FileName().substr(c.FileName().rfind('/') + 1));
            const auto dauer = dauern.find(name);
            stimmen[&c] = {++nummern, name, dauer == dauern.end() ? 0 : dauer->second};
        }
        break;
    case Befehl::Play: // am Ende angekommen, bliebe es am Ende
        if (!offen || hier->second.gespielt) break;
        hier->second.gespielt = true;
        hier->second.beginn = uhr();
        if (hier->second.dauer > 0)
            bündel.nimm("ton", {{"nummer", json(hier->second.nummer)}, {"name", json(hier->second.name)}});
        break;
    case Befehl::Close:
        vergiss(c);
        break;
    }
}

void Klänge::vergiss(const Control &c) {
    const auto hier = stimmen.find(&c);
    if (hier == stimmen.end()) return;
    if (hier->second.gespielt) bündel.nimm("stille", {{"nummer", json(hier->second.nummer)}});
    stimmen.erase(hier);
}

Zeit Klänge::rest(const MMControl &c) const {
    const Stimme *s = stimme(c);
    return s && s->gespielt ? std::max<Zeit>(0, s->beginn + s->dauer - uhr()) : 0;
}

long Klänge::Position(const MMControl &c) const {
    const Stimme *s = stimme(c);
    return s && s->gespielt ? s->dauer - static_cast<long>(rest(c)) : 0;
}

long Klänge::Length(const MMControl &c) const {
    const Stimme *s = stimme(c);
    return s ? s->dauer : 0;
}

} // namespace velmo
