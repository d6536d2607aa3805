#pragma once

#include <chrono>
#include <optional>

namespace Kestrune {

/// How long the answer of the clipboard's owner is waited for.
class ReadingPatience
{
public:
    using Clock = std::chrono::steady_clock;

    /// A part of the answer came.
    void progress() { m_progress = Clock::now(); }

    /// Another program has copied, whose content waits for the end of this answer.
    void hurry()
    {
        if (!m_hurried)
            m_hurried = Clock::now();
    }
    bool isHurried() const { return m_hurried.has_value(); }

    /// When the answer is given up.
    Clock::time_point deadline() const;

private:
    Clock::time_point m_started = Clock::now();
    Clock::time_point m_progress = m_started;
    std::optional<Clock::time_point> m_hurried;
};

} // namespace Kestrune
