#pragma once

#include "NotchKit/Platform/Pointer.h"

#include <optional>
#include <utility>

namespace Kestrune {

/// Remembers a press until a sample has told of it, however soon the button was let go.
class PressLatch
{
public:
    /// The primary button went down there.
    void press(const QPointF &place)
    {
        if (!m_press)
            m_press = place;
    }

    /// No sample has told yet.
    bool isPending() const { return m_press.has_value(); }

    /// What a sample has to say, where the pointer is as in `now`. A press since the last sample is a new one
    /// even if the button was down then: one sample says that it was let go, the next that it was pressed.
    PointerSample sample(PointerSample now)
    {
        if (m_press && m_wasDown)
            now.primaryDown = false;
        else if (const auto press = std::exchange(m_press, std::nullopt); press && !now.primaryDown)
            now = {*press, true};
        m_wasDown = now.primaryDown;
        return now;
    }

private:
    std::optional<QPointF> m_press; ///< Where the button went down since the last sample.
    bool m_wasDown = false;         ///< In the last sample.
};

} // namespace Kestrune
