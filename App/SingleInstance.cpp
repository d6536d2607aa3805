#include "SingleInstance.h"

#include "ControlService.h"
#include "Desktop/Bus/BusDaemon.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Kestrune {

namespace {

constexpr uint kDoNotQueue = 4;
constexpr uint kPrimaryOwner = 1;
constexpr uint kAlreadyOwner = 4;
constexpr int kHandOverTimeout = 5000; // ms

} // namespace

SingleInstance::SingleInstance(const QDBusConnection &bus, ControlService &service, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_service(service)
{}

void SingleInstance::claim(std::function<void(Outcome)> done)
{
    if (!m_bus.isConnected()) {
        done(Outcome::noBus);
        return;
    }
    m_bus.registerObject(ControlService::objectPath(), &m_service, QDBusConnection::ExportScriptableSlots);
    BusDaemon::call(m_bus, QStringLiteral("RequestName"), {ControlService::busName(), kDoNotQueue}, this,
                    [done = std::move(done)](const QVariant &reply) {
                        const uint answer = reply.toUInt();
                        if (!reply.isValid())
                            done(Outcome::noBus);
                        else if (answer == kPrimaryOwner || answer == kAlreadyOwner)
                            done(Outcome::first);
                        else
                            done(Outcome::second);
                    });
}

void SingleInstance::release()
{
    if (m_bus.isConnected())
        BusDaemon::call(m_bus, QStringLiteral("ReleaseName"), {ControlService::busName()}, this,
                        [](const QVariant &) {});
}

void SingleInstance::handOver(const QString &tool, std::function<void(bool)> done)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(ControlService::busName(), ControlService::objectPath(),
                                       ControlService::interfaceName(), QStringLiteral("Reopen"));
    message.setArguments({tool});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, kHandOverTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done = std::move(done)] {
        done(!watcher->isError());
        watcher->deleteLater();
    });
}

} // namespace Kestrune
