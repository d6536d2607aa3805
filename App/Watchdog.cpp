#include "Watchdog.h"

#include <cstdio>
#include <thread>

#include <unistd.h>

namespace Kestrune {

Watchdog::Watchdog(std::chrono::milliseconds time, int status, const char *message)
{
    std::thread([time, status, message, armed = m_armed] {
        std::this_thread::sleep_for(time);
        if (!*armed)
            return;
        if (message)
            std::fputs(message, stderr);
        endProcess(status);
    }).detach();
}

void endProcess(int status)
{
    std::fflush(stdout);
    std::fflush(stderr);
    ::_exit(status);
}

} // namespace Kestrune
