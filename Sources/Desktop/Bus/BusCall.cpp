#include "BusCall.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Kestrune {

void callBus(const QDBusConnection &bus, const QDBusMessage &call, int timeout, QObject *context,
             std::function<void(const QDBusMessage &)> done)
{
    if (!bus.isConnected()) { // Else the call would stay without an answer.
        const auto error =
            QDBusMessage::createError(QDBusError::Disconnected, QStringLiteral("there is no bus"));
        QMetaObject::invokeMethod(
            context, [done = std::move(done), error] { done(error); }, Qt::QueuedConnection);
        return;
    }
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, timeout), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        done(watcher->reply());
    });
}

} // namespace Kestrune
