#include "EvolutionCalendars.h"

#include "TaskCompletion.h"

#include <QSet>

#include <algorithm>

namespace Kestrune {

namespace {

/// A time as the server's questions write it.
QString made(const QDateTime &time)
{
    return QStringLiteral("(make-time \"%1\")")
        .arg(time.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")));
}

/// A day more on each side: the server takes whole days for those of a zone of its own.
QString questionFor(const IcalRange &range)
{
    return QStringLiteral("(occur-in-time-range? %1 %2)")
        .arg(made(range.from.addDays(-1)), made(range.to.addDays(1)));
}

} // namespace

CalendarAccess EvolutionCalendars::access()
{
    switch (m_bus.state()) {
    case EvolutionBus::State::running:
        return CalendarAccess::full;
    case EvolutionBus::State::startable:
        return m_failed ? CalendarAccess::notDetermined : CalendarAccess::full;
    case EvolutionBus::State::missing:
        break;
    }
    return CalendarAccess::denied;
}

std::optional<QList<EvolutionCalendar>> EvolutionCalendars::open(bool taskLists)
{
    auto calendars = m_bus.open(taskLists);
    m_failed = !calendars;
    return calendars;
}

bool EvolutionCalendars::requestAccess() { return open(false).has_value(); }

IcalZones::Definition EvolutionCalendars::definitionsOf(const EvolutionCalendar &calendar)
{
    return [this, &calendar](const QByteArray &name) {
        const QString key = calendar.source.uid + QLatin1Char('\n') + QString::fromUtf8(name);
        const auto known = m_zones.constFind(key);
        if (known != m_zones.cend())
            return *known;
        const auto found = m_bus.texts(
            calendar, m_bus.call(calendar, QStringLiteral("GetTimezone"), {QString::fromUtf8(name)}));
        return *m_zones.insert(key, found.value_or(QList<QByteArray>()).value(0));
    };
}

IcalContents EvolutionCalendars::contents(const EvolutionCalendar &calendar, const QList<QByteArray> &texts)
{
    IcalContents contents;
    const auto definitions = definitionsOf(calendar);
    for (const QByteArray &text : texts)
        m_reader.readComponents(text, definitions, contents);
    return contents;
}

/// An occurrence that was moved out of the range is not among what the server finds in the range, and would
/// still show where it was: each series is asked for as a whole.
void EvolutionCalendars::completeSeries(const EvolutionCalendar &calendar, QList<IcalEntry> &events)
{
    QSet<QString> series;
    for (const IcalEntry &event : std::as_const(events)) {
        if (event.repeats())
            series.insert(event.uid);
    }
    std::vector<std::pair<QString, QDBusPendingCall>> calls;
    for (const QString &uid : std::as_const(series))
        calls.emplace_back(uid, m_bus.call(calendar, QStringLiteral("GetObject"), {uid, QString()}));
    for (const auto &[uid, call] : calls) {
        const auto texts = m_bus.texts(calendar, call);
        if (!texts)
            continue;
        events.removeIf([&uid = uid](const IcalEntry &event) { return event.uid == uid; });
        events += contents(calendar, *texts).events;
    }
}

std::optional<CalendarStore::Events> EvolutionCalendars::events(const IcalRange &range)
{
    const auto calendars = open(false);
    if (!calendars)
        return std::nullopt;
    std::vector<QDBusPendingCall> calls;
    for (const EvolutionCalendar &calendar : *calendars)
        calls.push_back(m_bus.call(calendar, QStringLiteral("GetObjectList"), {questionFor(range)}));
    CalendarStore::Events found;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const EvolutionCalendar &calendar = calendars->at(static_cast<qsizetype>(i));
        const auto texts = m_bus.texts(calendar, calls[i]);
        QList<IcalEntry> events = contents(calendar, texts.value_or(QList<QByteArray>())).events;
        completeSeries(calendar, events);
        found += icalOccurrences(events, range, calendar.source.uid, calendar.source.color, m_suspects);
    }
    return found;
}

std::optional<CalendarStore::Tasks> EvolutionCalendars::openTasks()
{
    const auto lists = open(true);
    if (!lists)
        return std::nullopt;
    std::vector<QDBusPendingCall> calls;
    for (const EvolutionCalendar &list : *lists)
        calls.push_back(
            m_bus.call(list, QStringLiteral("GetObjectList"), {QStringLiteral("(not (is-completed?))")}));
    CalendarStore::Tasks found;
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const EvolutionCalendar &list = lists->at(static_cast<qsizetype>(i));
        const auto texts = m_bus.texts(list, calls[i]);
        found += icalOpenTasks(contents(list, texts.value_or(QList<QByteArray>())).tasks, list.source.uid,
                               list.source.color);
    }
    return found;
}

bool EvolutionCalendars::complete(const IcalTaskId &task)
{
    const auto lists = open(true).value_or(QList<EvolutionCalendar>());
    const auto list =
        std::ranges::find(lists, task.origin, [](const EvolutionCalendar &each) { return each.source.uid; });
    if (list == lists.end() || !m_bus.isWritable(*list))
        return false;
    const auto texts =
        m_bus.texts(*list, m_bus.call(*list, QStringLiteral("GetObject"), {task.uid, task.instance}));
    const auto done = completeTask(texts.value_or(QList<QByteArray>()).value(0), task.uid, task.instance,
                                   QDateTime::currentDateTimeUtc(), m_reader, definitionsOf(*list));
    if (!done)
        return false;
    const QVariantList change{QStringList{QString::fromUtf8(done->task)},
                              task.instance.isEmpty() ? QStringLiteral("all") : QStringLiteral("this"), 0U};
    return m_bus.texts(*list, m_bus.call(*list, QStringLiteral("ModifyObjects"), change)).has_value();
}

} // namespace Kestrune
