#include "MprisBus.h"

#include "Desktop/Bus/PendingCalls.h"
#include "Log.h"
#include "MprisNames.h"

#include <QUuid>

namespace Kestrune {

Q_LOGGING_CATEGORY(playersLog, "kestrune.players", QtWarningMsg)

namespace {

constexpr int kBusTimeout = 25000; // ms, after which the bus gives a call up.
constexpr qsizetype kMostPlayers = 64;

QDBusMessage makeCall(const QString &busName, const char *interface, const QString &method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(busName, QStringLiteral("/org/mpris/MediaPlayer2"),
                                                       QLatin1String(interface), method);
    // A player that has ended meanwhile is not started again.
    call.setAutoStartService(false);
    return call;
}

QDBusMessage makeQuestion(const QString &busName)
{
    QDBusMessage question = makeCall(busName, "org.freedesktop.DBus.Properties", QStringLiteral("GetAll"));
    question << QStringLiteral("org.mpris.MediaPlayer2.Player");
    return question;
}

void await(const QList<QDBusPendingCall> &calls) { PendingCalls::await(calls, MprisBus::kPatience); }

} // namespace

MprisBus::MprisBus(const QString &address)
    : m_address(address)
    , m_connectionName(QUuid::createUuid().toString())
{}

MprisBus::~MprisBus() { QDBusConnection::disconnectFromBus(m_connectionName); }

QDBusConnection &MprisBus::bus()
{
    if (!m_bus.isConnected()) {
        m_bus = m_address.isEmpty()
                    ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName)
                    : QDBusConnection::connectToBus(m_address, m_connectionName);
        qCDebug(playersLog, m_bus.isConnected() ? "connected to the bus" : "the bus cannot be reached");
    }
    return m_bus;
}

QStringList MprisBus::names()
{
    const QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ListNames"));
    const QDBusPendingCall call = bus().asyncCall(question, kBusTimeout);
    await({call});
    QStringList names = call.isFinished() ? call.reply().arguments().value(0).toStringList() : QStringList();
    names.removeIf([](const QString &name) { return !MprisNames::playerOf(name); });
    names.sort();
    return names.mid(0, kMostPlayers);
}

QHash<QString, QDBusMessage> MprisBus::properties(const QStringList &busNames)
{
    QHash<QString, QDBusPendingCall> asked;
    QHash<QString, QDBusMessage> replies;
    for (const QString &name : busNames) {
        const auto unanswered = m_unanswered.constFind(name);
        if (unanswered == m_unanswered.cend())
            asked.insert(name, bus().asyncCall(makeQuestion(name), kBusTimeout));
        else if (unanswered->isFinished())
            replies.insert(name, unanswered->reply());
    }
    m_unanswered.removeIf([](const auto &unanswered) { return unanswered.value().isFinished(); });
    await(asked.values());
    for (auto call = asked.cbegin(); call != asked.cend(); ++call) {
        if (call->isFinished()) {
            replies.insert(call.key(), call->reply());
        } else {
            qCInfo(playersLog, "%s does not answer", qUtf8Printable(call.key()));
            m_unanswered.insert(call.key(), *call);
        }
    }
    return replies;
}

void MprisBus::call(const QString &busName, const QString &method, const QVariantList &arguments)
{
    QDBusMessage call = makeCall(busName, "org.mpris.MediaPlayer2.Player", method);
    call.setArguments(arguments);
    await({bus().asyncCall(call, kBusTimeout)});
}

} // namespace Kestrune
