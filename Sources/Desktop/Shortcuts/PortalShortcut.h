#pragma once

#include "Async/Scope.h"
#include "PortalRequest.h"
#include "Shortcut.h"

#include <QPointer>

namespace Kestrune {

/// A shortcut of the portal org.freedesktop.portal.GlobalShortcuts, in a session of its own. What it is bound
/// to is the user's choice, made in the desktop's settings.
class PortalShortcut : public Shortcut
{
    Q_OBJECT

public:
    /// Asks for it at once. `portal` is the portal's unique name on the bus; `parent` outlives the object.
    PortalShortcut(const QDBusConnection &bus, const QString &portal, const WantedShortcut &wanted,
                   const ShortcutTimes &times, QObject *parent);
    ~PortalShortcut() override;

private Q_SLOTS:
    void takeActivated(const QDBusMessage &signal);
    void takeDeactivated(const QDBusMessage &signal);
    void takeChanged(const QDBusMessage &signal);
    void takeClosed();

private:
    QCoro::Task<> bind();
    QFuture<QDBusMessage> introduceProgram();
    QFuture<PortalAnswer> createSession();
    QFuture<PortalAnswer> bindKey();
    QFuture<PortalAnswer> listKeys();
    void listen();
    bool isOurs(const QDBusMessage &signal) const;
    void take(const QList<PortalKey> &keys);

    QDBusConnection m_bus;
    QString m_portal;
    WantedShortcut m_wanted;
    ShortcutTimes m_times;
    QString m_session;                  ///< Its object path, once it is made.
    QPointer<PortalRequest> m_creating; ///< While it is being made.
    Scope m_flows;
};

} // namespace Kestrune
