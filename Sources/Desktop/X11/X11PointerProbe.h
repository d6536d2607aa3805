#pragma once

#include <QtGlobal>

#include <xcb/xcb.h>

namespace Kestrune {

/// Asks the Wayland compositor that the server is a guest of whether the pointer is at a place.
///
/// A window of one transparent pixel is put there. A pointer that is there enters it, and the compositor says
/// so, which is a motion to the server. Where the server only believes it to be there, the window is entered
/// without one. A press that hits the window goes on to what lies beneath it.
class X11PointerProbe
{
public:
    X11PointerProbe() = default;
    ~X11PointerProbe() { end(); }
    Q_DISABLE_COPY_MOVE(X11PointerProbe)

    /// In pixels of the root window.
    void begin(int x, int y);
    void end();
    bool isAsking() const { return m_window != XCB_WINDOW_NONE; }

    /// Takes the window's own events. True when this one says that the pointer is there, which ends it.
    bool isAnswer(const xcb_generic_event_t &event);

private:
    xcb_window_t m_window = XCB_WINDOW_NONE;
    xcb_colormap_t m_colours = XCB_NONE;
};

} // namespace Kestrune
