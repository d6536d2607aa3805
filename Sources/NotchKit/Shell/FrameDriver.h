#pragma once

#include <QAbstractAnimation>
#include <QBasicTimer>

namespace Kestrune {

/// The pace of all animations: one step every 15 ms while any runs. Qt's own 16 ms leave no room for a late
/// timer at sixty frames a second. Main thread only.
class FrameDriver : public QAnimationDriver
{
    Q_OBJECT

public:
    using QAnimationDriver::QAnimationDriver;

protected:
    void start() override;
    void stop() override;
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer m_timer;
};

} // namespace Kestrune
