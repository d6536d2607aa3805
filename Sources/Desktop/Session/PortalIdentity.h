#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>

namespace Kestrune {

/// Tells the desktop's portals which program calls over a connection, at once and whenever they start anew:
/// what the user allows is then kept under its name instead of for all programs. It comes before any other
/// call to them. Portals that do not ask for it are left alone. Interface:
/// org.freedesktop.host.portal.Registry. Main thread only.
class PortalIdentity : public QObject
{
    Q_OBJECT

public:
    explicit PortalIdentity(const QDBusConnection &bus);

    /// The name, which is that of the desktop entry.
    static QString program() { return QStringLiteral("example.kestrune.Kestrune"); }

private:
    void introduce();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
};

} // namespace Kestrune
