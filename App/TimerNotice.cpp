#include "TimerNotice.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/Tools/Timer/TimerModel.h"

namespace Kestrune {

TimerNotice::TimerNotice(NotchServices &services, NotchController &controller, Notifications &notifications)
    : m_services(services)
    , m_controller(controller)
    , m_notifications(notifications)
    , m_timer(*services.model<TimerModel>())
{
    connect(&m_timer, &TimerModel::unseenChanged, this, &TimerNotice::follow);
    connect(&notifications, &Notifications::activated, this, &TimerNotice::timerWanted);
    connect(&notifications, &Notifications::dismissed, &m_timer, &TimerModel::markSeen);
}

TimerNotice::~TimerNotice() { m_notifications.withdraw(); }

void TimerNotice::follow()
{
    if (!m_timer.unseen())
        m_notifications.withdraw();
    else if (!m_controller.isInSight() || m_services.activityTool() != NotchTool::timer)
        m_notifications.show(notchStrings(QT_TRANSLATE_NOOP("notch", "Timer")),
                             //: The timer has run down.
                             notchStrings(QT_TRANSLATE_NOOP("notch", "The time is up.")));
}

} // namespace Kestrune
