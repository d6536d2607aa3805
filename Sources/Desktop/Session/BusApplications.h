#pragma once

#include "NotchKit/Platform/RunningApplications.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QSet>

#include <functional>

namespace Kestrune {

/// Running applications as owners of well-known names on the session bus, followed by the bus's own
/// signals. Nothing here waits for the bus.
class BusApplications : public RunningApplications
{
public:
    /// Follows the applications of those bundle identifiers, which are their bus names.
    BusApplications(const QDBusConnection &bus, const QStringList &bundleIdentifiers);

    bool isRunning(const QString &bundleIdentifier) const override;

    /// Tells when one comes or goes. Without a bus none ever does.
    bool follow(const std::function<void()> &changed) override;

    /// Calls `ready` once the bus has told which of the applications run already, or did not answer.
    void whenReady(std::function<void()> ready);

private:
    void ask(const QString &name);
    void set(const QString &name, bool runs);
    void answered(const QString &name, bool runs);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    QSet<QString> m_running;
    QSet<QString> m_unanswered;
    std::function<void()> m_ready;
    std::function<void()> m_changed;
};

} // namespace Kestrune
