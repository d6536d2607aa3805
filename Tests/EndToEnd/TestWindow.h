#pragma once

#include "EndToEnd/Waiting.h"
#include "EndToEnd/X11.h"

#include <array>

/// A window of another program: it has a colour of its own and remembers the clicks and keys it received.
struct TestWindow
{
    enum class Kind {
        Plain,      ///< Undecorated, placed where it says.
        FullScreen, ///< Covers the display and asks for the full-screen layer.
        Dock,       ///< A desktop panel along the top edge that reserves its strip.
    };

    /// Shows the window and waits until it is on screen, and active unless it is a dock.
    TestWindow(const QString &display, Kind kind, const QRect &geometry, QRgb colour)
        : m_x(display)
        , m_colour(colour)
        , m_window(xcb_generate_id(m_x.connection()))
    {
        const std::array<quint32, 2> values = {colour & RGB_MASK,
                                               XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS};
        xcb_create_window(m_x.connection(), XCB_COPY_FROM_PARENT, m_window, m_x.root(),
                          static_cast<int16_t>(geometry.x()), static_cast<int16_t>(geometry.y()),
                          static_cast<uint16_t>(geometry.width()), static_cast<uint16_t>(geometry.height()),
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, m_x.screen()->root_visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
        describe(kind, geometry);
        xcb_map_window(m_x.connection(), m_window);
        const QPoint corner = geometry.bottomLeft() + QPoint(2, -2);
        if (!waitUntil([&] { return m_x.pixel(corner) == m_colour; }))
            qWarning("a window of the test did not come on screen");
        if (kind == Kind::Dock)
            return;
        m_x.ask(m_window, "_NET_ACTIVE_WINDOW", {2, XCB_CURRENT_TIME, 0});
        if (!waitUntil([&] { return hasFocus(); }))
            qWarning("a window of the test did not become active");
    }

    xcb_window_t id() const { return m_window; }
    QColor colour() const { return m_colour; }
    bool hasFocus() const { return m_x.activeWindow() == m_window && m_x.focus() == m_window; }

    /// How many presses of a button or a key arrived since the window came, or since `forget`.
    int clicks()
    {
        drain();
        return m_clicks;
    }
    int keys()
    {
        drain();
        return m_keys;
    }
    void forget()
    {
        drain();
        m_clicks = m_keys = 0;
    }

private:
    void describe(Kind kind, const QRect &geometry)
    {
        // No decoration, and the place is the user's wish, which window managers honour.
        m_x.setProperty(m_window, "_MOTIF_WM_HINTS", m_x.atom("_MOTIF_WM_HINTS"), {2, 0, 0, 0, 0});
        QList<quint32> sizeHints(18, 0);
        sizeHints[0] = 3;
        m_x.setProperty(m_window, "WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, sizeHints);
        m_x.setText(m_window, "WM_NAME", "Window of the test");
        if (kind == Kind::FullScreen) {
            m_x.setProperty(m_window, "_NET_WM_STATE", XCB_ATOM_ATOM, {m_x.atom("_NET_WM_STATE_FULLSCREEN")});
        } else if (kind == Kind::Dock) {
            m_x.setProperty(m_window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                            {m_x.atom("_NET_WM_WINDOW_TYPE_DOCK")});
            QList<quint32> strut(12, 0);
            strut[2] = static_cast<quint32>(geometry.height());
            strut[9] = static_cast<quint32>(geometry.right());
            m_x.setProperty(m_window, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, strut);
        }
    }
    void drain()
    {
        m_x.sync();
        while (const auto event = owned(xcb_poll_for_event(m_x.connection()))) {
            const int type = event->response_type & 0x7f;
            m_clicks += type == XCB_BUTTON_PRESS ? 1 : 0;
            m_keys += type == XCB_KEY_PRESS ? 1 : 0;
        }
    }

    X11 m_x;
    QColor m_colour;
    xcb_window_t m_window;
    int m_clicks = 0;
    int m_keys = 0;
};
