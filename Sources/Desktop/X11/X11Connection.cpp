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

QList<uint32_t> listOf(xcb_window_t window, const QByteArray &property, xcb_atom_t type)
{
    constexpr uint32_t most = 4096;
    const auto cookie = xcb_get_property(connection(), false, window, atom(property), type, 0, most);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *values = static_cast<const uint32_t *>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / int(sizeof *values)};
}

bool isOwn(xcb_window_t window)
{
    const auto *setup = xcb_get_setup(connection());
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

} // namespace Kestrune::X11
