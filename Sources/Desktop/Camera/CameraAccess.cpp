#include "CameraAccess.h"

#include "Desktop/Bus/BusCall.h"
#include "Log.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QMap>
#include <QUuid>

#include <array>

namespace Kestrune {

namespace {

constexpr int kAccessTimeout = 10'000; // ms, for a portal that is started by the call.

QString cameraPortal() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString desktopEntry() { return QStringLiteral("example.kestrune.Kestrune"); }
QString requestInterface() { return QStringLiteral("org.freedesktop.portal.Request"); }

QDBusMessage makeCall(const char *interface, const char *method)
{
    return QDBusMessage::createMethodCall(cameraPortal(), QStringLiteral("/org/freedesktop/portal/desktop"),
                                          QString::fromLatin1(interface), QString::fromLatin1(method));
}

/// Whether the reply means that a portal is there which does not let itself be asked.
bool isRefusedAccess(const QDBusMessage &reply)
{
    constexpr std::array kinds{QDBusError::NoReply, QDBusError::TimedOut, QDBusError::Timeout,
                               QDBusError::AccessDenied};
    return reply.type() == QDBusMessage::ErrorMessage &&
           std::ranges::find(kinds, QDBusError(reply).type()) != kinds.end();
}

} // namespace

CameraAccess::CameraAccess(const QDBusConnection &bus)
    : m_bus(bus)
{}

CameraAccess::~CameraAccess() = default;

CameraAuthorization CameraAccess::authorization()
{
    const auto answer = m_answer.value_or(CameraAuthorization::notDetermined);
    if (answer != CameraAuthorization::authorized)
        m_answer.reset();
    return answer;
}

QFuture<bool> CameraAccess::request(bool mayAskUser)
{
    if (!m_question) {
        m_mayAskUser = mayAskUser;
        m_hasRefused = false;
        m_question.emplace();
        QDBusMessage call = makeCall("org.freedesktop.DBus.Properties", "Get");
        call << QStringLiteral("org.freedesktop.portal.Camera") << QStringLiteral("IsCameraPresent");
        callBus(m_bus, call, kAccessTimeout, this,
                [this](const QDBusMessage &reply) { takePresence(reply); });
    }
    return m_question->future();
}

void CameraAccess::takePresence(const QDBusMessage &reply)
{
    const QVariant value = reply.arguments().value(0);
    if (reply.type() == QDBusMessage::ErrorMessage)
        qCInfo(cameraLog, "the portal does not tell of cameras: %s", qUtf8Printable(reply.errorName()));
    if (reply.type() == QDBusMessage::ReplyMessage && value.value<QDBusVariant>().variant().toBool())
        lookUp();
    else
        finish(isRefusedAccess(reply) ? CameraAuthorization::denied : CameraAuthorization::authorized);
}

void CameraAccess::lookUp()
{
    const QString store = QStringLiteral("org.freedesktop.impl.portal.PermissionStore");
    QDBusMessage call =
        QDBusMessage::createMethodCall(store, QStringLiteral("/org/freedesktop/impl/portal/PermissionStore"),
                                       store, QStringLiteral("Lookup"));
    call << QStringLiteral("devices") << QStringLiteral("camera");
    callBus(m_bus, call, kAccessTimeout, this, [this](const QDBusMessage &reply) { takeStored(reply); });
}

/// The answers of the user by program. A portal that does not know this one's name keeps its answer under
/// none.
void CameraAccess::takeStored(const QDBusMessage &reply)
{
    QMap<QString, QStringList> stored;
    if (reply.signature().startsWith(QLatin1String("a{sas}")))
        stored = qdbus_cast<QMap<QString, QStringList>>(reply.arguments().constFirst());
    const QStringList answer = stored.value(desktopEntry(), stored.value(QString()));
    m_hasRefused = answer.contains(QStringLiteral("no"));
    if (m_mayAskUser || m_hasRefused || answer.contains(QStringLiteral("yes")))
        ask();
    else
        finish(CameraAuthorization::notDetermined);
}

void CameraAccess::ask()
{
    const QString token = QStringLiteral("kestrune") + QUuid::createUuid().toString(QUuid::Id128);
    QString sender = m_bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    m_request = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
    // Without the service's name, whose owner would have to be asked for and waited for.
    m_bus.connect(QString(), m_request, requestInterface(), QStringLiteral("Response"), this,
                  SLOT(takeResponse(uint, QVariantMap)));
    m_watcher = std::make_unique<QDBusServiceWatcher>(cameraPortal(), m_bus,
                                                      QDBusServiceWatcher::WatchForUnregistration);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        qCInfo(cameraLog, "the portal has gone");
        finish(CameraAuthorization::denied);
    });
    QDBusMessage call = makeCall("org.freedesktop.portal.Camera", "AccessCamera");
    call << QVariantMap{{QStringLiteral("handle_token"), token}};
    callBus(m_bus, call, kAccessTimeout, this, [this](const QDBusMessage &reply) {
        if (reply.type() != QDBusMessage::ErrorMessage)
            return;
        qCInfo(cameraLog, "the portal refuses: %s", qUtf8Printable(reply.errorName()));
        const bool forbidden = reply.errorName() == QLatin1String("org.freedesktop.portal.Error.NotAllowed");
        finish(forbidden ? CameraAuthorization::restricted : CameraAuthorization::denied);
    });
}

void CameraAccess::takeResponse(uint response, const QVariantMap & /*results*/)
{
    qCInfo(cameraLog, "the portal's response is %u", response);
    const auto refused = m_hasRefused ? CameraAuthorization::deniedBefore : CameraAuthorization::denied;
    finish(response == 0 ? CameraAuthorization::authorized : refused);
}

void CameraAccess::finish(CameraAuthorization answer)
{
    if (!m_question)
        return;
    if (!m_request.isEmpty())
        m_bus.disconnect(QString(), m_request, requestInterface(), QStringLiteral("Response"), this,
                         SLOT(takeResponse(uint, QVariantMap)));
    m_request.clear();
    if (m_watcher)
        m_watcher.release()->deleteLater(); // It may be what has called.
    m_answer = answer;
    const auto question = std::exchange(m_question, std::nullopt);
    question->give(answer == CameraAuthorization::authorized);
}

} // namespace Kestrune
