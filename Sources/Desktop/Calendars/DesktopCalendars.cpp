#include "DesktopCalendars.h"

#include "ChosenCalendars.h"
#include "NotchKit/Platform/UserDefaults.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestCall = 60s; // A service may have to be started first.

/// One line, cut between two characters.
QString shortened(const QString &name)
{
    QString line = name.left(CalendarStore::kLongestName).simplified();
    if (!line.isEmpty() && line.back().isHighSurrogate())
        line.chop(1);
    return line;
}

QStringList firstOf(const QStringList &names)
{
    QStringList first;
    for (const QString &name : names) {
        const QString line = shortened(name);
        if (first.size() < CalendarStore::kMostUnread && !line.isEmpty() && !first.contains(line))
            first.append(line);
    }
    return first;
}

} // namespace

DesktopCalendars::DesktopCalendars(const QDBusConnection &bus, const UserDefaults &defaults,
                                   const QString &helper, std::chrono::milliseconds patience)
    : m_defaults(defaults)
    , m_sources([bus, helper, patience] { return std::make_unique<ChosenCalendars>(bus, helper, patience); })
{}

DesktopCalendars::~DesktopCalendars() = default;

template <typename Result, typename Ask>
QFuture<Result> DesktopCalendars::ask(Ask ask)
{
    const ChosenCalendars::Choice choice{m_defaults.value<QString>(sourceKey()).value_or(QString()),
                                         m_defaults.value<QString>(folderKey()).value_or(QString())};
    return m_worker.run(kLongestCall, [sources = m_sources, choice, ask]() -> Result {
        return sources.use([&](ChosenCalendars &chosen) -> Result { return ask(chosen.source(choice)); });
    });
}

QFuture<CalendarAccess> DesktopCalendars::access(CalendarEntity)
{
    return ask<CalendarAccess>([](CalendarSource &source) { return source.access(); });
}

QFuture<bool> DesktopCalendars::requestAccess(CalendarEntity)
{
    return ask<bool>([](CalendarSource &source) { return source.requestAccess(); });
}

QFuture<std::optional<CalendarStore::Events>> DesktopCalendars::events(const QDateTime &from,
                                                                       const QDateTime &to)
{
    return ask<std::optional<Events>>(
        [range = IcalRange{from, to}](CalendarSource &source) { return source.events(range); });
}

QFuture<std::optional<CalendarStore::Tasks>> DesktopCalendars::incompleteReminders()
{
    return ask<std::optional<Tasks>>([](CalendarSource &source) { return source.openTasks(); });
}

QFuture<QStringList> DesktopCalendars::unread()
{
    return ask<QStringList>([](CalendarSource &source) { return firstOf(source.unread()); });
}

QFuture<bool> DesktopCalendars::complete(const QString &id)
{
    return ask<bool>(
        [task = IcalTaskId::parse(id)](CalendarSource &source) { return task && source.complete(*task); });
}

} // namespace Kestrune
