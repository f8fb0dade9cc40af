#pragma once

namespace velmo {

/// Wohin die Meldungen unmöglicher Zustände den Spieler bitten zu schreiben.
inline constexpr const char *Hilfeadresse = "velmo@example.org";

} // namespace velmo
