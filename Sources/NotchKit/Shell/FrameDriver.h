#pragma once

#include <QAbstractAnimation>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QList>
#include <QPointer>

#include <functional>

class QWindow;

namespace Kestrune {

/// The pace of all animations while any runs: one step with each frame of the display of a window that is
/// followed, of the quickest where there are several. Where nothing tells of frames the steps come by a
/// timer, a little quicker than the display, which leaves room for a late one. Main thread only.
class FrameDriver : public QAnimationDriver
{
    Q_OBJECT

public:
    /// Calls back once, with the next frame of a window's display; false where nothing tells of it.
    using Await = std::function<bool(std::function<void()> then)>;

    using QAnimationDriver::QAnimationDriver;

    /// For a window whose display's pace counts while the window is shown.
    void follow(QWindow &window, Await await);

    /// For a window that is asked to draw when its display is ready for the next frame.
    void followDrawing(QWindow &window);

protected:
    void start() override;
    void stop() override;
    void timerEvent(QTimerEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Followed
    {
        QPointer<QWindow> window;
        Await await;
    };

    const Followed *quickest() const;
    void drawn(QWindow &window);
    void step(int patience);
    void stepAndAwait();
    bool awaitFrame(const Followed &followed);

    QList<Followed> m_followed;
    QBasicTimer m_timer;   ///< Until the next step, should no frame come before.
    QElapsedTimer m_frame; ///< Since the last step that came with a frame; none after one that did not.
    int m_awaited = 0;     ///< Counts what is waited for: only the newest steps.
    bool m_told = false;   ///< The next step comes with a frame.
    bool m_untold = false; ///< A frame did not come in time: the rest of this run goes by the timer.
};

} // namespace Kestrune
