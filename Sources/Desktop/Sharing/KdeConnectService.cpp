#include "KdeConnectService.h"

#include "Desktop/Bus/BusCall.h"
#include "DeviceSearch.h"
#include "Log.h"

#include <QDBusArgument>
#include <QMap>

namespace Kestrune {

namespace {

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

void KdeConnectService::search(const std::shared_ptr<DeviceSearch> &search)
{
    QDBusMessage call = makeCall(QString(), QStringLiteral("daemon"), QStringLiteral("deviceNames"));
    call << true << true; // Reachable, paired.
    callBus(m_bus, call, DeviceSearch::kTimeout, &m_answers, [this, search](const QDBusMessage &reply) {
        search->heard(reply);
        const auto names = deviceNames(reply);
        qsizetype asked = 0;
        for (auto device = names.cbegin(); device != names.cend() && asked < DeviceSearch::kMostDevices;
             ++device, ++asked)
            keepIfItTakesFiles({device.key(), device.value().left(DeviceSearch::kLongestName)}, search);
    });
}

void KdeConnectService::keepIfItTakesFiles(const SharingDevice &device,
                                           const std::shared_ptr<DeviceSearch> &search)
{
    QDBusMessage call = makeCall(objectOf(device.id), QStringLiteral("device"), QStringLiteral("hasPlugin"));
    call << QStringLiteral("kdeconnect_share");
    callBus(m_bus, call, DeviceSearch::kTimeout, &m_answers, [search, device](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool())
            search->found.devices.append(device);
    });
}

QFuture<bool> KdeConnectService::send(const QString &device, const QList<QUrl> &files)
{
    QDBusMessage call = makeCall(objectOf(device) + QStringLiteral("/share"), QStringLiteral("device.share"),
                                 QStringLiteral("shareUrls"));
    call << QUrl::toStringList(files, QUrl::FullyEncoded);
    const Pledge<bool> taken;
    callBus(m_bus, call, kSendTimeout, &m_answers, [taken](const QDBusMessage &reply) {
        if (reply.type() != QDBusMessage::ReplyMessage)
            qCWarning(sharingLog, "the files were not sent: %s", qPrintable(reply.errorMessage()));
        taken.give(reply.type() == QDBusMessage::ReplyMessage);
    });
    return taken.future();
}

} // namespace Kestrune
