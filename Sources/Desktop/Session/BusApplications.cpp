#include "BusApplications.h"

#include "Desktop/Bus/BusDaemon.h"
#include "Log.h"

namespace Kestrune {

BusApplications::BusApplications(const QDBusConnection &bus, const QStringList &bundleIdentifiers)
    : m_bus(bus)
{
    if (!m_bus.isConnected())
        return;
    m_watcher.setConnection(m_bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_watcher,
                     [this](const QString &name) {
                         qCInfo(sessionLog, "%s came", qUtf8Printable(name));
                         set(name, true);
                     });
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, &m_watcher,
                     [this](const QString &name) {
                         qCInfo(sessionLog, "%s went", qUtf8Printable(name));
                         set(name, false);
                     });
    for (const QString &name : bundleIdentifiers) {
        m_watcher.addWatchedService(name);
        m_unanswered.insert(name);
        ask(name);
    }
}

bool BusApplications::isRunning(const QString &bundleIdentifier) const
{
    return m_running.contains(bundleIdentifier);
}

bool BusApplications::follow(const std::function<void()> &changed)
{
    m_changed = changed;
    return true;
}

void BusApplications::set(const QString &name, bool runs)
{
    if (runs == m_running.contains(name))
        return;
    if (runs)
        m_running.insert(name);
    else
        m_running.remove(name);
    if (m_changed)
        m_changed();
}

void BusApplications::whenReady(std::function<void()> ready)
{
    if (m_unanswered.isEmpty())
        ready();
    else
        m_ready = std::move(ready);
}

void BusApplications::ask(const QString &name)
{
    BusDaemon::call(m_bus, QStringLiteral("NameHasOwner"), {name}, &m_watcher,
                    [this, name](const QVariant &reply) { answered(name, reply.toBool()); });
}

void BusApplications::answered(const QString &name, bool runs)
{
    if (runs)
        set(name, true);
    m_unanswered.remove(name);
    if (m_unanswered.isEmpty() && m_ready)
        std::exchange(m_ready, nullptr)();
}

} // namespace Kestrune
