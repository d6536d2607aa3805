#include "TodaysEvents.h"

namespace Kestrune {

void TodaysEvents::setServices(NotchServices *services)
{
    m_services = services;
    connect(services->calendar(), &CalendarModel::itemsChanged, this, &TodaysEvents::update);
    connect(services, &NotchServices::nowChanged, this, &TodaysEvents::followDate);
    followDate();
}

void TodaysEvents::followDate()
{
    const QDate today = m_services->now().toLocalTime().date();
    if (std::exchange(m_today, today) != today)
        update();
}

void TodaysEvents::update()
{
    QList<CalendarItem> events = m_services->calendar()->items();
    events.removeIf([this](const CalendarItem &item) { return item.start.toLocalTime().date() > m_today; });
    if (std::exchange(m_events, events) != events)
        Q_EMIT eventsChanged();
}

} // namespace Kestrune
