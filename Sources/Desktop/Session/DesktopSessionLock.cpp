#include "DesktopSessionLock.h"

#include "Desktop/Bus/BusCall.h"
#include "Log.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace Kestrune {

namespace {

constexpr int kLongest = 5000; // ms

QString logind() { return QStringLiteral("org.freedesktop.login1"); }
QString sessionInterface() { return QStringLiteral("org.freedesktop.login1.Session"); }
QString properties() { return QStringLiteral("org.freedesktop.DBus.Properties"); }
QString hint() { return QStringLiteral("LockedHint"); }

/// Each interface is called like its service.
constexpr std::pair<const char *, const char *> kSavers[] = {
    {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    {"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    {"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    {"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    {"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
};

/// Nobody is started only to be asked.
QDBusMessage question(const QString &service, const QString &path, const QString &interface,
                      const char *method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QLatin1String(method));
    call.setAutoStartService(false);
    return call;
}

} // namespace

DesktopSessionLock::DesktopSessionLock(const QDBusConnection &session, const QDBusConnection &system)
    : m_session(session)
    , m_system(system)
{
    if (m_session.isConnected()) {
        m_savers.setConnection(m_session);
        m_savers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
        connect(&m_savers, &QDBusServiceWatcher::serviceUnregistered, this,
                [this](const QString &name) { set(name, false); });
        for (const auto &[name, path] : kSavers)
            followSaver(QLatin1String(name), QLatin1String(path));
    }
    if (!m_system.isConnected())
        return;
    QDBusMessage call = question(logind(), QStringLiteral("/org/freedesktop/login1"),
                                 QStringLiteral("org.freedesktop.login1.Manager"), "GetSession");
    call << QStringLiteral("auto"); // The caller's, else the one that the user sees.
    callBus(m_system, call, kLongest, this, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            followSession(reply.arguments().value(0).value<QDBusObjectPath>().path());
        else
            qCInfo(sessionLog, "logind knows no session: %s", qUtf8Printable(reply.errorName()));
    });
}

void DesktopSessionLock::followSaver(const QString &name, const QString &path)
{
    m_savers.addWatchedService(name);
    m_session.connect(name, {}, name, QStringLiteral("ActiveChanged"), this,
                      SLOT(saverChanged(bool, QDBusMessage)));
    callBus(m_session, question(name, path, name, "GetActive"), kLongest, this,
            [this, name](const QDBusMessage &reply) {
                if (reply.type() == QDBusMessage::ReplyMessage)
                    set(name, reply.arguments().value(0).toBool());
            });
}

void DesktopSessionLock::followSession(const QString &path)
{
    m_system.connect(logind(), path, properties(), QStringLiteral("PropertiesChanged"), this,
                     SLOT(sessionChanged(QString, QVariantMap)));
    QDBusMessage call = question(logind(), path, properties(), "Get");
    call << sessionInterface() << hint();
    callBus(m_system, call, kLongest, this, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            set(sessionInterface(), reply.arguments().value(0).value<QDBusVariant>().variant().toBool());
    });
}

void DesktopSessionLock::saverChanged(bool active, const QDBusMessage &signal)
{
    set(signal.interface(), active);
}

void DesktopSessionLock::sessionChanged(const QString &interface, const QVariantMap &values)
{
    if (interface == sessionInterface() && values.contains(hint()))
        set(interface, values.value(hint()).toBool());
}

void DesktopSessionLock::set(const QString &who, bool locked)
{
    const bool before = isLocked();
    if (locked)
        m_lockedBy.insert(who);
    else
        m_lockedBy.remove(who);
    if (isLocked() == before)
        return;
    qCInfo(sessionLog, "%s: the screen is %s", qUtf8Printable(who), locked ? "locked" : "unlocked");
    Q_EMIT changed();
}

} // namespace Kestrune
