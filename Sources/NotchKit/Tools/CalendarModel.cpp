#include "CalendarModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/NotchStrings.h"

#include <QUuid>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr int kPause = 30; // Seconds between two refreshes while a notch is open.
constexpr int kDays = 2;   // Today and tomorrow.

/// The start of the day after tomorrow; invalid where the calendar has no such time.
QDateTime endOfRange(const QDateTime &now) { return now.toLocalTime().date().addDays(kDays).startOfDay(); }

CalendarItem itemOf(const CalendarEvent &event)
{
    return {event.id.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : event.id,
            event.title.isEmpty() ? notchStrings(QT_TRANSLATE_NOOP("notch", "Event")) : event.title,
            event.start,
            event.end,
            event.allDay,
            event.color};
}

CalendarReminder reminderOf(const CalendarTask &task) { return {task.id, task.title, task.due, task.color}; }

bool startsEarlier(const CalendarEvent &a, const CalendarEvent &b) { return a.start < b.start; }

/// Those without a time come last.
bool isDueEarlier(const CalendarTask &a, const CalendarTask &b)
{
    return a.due.isValid() && (!b.due.isValid() || a.due < b.due);
}

/// The first `most` of `found` in `order`, each as `make` makes it.
template <typename Found, typename Order, typename Make>
auto firstOf(Found found, qsizetype most, Order order, Make make)
{
    std::ranges::stable_sort(found, order);
    found.resize(std::min(found.size(), most));
    QList<decltype(make(found.first()))> list;
    std::ranges::transform(found, std::back_inserter(list), make);
    return list;
}

} // namespace

CalendarModel::CalendarModel(NotchSettings &settings, Clock &clock, CalendarStore &store, QObject *parent)
    : ToolModel(NotchTool::calendar, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_store(store)
{}

CalendarModel::~CalendarModel() = default;

template <typename Value, typename Handler>
CalendarModel::AnyAnswer CalendarModel::await(const QFuture<Value> &future, Handler handler)
{
    return std::make_shared<Answer<Value>>(future, std::move(handler));
}

void CalendarModel::refresh()
{
    refreshEvents();
    refreshReminders();
}

void CalendarModel::refreshEvents()
{
    m_eventAnswer = await(m_store.access(CalendarEntity::events),
                          [this](CalendarAccess access) { takeEventAccess(access); });
}

void CalendarModel::refreshReminders()
{
    m_reminderAnswer = await(m_store.access(CalendarEntity::reminders),
                             [this](CalendarAccess access) { takeReminderAccess(access); });
}

void CalendarModel::takeEventAccess(CalendarAccess access)
{
    m_status = static_cast<int>(access);
    if (access != CalendarAccess::full) {
        takeEvents(CalendarStore::Events());
        return;
    }
    const QDateTime now = m_clock.now();
    const QDateTime end = endOfRange(now);
    if (end.isValid()) {
        m_eventAnswer =
            await(m_store.events(now, end),
                  [this](const std::optional<CalendarStore::Events> &events) { takeEvents(events); });
    }
}

void CalendarModel::takeReminderAccess(CalendarAccess access)
{
    m_reminderStatus = static_cast<int>(access);
    if (access != CalendarAccess::full) {
        takeReminders(CalendarStore::Tasks());
        return;
    }
    m_reminderAnswer =
        await(m_store.incompleteReminders(),
              [this](const std::optional<CalendarStore::Tasks> &tasks) { takeReminders(tasks); });
}

void CalendarModel::takeEvents(const std::optional<CalendarStore::Events> &events)
{
    if (events)
        m_items = firstOf(*events, kMostItems, startsEarlier, itemOf);
    m_eventsKnown = true;
}

void CalendarModel::takeReminders(const std::optional<CalendarStore::Tasks> &tasks)
{
    m_reminderAnswer.reset();
    if (tasks)
        m_reminders = firstOf(*tasks, kMostReminders, isDueEarlier, reminderOf);
    m_remindersKnown = true;
}

void CalendarModel::requestAccess() { request(CalendarEntity::events); }

void CalendarModel::requestReminderAccess() { request(CalendarEntity::reminders); }

void CalendarModel::request(CalendarEntity entity)
{
    m_requests[entity] = await(m_store.requestAccess(entity), [this](bool) { refresh(); });
}

void CalendarModel::complete(const CalendarReminder &reminder)
{
    // A second click would complete the next occurrence of one that repeats.
    if (m_completing.contains(reminder.id))
        return;
    m_completing[reminder.id] =
        await(m_store.complete(reminder.id), [this, id = reminder.id](bool saved) { finish(id, saved); });
}

/// By value: the answer that holds the id goes on the way.
void CalendarModel::finish(QString id, bool saved)
{
    if (saved) {
        Reminders left = reminders();
        left.removeIf([&](const Reminder &reminder) { return reminder.id == id; });
        m_reminders = left;
        // What was asked for before may still name it.
        if (m_reminderAnswer)
            refreshReminders();
    }
    m_completing.erase(id);
}

bool CalendarModel::isShownOn(std::optional<NotchTool> visible) const
{
    const auto hasBlock = [&](HomeWidget widget) { return m_settings.column(widget) != HomeColumn::hidden; };
    return visible == tool() ||
           (visible == NotchTool::home && (hasBlock(HomeWidget::events) || hasBlock(HomeWidget::reminders)));
}

void CalendarModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (!isShownOn(visible))
        return;
    m_inUse = true;
    refresh();
}

void CalendarModel::tick(const ClockTick &tick)
{
    if (tick.anyExpanded && m_inUse && tick.seconds % kPause == 0)
        refresh();
}

} // namespace Kestrune
