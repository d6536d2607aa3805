#include "PortalWire.h"

#include "Async/Pledge.h"
#include "Desktop/Bus/BusCall.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace Kestrune {

namespace {

constexpr qsizetype kMostKeys = 64; // One is bound.

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const PortalKey &key)
{
    argument.beginStructure();
    argument << key.id << key.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalKey &key)
{
    argument.beginStructure();
    argument >> key.id >> key.properties;
    argument.endStructure();
    return argument;
}

QString PortalWire::service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString PortalWire::object() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString PortalWire::shortcuts() { return QStringLiteral("org.freedesktop.portal.GlobalShortcuts"); }

std::optional<QList<PortalKey>> PortalWire::keys(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("a(sa{sv})"))
        return std::nullopt;
    QList<PortalKey> keys;
    argument.beginArray();
    while (!argument.atEnd() && keys.size() < kMostKeys) {
        PortalKey key;
        argument >> key;
        keys.append(key);
    }
    argument.endArray(); // Else what reads it is lost.
    return keys;
}

void PortalWire::registerTypes()
{
    qDBusRegisterMetaType<PortalKey>();
    qDBusRegisterMetaType<QList<PortalKey>>();
}

QFuture<QDBusMessage> PortalWire::ask(const QDBusConnection &bus, const QDBusMessage &call,
                                      std::chrono::milliseconds limit, QObject *context)
{
    const Pledge<QDBusMessage> pledge;
    callBus(bus, call, static_cast<int>(limit.count()), context,
            [pledge](const QDBusMessage &reply) { pledge.give(reply); });
    return pledge.future();
}

} // namespace Kestrune
