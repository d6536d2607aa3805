#include "BusStatusItem.h"

#include "Desktop/Bus/BusCall.h"
#include "Desktop/Bus/BusDaemon.h"

#include <QLoggingCategory>
#include <QtEndian>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(trayLog, "kestrune.tray", QtWarningMsg)

constexpr int kTrayTimeout = 5000; // ms

QString watcher() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
QString faceObject() { return QStringLiteral("/StatusNotifierItem"); }
QString menuObject() { return QStringLiteral("/MenuBar"); }

WirePixmap toWire(const QImage &icon)
{
    const QImage picture = icon.convertToFormat(QImage::Format_ARGB32);
    WirePixmap wire{picture.width(), picture.height(), QByteArray(picture.sizeInBytes(), Qt::Uninitialized)};
    // Rows of 32-bit pixels have no gaps between them.
    qToBigEndian<quint32>(picture.constBits(), picture.sizeInBytes() / 4, wire.pixels.data());
    return wire;
}

} // namespace

StatusItemFace::StatusItemFace(const QString &title, const QList<QImage> &icons)
    : m_title(title)
{
    for (const QImage &icon : icons)
        m_icons.append(toWire(icon));
}

QDBusObjectPath StatusItemFace::menu() { return QDBusObjectPath(menuObject()); }

BusStatusItem::BusStatusItem(const QDBusConnection &bus, const QString &title, Icons icons)
    : m_bus(bus)
    , m_title(title)
    , m_icons(std::move(icons))
{
    if (!m_bus.isConnected())
        return;
    m_watcher.setConnection(m_bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, &m_watcher, [this] { appear(); });
    QObject::connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, &m_watcher,
                     [this] { disappear(); });
    m_watcher.addWatchedService(watcher());
    BusDaemon::call(m_bus, QStringLiteral("NameHasOwner"), {watcher()}, &m_watcher,
                    [this](const QVariant &runs) {
                        if (runs.toBool())
                            appear();
                    });
}

BusStatusItem::~BusStatusItem() { disappear(); }

void BusStatusItem::appear()
{
    qCInfo(trayLog, "a tray is there");
    if (!m_face)
        m_face = std::make_unique<StatusItemFace>(m_title, m_icons());
    constexpr auto kContents = QDBusConnection::ExportScriptableContents;
    m_bus.registerObject(menuObject(), &m_menu, kContents);
    m_bus.registerObject(faceObject(), m_face.get(), kContents);
    QDBusMessage call =
        QDBusMessage::createMethodCall(watcher(), QStringLiteral("/StatusNotifierWatcher"), watcher(),
                                       QStringLiteral("RegisterStatusNotifierItem"));
    call.setAutoStartService(false);
    call << m_bus.baseService();
    // A watcher that does not answer leaves nothing to do: the next one is asked again.
    callBus(m_bus, call, kTrayTimeout, &m_watcher, [](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ErrorMessage)
            qCInfo(trayLog, "the tray refuses the icon: %s", qUtf8Printable(reply.errorName()));
    });
}

void BusStatusItem::disappear()
{
    m_bus.unregisterObject(faceObject());
    m_bus.unregisterObject(menuObject());
}

} // namespace Kestrune
