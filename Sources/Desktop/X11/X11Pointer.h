#pragma once

#include "Desktop/Screens/PressLatch.h"

#include <QAbstractNativeEventFilter>

#include <memory>
#include <optional>

#include <xcb/xcb.h>

namespace Kestrune {

/// The X server's core pointer.
///
/// Asking the server costs more than all the rest of a poll, so a sample asks only while something goes on:
/// from the moment the pointer crosses the edge of one of this program's windows, or a primary button goes
/// down anywhere, until it rests; and a few times a second in any case. In between the pointer may move
/// elsewhere on the desktop unnoticed. The questions go over a connection of their own: on the one that
/// Qt's event thread reads, each answer would wake that thread too.
///
/// As the guest of a Wayland compositor the server knows nothing of a pointer that is over a Wayland window,
/// and leaves it where it last was. There the pointer counts as outside from when it left this program's
/// windows until it moves over one, or something is dragged over one.
class X11Pointer : public Pointer, private QAbstractNativeEventFilter
{
public:
    X11Pointer();
    ~X11Pointer() override;

    QPointF location() override;
    PointerSample sample() override;

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    PointerSample query() const;
    bool isInput(const xcb_generic_event_t &event, uint16_t type) const;
    bool isCrossing(const xcb_generic_event_t &event) const;
    bool isRawPress(const xcb_generic_event_t &event) const;
    bool isOverWindow(const xcb_generic_event_t &event) const;
    void cross(const xcb_generic_event_t &event);
    void drag(const xcb_client_message_event_t &message);
    void observe();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    uint8_t m_inputOpcode = 0;
    bool m_isGuest;
    bool m_away;            ///< Of a guest: over none of this program's windows.
    bool m_dropped = false; ///< Of a guest: what was dragged out of one of the windows was dropped elsewhere.
    std::optional<QPointF> m_drag; ///< Of a guest: where something is dragged over one of the windows.
    PointerSample m_last;          ///< The last answer.
    int m_cached = 0;              ///< Samples since it was asked for.
    bool m_watching = true;        ///< The next sample asks.
    PressLatch m_presses;
};

} // namespace Kestrune
