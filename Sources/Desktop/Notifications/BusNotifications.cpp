#include "BusNotifications.h"

#include "Desktop/Bus/BusCall.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QVariantMap>

#include <utility>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(notificationLog, "kestrune.notifications", QtWarningMsg)

constexpr int kLongest = 10000; // ms; the service may be started by the call.
constexpr uint kPutAway = 2;    // The reason of a notification that the user closed.
constexpr int kUntilClosed = 0;

/// The only urgency that is shown over a full-screen window, and that stays.
constexpr uchar kCritical = 2;

QString service() { return QStringLiteral("org.freedesktop.Notifications"); }
QString path() { return QStringLiteral("/org/freedesktop/Notifications"); }
QString byClick() { return QStringLiteral("default"); }

QDBusMessage callOf(const char *method)
{
    return QDBusMessage::createMethodCall(service(), path(), service(), QLatin1String(method));
}

} // namespace

BusNotifications::BusNotifications(const QDBusConnection &session)
    : m_session(session)
{
    if (!m_session.isConnected())
        return;
    m_session.connect(service(), path(), service(), QStringLiteral("ActionInvoked"), this,
                      SLOT(actionInvoked(uint, QString)));
    m_session.connect(service(), path(), service(), QStringLiteral("NotificationClosed"), this,
                      SLOT(closed(uint, uint)));
}

void BusNotifications::show(const QString &title, const QString &text)
{
    m_wanted = true;
    ++m_waiting;
    const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(kCritical)},
                            {QStringLiteral("suppress-sound"), true}, // The program plays its own.
                            {QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    QDBusMessage call = callOf("Notify");
    call << QStringLiteral("Kestrune") << m_id << QStringLiteral("kestrune") << title << text
         << QStringList{byClick(), title} << hints << kUntilClosed;
    callBus(m_session, call, kLongest, this, [this](const QDBusMessage &reply) {
        --m_waiting;
        if (reply.type() == QDBusMessage::ReplyMessage)
            shown(reply.arguments().value(0).toUInt());
        else
            qCInfo(notificationLog, "no notification is shown: %s", qUtf8Printable(reply.errorName()));
    });
}

void BusNotifications::shown(uint id)
{
    if (const uint before = std::exchange(m_id, id); before != 0 && before != id)
        close(before);
    if (!m_wanted) // It was withdrawn before it was there.
        close(std::exchange(m_id, 0));
}

void BusNotifications::withdraw()
{
    m_wanted = false;
    if (m_id != 0 && m_waiting == 0)
        close(std::exchange(m_id, 0));
}

void BusNotifications::close(uint id)
{
    QDBusMessage call = callOf("CloseNotification");
    call.setAutoStartService(false);
    call << id;
    callBus(m_session, call, kLongest, this, [](const QDBusMessage &) {});
}

void BusNotifications::actionInvoked(uint id, const QString &action)
{
    if (id == m_id && id != 0 && action == byClick())
        Q_EMIT activated();
}

void BusNotifications::closed(uint id, uint reason)
{
    if (id != m_id || id == 0)
        return;
    m_id = 0;
    m_wanted = m_waiting > 0;
    if (reason == kPutAway)
        Q_EMIT dismissed();
}

} // namespace Kestrune
