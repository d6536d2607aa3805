#pragma once

#include "Async/Scope.h"
#include "NotchKit/Platform/CalendarStore.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>

#include <map>
#include <memory>

namespace Kestrune {

class NotchSettings;

/// One event in the list.
class CalendarItem
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QDateTime start MEMBER start)
    Q_PROPERTY(QDateTime end MEMBER end)
    Q_PROPERTY(bool allDay MEMBER allDay)
    Q_PROPERTY(QColor color MEMBER color)

public:
    QString id;
    QString title;
    QDateTime start;
    QDateTime end;
    bool allDay = false;
    QColor color; ///< Invalid without one.

    bool operator==(const CalendarItem &) const = default;
};

/// One reminder in the list.
class CalendarReminder
{
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QDateTime due MEMBER due)
    Q_PROPERTY(QColor color MEMBER color)

public:
    QString id;
    QString title;
    QDateTime due; ///< Invalid without one.
    QColor color;  ///< Invalid without one.

    bool operator==(const CalendarReminder &) const = default;
};

/// What is left of today and tomorrow, and the reminders that are not done. Read while it is on screen; the
/// store answers later, and only the newest question's answer counts. Main thread only.
class CalendarModel : public ToolModel
{
    Q_OBJECT
    /// The next events, by their start.
    Q_PROPERTY(QList<Kestrune::CalendarItem> items READ items NOTIFY itemsChanged)
    /// By when they are due, those without a time last.
    Q_PROPERTY(QList<Kestrune::CalendarReminder> reminders READ reminders NOTIFY remindersChanged)
    /// The names of the calendars of which something could not be read, as CalendarStore has them.
    Q_PROPERTY(QStringList unread READ unread NOTIFY unreadChanged)
    /// An Access each.
    Q_PROPERTY(int status READ status NOTIFY statusChanged)
    Q_PROPERTY(int reminderStatus READ reminderStatus NOTIFY reminderStatusChanged)
    /// Whether the first answers are in: until then there is nothing to say about what is empty.
    Q_PROPERTY(bool eventsKnown READ eventsKnown NOTIFY eventsKnownChanged)
    Q_PROPERTY(bool remindersKnown READ remindersKnown NOTIFY remindersKnownChanged)

public:
    /// CalendarAccess, by the names that the views can use.
    enum Access {
        NotDetermined = int(CalendarAccess::notDetermined),
        Restricted = int(CalendarAccess::restricted),
        Denied = int(CalendarAccess::denied),
        Full = int(CalendarAccess::full)
    };
    Q_ENUM(Access)

    using Item = CalendarItem;
    using Items = QList<CalendarItem>;
    using Reminder = CalendarReminder;
    using Reminders = QList<CalendarReminder>;

    static constexpr int kMostItems = 8;
    static constexpr int kMostReminders = 12;

    CalendarModel(NotchSettings &settings, Clock &clock, CalendarStore &store, QObject *parent = nullptr);
    ~CalendarModel() override;

    const Items &items() const { return m_items.value(); }
    const Reminders &reminders() const { return m_reminders.value(); }
    const QStringList &unread() const { return m_unread.value(); }
    int status() const { return m_status; }
    int reminderStatus() const { return m_reminderStatus; }
    bool eventsKnown() const { return m_eventsKnown; }
    bool remindersKnown() const { return m_remindersKnown; }

    /// Asks again for the access and both lists. What an earlier refresh is still waiting for is given up.
    void refresh();

    /// Asks the user's system for full access, and reads again when it has answered.
    Q_INVOKABLE void requestAccess();
    Q_INVOKABLE void requestReminderAccess();

    /// Marks it done; it leaves the list once that is saved, and stays when it cannot be.
    Q_INVOKABLE void complete(const Kestrune::CalendarReminder &reminder);

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void machineWoke() override { m_hasSlept = true; }
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void itemsChanged();
    void remindersChanged();
    void unreadChanged();
    void statusChanged();
    void reminderStatusChanged();
    void eventsKnownChanged();
    void remindersKnownChanged();

private:
    QCoro::Task<> request(CalendarEntity entity);
    QCoro::Task<> readEvents();
    QCoro::Task<> readReminders();
    QCoro::Task<> saveCompleted(QString id);
    void takeEvents(const std::optional<CalendarStore::Events> &events);
    void takeReminders(const std::optional<CalendarStore::Tasks> &tasks);
    void drop(const QString &id);
    bool isShownOn(std::optional<NotchTool> visible) const;

    NotchSettings &m_settings;
    Clock &m_clock;
    CalendarStore &m_store;
    bool m_inUse = false;       ///< Has been on screen: nothing is read before.
    bool m_hasSlept = false;    ///< Since the last refresh.
    QSet<QString> m_completing; ///< Reminders' ids.
    Scope m_eventReads;
    Scope m_reminderReads;
    std::map<CalendarEntity, Scope> m_requests;
    Scope m_completions;
    Q_OBJECT_BINDABLE_PROPERTY(CalendarModel, Items, m_items, &CalendarModel::itemsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CalendarModel, Reminders, m_reminders, &CalendarModel::remindersChanged)
    Q_OBJECT_BINDABLE_PROPERTY(CalendarModel, QStringList, m_unread, &CalendarModel::unreadChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CalendarModel, int, m_status, 0, &CalendarModel::statusChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CalendarModel, int, m_reminderStatus, 0,
                                         &CalendarModel::reminderStatusChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CalendarModel, bool, m_eventsKnown, false,
                                         &CalendarModel::eventsKnownChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(CalendarModel, bool, m_remindersKnown, false,
                                         &CalendarModel::remindersKnownChanged)
};

} // namespace Kestrune
