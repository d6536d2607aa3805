#include "CalendarModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/NotchStrings.h"

#include <QUuid>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr int kRefreshPause = 30; // Seconds between two refreshes while a notch is open.
constexpr int kDays = 2;          // Today and tomorrow.

/// The start of the day after tomorrow; invalid where the calendar has no such time.
QDateTime endOfRange(const QDateTime &now) { return now.toLocalTime().date().addDays(kDays).startOfDay(); }

CalendarItem itemOf(const CalendarEvent &event)
{
    return {event.id.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : event.id,
            //: The title of an appointment that has none.
            event.title.isEmpty() ? notchStrings(QT_TRANSLATE_NOOP("notch", "Event")) : event.title,
            event.start, event.end, event.allDay, event.color};
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

void CalendarModel::refresh()
{
    m_hasSlept = false;
    m_eventReads.restart(&CalendarModel::readEvents, this);
    m_reminderReads.restart(&CalendarModel::readReminders, this);
}

QCoro::Task<> CalendarModel::readEvents()
{
    const QFuture<CalendarAccess> asked = m_store.access(CalendarEntity::events);
    const CalendarAccess access = co_await until(asked);
    m_status = static_cast<int>(access);
    if (access != CalendarAccess::full) {
        takeEvents(CalendarStore::Events());
        m_unread = QStringList();
        co_return;
    }
    const QDateTime now = m_clock.now();
    const QDateTime end = endOfRange(now);
    if (!end.isValid())
        co_return;
    const QFuture<std::optional<CalendarStore::Events>> read = m_store.events(now, end);
    const std::optional<CalendarStore::Events> events = co_await until(read);
    takeEvents(events);
    const QFuture<QStringList> namesAsked = m_store.unread();
    m_unread = co_await until(namesAsked);
}

QCoro::Task<> CalendarModel::readReminders()
{
    const QFuture<CalendarAccess> asked = m_store.access(CalendarEntity::reminders);
    const CalendarAccess access = co_await until(asked);
    m_reminderStatus = static_cast<int>(access);
    if (access != CalendarAccess::full) {
        takeReminders(CalendarStore::Tasks());
        co_return;
    }
    const QFuture<std::optional<CalendarStore::Tasks>> read = m_store.incompleteReminders();
    const std::optional<CalendarStore::Tasks> tasks = co_await until(read);
    takeReminders(tasks);
}

void CalendarModel::takeEvents(const std::optional<CalendarStore::Events> &events)
{
    if (events)
        m_items = firstOf(*events, kMostItems, startsEarlier, itemOf);
    m_eventsKnown = true;
}

void CalendarModel::takeReminders(const std::optional<CalendarStore::Tasks> &tasks)
{
    if (tasks)
        m_reminders = firstOf(*tasks, kMostReminders, isDueEarlier, reminderOf);
    m_remindersKnown = true;
}

void CalendarModel::requestAccess()
{
    m_requests[CalendarEntity::events].restart(&CalendarModel::request, this, CalendarEntity::events);
}

void CalendarModel::requestReminderAccess()
{
    m_requests[CalendarEntity::reminders].restart(&CalendarModel::request, this, CalendarEntity::reminders);
}

QCoro::Task<> CalendarModel::request(CalendarEntity entity)
{
    const QFuture<bool> asked = m_store.requestAccess(entity);
    co_await until(asked);
    refresh();
}

void CalendarModel::complete(const CalendarReminder &reminder)
{
    // A second click would complete the next occurrence of one that repeats.
    if (m_completing.contains(reminder.id))
        return;
    m_completing.insert(reminder.id);
    m_completions.start(&CalendarModel::saveCompleted, this, reminder.id);
}

QCoro::Task<> CalendarModel::saveCompleted(QString id)
{
    const QFuture<bool> asked = m_store.complete(id);
    const bool saved = co_await until(asked);
    if (saved)
        drop(id);
    m_completing.remove(id);
}

void CalendarModel::drop(const QString &id)
{
    Reminders left = reminders();
    left.removeIf([&](const Reminder &reminder) { return reminder.id == id; });
    m_reminders = left;
    // What was asked for before may still name it.
    if (m_reminderReads.isWaiting())
        m_reminderReads.restart(&CalendarModel::readReminders, this);
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
    if (tick.anyExpanded && m_inUse && (m_hasSlept || tick.seconds % kRefreshPause == 0))
        refresh();
}

} // namespace Kestrune
