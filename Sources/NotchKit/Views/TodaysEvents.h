#pragma once

#include "NotchKit/NotchServices.h"
#include "NotchKit/Tools/CalendarModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Those of the next events that begin today or have begun. Tells of a change only when there is one.
class TodaysEvents : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kestrune::NotchServices *services MEMBER m_services WRITE setServices REQUIRED)
    Q_PROPERTY(QList<Kestrune::CalendarItem> events READ events NOTIFY eventsChanged)

public:
    using QObject::QObject;

    void setServices(NotchServices *services);
    const QList<CalendarItem> &events() const { return m_events; }

Q_SIGNALS:
    void eventsChanged();

private:
    void followDate();
    void update();

    NotchServices *m_services = nullptr;
    QDate m_today;
    QList<CalendarItem> m_events;
};

} // namespace Kestrune
