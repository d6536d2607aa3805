#pragma once

#include "NotchKit/Platform/Clock.h"

namespace Kestrune {

/// The machine's clocks, with timers on the thread that asks for them.
class SystemClock : public Clock
{
public:
    QDateTime now() const override;
    std::chrono::nanoseconds uptime() const override;
    std::unique_ptr<RunningTimer> every(std::chrono::milliseconds interval, Handler handler) override;
    std::unique_ptr<RunningTimer> after(std::chrono::milliseconds delay, Handler handler) override;
};

} // namespace Kestrune
