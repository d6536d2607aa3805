#pragma once

#include "EndToEnd/ChildProcess.h"

#include <QDBusConnection>

/// A session bus of the test's own; it starts no service by itself but those described in `services`, a
/// folder.
struct PrivateBus
{
    /// Keeps its configuration in `folder` and adds its address to `environment`.
    PrivateBus(QProcessEnvironment &environment, const QString &folder, const QString &services = {});
    ~PrivateBus();
    Q_DISABLE_COPY_MOVE(PrivateBus)

    QDBusConnection connection() const { return m_connection; }
    QString address() const { return m_address; }

private:
    ChildProcess m_daemon;
    QString m_address;
    QDBusConnection m_connection{QString()};
};
