#pragma once
// Die Objekte des Baums für Vorleseprogramme. Was auf den Formen gezeichnet ist, bekommt ein eigenes Objekt; Textfelder
// und Rollbalken haben das des Systems.
#include "window/Vorleser.h"

namespace velmo {

/// Für QAccessible::installFactory: das Objekt für das Fenster, eine Formfläche oder was auf ihr liegt; null für
/// anderes.
QAccessibleInterface *sprecherFür(const QString &klasse, QObject *);

/// Ein neues Objekt für ein gezeichnetes Element oder einen Knopf.
QAccessibleInterface *neuerSprecher(Vorleser &, std::uint64_t form, VisualControl *);

} // namespace velmo
