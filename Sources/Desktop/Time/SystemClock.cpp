#include "SystemClock.h"

#include <algorithm>
#include <ctime>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

class SingleShot : public RunningTimer
{
public:
    SingleShot(std::chrono::milliseconds delay, Clock::Handler handler)
        : m_timer(new QTimer)
    {
        m_timer->setTimerType(Qt::PreciseTimer);
        m_timer->setSingleShot(true);
        QObject::connect(m_timer, &QTimer::timeout, m_timer, std::move(handler));
        m_timer->start(delay);
    }

    ~SingleShot() override
    {
        m_timer->stop();
        m_timer->deleteLater(); // The handler that ends its own timer is still running.
    }

    SingleShot(const SingleShot &) = delete;
    SingleShot &operator=(const SingleShot &) = delete;

private:
    QTimer *m_timer;
};

} // namespace

/// Ends a repetition when it goes; a handler may end its own.
class SystemClock::Handle : public RunningTimer
{
public:
    Handle(SystemClock &clock, std::shared_ptr<Repetition> repetition)
        : m_clock(clock)
        , m_repetition(std::move(repetition))
    {}

    ~Handle() override
    {
        std::erase(m_clock.m_repetitions, m_repetition);
        m_repetition->interval = 0ns;
        m_clock.schedule();
    }

    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

private:
    SystemClock &m_clock;
    std::shared_ptr<Repetition> m_repetition;
};

SystemClock::SystemClock()
{
    m_alarm.setTimerType(Qt::PreciseTimer);
    m_alarm.setSingleShot(true);
    QObject::connect(&m_alarm, &QTimer::timeout, &m_alarm, [this] { runDue(); });
}

QDateTime SystemClock::now() const { return QDateTime::currentDateTimeUtc(); }

std::chrono::nanoseconds SystemClock::uptime() const
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

std::chrono::nanoseconds SystemClock::uptimeWithSleep() const
{
    std::timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::unique_ptr<RunningTimer> SystemClock::every(std::chrono::milliseconds interval, Handler handler)
{
    auto repetition =
        std::make_shared<Repetition>(Repetition{interval, uptimeWithSleep() + interval, std::move(handler)});
    m_repetitions.push_back(repetition);
    schedule();
    return std::make_unique<Handle>(*this, std::move(repetition));
}

std::unique_ptr<RunningTimer> SystemClock::after(std::chrono::milliseconds delay, Handler handler)
{
    return std::make_unique<SingleShot>(delay, std::move(handler));
}

void SystemClock::runDue()
{
    const auto now = uptimeWithSleep();
    const auto running = m_repetitions; // A handler may add and end repetitions.
    for (const auto &repetition : running) {
        if (repetition->interval == 0ns || repetition->due > now)
            continue;
        repetition->due += repetition->interval;
        if (repetition->due <= now) // After a sleep the missed ones are not made up for.
            repetition->due = now + repetition->interval;
        repetition->handler();
    }
    schedule();
}

void SystemClock::schedule()
{
    if (m_repetitions.empty()) {
        m_alarm.stop();
        return;
    }
    const auto next =
        std::ranges::min(m_repetitions, {}, [](const auto &repetition) { return repetition->due; });
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(next->due - uptimeWithSleep());
    m_alarm.start(std::max(wait, 0ms));
}

} // namespace Kestrune
