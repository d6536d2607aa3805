#include "BusCall.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Kestrune {

void callBus(const QDBusConnection &bus, const QDBusMessage &call, int timeout, QObject *context,
             std::function<void(const QDBusMessage &)> done)
{
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, timeout), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        done(watcher->reply());
    });
}

} // namespace Kestrune
