#pragma once

#include "NotchKit/Platform/Pointer.h"

#include <QAbstractNativeEventFilter>

#include <optional>

#include <xcb/xcb.h>

namespace Kestrune {

/// The X server's core pointer. Positions are asked for; presses of the primary button are also told by
/// the server as raw input events, wherever they happen, so that a click between two samples is not lost.
class X11Pointer : public Pointer, private QAbstractNativeEventFilter
{
public:
    X11Pointer();
    ~X11Pointer() override;

    QPointF location() override;
    PointerSample sample() override;

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    PointerSample query() const;
    bool isRawPress(const xcb_generic_event_t *event) const;

    uint8_t m_inputOpcode = 0;
    std::optional<QPointF> m_press; ///< Where the primary button went down since the last sample.
};

} // namespace Kestrune
