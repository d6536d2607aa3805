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

    /// Time since an arbitrary start that the machine was awake; it never jumps. For delays, and for what
    /// stands still while the machine sleeps.
    virtual std::chrono::nanoseconds uptime() const = 0;

    /// The same with the time that the machine slept: for throttles, and for how old something is.
    virtual std::chrono::nanoseconds uptimeWithSleep() const = 0;

    /// Calls `handler` every `interval` without drifting until the result is destroyed. Time that the machine
    /// slept counts: what fell due meanwhile is called once, after waking.
    [[nodiscard]] virtual std::unique_ptr<RunningTimer> every(std::chrono::milliseconds interval,
                                                              Handler handler) = 0;

    /// Calls `handler` once after `delay` unless the result is destroyed before.
    [[nodiscard]] virtual std::unique_ptr<RunningTimer> after(std::chrono::milliseconds delay,
                                                              Handler handler) = 0;
};

} // namespace Kestrune
