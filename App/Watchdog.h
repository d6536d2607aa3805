#pragma once

#include <atomic>
#include <chrono>
#include <memory>

namespace Kestrune {

/// Ends the process, whatever its other threads wait for, unless it is called off before that
/// time is over.
class Watchdog
{
public:
    /// `message`, a literal line, goes to standard error then; nothing is said without one.
    Watchdog(std::chrono::milliseconds time, int status, const char *message = nullptr);

    void callOff() { *m_armed = false; }

private:
    std::shared_ptr<std::atomic<bool>> m_armed = std::make_shared<std::atomic<bool>>(true);
};

/// Ends the process at once, without what else happens at an end: threads may still run.
[[noreturn]] void endProcess(int status);

} // namespace Kestrune
