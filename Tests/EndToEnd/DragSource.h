#pragma once

#include "EndToEnd/Waiting.h"
#include "EndToEnd/X11.h"

/// A program that drags something over another's window, with or without the manners of a good one. It
/// speaks XDND version 5 and does nothing on its own: `answer` serves what was asked of it so far.
struct DragSource
{
    /// Owns the selection, as a source does from the beginning of a drag on.
    DragSource(const QString &display, const QByteArray &type, const QByteArray &content)
        : m_x(display)
        , m_type(type)
        , m_content(content)
        , m_window(xcb_generate_id(m_x.connection()))
    {
        xcb_create_window(m_x.connection(), XCB_COPY_FROM_PARENT, m_window, m_x.root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(m_x.connection(), m_window, m_x.atom("XdndSelection"), XCB_CURRENT_TIME);
        m_x.sync();
    }

    void enter(xcb_window_t target)
    {
        m_target = target;
        send("XdndEnter", {5u << 24, m_x.atom(m_type.constData())});
    }
    void position(QPoint place)
    {
        send("XdndPosition", {0, static_cast<quint32>(place.x() << 16 | place.y()), XCB_CURRENT_TIME,
                              m_x.atom("XdndActionCopy")});
    }
    void drop() { send("XdndDrop", {0, XCB_CURRENT_TIME}); }

    /// Answers the requests that came, and says how many they were. Content longer than `part` bytes goes
    /// in parts of that size.
    int answer(int part = 65536)
    {
        drain();
        for (const auto &request : m_requests)
            serve(request, part);
        return static_cast<int>(std::exchange(m_requests, {}).size());
    }

    /// The target said that it would take a drop here.
    bool accepted()
    {
        drain();
        return m_accepted;
    }

private:
    void send(const char *message, const QList<quint32> &data)
    {
        m_x.send(m_target, m_target, message, QList<quint32>{m_window} + data, XCB_EVENT_MASK_NO_EVENT);
    }
    void serve(const xcb_selection_request_event_t &request, int part)
    {
        const auto put = [&](xcb_atom_t type, uint8_t format, const void *data, qsizetype length) {
            xcb_change_property(m_x.connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                                type, format, static_cast<uint32_t>(length), data);
        };
        const quint32 size = static_cast<quint32>(m_content.size());
        const bool inParts = m_content.size() > part;
        if (inParts)
            put(m_x.atom("INCR"), 32, &size, 1);
        else
            put(request.target, 8, m_content.constData(), m_content.size());
        xcb_selection_notify_event_t notify{};
        notify.response_type = XCB_SELECTION_NOTIFY;
        notify.requestor = request.requestor;
        notify.selection = request.selection;
        notify.target = request.target;
        notify.property = request.property;
        xcb_send_event(m_x.connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&notify));
        m_x.sync();
        if (!inParts)
            return;
        const auto taken = [&] {
            const auto cookie = xcb_get_property(m_x.connection(), 0, request.requestor, request.property,
                                                 XCB_GET_PROPERTY_TYPE_ANY, 0, 0);
            const auto reply = owned(xcb_get_property_reply(m_x.connection(), cookie, nullptr));
            return reply && reply->type == XCB_ATOM_NONE;
        };
        for (qsizetype at = 0; waitUntil(taken, 2000); at += part) {
            const QByteArray next = m_content.mid(at, part);
            put(request.target, 8, next.constData(), next.size());
            m_x.sync();
            if (next.isEmpty())
                return;
        }
    }
    void drain()
    {
        const auto status = m_x.atom("XdndStatus");
        while (const auto event = owned(xcb_poll_for_event(m_x.connection()))) {
            const int type = event->response_type & 0x7f;
            if (type == XCB_SELECTION_REQUEST)
                m_requests.append(reinterpret_cast<const xcb_selection_request_event_t &>(*event));
            if (type != XCB_CLIENT_MESSAGE)
                continue;
            const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
            if (message.type == status)
                m_accepted = message.data.data32[1] & 1;
        }
    }

    X11 m_x;
    QByteArray m_type;
    QByteArray m_content;
    xcb_window_t m_window;
    xcb_window_t m_target = XCB_WINDOW_NONE;
    QList<xcb_selection_request_event_t> m_requests;
    bool m_accepted = false;
};
