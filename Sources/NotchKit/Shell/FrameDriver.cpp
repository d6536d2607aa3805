#include "FrameDriver.h"

#include <QEvent>
#include <QWindow>

namespace Kestrune {

namespace {

constexpr int kStep = 15;      // ms
constexpr int kSlowFrame = 40; // ms; displays have thirty frames a second and more
constexpr int kQuickFrame = 3; // ms; no display has more than three hundred

} // namespace

void FrameDriver::follow(QWindow &window) { window.installEventFilter(this); }

void FrameDriver::start()
{
    m_frame.invalidate();
    m_timer.start(kStep, Qt::PreciseTimer, this);
    QAnimationDriver::start();
}

void FrameDriver::stop()
{
    m_timer.stop();
    QAnimationDriver::stop();
}

void FrameDriver::timerEvent(QTimerEvent *)
{
    m_frame.invalidate();
    step(kStep);
}

bool FrameDriver::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::UpdateRequest && isRunning())
        frame(*static_cast<QWindow *>(watched));
    return false;
}

/// The window is about to draw, and shows the step.
void FrameDriver::frame(QWindow &window)
{
    // Frames of several displays come close together, and a window with nothing new to show is asked again at
    // once.
    if (m_frame.isValid() && !m_frame.hasExpired(kQuickFrame)) {
        m_timer.start(kStep, Qt::PreciseTimer, this);
        return;
    }
    m_frame.start();
    window.requestUpdate();
    step(kSlowFrame);
}

void FrameDriver::step(int patience)
{
    m_timer.start(patience, Qt::PreciseTimer, this);
    advance();
}

} // namespace Kestrune
