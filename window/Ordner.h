#pragma once
// Wo das Programm seine Dateien hat.
#include <QString>

#include <string>

namespace velmo {

struct Ordner {
    std::string Mitgeliefertes;
    std::string Eigenes; // leer: beim Mitgelieferten
};

/// In einem Ordner des Spielers liegt alles beim Programm. Für das ganze System eingerichtet, liegt das Mitgelieferte
/// unter share/games/velmo und ist nur zu lesen; die Dateien des Spielers liegen dann bei seinen Daten
/// (XDG_DATA_HOME/velmo), wo ihr Ordner entsteht.
Ordner findeOrdner(const QString &beimProgramm);

} // namespace velmo
