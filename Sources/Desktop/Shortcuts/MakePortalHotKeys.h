#pragma once

#include <memory>

namespace Kestrune {

class HotKeys;

/// Hot keys that the desktop is asked for over the session bus, on a connection of their own: its portal for
/// global shortcuts, or KDE's service. Main thread only.
std::unique_ptr<HotKeys> makePortalHotKeys();

} // namespace Kestrune
