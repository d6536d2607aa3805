#pragma once

#include "NotchKit/Platform/Pointer.h"

#include <QAbstractNativeEventFilter>

#include <memory>
#include <optional>

#include <xcb/xcb.h>

namespace Kestrune {

/// The X server's core pointer. Positions are asked for, over a connection of its own: on the one that
/// Qt's event thread reads, each answer would wake that thread too. Presses of the primary button are also
/// told by the server as raw input events, so that a click between two samples is not lost.
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
    bool isRawPress(const xcb_generic_event_t *event) const;

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    uint8_t m_inputOpcode = 0;
    std::optional<QPointF> m_press; ///< Where the primary button went down since the last sample.
    bool m_wasDown = false;         ///< In the last sample.
};

} // namespace Kestrune
