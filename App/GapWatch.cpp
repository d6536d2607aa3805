#include "GapWatch.h"

#include <QLoggingCategory>

#include <ctime>

namespace Kestrune {

Q_LOGGING_CATEGORY(gapsLog, "kestrune.gaps", QtWarningMsg)

namespace {

using namespace std::chrono_literals;

constexpr auto kBetweenLooks = 10ms;
constexpr auto kLongest = 50ms;

std::chrono::nanoseconds computedByThread()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

GapWatch::GapWatch()
{
    if (!gapsLog().isDebugEnabled())
        return;
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout([this] { look(); });
    m_sinceLook.start();
    m_computed = computedByThread();
    m_timer.start(kBetweenLooks);
}

void GapWatch::look()
{
    const auto gap = std::chrono::nanoseconds(m_sinceLook.nsecsElapsed());
    const auto computed = computedByThread();
    if (gap > kLongest)
        qCDebug(gapsLog, "did not come round for %lld ms, computed for %lld ms of them",
                static_cast<long long>(gap / 1ms), static_cast<long long>((computed - m_computed) / 1ms));
    m_sinceLook.start();
    m_computed = computed;
}

} // namespace Kestrune
