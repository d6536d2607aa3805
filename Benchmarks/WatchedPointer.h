#pragma once

#include "NotchKit/Platform/Pointer.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace Benchmarks {

/// Remembers the longest time between two looks at the pointer.
class WatchedPointer : public Kestrune::Pointer
{
public:
    QPointF location() override { return {}; }
    Kestrune::PointerSample sample() override
    {
        if (m_time.isValid())
            m_longest = std::max(m_longest, static_cast<double>(m_time.nsecsElapsed()) / 1e6);
        m_time.start();
        return {};
    }
    double takeLongest()
    {
        m_time.invalidate();
        return std::exchange(m_longest, 0);
    }

private:
    QElapsedTimer m_time;
    double m_longest = 0;
};

} // namespace Benchmarks
