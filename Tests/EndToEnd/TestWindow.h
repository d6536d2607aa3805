#pragma once

#include "EndToEnd/X11.h"

/// A window of another program: it has a colour of its own and remembers the clicks and keys it received.
struct TestWindow
{
    enum class Kind {
        Plain,      ///< Undecorated, placed where it says.
        FullScreen, ///< Covers the display and asks for the full-screen layer.
        Dock,       ///< A desktop panel along the top edge that reserves its strip.
    };

    /// Shows the window and waits until it is on screen, and active unless it is a dock.
    TestWindow(const QString &display, Kind kind, const QRect &geometry, QRgb colour);

    xcb_window_t id() const { return m_window; }
    QColor colour() const { return m_colour; }
    bool hasFocus() const { return m_x.activeWindow() == m_window && m_x.focus() == m_window; }

    /// How many presses of a button or a key arrived since the window came, or since `forget`.
    int clicks();
    int keys();
    void forget();

private:
    void describe(Kind kind, const QRect &geometry);
    void drain();

    X11 m_x;
    QColor m_colour;
    xcb_window_t m_window;
    int m_clicks = 0;
    int m_keys = 0;
};
