#pragma once

#include "Desktop/Screens/PressLatch.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QRectF>

class QSinglePointEvent;
class QWindow;

namespace Kestrune {

/// The pointer as a Wayland client knows it: while it is over one of the panels, or was pressed there and is
/// still held. Anywhere else it counts as outside them all; a press there is noticed where it takes the
/// keyboard from a panel.
class WaylandPointer : public Pointer
{
    Q_OBJECT

public:
    /// Where the pointer was seen last.
    QPointF location() override { return m_seen; }
    PointerSample sample() override;
    bool isAtRest() const override;

    /// Follows the pointer over `window`, a panel in that frame (points, y growing upwards).
    void watch(QWindow &window, const QRectF &frame);

    /// The panel goes.
    void forget(QWindow &window);

    /// That panel is hidden or has lost the pointer, which may be over another one.
    void left(const QObject *window);

    /// Something is dragged that was taken from a panel.
    bool isDragging() const { return m_dragging; }

    /// Another program's window got the keyboard from a panel.
    void pressOutside();

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void see(const QObject *window, const QPointF &place);
    void moved(const QObject *window, const QSinglePointEvent &event);

    QHash<const QObject *, QRectF> m_panels;
    QPointF m_seen;
    const QObject *m_over = nullptr; ///< The panel that the pointer is over, or was pressed in and is held.
    bool m_down = false;             ///< The primary button.
    bool m_comesPressed = false;     ///< By a drag that began elsewhere, as the next sample has to say.
    bool m_dragging = false;         ///< The button was taken away to a drag that began in a panel.
    /// After a drop some compositors tell of the pointer again only when it moves: until then it is taken to
    /// rest where it was, but not for ever.
    QDeadlineTimer m_restsAfterDrop{QDeadlineTimer::Forever};
    int m_loops = 0; ///< Event loops of the thread when the button went down.
    PressLatch m_presses;
};

} // namespace Kestrune
