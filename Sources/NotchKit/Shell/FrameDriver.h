#pragma once

#include <QAbstractAnimation>
#include <QBasicTimer>
#include <QElapsedTimer>

class QWindow;

namespace Kestrune {

/// The pace of all animations while any runs: one step with each frame of the windows that are followed, one
/// every 15 ms where none of them draws. Qt's own 16 ms leave no room for a late timer at sixty frames a
/// second. Main thread only.
class FrameDriver : public QAnimationDriver
{
    Q_OBJECT

public:
    using QAnimationDriver::QAnimationDriver;

    /// For a window that is asked to draw when its display is ready for the next frame.
    void follow(QWindow &window);

protected:
    void start() override;
    void stop() override;
    void timerEvent(QTimerEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void frame(QWindow &window);
    void step(int patience);

    QBasicTimer m_timer;   ///< Until the next step, should no frame come before.
    QElapsedTimer m_frame; ///< Since the last step that came with a frame; none after one that did not.
};

} // namespace Kestrune
