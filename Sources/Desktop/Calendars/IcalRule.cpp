#include "IcalRule.h"

#include "IcalGate.h"
#include "NotchKit/Platform/Utc.h"

#include <libical/ical.h>

namespace Kestrune {

namespace {

constexpr int kMostTimes = 50'000;
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

void IcalRule::visit(const QDateTime &earliest, const std::function<bool(const IcalMoment &)> &visit) const
{
    icalrecurrencetype rule = icalrecurrencetype_from_string(m_rule.constData());
    std::unique_ptr<icalrecur_iterator, FreedIterator> iterator;
    if (IcalGate::passes(rule)) {
        settleUntil(rule, m_start);
        iterator.reset(icalrecur_iterator_new(rule, icalTime(m_start.wall(), m_start.isDay())));
    }
    const QDateTime skipTo = m_start.zone->wall(earliest).addDays(-1);
    // The library loses count of the hours when it skips.
    const bool canSkip = rule.count == 0 && rule.freq != ICAL_HOURLY_RECURRENCE;
    if (iterator && canSkip && m_start.wall().daysTo(skipTo) > kFarDays)
        icalrecur_iterator_set_start(iterator.get(), icalTime(skipTo, m_start.isDay()));
    for (int i = 0; iterator && i < kMostTimes; ++i) {
        const icaltimetype next = icalrecur_iterator_next(iterator.get());
        if (icaltime_is_null_time(next))
            return;
        const QTime time(next.hour, next.minute, next.second);
        const QDate date(next.year, next.month, next.day);
        if (!date.isValid() || !visit({date, m_start.isDay() ? QTime() : time, m_start.zone}))
            return;
    }
}

} // namespace Kestrune
