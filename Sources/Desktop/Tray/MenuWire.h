#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QVariantMap>

/// The values of a status item and its menu as they travel on the bus.
namespace Kestrune {

/// A picture: 32 bits a pixel, ARGB in network byte order.
struct WirePixmap
{
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using WirePixmaps = QList<WirePixmap>;

/// A menu entry with those below it.
struct WireLayout
{
    int id = 0;
    QVariantMap properties;
    QList<WireLayout> children;
};

/// A menu entry's properties.
struct WireProperties
{
    int id = 0;
    QVariantMap properties;
};

/// What happened to an entry.
struct WireEvent
{
    int id = 0;
    QString kind;
    QDBusVariant data;
    uint time = 0;
};

QDBusArgument &operator<<(QDBusArgument &to, const WirePixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &from, WirePixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &to, const WireLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &from, WireLayout &layout);
QDBusArgument &operator<<(QDBusArgument &to, const WireProperties &entry);
const QDBusArgument &operator>>(const QDBusArgument &from, WireProperties &entry);
QDBusArgument &operator<<(QDBusArgument &to, const WireEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &from, WireEvent &event);

/// Makes the types known to the bus; it may be called again.
void registerMenuWire();

} // namespace Kestrune

Q_DECLARE_METATYPE(Kestrune::WirePixmap)
Q_DECLARE_METATYPE(Kestrune::WireLayout)
Q_DECLARE_METATYPE(Kestrune::WireProperties)
Q_DECLARE_METATYPE(Kestrune::WireEvent)
