#include "MprisApplications.h"

#include "Desktop/Bus/BusDaemon.h"
#include "MprisNames.h"

#include <algorithm>

namespace Kestrune {

namespace {

/// What players tell of themselves reaches `slot` of `receiver`.
bool connectPlayers(QDBusConnection bus, QObject *receiver, const char *slot)
{
    const QString path = QStringLiteral("/org/mpris/MediaPlayer2");
    const QString player = QStringLiteral("org.mpris.MediaPlayer2.Player");
    return bus.connect({}, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                       QStringLiteral("PropertiesChanged"), {player}, {}, receiver, slot) &&
           bus.connect({}, path, player, QStringLiteral("Seeked"), receiver, slot);
}

} // namespace

MprisApplications::MprisApplications(const QDBusConnection &bus)
{
    if (!bus.isConnected())
        return;
    m_watcher.setConnection(bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_watcher.addWatchedService(QStringLiteral("org.mpris.MediaPlayer2*")); // Whole parts of names match.
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_watcher,
                     [this](const QString &name) {
                         m_names.insert(name);
                         tell();
                     });
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, &m_watcher,
                     [this](const QString &name) {
                         m_names.remove(name);
                         tell();
                     });
    m_isToldOf = connectPlayers(bus, this, SLOT(tell()));
    // Whoever comes or goes meanwhile is told of behind this answer.
    BusDaemon::call(bus, QStringLiteral("ListNames"), {}, &m_watcher, [this](const QVariant &names) {
        for (const QString &name : names.toStringList()) {
            if (MprisNames::playerOf(name))
                m_names.insert(name);
        }
        tell();
    });
}

bool MprisApplications::follow(const std::function<void()> &changed)
{
    m_changed = changed;
    return m_isToldOf;
}

void MprisApplications::tell()
{
    if (m_changed)
        m_changed();
}

bool MprisApplications::isRunning(const QString &bundle) const
{
    return std::ranges::any_of(m_names, [&](const QString &name) {
        const auto player = MprisNames::playerOf(name);
        return player && bundleIdentifier(*player) == bundle;
    });
}

} // namespace Kestrune
