#pragma once

#include "Desktop/Screens/PressLatch.h"

#include <QAbstractNativeEventFilter>

#include <memory>
#include <optional>

#include <xcb/xcb.h>

namespace Kestrune {

/// The X server's core pointer.
///
/// It stirs when it crosses the edge of one of this program's windows, when the primary button or a finger
/// goes down anywhere, and while something is dragged over one of the windows; elsewhere it moves unnoticed.
/// Samples go over a connection of their own: on the one that Qt's event thread reads, each answer would
/// wake that thread too.
///
/// As the guest of a Wayland compositor the server knows nothing of a pointer that is over a Wayland window,
/// and leaves it where it last was. There the pointer counts as outside from when it left this program's
/// windows until it moves over one, or something is dragged over one. It is not at rest before: not all
/// compositors tell when it leaves.
class X11Pointer : public Pointer, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    X11Pointer();
    ~X11Pointer() override;

    QPointF location() override;
    PointerSample sample() override;
    bool isAtRest() const override;

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
    bool isTouch(const xcb_generic_event_t &event) const;
    bool isOverWindow(const xcb_generic_event_t &event) const;
    void cross(const xcb_generic_event_t &event);
    static bool isDrag(const xcb_generic_event_t &event);
    void drag(const xcb_client_message_event_t &message);
    PointerSample observe() const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    uint8_t m_inputOpcode = 0;
    bool m_isGuest;
    bool m_away;            ///< Of a guest: over none of this program's windows.
    bool m_dropped = false; ///< Of a guest: what was dragged out of one of the windows was dropped elsewhere.
    std::optional<QPointF> m_drag; ///< Of a guest: where something is dragged over one of the windows.
    PointerSample m_last;          ///< What was seen last.
    bool m_moves = true;           ///< That differed from what was seen before.
    PressLatch m_presses;
};

} // namespace Kestrune
