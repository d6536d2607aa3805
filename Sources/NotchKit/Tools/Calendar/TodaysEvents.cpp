#include "TodaysEvents.h"

namespace Kestrune {

void TodaysEvents::componentComplete()
{
    connect(m_model, &CalendarModel::itemsChanged, this, &TodaysEvents::update);
    connect(m_surroundings, &NotchSurroundings::nowChanged, this, &TodaysEvents::followDate);
    followDate();
}

void TodaysEvents::followDate()
{
    const QDate today = m_surroundings->now().toLocalTime().date();
    if (std::exchange(m_today, today) != today)
        update();
}

void TodaysEvents::update()
{
    QList<CalendarItem> events = m_model->items();
    events.removeIf([this](const CalendarItem &item) { return item.start.toLocalTime().date() > m_today; });
    if (std::exchange(m_events, events) != events)
        Q_EMIT eventsChanged();
}

} // namespace Kestrune
