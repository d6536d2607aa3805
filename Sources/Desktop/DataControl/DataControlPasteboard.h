#pragma once

#include "Desktop/Pasteboard/ThreadedPasteboard.h"

namespace Kestrune {

/// The clipboard of a Wayland session, by the compositor's data control (ext_data_control_manager_v1, or
/// zwlr_data_control_manager_v1) and a connection of its own: no window is needed, nor the focus. Copies stay
/// offered as long as the object lives. Protocol: https://wayland.app/protocols/ext-data-control-v1.
class DataControlPasteboard : public ThreadedPasteboard
{
public:
    /// Whether the compositor at `display`, or the one that WAYLAND_DISPLAY names when it is empty, has data
    /// control. Asks it, before or without Qt's own connection; one that does not answer within two seconds
    /// has none.
    static bool isThere(const QByteArray &display = {});

    /// Watches the clipboard of that compositor.
    explicit DataControlPasteboard(const QByteArray &display = {});
};

} // namespace Kestrune
