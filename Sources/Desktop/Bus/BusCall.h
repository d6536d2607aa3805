#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

namespace Kestrune {

/// Makes a call on the bus without waiting. `done` gets the reply, which is an error when the service
/// refuses, is not there or does not answer within `timeout` milliseconds; nothing at all once `context` is
/// gone.
void callBus(const QDBusConnection &bus, const QDBusMessage &call, int timeout, QObject *context,
             std::function<void(const QDBusMessage &)> done);

} // namespace Kestrune
