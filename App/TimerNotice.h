#pragma once

#include "NotchKit/NotchController.h"
#include "NotchKit/Platform/Notifications.h"

namespace Kestrune {

class TimerModel;

/// Tells by a desktop notification that the timer is over, where the closed notch that says so cannot be
/// seen; the notification goes when the user has seen the timer. Main thread only.
class TimerNotice : public QObject
{
    Q_OBJECT

public:
    /// All outlive the object.
    TimerNotice(NotchServices &services, NotchController &controller, Notifications &notifications);
    ~TimerNotice() override;

Q_SIGNALS:
    /// The user clicked the notification.
    void timerWanted();

private:
    void follow();

    NotchServices &m_services;
    NotchController &m_controller;
    Notifications &m_notifications;
    TimerModel &m_timer;
};

} // namespace Kestrune
