#pragma once

#include <memory>

namespace Kestrune {

class UserDefaults;
class WindowSystem;

/// A window system that the program can run on.
struct WindowSystemChoice
{
    const char *qtPlatform; ///< What Qt calls it; to be set before Qt starts.
    bool (*isThere)();      ///< Asked before Qt starts.
    std::unique_ptr<WindowSystem> (*make)(const UserDefaults &defaults); ///< Called once Qt runs on it.
};

/// The one to run on in this session; null where there is none. Asked before Qt starts.
const WindowSystemChoice *chooseWindowSystem();

} // namespace Kestrune
