#include "EndToEnd/TestWindow.h"

#include "EndToEnd/Waiting.h"

#include <array>
#include <cstdlib>

TestWindow::TestWindow(const QString &display, Kind kind, const QRect &geometry, QRgb colour)
    : m_x(display)
    , m_colour(colour)
    , m_window(xcb_generate_id(m_x.connection()))
{
    const std::array<quint32, 2> values = {colour & RGB_MASK,
                                           XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(m_x.connection(), XCB_COPY_FROM_PARENT, m_window, m_x.root(),
                      static_cast<int16_t>(geometry.x()), static_cast<int16_t>(geometry.y()),
                      static_cast<uint16_t>(geometry.width()), static_cast<uint16_t>(geometry.height()), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, m_x.screen()->root_visual,
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

int TestWindow::clicks()
{
    drain();
    return m_clicks;
}

int TestWindow::keys()
{
    drain();
    return m_keys;
}

void TestWindow::forget()
{
    drain();
    m_clicks = m_keys = 0;
}

void TestWindow::describe(Kind kind, const QRect &geometry)
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

void TestWindow::drain()
{
    m_x.sync();
    while (auto *event = xcb_poll_for_event(m_x.connection())) {
        const int type = event->response_type & 0x7f;
        m_clicks += type == XCB_BUTTON_PRESS ? 1 : 0;
        m_keys += type == XCB_KEY_PRESS ? 1 : 0;
        std::free(event);
    }
}
