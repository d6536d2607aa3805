#pragma once

#include <memory>

namespace Kestrune {

class UserDefaults;
class WindowSystem;

/// An X server, or the one for guests in a Wayland session.
struct X11WindowSystem
{
    static constexpr auto kName = "x11";

    /// Qt's name for it; Qt must run on it before one is made.
    static constexpr auto kQtPlatform = "xcb";

    /// Whether a server can be reached; asked before Qt starts, which ends the process without one.
    static bool isThere();

    /// `defaults` outlive the result.
    static std::unique_ptr<WindowSystem> make(const UserDefaults &defaults);
};

} // namespace Kestrune
