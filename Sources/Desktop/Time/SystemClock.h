#pragma once

#include "NotchKit/Platform/Clock.h"

#include <QTimer>

#include <vector>

namespace Kestrune {

/// The machine's clocks, with timers on the thread that made the object, which outlives them. One alarm is
/// set for all that repeats, and none where nothing does.
class SystemClock : public Clock
{
public:
    SystemClock();

    QDateTime now() const override;
    std::chrono::nanoseconds uptime() const override;
    std::chrono::nanoseconds uptimeWithSleep() const override;
    std::unique_ptr<RunningTimer> every(std::chrono::milliseconds interval, Handler handler) override;
    std::unique_ptr<RunningTimer> after(std::chrono::milliseconds delay, Handler handler) override;

    /// The machine has slept: the alarm stood still meanwhile, and what is due has to be found anew.
    void woke() { schedule(); }

private:
    struct Repetition
    {
        std::chrono::nanoseconds interval; ///< 0 once the timer is gone.
        std::chrono::nanoseconds due;
        Handler handler;
    };

    class Handle;

    void runDue();
    void schedule();

    std::vector<std::shared_ptr<Repetition>> m_repetitions;
    QTimer m_alarm; ///< Rings when the next repetition is due.
};

} // namespace Kestrune
