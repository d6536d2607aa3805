#include "WaylandWindowSystem.h"

#include "Desktop/Compositor/CompositorGlobals.h"
#include "Desktop/DataControl/DataControlPasteboard.h"
#include "Desktop/Screens/ScreenDisplays.h"
#include "Desktop/Shortcuts/MakePortalHotKeys.h"
#include "NotchKit/Platform/FullScreenWindows.h"
#include "NotchKit/Platform/HotKeys.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "WaylandDragPasteboard.h"
#include "WaylandPanel.h"
#include "WaylandPointer.h"

namespace Kestrune {

namespace {

class WaylandSystem : public WindowSystem
{
public:
    explicit WaylandSystem(const UserDefaults &defaults)
        : m_displays(defaults)
    {}

    Displays &displays() override { return m_displays; }
    Pointer &pointer() override { return m_pointer; }
    HotKeys &hotKeys() override { return *m_hotKeys; }
    DragPasteboard &drags() override { return m_drags; }
    Pasteboard &pasteboard() override { return m_pasteboard; }
    FullScreenWindows &fullScreenWindows() override { return m_fullScreenWindows; }
    bool pacesFrames() const override { return true; }
    bool awaitFrame(QWindow &, std::function<void()>) override { return false; }
    std::unique_ptr<NotchPanel> makePanel(std::unique_ptr<QWindow> window, const QRectF &frame) override
    {
        m_drags.watch(*window);
        return std::make_unique<WaylandPanel>(std::move(window), m_pointer, frame);
    }

private:
    ScreenDisplays m_displays;
    WaylandPointer m_pointer;
    std::unique_ptr<HotKeys> m_hotKeys = makePortalHotKeys();
    WaylandDragPasteboard m_drags{m_pointer};
    DataControlPasteboard m_pasteboard;
    NoFullScreenWindows m_fullScreenWindows; ///< The compositor lays them over the closed notch.
};

} // namespace

bool WaylandWindowSystem::isThere() { return compositorGlobals().contains("zwlr_layer_shell_v1"); }

std::unique_ptr<WindowSystem> WaylandWindowSystem::make(const UserDefaults &defaults)
{
    return std::make_unique<WaylandSystem>(defaults);
}

} // namespace Kestrune
