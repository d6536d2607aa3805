#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>

#include <xcb/xcb.h>

/// One client connection to a display, with what the tests ask of it. Coordinates are pixels from the top
/// left. Every call has taken effect in the server when it returns.
struct X11
{
    explicit X11(const QString &display);
    ~X11();
    Q_DISABLE_COPY_MOVE(X11)

    xcb_connection_t *connection() const { return m_connection; }
    const xcb_screen_t *screen() const { return m_screen; }
    xcb_window_t root() const { return m_screen->root; }
    xcb_atom_t atom(const char *name) const;
    void sync() const;

    /// The 32-bit items of a property; empty when it is absent.
    QList<quint32> property(xcb_window_t window, const char *name) const;
    void setProperty(xcb_window_t window, const char *name, xcb_atom_t type,
                     const QList<quint32> &items) const;
    void setText(xcb_window_t window, const char *name, const QByteArray &text) const;

    /// Gives the empty desktop a colour.
    void paintDesktop(QRgb colour) const;

    /// Asks the window manager for something, as the freedesktop conventions put it.
    void ask(xcb_window_t window, const char *message, const QList<quint32> &arguments) const;

    /// Sends the window manager, and nobody else, a message that means nothing.
    void wakeWindowManager() const;

    bool hasWindowManager() const;
    bool hasCompositor() const;
    xcb_window_t activeWindow() const;
    xcb_window_t focus() const;
    QList<quint32> clientWindows() const { return property(root(), "_NET_CLIENT_LIST"); }

    QByteArray title(xcb_window_t window) const;

    /// Where its inside is on the screen.
    QRect geometry(xcb_window_t window) const;

    /// The windows right below the root that are on screen and are `size` large.
    QList<xcb_window_t> topWindows(QSize size) const;

    /// What is on the screen there, all windows included.
    QImage grab(const QRect &area) const;
    QColor pixel(QPoint place) const { return grab({place, QSize(1, 1)}).pixelColor(0, 0); }

private:
    void send(xcb_window_t window, const char *message, const QList<quint32> &arguments, quint32 mask) const;

    xcb_connection_t *m_connection = nullptr;
    const xcb_screen_t *m_screen = nullptr;
};
