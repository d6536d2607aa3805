#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace Kestrune {

class UserDefaults;
class WindowSystem;

/// A window system that the program can run on, and why on this one.
struct WindowSystemChoice
{
    const char *name;       ///< As the user names it.
    const char *qtPlatform; ///< What Qt calls it; to be set before Qt starts.
    std::unique_ptr<WindowSystem> (*make)(const UserDefaults &defaults); ///< Called once Qt runs on it.
    QString reason;
};

/// Names the window system to run on, in the environment: "wayland" or "x11".
constexpr auto kWindowSystemVariable = "KESTRUNE_WINDOW_SYSTEM";

/// The one to run on in this session: the one that the user names, else the best one that is there. Asked
/// before Qt starts. With none, `fault` is told why.
std::optional<WindowSystemChoice> chooseWindowSystem(QString *fault = nullptr);

} // namespace Kestrune
