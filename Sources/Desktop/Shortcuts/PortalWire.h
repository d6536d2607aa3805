#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFuture>
#include <QVariantMap>

#include <chrono>
#include <optional>

class QDBusArgument;

namespace Kestrune {

/// A shortcut as the portal is told of it and lists it: "(sa{sv})".
struct PortalKey
{
    QString id;
    QVariantMap properties;
};
QDBusArgument &operator<<(QDBusArgument &argument, const PortalKey &key);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalKey &key);

/// How long the desktop's services may take.
struct ShortcutTimes
{
    std::chrono::milliseconds reply{10'000};   ///< For a portal that is started by the call.
    std::chrono::milliseconds choice{120'000}; ///< For the user whom the desktop asks.
};

namespace PortalWire {

QString service();
QString object();
QString shortcuts(); ///< The interface.

/// The list in a value that came over the bus; nothing when it is of another kind.
std::optional<QList<PortalKey>> keys(const QVariant &value);

/// Lets lists of shortcuts go over the bus.
void registerTypes();

/// Makes a call without waiting. The future gets the reply, which is an error when there is none in time;
/// nothing at all once `context` is gone.
QFuture<QDBusMessage> ask(const QDBusConnection &bus, const QDBusMessage &call,
                          std::chrono::milliseconds limit, QObject *context);

} // namespace PortalWire

} // namespace Kestrune
