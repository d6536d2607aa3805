#pragma once

#include "NotchKit/Platform/SessionLock.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QSet>
#include <QVariant>

namespace Kestrune {

/// The lock as whoever knows of it tells: the desktops' screen savers on the session bus, and logind, whose
/// hint other lockers set. Nothing here waits for either.
class DesktopSessionLock : public SessionLock
{
    Q_OBJECT

public:
    /// `system` is the bus of logind.
    DesktopSessionLock(const QDBusConnection &session, const QDBusConnection &system);

    bool isLocked() const override { return !m_lockedBy.isEmpty(); }

private Q_SLOTS:
    void saverChanged(bool active, const QDBusMessage &signal);
    void sessionChanged(const QString &interface, const QVariantMap &values);

private:
    void followSaver(const QString &name, const QString &path);
    void followSession(const QString &path);
    void set(const QString &who, bool locked);

    QDBusConnection m_session;
    QDBusConnection m_system;
    QDBusServiceWatcher m_savers; ///< One that ends while it is active locks nothing any more.
    QSet<QString> m_lockedBy;     ///< The interfaces that say so.
};

} // namespace Kestrune
