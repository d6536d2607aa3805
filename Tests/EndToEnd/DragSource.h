#pragma once

#include "EndToEnd/X11.h"

/// A program that drags something over another's window, with or without the manners of a good one. It
/// speaks XDND version 5 and does nothing on its own: `answer` serves what was asked of it so far.
struct DragSource
{
    /// Owns the selection, as a source does from the beginning of a drag on.
    DragSource(const QString &display, const QByteArray &type, const QByteArray &content);

    void enter(xcb_window_t target);
    void position(QPoint place);
    void drop();

    /// Answers the requests that came, and says how many they were. Content longer than `part` bytes goes
    /// in parts of that size.
    int answer(int part = 65536);

    /// The target said that it would take a drop here.
    bool accepted();

private:
    void send(const char *message, const QList<quint32> &data);
    void serve(const xcb_selection_request_event_t &request, int part);
    void drain();

    X11 m_x;
    QByteArray m_type;
    QByteArray m_content;
    xcb_window_t m_window;
    xcb_window_t m_target = XCB_WINDOW_NONE;
    QList<xcb_selection_request_event_t> m_requests;
    bool m_accepted = false;
};
