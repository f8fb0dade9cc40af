#include "window/Gedächtnis.h"

#include <QSettings>

#include <algorithm>

namespace velmo {

Gedächtnis::Gedächtnis(QString pfad) : datei(std::move(pfad)) {
    if (datei.isEmpty()) return;
    const QSettings s(datei, QSettings::IniFormat);
    Fenster = s.value("fenster").toByteArray();
    Lautstärke = std::clamp(s.value("lautstaerke", Stufen).toInt(), 0, Stufen);
    Stumm = s.value("stumm").toBool();
}

void Gedächtnis::schreibe() const {
    if (datei.isEmpty()) return;
    QSettings s(datei, QSettings::IniFormat);
    s.setValue("fenster", Fenster);
    s.setValue("lautstaerke", Lautstärke);
    s.setValue("stumm", Stumm);
}

} // namespace velmo
