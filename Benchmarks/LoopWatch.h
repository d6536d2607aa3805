#pragma once

#include "NotchKit/Platform/Clock.h"

#include <QElapsedTimer>

#include <algorithm>
#include <memory>
#include <utility>

namespace Benchmarks {

/// Looks a hundred times a second from the event loop, and remembers the longest time between two looks.
class LoopWatch
{
public:
    explicit LoopWatch(Kestrune::Clock &clock)
        : m_timer(clock.every(std::chrono::milliseconds(10), [this] { look(); }))
    {}

    double takeLongest()
    {
        m_time.invalidate();
        return std::exchange(m_longest, 0);
    }

private:
    void look()
    {
        if (m_time.isValid())
            m_longest = std::max(m_longest, static_cast<double>(m_time.nsecsElapsed()) / 1e6);
        m_time.start();
    }

    QElapsedTimer m_time;
    double m_longest = 0;
    std::unique_ptr<Kestrune::RunningTimer> m_timer;
};

} // namespace Benchmarks
