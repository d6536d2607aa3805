#pragma once

#include "Desktop/Reader/CalendarWire.h"

#include <functional>

namespace Kestrune {

/// Answers what is asked of calendars; keeps what it learned of zones and rules. One thread.
class CalendarAnswers
{
public:
    CalendarAnswers();
    ~CalendarAnswers();
    Q_DISABLE_COPY_MOVE(CalendarAnswers)

    /// Calls `begins` before each calendar.
    CalendarAnswer answer(const CalendarQuestion &question, const std::function<void()> &begins = {});

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Kestrune
