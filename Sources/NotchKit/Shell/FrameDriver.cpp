#include "FrameDriver.h"

namespace Kestrune {

namespace {

constexpr int kStep = 15; // ms

}

void FrameDriver::start()
{
    m_timer.start(kStep, Qt::PreciseTimer, this);
    QAnimationDriver::start();
}

void FrameDriver::stop()
{
    m_timer.stop();
    QAnimationDriver::stop();
}

void FrameDriver::timerEvent(QTimerEvent *) { advance(); }

} // namespace Kestrune
