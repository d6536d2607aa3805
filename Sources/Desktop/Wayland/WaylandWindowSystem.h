#pragma once

#include <memory>

namespace Kestrune {

class UserDefaults;
class WindowSystem;

/// A Wayland compositor that lets a program place panels (wlr-layer-shell).
struct WaylandWindowSystem
{
    static constexpr auto kName = "wayland";

    /// Qt's name for it; Qt must run on it before one is made.
    static constexpr auto kQtPlatform = "wayland";

    /// Whether there is such a compositor; asked before Qt starts. One that does not answer within two
    /// seconds counts as none.
    static bool isThere();

    /// `defaults` outlive the result.
    static std::unique_ptr<WindowSystem> make(const UserDefaults &defaults);
};

} // namespace Kestrune
