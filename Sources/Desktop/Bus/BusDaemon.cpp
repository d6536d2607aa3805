#include "BusDaemon.h"

#include "BusCall.h"

namespace Kestrune::BusDaemon {

namespace {

constexpr int kDaemonTimeout = 2000; // ms

}

void call(const QDBusConnection &bus, const QString &method, const QVariantList &arguments, QObject *context,
          std::function<void(const QVariant &)> done)
{
    const QString daemon = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage message =
        QDBusMessage::createMethodCall(daemon, QStringLiteral("/org/freedesktop/DBus"), daemon, method);
    message.setArguments(arguments);
    callBus(bus, message, kDaemonTimeout, context, [done = std::move(done)](const QDBusMessage &reply) {
        const bool answered = reply.type() == QDBusMessage::ReplyMessage;
        done(answered ? reply.arguments().value(0) : QVariant());
    });
}

} // namespace Kestrune::BusDaemon
