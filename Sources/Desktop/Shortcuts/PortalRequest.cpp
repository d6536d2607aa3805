#include "PortalRequest.h"

#include "Desktop/Bus/BusCall.h"
#include "Log.h"

#include <QDBusObjectPath>
#include <QTimer>
#include <QUuid>

namespace Kestrune {

namespace {

constexpr qsizetype kLongestPath = 1000; // The bus takes no longer rule that names one.

} // namespace

PortalRequest::PortalRequest(const QDBusConnection &bus, const QString &portal, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_portal(portal)
{}

QString PortalRequest::makeToken()
{
    return QStringLiteral("kestrune") + QUuid::createUuid().toString(QUuid::Id128);
}

QFuture<PortalAnswer> PortalRequest::send(const QString &method, QVariantList arguments, QVariantMap options,
                                          std::chrono::milliseconds reply, std::chrono::milliseconds answer)
{
    m_method = method;
    const QString token = makeToken();
    QString sender = m_bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    m_bus.connect(m_portal, QStringLiteral("%1/request/%2/%3").arg(PortalWire::object(), sender, token),
                  QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"), this,
                  SLOT(takeResponse(uint, QVariantMap)));
    options.insert(QStringLiteral("handle_token"), token);
    arguments.append(options);
    QDBusMessage call =
        QDBusMessage::createMethodCall(m_portal, PortalWire::object(), PortalWire::shortcuts(), method);
    call.setArguments(arguments);
    callBus(m_bus, call, static_cast<int>(reply.count()), this, [this](const QDBusMessage &replied) {
        if (replied.type() != QDBusMessage::ErrorMessage)
            return;
        qCInfo(shortcutsLog, "%s is refused: %s", qUtf8Printable(m_method),
               qUtf8Printable(replied.errorName()));
        finish({});
    });
    QTimer::singleShot(answer, this, [this] {
        qCInfo(shortcutsLog, "%s is not answered", qUtf8Printable(m_method));
        finish({});
    });
    return m_pledge.future();
}

void PortalRequest::takeResponse(uint response, const QVariantMap &results)
{
    qCInfo(shortcutsLog, "the response to %s is %u", qUtf8Printable(m_method), response);
    finish({response, results});
}

void PortalRequest::finish(const PortalAnswer &answer)
{
    if (std::exchange(m_finished, true))
        return;
    if (m_forgotten)
        closeSession(m_bus, m_portal, session(answer));
    m_pledge.give(answer);
    deleteLater();
}

void PortalRequest::closeSession(const QDBusConnection &bus, const QString &portal, const QString &session)
{
    if (session.isEmpty())
        return;
    bus.send(QDBusMessage::createMethodCall(portal, session, QStringLiteral("org.freedesktop.portal.Session"),
                                            QStringLiteral("Close")));
}

QString PortalRequest::session(const PortalAnswer &answer)
{
    const QVariant handle = answer.results.value(QStringLiteral("session_handle"));
    // It is documented as a text, and told as a path by some.
    const QString path =
        handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
    return path.size() <= kLongestPath ? QDBusObjectPath(path).path() : QString();
}

} // namespace Kestrune
