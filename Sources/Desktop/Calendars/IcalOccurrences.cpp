#include "IcalOccurrences.h"

#include "IcalRule.h"
#include "Log.h"

#include <QSet>

#include <algorithm>

namespace Kestrune {

Q_LOGGING_CATEGORY(calendarLog, "kestrune.calendar", QtWarningMsg)

namespace {

/// Between the parts of an id; no path, name or text has it.
constexpr QChar kBetween = u'\n';
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

bool overlaps(const QDateTime &start, const QDateTime &end, const IcalRange &range)
{
    return start < range.to && (end > range.from || (start == end && start >= range.from));
}

/// Makes the events of one calendar file.
class Maker
{
public:
    Maker(const IcalRange &range, const QString &origin, const QColor &color, IcalSuspects &suspects)
        : m_range(range)
        , m_origin(origin)
        , m_color(color)
        , m_budget(suspects)
    {}

    void add(const IcalEntry &entry, const IcalMoment &start, const IcalMoment &occurrence)
    {
        const QDateTime begins = start.instant();
        const QDateTime ends = entry.span.endOf(start);
        if (entry.cancelled || !overlaps(begins, ends, m_range))
            return;
        const QString id = entry.uid.isEmpty() ? QString()
                                               : m_origin + kBetween + entry.uid + kBetween +
                                                     occurrence.instant().toString(Qt::ISODate);
        m_events.append({id, entry.title, begins, ends, start.isDay(), m_color});
    }

    /// The series without those of its occurrences that `instances` replace.
    void addSeries(const IcalEntry &entry, const QList<IcalMoment> &instances)
    {
        const Exclusions excluded(entry, instances);
        QSet<QDateTime> seen;
        const qsizetype before = m_events.size();
        const auto visit = [&](const IcalMoment &start) {
            const QDateTime begins = start.instant();
            if (!seen.contains(begins) && !excluded.contains(start, begins))
                add(entry, start, start);
            seen.insert(begins);
            return begins < m_range.to && m_events.size() - before < kMostOfOne;
        };
        visit(entry.start);
        for (const IcalMoment &start : entry.added)
            visit(start);
        const QDateTime earliest = m_range.from.addDays(-entry.span.days).addSecs(-entry.span.seconds);
        for (const QByteArray &rule : entry.rules)
            m_leftOut += IcalRule(rule, entry.start).visit(earliest, m_budget, visit) ? 0 : 1;
    }

    CalendarStore::Events take()
    {
        if (m_leftOut > 0)
            qCInfo(calendarLog, "%s: %d rules repeat what cannot be worked out in time",
                   qUtf8Printable(m_origin), m_leftOut);
        return std::move(m_events);
    }

private:
    const IcalRange &m_range;
    const QString &m_origin;
    const QColor &m_color;
    CalendarStore::Events m_events;
    IcalBudget m_budget;
    int m_leftOut = 0;
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

CalendarStore::Events icalOccurrences(const QList<IcalEntry> &entries, const IcalRange &range,
                                      const QString &origin, const QColor &color, IcalSuspects &suspects)
{
    Maker maker(range, origin, color, suspects);
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

CalendarStore::Tasks icalOpenTasks(const QList<IcalEntry> &entries, const QString &origin,
                                   const QColor &color)
{
    CalendarStore::Tasks tasks;
    for (const IcalEntry &entry : entries) {
        if (entry.done || entry.cancelled || entry.uid.isEmpty())
            continue;
        const IcalTaskId id{origin, entry.uid, QString::fromLatin1(entry.instanceText)};
        tasks.append(
            {id.text(), entry.title, entry.due.isValid() ? entry.due.instant() : QDateTime(), color});
    }
    return tasks;
}

QString IcalTaskId::text() const { return origin + kBetween + uid + kBetween + instance; }

std::optional<IcalTaskId> IcalTaskId::parse(const QString &text)
{
    const QStringList parts = text.split(kBetween);
    if (parts.size() != 3)
        return std::nullopt;
    return IcalTaskId{parts.at(0), parts.at(1), parts.at(2)};
}

} // namespace Kestrune
