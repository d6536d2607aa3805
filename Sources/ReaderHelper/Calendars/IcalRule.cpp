#include "IcalRule.h"

#include "IcalGate.h"
#include "NotchKit/Platform/Utc.h"

#include <libical/ical.h>

#include <algorithm>
#include <memory>

#include <time.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr int kMostTimes = 50'000;
constexpr int kMostTimesOfAll = 200'000;
constexpr auto kLongest = 2s;
constexpr auto kLongestOfOne = 200ms;
constexpr qsizetype kMostSuspects = 10'000;
/// By how much, of the day that is looked at more, clocks are never turned. Seconds.
constexpr qint64 kMostShift = qint64{21} * 3600;
/// Skipping ahead is worth it from here on.
constexpr int kFarDays = 60;

struct FreedIterator
{
    void operator()(icalrecur_iterator *iterator) const { icalrecur_iterator_free(iterator); }
};

icaltimetype icalTime(const QDateTime &wall, bool isDay)
{
    icaltimetype time = icaltime_null_time();
    time.year = wall.date().year();
    time.month = wall.date().month();
    time.day = wall.date().day();
    time.is_date = isDay ? 1 : 0;
    if (isDay)
        return time;
    time.hour = wall.time().hour();
    time.minute = wall.time().minute();
    time.second = wall.time().second();
    return time;
}

/// How far the times of a rule by the second, the minute or the hour are apart at least, and where nothing
/// filters them at most; 0 for the others.
qint64 secondsBetween(const icalrecurrencetype &rule)
{
    const qint64 interval = std::max<qint64>(rule.interval, 1);
    switch (rule.freq) {
    case ICAL_SECONDLY_RECURRENCE:
        return interval;
    case ICAL_MINUTELY_RECURRENCE:
        return interval * 60;
    case ICAL_HOURLY_RECURRENCE:
        return interval * 3600;
    default:
        return 0;
    }
}

/// Its end is meant in UTC, its times run on the clocks of the zone. A day as the end of times counts whole.
void settleUntil(icalrecurrencetype &rule, const IcalMoment &start)
{
    icaltimetype &until = rule.until;
    if (icaltime_is_null_time(until))
        return;
    const QDate date(until.year, until.month, until.day);
    if (until.is_date || start.isDay()) {
        const QDateTime end(date, start.isDay() ? QTime(0, 0) : QTime(23, 59, 59), kUtc);
        until = icalTime(end, start.isDay());
        return;
    }
    if (!icaltime_is_utc(until))
        return;
    const QDateTime end(date, QTime(until.hour, until.minute, std::min(until.second, 59)), kUtc);
    until = icalTime(start.zone->wall(end), false);
}

} // namespace

IcalBudget::IcalBudget(IcalSuspects &suspects)
    : m_suspects(suspects)
    , m_end(used() + kLongest)
{}

bool IcalBudget::spend() { return ++m_times <= kMostTimesOfAll && used() < m_end; }

bool IcalBudget::tryOut(const QByteArray &rule, const std::function<bool()> &work)
{
    if (m_suspects.contains(rule))
        return false;
    const auto before = used();
    const bool done = work();
    if (used() - before < kLongestOfOne)
        return done;
    if (m_suspects.size() >= kMostSuspects)
        m_suspects.clear();
    m_suspects.insert(rule);
    return done;
}

std::chrono::nanoseconds IcalBudget::used()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::optional<QDateTime> IcalRule::begin(icalrecurrencetype &rule, const QDateTime &skipTo) const
{
    const QDateTime start = m_start.wall();
    const qint64 pace = secondsBetween(rule);
    if (pace == 0 || start >= skipTo || (rule.count > 0 && IcalGate::isFiltered(rule)))
        return start;
    const qint64 passed = start.secsTo(skipTo) / pace;
    if (rule.count > 0) {
        if (passed >= rule.count)
            return std::nullopt;
        rule.count -= static_cast<int>(passed);
    }
    return start.addSecs(passed * pace);
}

bool IcalRule::visit(const QDateTime &earliest, IcalBudget &budget,
                     const std::function<bool(const IcalMoment &)> &visit) const
{
    const QByteArray name = m_start.wall().toString(Qt::ISODate).toLatin1() + ' ' + m_rule;
    return budget.tryOut(name, [&] { return follow(earliest, budget, visit); });
}

bool IcalRule::follow(const QDateTime &earliest, IcalBudget &budget,
                      const std::function<bool(const IcalMoment &)> &visit) const
{
    icalrecurrencetype rule = icalrecurrencetype_from_string(m_rule.constData());
    const bool isDaily = secondsBetween(rule) == 0;
    if (!IcalGate::passes(rule) || (m_start.isDay() && !isDaily) || !budget.spend())
        return false;
    settleUntil(rule, m_start);
    const QDateTime skipTo = m_start.zone->wall(earliest).addDays(-1);
    const auto first = begin(rule, isDaily ? skipTo : skipTo.addSecs(kMostShift));
    if (!first)
        return true;
    const std::unique_ptr<icalrecur_iterator, FreedIterator> iterator(
        icalrecur_iterator_new(rule, icalTime(*first, m_start.isDay())));
    if (iterator && isDaily && rule.count == 0 && first->daysTo(skipTo) > kFarDays)
        icalrecur_iterator_set_start(iterator.get(), icalTime(skipTo, m_start.isDay()));
    for (int i = 0; iterator && i < kMostTimes; ++i) {
        const icaltimetype next = icalrecur_iterator_next(iterator.get());
        if (icaltime_is_null_time(next))
            return true;
        const QTime time(next.hour, next.minute, next.second);
        const QDate date(next.year, next.month, next.day);
        if (!date.isValid() || !visit({date, m_start.isDay() ? QTime() : time, m_start.zone}))
            return true;
        if (!budget.spend())
            return false;
    }
    return false;
}

} // namespace Kestrune
