#pragma once
// Formulare für 96 DPI: der Entwurf rechnet mit 120.
#include "platform/Form.h"

namespace velmo {

/// Läuft die Anzeige mit 96 DPI?
bool IstKleineSchrift(const Laufzeit &);
/// Rechnet Maße und Schriften der Form um. Art 0: Dialog, Ort bleibt; 2: füllt die Anzeige; 10: wird nur verschoben.
void FormAnpassen(Form &, int Art);

} // namespace velmo
