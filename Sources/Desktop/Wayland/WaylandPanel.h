#pragma once

#include "NotchKit/Platform/NotchPanel.h"

#include <QObject>
#include <QTimer>
#include <QWindow>

#include <memory>

namespace LayerShellQt {
class Window;
}

namespace Kestrune {

class WaylandPointer;

/// A notch's host panel: a layer surface at the top edge of one output, over or below the desktop's panels.
/// Closed or opened by the pointer it is on the layer that full-screen windows cover; called by key it is
/// above them.
///
/// What is set here reaches the compositor with the next frame, so one is asked for each time.
class WaylandPanel final : public QObject, public NotchPanel
{
    Q_OBJECT

public:
    /// Takes `window`, which has not been shown yet, and places it at `frame`. `pointer` outlives the panel.
    WaylandPanel(std::unique_ptr<QWindow> window, WaylandPointer &pointer, const QRectF &frame);
    ~WaylandPanel() override;

    void setFrame(const QRectF &frame) override;
    void orderFront() override;
    void orderOut() override;
    void setHitArea(const QRectF &area) override;
    void setBelowPanels(bool below) override;
    void setOutline(const QPainterPath &) override {} // The compositor blends what is drawn.
    void announceFrame() override;
    void makeKey() override;
    void resignKey() override;

private:
    void place();
    void applyHitArea();
    void remap();
    void hide();
    void activeChanged();
    void letGo();
    void giveBack();

    WaylandPointer &m_pointer;
    std::unique_ptr<QWindow> m_window;
    LayerShellQt::Window *m_surface; ///< Of the window, and owned by it.
    QRectF m_frame;
    QRectF m_hitArea;
    bool m_below = true; ///< Below the desktop's panels.
    bool m_key = false;  ///< It was to have the keyboard, and has not lost it.
    QTimer m_kept;       ///< Since the keyboard was given up, until the compositor should have taken it.
    QTimer m_unseen;     ///< Since a lift was asked for, until a frame shows that the compositor took it.
};

} // namespace Kestrune
