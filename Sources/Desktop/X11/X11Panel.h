#pragma once

#include "NotchKit/Platform/NotchPanel.h"

#include <QObject>
#include <QPainterPath>
#include <QWindow>

#include <memory>

#include <xcb/xcb.h>

namespace Kestrune {

class X11Desktop;

/// A notch's host panel: an override-redirect window, which no window manager moves, lists, decorates or
/// focuses. With a compositor its surroundings are transparent; without one its bounding shape follows the
/// notch's outline. Where input shapes are unknown the window is no larger than the hit area, and while the
/// notch is open than its shadow.
class X11Panel final : public QObject, public NotchPanel
{
    Q_OBJECT

public:
    /// Takes `window`, which has not been shown yet, and places it at `frame`.
    X11Panel(std::unique_ptr<QWindow> window, const X11Desktop &desktop, const QRectF &frame);
    ~X11Panel() override;

    void setFrame(const QRectF &frame) override;
    void orderFront() override;
    void orderOut() override;
    void setHitArea(const QRectF &area) override;
    void makeKey() override;
    void resignKey() override;
    void setBelowPanels(bool) override {} // The frame says it.
    void setOutline(const QPainterPath &outline) override;

    /// Tells the compositor of the frame that is about to be put on the screen, as one rectangle. Qt puts it
    /// there as the many small ones that changed, and picom 12 (Debian 13), where the X server draws in
    /// software, covers all between them with what lies beneath a translucent window.
    void announceFrame() override;

private:
    xcb_window_t id() const { return static_cast<xcb_window_t>(m_window->winId()); }
    QRectF wantedFrame() const;
    void place(const QRectF &frame);
    void shrink();
    QRect pixelsInPanel(const QRectF &points) const;
    void announceType() const;
    void keepMiddle() const;
    void applyHitArea();
    void applyOutline();
    void placeHitWindow();
    void restack();

    const X11Desktop &m_desktop;
    std::unique_ptr<QWindow> m_window;
    const bool m_hasInputShapes;
    QRectF m_frame;
    QRectF m_placed; ///< What of the frame the window fills.
    QRectF m_hitArea;
    QPainterPath m_outline;
    QRectF m_drawn; ///< Where the frame before drew, in points of the panel.
    /// An invisible window beneath the panel. Without a compositor the panel is no larger than what it
    /// draws, and this one takes the clicks in the margin around it.
    xcb_window_t m_hitWindow = XCB_WINDOW_NONE;
    xcb_window_t m_focusBefore = XCB_WINDOW_NONE; ///< Who had the keyboard when the panel took it.
    bool m_shaped = false;
};

} // namespace Kestrune
