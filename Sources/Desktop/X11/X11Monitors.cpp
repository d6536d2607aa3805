#include "X11Monitors.h"

#include "Desktop/Screens/Points.h"
#include "X11Connection.h"

#include <QCoreApplication>

#include <utility>

#include <xcb/randr.h>

namespace Kestrune {

namespace {

/// The first version of the extension that knows monitors.
constexpr std::pair<uint32_t, uint32_t> kMonitorsSince(1, 5);

bool knowsMonitors()
{
    const X11::Reply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        X11::connection(),
        xcb_randr_query_version(X11::connection(), kMonitorsSince.first, kMonitorsSince.second), nullptr));
    return version && std::pair(version->major_version, version->minor_version) >= kMonitorsSince;
}

QString nameOf(xcb_atom_t atom)
{
    const X11::Reply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(X11::connection(), xcb_get_atom_name(X11::connection(), atom), nullptr));
    return reply ? QString::fromUtf8(xcb_get_atom_name_name(reply.get()),
                                     xcb_get_atom_name_name_length(reply.get()))
                 : QString();
}

Points::Places placesNow()
{
    Points::Places places;
    const X11::Reply<xcb_randr_get_monitors_reply_t> monitors(xcb_randr_get_monitors_reply(
        X11::connection(), xcb_randr_get_monitors(X11::connection(), X11::root(), true), nullptr));
    if (!monitors)
        return places;
    for (auto left = xcb_randr_get_monitors_monitors_iterator(monitors.get()); left.rem > 0;
         xcb_randr_monitor_info_next(&left)) {
        const auto &monitor = *left.data;
        places.insert(nameOf(monitor.name), QRect(monitor.x, monitor.y, monitor.width, monitor.height));
    }
    return places;
}

} // namespace

X11Monitors::X11Monitors(QObject *parent)
    : QObject(parent)
{
    const auto *extension = xcb_get_extension_data(X11::connection(), &xcb_randr_id);
    if (!extension || !extension->present || !knowsMonitors())
        return;
    m_firstEvent = extension->first_event; // Qt has asked for the events.
    m_settle.setSingleShot(true);
    m_settle.setInterval(0);
    connect(&m_settle, &QTimer::timeout, this, &X11Monitors::read);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11Monitors::~X11Monitors() { Points::setPlaces({}); }

bool X11Monitors::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const uint8_t type = static_cast<const xcb_generic_event_t *>(message)->response_type;
    if (type == m_firstEvent + XCB_RANDR_NOTIFY || type == m_firstEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY)
        m_settle.start();
    return false;
}

void X11Monitors::read()
{
    if (Points::setPlaces(placesNow()))
        Q_EMIT changed();
}

} // namespace Kestrune
