#include "KdeConnectSharing.h"

#include "Async/Pledge.h"
#include "Desktop/Bus/BusCall.h"

#include <QDBusArgument>
#include <QLoggingCategory>
#include <QMap>

#include <algorithm>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(sharingLog, "kestrune.sharing", QtWarningMsg)

constexpr qsizetype kMostDevices = 64; // Each is asked a question of its own.
constexpr qsizetype kLongestDeviceName = 200;
constexpr int kAskTimeout = 1500;   // ms
constexpr int kSendTimeout = 20000; // ms; the service looks at the files before it answers.

QDBusMessage makeCall(const QString &object, const QString &interface, const QString &method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.kdeconnect"), QStringLiteral("/modules/kdeconnect") + object,
        QStringLiteral("org.kde.kdeconnect.") + interface, method);
    // Who does not use the service gets none started.
    call.setAutoStartService(false);
    return call;
}

QString objectOf(const QString &device) { return QStringLiteral("/devices/") + device; }

QMap<QString, QString> deviceNames(const QDBusMessage &reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != QLatin1String("a{ss}")) {
        qCInfo(sharingLog, "no devices: %s", qUtf8Printable(reply.errorName()));
        return {};
    }
    return qdbus_cast<QMap<QString, QString>>(reply.arguments().constFirst());
}

} // namespace

/// What one question has found so far. It is answered when its last call has been, or has been given up.
struct KdeConnectSharing::Search
{
    Search() = default;
    ~Search()
    {
        std::ranges::sort(found, [](const SharingDevice &one, const SharingDevice &other) {
            return std::pair(one.name, one.id) < std::pair(other.name, other.id);
        });
        pledge.give(found);
    }
    Q_DISABLE_COPY_MOVE(Search)

    Pledge<QList<SharingDevice>> pledge;
    QList<SharingDevice> found;
};

QFuture<QList<SharingDevice>> KdeConnectSharing::devices()
{
    const auto search = std::make_shared<Search>();
    QDBusMessage call = makeCall(QString(), QStringLiteral("daemon"), QStringLiteral("deviceNames"));
    call << true << true; // Reachable, paired.
    callBus(m_bus, call, kAskTimeout, &m_answers, [this, search](const QDBusMessage &reply) {
        const auto names = deviceNames(reply);
        qsizetype asked = 0;
        for (auto device = names.cbegin(); device != names.cend() && asked < kMostDevices; ++device, ++asked)
            keepIfItTakesFiles({device.key(), device.value().left(kLongestDeviceName)}, search);
    });
    return search->pledge.future();
}

void KdeConnectSharing::keepIfItTakesFiles(const SharingDevice &device, const std::shared_ptr<Search> &search)
{
    QDBusMessage call = makeCall(objectOf(device.id), QStringLiteral("device"), QStringLiteral("hasPlugin"));
    call << QStringLiteral("kdeconnect_share");
    callBus(m_bus, call, kAskTimeout, &m_answers, [search, device](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool())
            search->found.append(device);
    });
}

void KdeConnectSharing::send(const QString &device, const QList<QUrl> &files)
{
    QDBusMessage call = makeCall(objectOf(device) + QStringLiteral("/share"), QStringLiteral("device.share"),
                                 QStringLiteral("shareUrls"));
    call << QUrl::toStringList(files, QUrl::FullyEncoded);
    callBus(m_bus, call, kSendTimeout, &m_answers, [](const QDBusMessage &reply) {
        if (reply.type() != QDBusMessage::ReplyMessage)
            qCWarning(sharingLog, "the files were not sent: %s", qPrintable(reply.errorMessage()));
    });
}

} // namespace Kestrune
