#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

namespace Kestrune {

/// A running timer; it stops when destroyed.
class RunningTimer
{
public:
    virtual ~RunningTimer() = default;
};

/// The time and the timers that depend on it. Main thread only; handlers run on the main thread.
class Clock
{
public:
    using Handler = std::function<void()>;

    virtual ~Clock() = default;

    /// The wall-clock time in UTC, to the millisecond. It can jump when the user sets the clock.
    virtual QDateTime now() const = 0;

    /// Time since an arbitrary start; it never jumps. For delays and throttles.
    virtual std::chrono::nanoseconds uptime() const = 0;

    /// Calls `handler` every `interval` without drifting until the result is destroyed.
    [[nodiscard]] virtual std::unique_ptr<RunningTimer> every(std::chrono::milliseconds interval,
                                                              Handler handler) = 0;

    /// Calls `handler` once after `delay` unless the result is destroyed before.
    [[nodiscard]] virtual std::unique_ptr<RunningTimer> after(std::chrono::milliseconds delay,
                                                              Handler handler) = 0;
};

} // namespace Kestrune
