#include "WindowSystems.h"

#include "Desktop/X11/X11WindowSystem.h"
#include "NotchKit/Platform/WindowSystem.h"

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

template <typename System>
constexpr WindowSystemChoice choice()
{
    return {System::kQtPlatform, &System::isThere, &System::make};
}

/// The best one first.
constexpr std::array kSystems{choice<X11WindowSystem>()};

} // namespace

const WindowSystemChoice *chooseWindowSystem()
{
    const auto found =
        std::ranges::find_if(kSystems, [](const WindowSystemChoice &system) { return system.isThere(); });
    return found == kSystems.end() ? nullptr : &*found;
}

} // namespace Kestrune
