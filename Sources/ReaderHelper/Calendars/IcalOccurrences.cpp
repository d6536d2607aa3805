#include "IcalOccurrences.h"

#include "IcalRule.h"

#include <QSet>

#include <algorithm>

namespace Kestrune {

namespace {

/// Of one series, in the range that is asked for.
constexpr qsizetype kMostOfOne = 1000;

/// Occurrences that do not take place, by their instant, or by their day where a whole day is named.
class Exclusions
{
public:
    Exclusions(const IcalEntry &series, const QList<IcalMoment> &instances)
    {
        for (const IcalMoment &moment : series.excluded + instances)
            add(moment, series.start.isValid() ? series.start : series.due);
    }
    bool contains(const IcalMoment &moment, const QDateTime &instant) const
    {
        return m_days.contains(moment.date) || m_instants.contains(instant);
    }

private:
    void add(const IcalMoment &moment, const IcalMoment &start)
    {
        // Some programs leave the zone out here: it is that of the series.
        const auto &zone = moment.zone == IcalZones::local() ? start.zone : moment.zone;
        if (moment.isDay())
            m_days.insert(moment.date);
        else
            m_instants.insert(zone->instant(moment.date, moment.time));
    }

    QSet<QDate> m_days;
    QSet<QDateTime> m_instants;
};

/// Makes the events of one calendar file.
class Maker
{
public:
    Maker(const IcalRange &range, const QString &origin, IcalSuspects &suspects)
        : m_range(range)
        , m_origin(origin)
        , m_budget(suspects)
    {
        m_found.until = range.to;
    }

    void add(const IcalEntry &entry, const IcalMoment &start, const IcalMoment &occurrence)
    {
        const QDateTime begins = start.instant();
        const QDateTime ends = entry.span.endOf(start);
        if (entry.cancelled || !m_range.overlaps(begins, ends))
            return;
        const QString id = entry.uid.isEmpty() ? QString()
                                               : m_origin + kBetweenIdParts + entry.uid + kBetweenIdParts +
                                                     occurrence.instant().toString(Qt::ISODate);
        m_found.events.append({id, entry.title, begins, ends, start.isDay(), {}});
    }

    /// The series without those of its occurrences that `instances` replace.
    void addSeries(const IcalEntry &entry, const QList<IcalMoment> &instances)
    {
        const Exclusions excluded(entry, instances);
        QSet<QDateTime> seen;
        const qsizetype before = m_found.events.size();
        const auto visit = [&](const IcalMoment &start) {
            const QDateTime begins = start.instant();
            if (!seen.contains(begins) && !excluded.contains(start, begins))
                add(entry, start, start);
            seen.insert(begins);
            const bool isFull = m_found.events.size() - before >= kMostOfOne;
            if (isFull)
                m_found.until = std::min(m_found.until, begins);
            return begins < m_range.to && !isFull;
        };
        visit(entry.start);
        for (const IcalMoment &start : entry.added)
            visit(start);
        const QDateTime earliest = m_range.from.addDays(-entry.span.days).addSecs(-entry.span.seconds);
        for (const QByteArray &rule : entry.rules)
            m_found.leftOut += IcalRule(rule, entry.start).visit(earliest, m_budget, visit) ? 0 : 1;
    }

    IcalFound take() { return std::move(m_found); }

private:
    const IcalRange &m_range;
    const QString &m_origin;
    IcalFound m_found;
    IcalBudget m_budget;
};

QList<IcalMoment> instancesOf(const QString &uid, const QList<IcalEntry> &entries)
{
    QList<IcalMoment> instances;
    for (const IcalEntry &entry : entries) {
        if (entry.instance.isValid() && entry.uid == uid)
            instances.append(entry.instance);
    }
    return instances;
}

} // namespace

IcalFound icalOccurrences(const QList<IcalEntry> &entries, const IcalRange &range, const QString &origin,
                          IcalSuspects &suspects)
{
    Maker maker(range, origin, suspects);
    for (const IcalEntry &entry : entries) {
        if (entry.instance.isValid())
            maker.add(entry, entry.start, entry.instance);
        else if (entry.repeats())
            maker.addSeries(entry, instancesOf(entry.uid, entries));
        else
            maker.add(entry, entry.start, entry.start);
    }
    return maker.take();
}

IcalMoment nextOccurrence(const IcalEntry &series, const IcalMoment &current,
                          const QList<IcalMoment> &instances)
{
    const Exclusions excluded(series, instances);
    const QDateTime now = current.instant();
    IcalMoment next;
    const auto visit = [&](const IcalMoment &start) {
        const QDateTime begins = start.instant();
        if (begins <= now || excluded.contains(start, begins))
            return true;
        if (!next.isValid() || begins < next.instant())
            next = start;
        return false;
    };
    for (const IcalMoment &start : series.added)
        visit(start);
    IcalSuspects suspects;
    IcalBudget budget(suspects);
    for (const QByteArray &rule : series.rules)
        IcalRule(rule, current).visit(now, budget, visit);
    return next;
}

CalendarStore::Tasks icalOpenTasks(const QList<IcalEntry> &entries, const QString &origin)
{
    CalendarStore::Tasks tasks;
    for (const IcalEntry &entry : entries) {
        if (entry.done || entry.cancelled || entry.uid.isEmpty())
            continue;
        const IcalTaskId id{origin, entry.uid, QString::fromLatin1(entry.instanceText)};
        tasks.append({id.text(), entry.title, entry.due.isValid() ? entry.due.instant() : QDateTime(), {}});
    }
    return tasks;
}

} // namespace Kestrune
