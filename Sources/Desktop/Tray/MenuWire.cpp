#include "MenuWire.h"

#include <QDBusMetaType>

namespace Kestrune {

QDBusArgument &operator<<(QDBusArgument &to, const WirePixmap &pixmap)
{
    to.beginStructure();
    to << pixmap.width << pixmap.height << pixmap.pixels;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, WirePixmap &pixmap)
{
    from.beginStructure();
    from >> pixmap.width >> pixmap.height >> pixmap.pixels;
    from.endStructure();
    return from;
}

QDBusArgument &operator<<(QDBusArgument &to, const WireLayout &layout)
{
    to.beginStructure();
    to << layout.id << layout.properties;
    to.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const WireLayout &child : layout.children)
        to << QDBusVariant(QVariant::fromValue(child));
    to.endArray();
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, WireLayout &layout)
{
    from.beginStructure();
    from >> layout.id >> layout.properties;
    from.beginArray();
    layout.children.clear();
    while (!from.atEnd()) {
        QDBusVariant child;
        from >> child;
        layout.children.append(qdbus_cast<WireLayout>(child.variant().value<QDBusArgument>()));
    }
    from.endArray();
    from.endStructure();
    return from;
}

QDBusArgument &operator<<(QDBusArgument &to, const WireProperties &entry)
{
    to.beginStructure();
    to << entry.id << entry.properties;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, WireProperties &entry)
{
    from.beginStructure();
    from >> entry.id >> entry.properties;
    from.endStructure();
    return from;
}

QDBusArgument &operator<<(QDBusArgument &to, const WireEvent &event)
{
    to.beginStructure();
    to << event.id << event.kind << event.data << event.time;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, WireEvent &event)
{
    from.beginStructure();
    from >> event.id >> event.kind >> event.data >> event.time;
    from.endStructure();
    return from;
}

void registerMenuWire()
{
    qDBusRegisterMetaType<WirePixmap>();
    qDBusRegisterMetaType<WirePixmaps>();
    qDBusRegisterMetaType<WireLayout>();
    qDBusRegisterMetaType<WireProperties>();
    qDBusRegisterMetaType<QList<WireProperties>>();
    qDBusRegisterMetaType<WireEvent>();
    qDBusRegisterMetaType<QList<WireEvent>>();
    qDBusRegisterMetaType<QList<QStringList>>();
}

} // namespace Kestrune
