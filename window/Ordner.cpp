#include "window/Ordner.h"

#include <QDir>
#include <QStandardPaths>

namespace velmo {

Ordner findeOrdner(const QString &beimProgramm) {
    const QDir programm(beimProgramm);
    const QString system = QDir::cleanPath(programm.filePath("../share/games/velmo"));
    if (programm.exists("bilder") || !QDir(system).exists()) return {beimProgramm.toStdString(), {}};
    const QDir eigenes(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/velmo");
    eigenes.mkpath("charakter");
    return {system.toStdString(), eigenes.path().toStdString()};
}

} // namespace velmo
