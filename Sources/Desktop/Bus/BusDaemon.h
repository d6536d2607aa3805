#pragma once

#include <QDBusConnection>
#include <QVariant>

#include <functional>

namespace Kestrune::BusDaemon {

/// Calls a method of the bus itself without waiting. `done` gets the first value of the reply, or an
/// invalid one when the bus refuses or does not answer in time; not at all once `context` is gone.
void call(const QDBusConnection &bus, const QString &method, const QVariantList &arguments, QObject *context,
          std::function<void(const QVariant &)> done);

} // namespace Kestrune::BusDaemon
