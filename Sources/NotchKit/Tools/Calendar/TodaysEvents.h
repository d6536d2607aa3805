#pragma once

#include "NotchKit/NotchSurroundings.h"
#include "NotchKit/Tools/Calendar/CalendarModel.h"

#include <QObject>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Those of the next events that begin today or have begun. Tells of a change only when there is one.
class TodaysEvents : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(Kestrune::CalendarModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(Kestrune::NotchSurroundings *surroundings MEMBER m_surroundings REQUIRED)
    Q_PROPERTY(QList<Kestrune::CalendarItem> events READ events NOTIFY eventsChanged)

public:
    using QObject::QObject;

    void classBegin() override {}
    void componentComplete() override;
    const QList<CalendarItem> &events() const { return m_events; }

Q_SIGNALS:
    void eventsChanged();

private:
    void followDate();
    void update();

    CalendarModel *m_model = nullptr;
    NotchSurroundings *m_surroundings = nullptr;
    QDate m_today;
    QList<CalendarItem> m_events;
};

} // namespace Kestrune
