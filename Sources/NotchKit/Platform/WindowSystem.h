#pragma once

#include "NotchPanel.h"

#include <functional>
#include <memory>

class QWindow;

namespace Kestrune {

class Displays;
class DragPasteboard;
class FullScreenWindows;
class HotKeys;
class Pasteboard;
class Pointer;

/// What the session's window system gives: displays, input, what is dragged and copied, and places for
/// windows. One is chosen at the start. Its parts live as long as it does. Main thread only.
class WindowSystem
{
public:
    virtual ~WindowSystem() = default;

    virtual Displays &displays() = 0;
    virtual Pointer &pointer() = 0;
    virtual HotKeys &hotKeys() = 0;
    virtual DragPasteboard &drags() = 0;
    virtual Pasteboard &pasteboard() = 0;
    virtual FullScreenWindows &fullScreenWindows() = 0;

    /// Whether a window is asked to draw once its display is ready for the next frame, and not before.
    virtual bool pacesFrames() const = 0;

    /// Calls `then` once, with the next frame of the display that shows `window`, one at a time for each
    /// window: asking again forgets what was asked. False where the window system does not tell; it may stay
    /// away for a window that nobody sees.
    virtual bool awaitFrame(QWindow &window, std::function<void()> then) = 0;

    /// A hidden panel at `frame` (screen coordinates in points, y growing upwards) that hosts `window`, which
    /// has not been shown yet.
    virtual std::unique_ptr<NotchPanel> makePanel(std::unique_ptr<QWindow> window, const QRectF &frame) = 0;
};

} // namespace Kestrune
