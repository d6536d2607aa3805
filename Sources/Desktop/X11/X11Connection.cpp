#include "X11Connection.h"

#include <QGuiApplication>
#include <QHash>

#include <string_view>

namespace Kestrune::X11 {

bool canConnect()
{
    xcb_connection_t *attempt = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(attempt) == 0;
    xcb_disconnect(attempt);
    return reached;
}

namespace {

/// Xwayland from 23.1 on.
bool saysIsForGuests()
{
    constexpr std::string_view name = "XWAYLAND";
    const auto cookie = xcb_query_extension(connection(), name.size(), name.data());
    const Reply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(connection(), cookie, nullptr));
    return reply && reply->present;
}

} // namespace

bool isGuest() { return saysIsForGuests() || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"); }

bool hasInputShapes() { return !isGuest() || saysIsForGuests(); }

xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t root()
{
    static const xcb_window_t window = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    return window;
}

xcb_atom_t atom(const QByteArray &name)
{
    static QHash<QByteArray, xcb_atom_t> known;
    const auto found = known.constFind(name);
    if (found != known.cend())
        return *found;
    const auto cookie = xcb_intern_atom(connection(), false, static_cast<uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection(), cookie, nullptr));
    const xcb_atom_t value = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    known.insert(name, value);
    return value;
}

} // namespace Kestrune::X11
