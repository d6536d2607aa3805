#pragma once

#include "NotchKit/Platform/Notifications.h"

#include <QDBusConnection>

namespace Kestrune {

/// The desktop's notification service on the session bus.
class BusNotifications : public Notifications
{
    Q_OBJECT

public:
    explicit BusNotifications(const QDBusConnection &session);

    void show(const QString &title, const QString &text) override;
    void withdraw() override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString &action);
    void closed(uint id, uint reason);

private:
    void shown(uint id);
    void close(uint id);

    QDBusConnection m_session;
    bool m_wanted = false; ///< Shown and not withdrawn, whatever the service has answered so far.
    int m_waiting = 0;     ///< For so many answers that tell its number.
    uint m_id = 0;         ///< The service's number of the one on screen; 0 for none.
};

} // namespace Kestrune
