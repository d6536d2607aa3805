#include "TimerModel.h"

#include "NotchKit/NotchSettings.h"
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

TimerModel::TimerModel(NotchSettings &settings, Clock &clock, SoundPlayer &sounds, QObject *parent)
    : ToolModel(NotchTool::timer, parent)
    , m_settings(settings)
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

std::optional<double> TimerModel::parse(const QString &text)
{
    const QStringList parts = text.trimmed().split(QLatin1Char(':'));
    if (parts.size() > 3)
        return std::nullopt;
    double whole = 0;
    for (const QString &part : parts) {
        const bool isNumber = !part.isEmpty() && part.size() <= 5 &&
                              std::ranges::all_of(part, [](QChar digit) { return digit.isDigit(); });
        if (!isNumber)
            return std::nullopt;
        double number = 0;
        for (const QChar digit : part) // of any script
            number = number * 10 + digit.digitValue();
        whole = whole * 60 + number;
    }
    return std::clamp(parts.size() == 1 ? whole * 60 : whole, kShortest, kLongest);
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
    m_unseen = false;
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
    m_unseen = false;
}

/// Who sets a length wants to see it rather than that the last one is over.
void TimerModel::setDuration(double seconds)
{
    m_finished = false;
    m_unseen = false;
    m_duration = std::clamp(seconds, kShortest, kLongest);
}

bool TimerModel::setLength(const QString &text)
{
    const auto length = parse(text);
    if (length && !isActive())
        setDuration(*length);
    return length.has_value();
}

bool TimerModel::isShownOn(std::optional<NotchTool> visible) const
{
    return visible == tool() ||
           (visible == NotchTool::home && m_settings.column(HomeWidget::timer) != HomeColumn::hidden);
}

void TimerModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (isShownOn(visible))
        markSeen();
}

void TimerModel::adjust(double minutes)
{
    if (!isActive())
        setDuration(duration() + minutes * 60);
}

ToolModel::Activity TimerModel::activity() const
{
    const bool isPaused = pausedRemaining().has_value();
    const bool isOver = m_unseen;
    if (isRunning() || isOver)
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
    m_unseen = !(tick.anyExpanded && isShownOn(tick.visibleTool));
    m_sounds.play(QStringLiteral("Glass"));
}

} // namespace Kestrune
