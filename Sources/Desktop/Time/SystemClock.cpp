#include "SystemClock.h"

#include <QTimer>

namespace Kestrune {

namespace {

class QtRunningTimer : public RunningTimer
{
public:
    QtRunningTimer(std::chrono::milliseconds interval, bool once, Clock::Handler handler)
        : m_timer(new QTimer)
    {
        m_timer->setTimerType(Qt::PreciseTimer);
        m_timer->setSingleShot(once);
        QObject::connect(m_timer, &QTimer::timeout, m_timer, std::move(handler));
        m_timer->start(interval);
    }

    ~QtRunningTimer() override
    {
        m_timer->stop();
        m_timer->deleteLater(); // The handler that ends its own timer is still running.
    }

    QtRunningTimer(const QtRunningTimer &) = delete;
    QtRunningTimer &operator=(const QtRunningTimer &) = delete;

private:
    QTimer *m_timer;
};

} // namespace

QDateTime SystemClock::now() const { return QDateTime::currentDateTimeUtc(); }

std::chrono::nanoseconds SystemClock::uptime() const
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

std::unique_ptr<RunningTimer> SystemClock::every(std::chrono::milliseconds interval, Handler handler)
{
    return std::make_unique<QtRunningTimer>(interval, false, std::move(handler));
}

std::unique_ptr<RunningTimer> SystemClock::after(std::chrono::milliseconds delay, Handler handler)
{
    return std::make_unique<QtRunningTimer>(delay, true, std::move(handler));
}

} // namespace Kestrune
