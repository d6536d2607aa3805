#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Kestrune {

/// The host window of one notch: borderless and transparent, above all other windows and beside
/// full-screen ones, on every desktop, in no task list and no window cycle, never moved by the user.
/// Showing it or clicking it does not move the keyboard focus. Main thread only; it goes with the object.
class NotchPanel
{
public:
    virtual ~NotchPanel() = default;

    /// Places the panel. Screen coordinates in points, y growing upwards.
    virtual void setFrame(const QRectF &frame) = 0;

    /// Whether it leaves the desktop's own panels the edge that they keep for themselves, on a window system
    /// that places panels itself; on others its frame does. It does until told otherwise.
    virtual void setBelowPanels(bool below) = 0;

    /// Shows the panel above all windows.
    virtual void orderFront() = 0;

    /// Hides the panel, and gives the keyboard back if it had it.
    virtual void orderOut() = 0;

    /// The part of the screen in which the panel takes clicks; all others go to what lies beneath, and so
    /// from the moment this returns.
    virtual void setHitArea(const QRectF &area) = 0;

    /// The notch as it is drawn from now on, in points from the panel's top left, y growing downwards.
    virtual void setOutline(const QPainterPath &outline) = 0;

    /// A frame has been drawn and is about to be put on the screen.
    virtual void announceFrame() = 0;

    /// Takes the keyboard, remembering who had it.
    virtual void makeKey() = 0;

    /// Gives the keyboard back to the window that had it, if this panel still has it.
    virtual void resignKey() = 0;
};

} // namespace Kestrune
