#include "FrameDriver.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace Kestrune {

namespace {

constexpr double kUsual = 60;     // frames a second, where a display says nothing that can be
constexpr double kSlowest = 20;   // frames a second
constexpr double kQuickest = 500; // frames a second
constexpr double kAhead = 0.92;   // Of a frame's time: 15 ms at sixty frames a second.
constexpr int kPatience = 2;      // frames that one may be late
constexpr int kSlowFrame = 40;    // ms; displays have thirty frames a second and more
constexpr double kTooSoon = 0.2;  // Of a frame's time.

double framesPerSecond(const QWindow *window)
{
    const QScreen *const screen = window ? window->screen() : QGuiApplication::primaryScreen();
    const double rate = screen ? screen->refreshRate() : 0;
    return rate >= kSlowest && rate <= kQuickest ? rate : kUsual;
}

double frameTime(const QWindow *window) { return 1000 / framesPerSecond(window); } // ms

} // namespace

void FrameDriver::follow(QWindow &window, Await await)
{
    m_followed.removeIf([](const Followed &followed) { return !followed.window; });
    m_followed.append({&window, std::move(await)});
}

void FrameDriver::followDrawing(QWindow &window) { window.installEventFilter(this); }

void FrameDriver::start()
{
    m_frame.invalidate();
    m_told = false;
    m_untold = false;
    const Followed *const followed = quickest();
    const QWindow *const window = followed ? followed->window.data() : nullptr;
    m_timer.start(static_cast<int>(frameTime(window) * kAhead), Qt::PreciseTimer, this);
    QAnimationDriver::start();
}

void FrameDriver::stop()
{
    ++m_awaited;
    m_timer.stop();
    QAnimationDriver::stop();
}

/// Of those that are shown; of several as quick the first.
const FrameDriver::Followed *FrameDriver::quickest() const
{
    const Followed *best = nullptr;
    for (const Followed &followed : m_followed) {
        if (!followed.window || !followed.window->isVisible())
            continue;
        if (!best || framesPerSecond(followed.window) > framesPerSecond(best->window))
            best = &followed;
    }
    return best;
}

void FrameDriver::timerEvent(QTimerEvent *)
{
    m_frame.invalidate();
    m_untold = m_untold || m_told;
    stepAndAwait();
}

bool FrameDriver::awaitFrame(const Followed &followed)
{
    const int awaited = ++m_awaited;
    return !m_untold && followed.await && followed.await([this, awaited] {
        if (awaited == m_awaited && isRunning())
            stepAndAwait();
    });
}

/// The next frame is asked for first, so that none is missed while this one is made.
void FrameDriver::stepAndAwait()
{
    const Followed *const followed = quickest();
    const QWindow *const window = followed ? followed->window.data() : nullptr;
    m_told = followed && awaitFrame(*followed);
    step(static_cast<int>(frameTime(window) * (m_told ? kPatience : kAhead)));
}

bool FrameDriver::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::UpdateRequest && isRunning())
        drawn(*static_cast<QWindow *>(watched));
    return false;
}

/// The window is about to draw, and shows the step.
void FrameDriver::drawn(QWindow &window)
{
    // Frames of several displays come close together, and a window with nothing new to show is asked again at
    // once.
    const auto tooSoon = static_cast<int>(frameTime(&window) * kTooSoon);
    if (m_frame.isValid() && !m_frame.hasExpired(tooSoon)) {
        m_timer.start(static_cast<int>(frameTime(&window) * kAhead), Qt::PreciseTimer, this);
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
