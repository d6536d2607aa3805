#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); }
};

/// What a call of the display's library gives to be freed.
template <typename T>
std::unique_ptr<T, FreeReply> owned(T *reply)
{
    return std::unique_ptr<T, FreeReply>(reply);
}

/// One client connection to a display, with what the tests ask of it. Coordinates are pixels from the top
/// left. Every call has taken effect in the server when it returns.
struct X11
{
    explicit X11(const QString &display)
        : m_connection(xcb_connect(display.toLatin1().constData(), nullptr))
    {
        if (xcb_connection_has_error(m_connection) != 0)
            qFatal("no connection to display %s", qPrintable(display));
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }
    ~X11() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(X11)

    xcb_connection_t *connection() const { return m_connection; }
    const xcb_screen_t *screen() const { return m_screen; }
    xcb_window_t root() const { return m_screen->root; }
    xcb_atom_t atom(const char *name) const
    {
        const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(qstrlen(name)), name);
        const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    void sync() const
    {
        owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

    /// The 32-bit items of a property; empty when it is absent.
    QList<quint32> property(xcb_window_t window, const char *name) const
    {
        const auto cookie =
            xcb_get_property(m_connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 1024);
        const auto reply = owned(xcb_get_property_reply(m_connection, cookie, nullptr));
        if (!reply || reply->format != 32)
            return {};
        const auto *items = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
        return {items, items + reply->value_len};
    }
    void setProperty(xcb_window_t window, const char *name, xcb_atom_t type,
                     const QList<quint32> &items) const
    {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(name), type, 32,
                            static_cast<uint32_t>(items.size()), items.constData());
        sync();
    }
    void setText(xcb_window_t window, const char *name, const QByteArray &text) const
    {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(name), XCB_ATOM_STRING, 8,
                            static_cast<uint32_t>(text.size()), text.constData());
        sync();
    }

    /// Gives the empty desktop a colour.
    void paintDesktop(QRgb colour) const
    {
        const quint32 pixel = colour & RGB_MASK;
        xcb_change_window_attributes(m_connection, root(), XCB_CW_BACK_PIXEL, &pixel);
        xcb_clear_area(m_connection, 0, root(), 0, 0, 0, 0);
        // A compositor does not see what the root window shows, and looks for a pixmap.
        const xcb_pixmap_t pixmap = xcb_generate_id(m_connection);
        const xcb_gcontext_t context = xcb_generate_id(m_connection);
        const xcb_rectangle_t all{0, 0, 1, 1};
        xcb_create_pixmap(m_connection, m_screen->root_depth, pixmap, root(), 1, 1);
        xcb_create_gc(m_connection, context, pixmap, XCB_GC_FOREGROUND, &pixel);
        xcb_poly_fill_rectangle(m_connection, pixmap, context, 1, &all);
        xcb_free_gc(m_connection, context);
        setProperty(root(), "_XROOTPMAP_ID", XCB_ATOM_PIXMAP, {pixmap});
    }

    /// A message about a window, to whoever listens to the receiver in that way.
    void send(xcb_window_t receiver, xcb_window_t window, const char *message,
              const QList<quint32> &arguments, quint32 mask) const
    {
        xcb_client_message_event_t event = {};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = atom(message);
        std::copy_n(arguments.begin(), std::min<qsizetype>(arguments.size(), 5), event.data.data32);
        xcb_send_event(m_connection, 0, receiver, mask, reinterpret_cast<const char *>(&event));
        sync();
    }

    /// Asks the window manager for something, as the freedesktop conventions put it.
    void ask(xcb_window_t window, const char *message, const QList<quint32> &arguments) const
    {
        send(root(), window, message, arguments,
             XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    }

    /// Sends the window manager, and nobody else, a message that means nothing.
    void wakeWindowManager() const
    {
        send(root(), root(), "KESTRUNE_TEST_WAKE", {}, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    }

    bool hasWindowManager() const
    {
        const auto check = property(root(), "_NET_SUPPORTING_WM_CHECK");
        return !check.isEmpty() && property(check.constFirst(), "_NET_SUPPORTING_WM_CHECK") == check;
    }
    xcb_window_t selectionOwner(const char *selection) const
    {
        const auto cookie = xcb_get_selection_owner(m_connection, atom(selection));
        const auto reply = owned(xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
        return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    }
    bool hasCompositor() const { return selectionOwner("_NET_WM_CM_S0") != XCB_WINDOW_NONE; }
    xcb_window_t activeWindow() const { return property(root(), "_NET_ACTIVE_WINDOW").value(0); }
    xcb_window_t focus() const
    {
        const auto reply =
            owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        return reply ? reply->focus : xcb_window_t{XCB_WINDOW_NONE};
    }
    QList<quint32> clientWindows() const { return property(root(), "_NET_CLIENT_LIST"); }

    QByteArray title(xcb_window_t window) const
    {
        const auto cookie = xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, 64);
        const auto reply = owned(xcb_get_property_reply(m_connection, cookie, nullptr));
        return reply ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                  xcb_get_property_value_length(reply.get()))
                     : QByteArray();
    }

    /// Where its inside is on the screen.
    QRect geometry(xcb_window_t window) const
    {
        const auto shape =
            owned(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        const auto place = owned(xcb_translate_coordinates_reply(
            m_connection, xcb_translate_coordinates(m_connection, window, root(), 0, 0), nullptr));
        return shape && place ? QRect(place->dst_x, place->dst_y, shape->width, shape->height) : QRect();
    }

    /// The windows right below the root that are on screen and are `size` large.
    QList<xcb_window_t> topWindows(QSize size) const
    {
        const auto tree =
            owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, root()), nullptr));
        const auto *windows = xcb_query_tree_children(tree.get());
        QList<xcb_window_t> found;
        std::copy_if(windows, windows + xcb_query_tree_children_length(tree.get()), std::back_inserter(found),
                     [&](xcb_window_t window) {
                         const auto geometry = owned(xcb_get_geometry_reply(
                             m_connection, xcb_get_geometry(m_connection, window), nullptr));
                         const auto attributes = owned(xcb_get_window_attributes_reply(
                             m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
                         return geometry && attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
                                QSize(geometry->width, geometry->height) == size;
                     });
        return found;
    }

    /// What is on the screen there, all windows included.
    QImage grab(const QRect &area) const
    {
        const auto cookie =
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root(), static_cast<int16_t>(area.x()),
                          static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()),
                          static_cast<uint16_t>(area.height()), ~0U);
        const auto reply = owned(xcb_get_image_reply(m_connection, cookie, nullptr));
        if (!reply)
            qFatal("the screen could not be read");
        return QImage(xcb_get_image_data(reply.get()), area.width(), area.height(), QImage::Format_RGB32)
            .copy();
    }
    QColor pixel(QPoint place) const { return grab({place, QSize(1, 1)}).pixelColor(0, 0); }

private:
    xcb_connection_t *m_connection = nullptr;
    const xcb_screen_t *m_screen = nullptr;
};
