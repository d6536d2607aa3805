#include "X11FullScreenWindows.h"

#include "Desktop/Screens/Points.h"
#include "X11Connection.h"
#include "X11Desktop.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <optional>

namespace Kestrune {

namespace {

using namespace std::chrono_literals;

constexpr auto kSettling = 50ms;
constexpr qsizetype kMostWindows = 64; // From the top.

/// Where the window is in the root window, in pixels; nothing where it is not to be seen.
std::optional<QRect> placeOf(xcb_window_t window)
{
    auto *x = X11::connection();
    const auto attributesCookie = xcb_get_window_attributes(x, window);
    const auto geometryCookie = xcb_get_geometry(x, window);
    const auto originCookie = xcb_translate_coordinates(x, window, X11::root(), 0, 0);
    const X11::Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x, attributesCookie, nullptr));
    const X11::Reply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(x, geometryCookie, nullptr));
    const X11::Reply<xcb_translate_coordinates_reply_t> origin(
        xcb_translate_coordinates_reply(x, originCookie, nullptr));
    if (!attributes || !geometry || !origin || attributes->map_state != XCB_MAP_STATE_VIEWABLE)
        return std::nullopt;
    return QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
}

struct Seen
{
    QRect place;
    bool isFullScreen;
};

/// From the top; panels and the desktop do not count, and those beneath a full-screen window only where it is
/// not.
QList<Seen> windowsSeen(const QList<xcb_window_t> &fromTop)
{
    const xcb_atom_t fullScreen = X11::atom("_NET_WM_STATE_FULLSCREEN");
    const QList<xcb_atom_t> others{X11::atom("_NET_WM_WINDOW_TYPE_DOCK"),
                                   X11::atom("_NET_WM_WINDOW_TYPE_DESKTOP")};
    QList<Seen> seen;
    for (const xcb_window_t window : fromTop) {
        const auto types = X11::listOf(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM);
        if (std::ranges::any_of(types, [&](xcb_atom_t type) { return others.contains(type); }))
            continue;
        if (const auto place = placeOf(window))
            seen.append({*place, X11::listOf(window, "_NET_WM_STATE", XCB_ATOM_ATOM).contains(fullScreen)});
    }
    return seen;
}

} // namespace

X11FullScreenWindows::X11FullScreenWindows(const X11Desktop &desktop)
    : m_state(X11::atom("_NET_WM_STATE"))
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettling);
    m_settle.callOnTimeout([this] { read(); });
    const auto readSoon = [this] { m_settle.start(); };
    connect(&desktop, &X11Desktop::stackingChanged, this, readSoon);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, readSoon);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, readSoon);
    QCoreApplication::instance()->installNativeEventFilter(this);
    read();
}

bool X11FullScreenWindows::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if (event->response_type != XCB_PROPERTY_NOTIFY)
        return false;
    const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    if (change->atom == m_state && m_watched.contains(change->window))
        m_settle.start();
    return false;
}

void X11FullScreenWindows::read()
{
    QList<xcb_window_t> windows = X11Desktop::managedWindows();
    std::ranges::reverse(windows);
    windows.resize(std::min(windows.size(), kMostWindows));
    watch(windows);
    const QList<Seen> seen = windowsSeen(windows);
    QSet<QString> covered;
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRect place = Points::pixelsOf(*screen);
        const QPoint notch(place.center().x(), place.top());
        const auto top =
            std::ranges::find_if(seen, [&](const Seen &window) { return window.place.contains(notch); });
        if (top != seen.end() && top->isFullScreen && top->place.contains(place))
            covered.insert(screen->name());
    }
    if (std::exchange(m_covered, covered) != covered)
        Q_EMIT changed();
}

/// A window tells of its state once it was asked to.
void X11FullScreenWindows::watch(const QList<xcb_window_t> &windows)
{
    for (const xcb_window_t window : windows) {
        if (m_watched.contains(window) || X11::isOwn(window))
            continue;
        constexpr uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        const auto cookie =
            xcb_change_window_attributes_checked(X11::connection(), window, XCB_CW_EVENT_MASK, &events);
        xcb_discard_reply(X11::connection(), cookie.sequence); // It may be gone by now.
    }
    m_watched = QSet<xcb_window_t>(windows.begin(), windows.end());
}

} // namespace Kestrune
