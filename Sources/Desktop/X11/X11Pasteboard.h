#pragma once

#include "Desktop/Pasteboard/ThreadedPasteboard.h"

namespace Kestrune {

/// The X11 clipboard, by a connection of its own.
class X11Pasteboard : public ThreadedPasteboard
{
public:
    /// Watches the clipboard of `display`, or of the one in the environment when it is empty.
    explicit X11Pasteboard(const QByteArray &display = {});
};

} // namespace Kestrune
