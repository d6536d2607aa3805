#include "GsConnectService.h"

#include "Desktop/Bus/BusCall.h"
#include "DeviceSearch.h"
#include "Log.h"

#include <QDBusArgument>
#include <QMap>

namespace Kestrune {

namespace {

constexpr int kActivationTimeout = 20000; // ms

QString gsService() { return QStringLiteral("org.gnome.Shell.Extensions.GSConnect"); }
QString gsRoot() { return QStringLiteral("/org/gnome/Shell/Extensions/GSConnect"); }
QString gsDevice() { return QStringLiteral("org.gnome.Shell.Extensions.GSConnect.Device"); }
QString shareFile() { return QStringLiteral("shareFile"); }

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

QDBusMessage makeActionCall(const QString &object, const QString &interface, const QString &method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(gsService(), object, interface, method);
    call.setAutoStartService(false);
    return call;
}

Objects objectsOf(const QDBusMessage &reply)
{
    const bool fits = reply.signature() == QLatin1String("a{oa{sa{sv}}}");
    return fits ? qdbus_cast<Objects>(reply.arguments().constFirst()) : Objects();
}

/// The answer to Describe is whether the action is enabled, the type of its parameter and its state.
bool isEnabled(const QDBusMessage &reply)
{
    if (reply.signature() != QLatin1String("(bgav)"))
        return false;
    const auto answer = reply.arguments().constFirst().value<QDBusArgument>();
    bool enabled = false;
    answer.beginStructure();
    answer >> enabled;
    answer.endStructure(); // Else what reads it is lost.
    return enabled;
}

QVariant fileArgument(const QUrl &file)
{
    QDBusArgument argument;
    argument.beginStructure();
    argument << QString::fromLatin1(file.toEncoded(QUrl::FullyEncoded)) << false; // Not to be opened there.
    argument.endStructure();
    return QVariant::fromValue(argument);
}

/// Whether every one of some calls was answered; told when the last was.
struct AllTaken
{
    AllTaken() = default;
    ~AllTaken() { pledge.give(taken); }
    Q_DISABLE_COPY_MOVE(AllTaken)

    Pledge<bool> pledge;
    bool taken = true;
};

} // namespace

void GsConnectService::search(const std::shared_ptr<DeviceSearch> &search)
{
    const QDBusMessage call = makeActionCall(gsRoot(), QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                             QStringLiteral("GetManagedObjects"));
    callBus(m_bus, call, DeviceSearch::kTimeout, &m_answers, [this, search](const QDBusMessage &reply) {
        search->heard(reply);
        const Objects objects = objectsOf(reply);
        qsizetype asked = 0;
        for (auto object = objects.cbegin(); object != objects.cend() && asked < DeviceSearch::kMostDevices;
             ++object) {
            const QVariantMap device = object->value(gsDevice());
            if (!device.value(QStringLiteral("Connected")).toBool() ||
                !device.value(QStringLiteral("Paired")).toBool())
                continue;
            const QString name =
                device.value(QStringLiteral("Name")).toString().left(DeviceSearch::kLongestName);
            keepIfItTakesFiles({object.key().path(), name}, search);
            ++asked;
        }
    });
}

void GsConnectService::keepIfItTakesFiles(const SharingDevice &device,
                                          const std::shared_ptr<DeviceSearch> &search)
{
    QDBusMessage call =
        makeActionCall(device.id, QStringLiteral("org.gtk.Actions"), QStringLiteral("Describe"));
    call << shareFile();
    callBus(m_bus, call, DeviceSearch::kTimeout, &m_answers, [search, device](const QDBusMessage &reply) {
        if (isEnabled(reply))
            search->found.devices.append(device);
    });
}

QFuture<bool> GsConnectService::send(const QString &device, const QList<QUrl> &files)
{
    const auto all = std::make_shared<AllTaken>();
    for (const QUrl &file : files) {
        QDBusMessage call =
            makeActionCall(device, QStringLiteral("org.gtk.Actions"), QStringLiteral("Activate"));
        call << shareFile() << QVariantList{fileArgument(file)} << QVariantMap();
        callBus(m_bus, call, kActivationTimeout, &m_answers, [all](const QDBusMessage &reply) {
            const bool taken = reply.type() == QDBusMessage::ReplyMessage;
            all->taken = all->taken && taken;
            if (!taken)
                qCWarning(sharingLog, "a file was not sent: %s", qPrintable(reply.errorMessage()));
        });
    }
    return all->pledge.future();
}

} // namespace Kestrune
