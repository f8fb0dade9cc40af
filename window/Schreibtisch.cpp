#include "window/Schreibtisch.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMap>
#include <QVariantMap>

#include <algorithm>

namespace velmo {

namespace {

using Angaben = QMap<QString, QVariantMap>; // Bereich, Name, Wert

constexpr double GrößteSchrift = 1.75;

Wünsche gelesen(const Angaben &a) {
    const auto wert = [&](const char *bereich, const char *name, const QVariant &sonst) {
        return a.value(bereich).value(name, sonst);
    };
    Wünsche w;
    w.schrift =
        std::clamp(wert("org.gnome.desktop.interface", "text-scaling-factor", 1.0).toDouble(), 1.0, GrößteSchrift);
    w.kontrast = wert("org.freedesktop.appearance", "contrast", 0).toInt() == 1 ||
                 wert("org.gnome.desktop.a11y.interface", "high-contrast", false).toBool();
    w.ruhig = wert("org.freedesktop.appearance", "reduced-motion", 0).toInt() == 1 ||
              !wert("org.gnome.desktop.interface", "enable-animations", true).toBool() ||
              wert("org.kde.kdeglobals.KDE", "AnimationDurationFactor", 1.0).toDouble() == 0;
    return w;
}

} // namespace

void frageSchreibtisch(QObject *empfänger, const std::function<void(const Wünsche &)> &melde) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    QDBusMessage frage =
        QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                       "org.freedesktop.portal.Settings", "ReadAll");
    frage << QStringList{"org.gnome.desktop.*", "org.freedesktop.appearance", "org.kde.kdeglobals.KDE"};
    auto *antwort = new QDBusPendingCallWatcher(bus.asyncCall(frage), empfänger);
    QObject::connect(antwort, &QDBusPendingCallWatcher::finished, empfänger, [melde](QDBusPendingCallWatcher *fertig) {
        fertig->deleteLater();
        const QDBusMessage m = fertig->reply();
        if (m.type() != QDBusMessage::ReplyMessage || m.arguments().isEmpty()) return;
        Angaben angaben;
        m.arguments().first().value<QDBusArgument>() >> angaben;
        melde(gelesen(angaben));
    });
}

} // namespace velmo
