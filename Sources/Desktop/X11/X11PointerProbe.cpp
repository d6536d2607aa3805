#include "X11PointerProbe.h"

#include "X11Connection.h"

#include <array>
#include <utility>

namespace Kestrune {

namespace {

/// A visual that has transparency; none where the server has no such one.
xcb_visualid_t translucentVisual()
{
    constexpr uint8_t depth = 32;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(X11::connection())).data;
    for (auto it = xcb_screen_allowed_depths_iterator(screen); it.rem > 0; xcb_depth_next(&it)) {
        if (const auto visuals = xcb_depth_visuals_iterator(it.data);
            it.data->depth == depth && visuals.rem > 0)
            return visuals.data->visual_id;
    }
    return XCB_NONE;
}

/// As the panels: no compositor decorates or focuses it.
void announceProbe(xcb_window_t window)
{
    const std::array types{X11::atom("_NET_WM_WINDOW_TYPE_DOCK"), X11::atom("_NET_WM_WINDOW_TYPE_UTILITY")};
    xcb_change_property(X11::connection(), XCB_PROP_MODE_REPLACE, window, X11::atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, types.size(), types.data());
}

} // namespace

void X11PointerProbe::begin(int x, int y)
{
    const xcb_visualid_t visual = translucentVisual();
    if (isAsking() || visual == XCB_NONE)
        return;
    auto *connection = X11::connection();
    m_colours = xcb_generate_id(connection);
    xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, m_colours, X11::root(), visual);
    m_window = xcb_generate_id(connection);
    const std::array<uint32_t, 5> values{0, 0, true, XCB_EVENT_MASK_POINTER_MOTION, m_colours};
    xcb_create_window(connection, 32, m_window, X11::root(), static_cast<int16_t>(x), static_cast<int16_t>(y),
                      1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK |
                          XCB_CW_COLORMAP,
                      values.data());
    announceProbe(m_window);
    xcb_grab_button(connection, false, m_window, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_SYNC,
                    XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_BUTTON_INDEX_ANY,
                    XCB_MOD_MASK_ANY);
    xcb_map_window(connection, m_window);
    xcb_flush(connection);
}

void X11PointerProbe::end()
{
    if (!isAsking())
        return;
    xcb_destroy_window(X11::connection(), std::exchange(m_window, XCB_WINDOW_NONE));
    xcb_free_colormap(X11::connection(), m_colours);
    xcb_flush(X11::connection());
}

bool X11PointerProbe::isAnswer(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    const auto &input = reinterpret_cast<const xcb_button_press_event_t &>(event);
    if (!isAsking() || (type != XCB_MOTION_NOTIFY && type != XCB_BUTTON_PRESS) || input.event != m_window)
        return false;
    end();
    if (type == XCB_BUTTON_PRESS)
        xcb_allow_events(X11::connection(), XCB_ALLOW_REPLAY_POINTER, input.time);
    xcb_flush(X11::connection());
    return true;
}

} // namespace Kestrune
