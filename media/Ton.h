#pragma once
// Die zwei Weisen, einen Ton zu spielen, die mehrere Regeln teilen.
#include "platform/Control.h"

namespace velmo {

/// Bricht den eigenen letzten Ton ab und spielt neu, ohne zu warten: "close", "open", "play".
inline void spieleFrisch(MMControl &c) {
    c.Command(Befehl::Close);
    c.Command(Befehl::Open);
    c.Command(Befehl::Play);
}

/// Spielt und wartet das Ende ab: "open", "play" mit Wait, "close".
inline void spieleWartend(MMControl &c) {
    c.Command(Befehl::Open);
    c.Wait = true;
    c.Command(Befehl::Play);
    c.Command(Befehl::Close);
}

} // namespace velmo
