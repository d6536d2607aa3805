#include "WindowClasses.h"

#include <vector>

namespace Kestrune::WindowClasses {

namespace {

constexpr uint32_t kMostWords = 128; // Of four bytes each, for both names together.
constexpr uint32_t kMostListed = 4096;
constexpr std::size_t kMostWindows = 256; // Of one client.

using Windows = std::vector<xcb_window_t>;

/// What the window manager has taken into frames of its own.
Windows managed(SelectionConnection &x, xcb_window_t root)
{
    const auto cookie =
        xcb_get_property(x.get(), false, root, x.atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0, kMostListed);
    const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x.get(), cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto *list = static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
    return {list, list + reply->value_len};
}

Windows children(SelectionConnection &x, xcb_window_t root)
{
    const X11::Reply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(x.get(), xcb_query_tree(x.get(), root), nullptr));
    if (!reply)
        return {};
    const auto *list = xcb_query_tree_children(reply.get());
    return {list, list + xcb_query_tree_children_length(reply.get())};
}

QStringList namesIn(const xcb_get_property_reply_t &reply)
{
    if (reply.format != 8)
        return {};
    const QByteArray text(static_cast<const char *>(xcb_get_property_value(&reply)),
                          xcb_get_property_value_length(&reply));
    QStringList names;
    for (const QByteArray &name : text.split('\0')) {
        if (!name.isEmpty())
            names.append(QString::fromUtf8(name));
    }
    return names;
}

QStringList classesOf(SelectionConnection &x, const Windows &windows)
{
    std::vector<xcb_get_property_cookie_t> cookies;
    for (const xcb_window_t window : windows)
        cookies.push_back(xcb_get_property(x.get(), false, window, XCB_ATOM_WM_CLASS,
                                           XCB_GET_PROPERTY_TYPE_ANY, 0, kMostWords));
    QStringList names;
    for (const auto cookie : cookies) {
        xcb_generic_error_t *failure = nullptr;
        const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x.get(), cookie, &failure));
        const X11::Reply<xcb_generic_error_t> error(failure);
        if (reply)
            names += namesIn(*reply);
    }
    names.removeDuplicates();
    return names;
}

} // namespace

QStringList ofClient(SelectionConnection &x, xcb_window_t window)
{
    const auto *setup = xcb_get_setup(x.get());
    const xcb_window_t root = xcb_setup_roots_iterator(setup).data->root;
    // The server gives each client numbers of its own, which differ in what the mask leaves out.
    const auto client = window & ~setup->resource_id_mask;
    Windows own{window};
    for (const Windows &windows : {managed(x, root), children(x, root)}) {
        for (const xcb_window_t other : windows) {
            if ((other & ~setup->resource_id_mask) == client && own.size() < kMostWindows)
                own.push_back(other);
        }
    }
    return classesOf(x, own);
}

} // namespace Kestrune::WindowClasses
