#include "WaylandPointer.h"

#include <QDropEvent>
#include <QMouseEvent>
#include <QThread>
#include <QWindow>

#include <utility>

namespace Kestrune {

namespace {

constexpr QPointF kOutside(-1e6, -1e6); // No display is there.
constexpr int kLongestRest = 2000;      // ms

} // namespace

void WaylandPointer::watch(QWindow &window, const QRectF &frame)
{
    if (!m_panels.contains(&window))
        window.installEventFilter(this);
    m_panels.insert(&window, frame);
}

void WaylandPointer::forget(QWindow &window)
{
    window.removeEventFilter(this);
    m_panels.remove(&window);
    left(&window);
}

void WaylandPointer::pressOutside()
{
    m_presses.press(kOutside);
    Q_EMIT stirred();
}

PointerSample WaylandPointer::sample()
{
    // A drag runs in an event loop of its own. Once that is over the button is up, and no event says so.
    if (m_dragging && QThread::currentThread()->loopLevel() <= m_loops)
        m_dragging = m_down = false;
    if (m_restsAfterDrop.hasExpired())
        left(m_over);
    const bool comesPressed = std::exchange(m_comesPressed, false);
    return m_presses.sample({m_over && !comesPressed ? m_seen : kOutside, m_down});
}

/// A drag that began in a panel ends without a word, and so may the rest after a drop.
bool WaylandPointer::isAtRest() const
{
    return !m_down && !m_dragging && !m_comesPressed && !m_presses.isPending() &&
           m_restsAfterDrop.isForever();
}

bool WaylandPointer::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        moved(watched, static_cast<const QSinglePointEvent &>(*event));
        break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
        see(watched, static_cast<const QDropEvent &>(*event).position());
        m_comesPressed = m_comesPressed || !m_down;
        m_down = true;
        break;
    case QEvent::Drop:
        m_down = m_dragging = false;
        m_restsAfterDrop.setRemainingTime(kLongestRest);
        break;
    case QEvent::Leave:
        left(watched);
        break;
    case QEvent::DragLeave:
        if (m_restsAfterDrop.isForever())
            left(watched);
        break;
    default:
        return false;
    }
    Q_EMIT stirred();
    return false;
}

void WaylandPointer::see(const QObject *window, const QPointF &place)
{
    const QRectF frame = m_panels.value(window);
    m_seen = {frame.left() + place.x(), frame.bottom() - place.y()};
    m_over = window;
    m_restsAfterDrop = QDeadlineTimer(QDeadlineTimer::Forever);
}

void WaylandPointer::moved(const QObject *window, const QSinglePointEvent &event)
{
    see(window, event.position());
    if (event.type() == QEvent::Enter)
        m_dragging = false; // While something is dragged, it enters as a drag.
    const bool down = event.type() != QEvent::Enter && event.buttons().testFlag(Qt::LeftButton);
    if (down && !m_down) {
        m_presses.press(m_seen);
        m_loops = QThread::currentThread()->loopLevel();
    }
    m_down = down;
}

void WaylandPointer::left(const QObject *window)
{
    if (!window || window != m_over)
        return;
    // A held button keeps the pointer with the panel, unless it drags something out of it.
    m_dragging = m_dragging || (m_down && QThread::currentThread()->loopLevel() > m_loops);
    m_down = m_dragging;
    m_over = nullptr;
    m_restsAfterDrop = QDeadlineTimer(QDeadlineTimer::Forever);
    Q_EMIT stirred();
}

} // namespace Kestrune
