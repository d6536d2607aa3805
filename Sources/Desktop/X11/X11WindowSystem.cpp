#include "X11WindowSystem.h"

#include "Desktop/DataControl/DataControlPasteboard.h"
#include "Desktop/Screens/ScreenDisplays.h"
#include "Desktop/Shortcuts/MakePortalHotKeys.h"
#include "GuestHotKeys.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "X11Connection.h"
#include "X11Desktop.h"
#include "X11DragPasteboard.h"
#include "X11Frames.h"
#include "X11FullScreenWindows.h"
#include "X11HotKeys.h"
#include "X11Monitors.h"
#include "X11Panel.h"
#include "X11Pasteboard.h"
#include "X11Pointer.h"
#include "X11TopPanels.h"

namespace Kestrune {

namespace {

std::unique_ptr<HotKeys> makeHotKeys()
{
    if (X11::isGuest())
        return std::make_unique<GuestHotKeys>(makePortalHotKeys());
    return std::make_unique<X11HotKeys>();
}

/// A guest is not told of all that is copied in Wayland windows; the compositor may tell whoever asks.
std::unique_ptr<Pasteboard> makePasteboard()
{
    if (X11::isGuest() && DataControlPasteboard::isThere())
        return std::make_unique<DataControlPasteboard>();
    return std::make_unique<X11Pasteboard>();
}

class System : public WindowSystem
{
public:
    explicit System(const UserDefaults &defaults)
        : m_displays(defaults)
        , m_fullScreenWindows(m_desktop)
        , m_hotKeys(makeHotKeys())
        , m_pasteboard(makePasteboard())
    {
        QObject::connect(&m_monitors, &X11Monitors::changed, &m_displays, &ScreenDisplays::placesChanged);
        QObject::connect(&m_monitors, &X11Monitors::changed, &m_topPanels, &X11TopPanels::readSoon);
        QObject::connect(&m_topPanels, &X11TopPanels::changed, &m_displays, &ScreenDisplays::setPanels);
        m_displays.setPanels(m_topPanels.heights());
    }

    Displays &displays() override { return m_displays; }
    Pointer &pointer() override { return m_pointer; }
    HotKeys &hotKeys() override { return *m_hotKeys; }
    DragPasteboard &drags() override { return m_drags; }
    Pasteboard &pasteboard() override { return *m_pasteboard; }
    FullScreenWindows &fullScreenWindows() override { return m_fullScreenWindows; }
    bool pacesFrames() const override { return false; }
    bool awaitFrame(QWindow &window, std::function<void()> then) override
    {
        return m_frames.await(window, std::move(then));
    }
    std::unique_ptr<NotchPanel> makePanel(std::unique_ptr<QWindow> window, const QRectF &frame) override
    {
        return std::make_unique<X11Panel>(std::move(window), m_desktop, frame);
    }

private:
    X11Desktop m_desktop;
    X11Frames m_frames;
    X11Monitors m_monitors;
    X11TopPanels m_topPanels;
    ScreenDisplays m_displays;
    X11Pointer m_pointer;
    X11FullScreenWindows m_fullScreenWindows;
    std::unique_ptr<HotKeys> m_hotKeys;
    X11DragPasteboard m_drags;
    std::unique_ptr<Pasteboard> m_pasteboard;
};

} // namespace

bool X11WindowSystem::isThere() { return X11::canConnect(); }

std::unique_ptr<WindowSystem> X11WindowSystem::make(const UserDefaults &defaults)
{
    return std::make_unique<System>(defaults);
}

} // namespace Kestrune
