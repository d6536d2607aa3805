#include "TimerModel.h"

#include "NotchKit/Platform/SoundPlayer.h"

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr double kShortest = 60;
constexpr double kLongest = 3 * 3600;

double secondsBetween(const QDateTime &from, const QDateTime &to)
{
    return static_cast<double>(from.msecsTo(to)) / 1000;
}

} // namespace

TimerModel::TimerModel(Clock &clock, SoundPlayer &sounds, QObject *parent)
    : ToolModel(NotchTool::timer, parent)
    , m_clock(clock)
    , m_sounds(sounds)
{
    connect(this, &TimerModel::endDateChanged, this, &TimerModel::activeChanged);
    connect(this, &TimerModel::endDateChanged, this, &ToolModel::timeWanted);
    connect(this, &TimerModel::pausedRemainingChanged, this, &TimerModel::activeChanged);
}

QString TimerModel::format(double seconds)
{
    const auto whole = static_cast<qint64>(std::ceil(seconds));
    const auto twoDigits = [](qint64 number) {
        return QString::number(number).rightJustified(2, QLatin1Char('0'));
    };
    const QString tail = QLatin1Char(':') + twoDigits(whole % 60);
    if (whole < 3600)
        return QString::number(whole / 60) + tail;
    return QString::number(whole / 3600) + QLatin1Char(':') + twoDigits(whole / 60 % 60) + tail;
}

double TimerModel::remaining(const QDateTime &date) const
{
    if (const auto end = endDate())
        return std::max(secondsBetween(date, *end), 0.0);
    return pausedRemaining().value_or(duration());
}

void TimerModel::start(double seconds)
{
    m_duration = seconds;
    m_pausedRemaining = std::nullopt;
    start();
}

void TimerModel::start()
{
    m_finished = false;
    const double left = pausedRemaining().value_or(duration());
    m_endDate = m_clock.now().addMSecs(std::llround(left * 1000));
    m_pausedRemaining = std::nullopt;
}

void TimerModel::pause()
{
    const auto end = endDate();
    if (!end)
        return;
    m_pausedRemaining = std::max(secondsBetween(m_clock.now(), *end), 0.0);
    m_endDate = std::nullopt;
}

void TimerModel::reset()
{
    m_endDate = std::nullopt;
    m_pausedRemaining = std::nullopt;
    m_finished = false;
}

void TimerModel::adjust(double minutes)
{
    if (!isActive())
        m_duration = std::clamp(duration() + minutes * 60, kShortest, kLongest);
}

ToolModel::Activity TimerModel::activity() const
{
    const bool isPaused = pausedRemaining().has_value();
    if (isRunning())
        return Activity::live;
    return isPaused ? Activity::held : Activity::none;
}

void TimerModel::tick(const ClockTick &tick)
{
    const auto end = endDate();
    if (!end || tick.now < *end)
        return;
    m_endDate = std::nullopt;
    m_pausedRemaining = std::nullopt;
    m_finished = true;
    m_sounds.play(QStringLiteral("Glass"));
}

} // namespace Kestrune
