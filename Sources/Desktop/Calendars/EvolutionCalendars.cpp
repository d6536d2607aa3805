#include "EvolutionCalendars.h"

#include "Log.h"

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
    if (!calendars)
        return std::nullopt;
    const auto isGone = [&](QMap<QString, EvolutionSource>::iterator source) {
        const auto uid = [](const EvolutionCalendar &each) { return each.source.uid; };
        return source->isTaskList == taskLists &&
               std::ranges::find(*calendars, source->uid, uid) == calendars->end();
    };
    m_unread.removeIf(isGone);
    calendars->removeIf([this](const EvolutionCalendar &calendar) {
        if (calendar.path.isEmpty())
            m_unread.insert(calendar.source.uid, calendar.source);
        return calendar.path.isEmpty();
    });
    return calendars;
}

bool EvolutionCalendars::requestAccess() { return open(false).has_value(); }

/// Asks the server for the definitions of zones that are only named. Whether there is one more than before.
bool EvolutionCalendars::addZones(const EvolutionCalendar &calendar, const QList<QByteArray> &names,
                                  IcalTexts &texts)
{
    bool added = false;
    for (const QByteArray &name : names) {
        const QString key = calendar.source.uid + QLatin1Char('\n') + QString::fromUtf8(name);
        auto known = m_zones.constFind(key);
        if (known == m_zones.cend()) {
            const auto found = m_bus.texts(
                calendar, m_bus.call(calendar, QStringLiteral("GetTimezone"), {QString::fromUtf8(name)}));
            known = m_zones.insert(key, found.value_or(QList<QByteArray>()).value(0));
        }
        added = added || !known->isEmpty();
        texts.zones.insert(name, *known);
    }
    return added;
}

/// An occurrence that was moved out of the range is not among what the server finds in the range, and would
/// still show where it was: each series is asked for as a whole.
void EvolutionCalendars::addSeries(const EvolutionCalendar &calendar, const QStringList &uids,
                                   IcalTexts &texts)
{
    std::vector<std::pair<QString, QDBusPendingCall>> calls;
    for (const QString &uid : uids)
        calls.emplace_back(uid, m_bus.call(calendar, QStringLiteral("GetObject"), {uid, QString()}));
    for (const auto &[uid, call] : calls) {
        if (const auto found = m_bus.texts(calendar, call))
            texts.series.insert(uid, *found);
    }
}

IcalFound EvolutionCalendars::read(const EvolutionCalendar &calendar, const QList<QByteArray> &texts,
                                   const IcalRange &range)
{
    m_unread.insert(calendar.source.uid, calendar.source);
    IcalTexts known{calendar.source.uid, false, texts, {}, {}};
    const auto look = [&] { return m_reader.read({known}, range).first(); };
    IcalFound found = look();
    if (!found.series.isEmpty()) {
        addSeries(calendar, found.series, known);
        found = look();
    }
    if (addZones(calendar, found.zones, known))
        found = look();
    if (found.state == IcalFound::State::read) {
        m_unread.remove(calendar.source.uid);
        m_reported.remove(calendar.source.uid);
    } else if (!std::exchange(m_reported[calendar.source.uid], true)) {
        qCWarning(calendarLog, "a calendar of the server takes too much to be read and is left out");
    }
    return found;
}

QStringList EvolutionCalendars::unread()
{
    QStringList names;
    for (const EvolutionSource &source : std::as_const(m_unread))
        names.append(source.name.isEmpty() ? source.uid : source.name);
    return names;
}

/// One that does not answer, or not yet, has what it had before.
QList<IcalFound> EvolutionCalendars::readAll(const QList<EvolutionCalendar> &calendars,
                                             const QString &question, const IcalRange &range)
{
    const auto texts = m_bus.objects(calendars, question);
    QList<IcalFound> all;
    for (const EvolutionCalendar &calendar : calendars) {
        const QString &uid = calendar.source.uid;
        const auto answer = texts.constFind(uid);
        if (answer != texts.cend())
            m_known.insert(uid, read(calendar, *answer, range));
        else
            m_unread.insert(uid, calendar.source);
        all.append(m_known.value(uid));
    }
    return all;
}

std::optional<CalendarStore::Events> EvolutionCalendars::events(const IcalRange &range)
{
    const auto calendars = open(false);
    if (!calendars)
        return std::nullopt;
    const QList<IcalFound> all = readAll(*calendars, questionFor(range), range);
    CalendarStore::Events found;
    for (qsizetype i = 0; i < all.size(); ++i) {
        for (CalendarEvent event : all.at(i).events) {
            if (!range.overlaps(event.start, event.end))
                continue;
            event.color = calendars->at(i).source.color;
            found.append(event);
        }
    }
    return found;
}

std::optional<CalendarStore::Tasks> EvolutionCalendars::openTasks()
{
    const auto lists = open(true);
    if (!lists)
        return std::nullopt;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QList<IcalFound> all = readAll(*lists, QStringLiteral("(not (is-completed?))"), {now, now});
    CalendarStore::Tasks found;
    for (qsizetype i = 0; i < all.size(); ++i) {
        for (CalendarTask task : all.at(i).tasks) {
            task.color = lists->at(i).source.color;
            found.append(task);
        }
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
    IcalTexts known{task.origin, false, texts.value_or(QList<QByteArray>()), {}, {}};
    QList<QByteArray> zones;
    auto done = m_reader.complete(known, task, zones);
    if (addZones(*list, zones, known))
        done = m_reader.complete(known, task, zones);
    if (!done)
        return false;
    const QVariantList change{QStringList{QString::fromUtf8(done->task)},
                              task.instance.isEmpty() ? QStringLiteral("all") : QStringLiteral("this"), 0U};
    return m_bus.texts(*list, m_bus.call(*list, QStringLiteral("ModifyObjects"), change)).has_value();
}

} // namespace Kestrune
