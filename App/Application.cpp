#include "Application.h"

#include "NotchKit/Platform/Displays.h"
#include "NotchKit/Shell/NotchWindow.h"
#include "StandardSettings.h"
#include "TrayIcon.h"
#include "Updates.h"

#include <QTimer>

namespace Kestrune {

Application::Application(const QDBusConnection &bus, const WindowSystemChoice &windows,
                         const FeedSource &feed, ControlService &control)
    : m_windows(windows)
    , m_control(control)
    , m_bus(bus)
    , m_desktop(bus, windows)
    , m_platform(m_desktop.platform())
    , m_updater(makeUpdater(feed, m_platform))
    , m_appearance(bus)
    , m_panels(m_engine, m_platform.windows)
    , m_alert(m_engine, m_appearance)
{
    registerViews();
}

Application::~Application() { m_control.endService(); }

void Application::start(const LaunchRequest &request)
{
    m_desktop.whenReady([this, request] { run(request); });
}

void Application::run(const LaunchRequest &request)
{
    const AppWindows windows{.panels = m_panels,
                             .showAlert = [this](const QString &message,
                                                 const QString &details) { m_alert.show(message, details); },
                             .openSettings = [this] { m_settingsWindow->open(); }};
    m_state = std::make_unique<AppState>(m_platform, windows, request);
    m_settingsWindow = std::make_unique<SettingsWindow>(m_engine, *m_state, *m_updater, m_appearance);
    m_updateWindow = std::make_unique<UpdateWindow>(m_engine, *m_updater, m_appearance);
    m_statusItem = std::make_unique<BusStatusItem>(m_bus, NotchBranding::fennivar().name, trayIcon);
    m_menu = std::make_unique<AppMenu>(*m_state, *m_updater, *m_statusItem);
    m_keys = std::make_unique<SettingsKeys>(makeKeys());
    m_memory = std::make_unique<IdleMemory>(m_state->services());
    m_control.serve({*m_state, *m_keys, m_windows});
    constexpr auto kAfterTheStart = std::chrono::seconds(5);
    QTimer::singleShot(kAfterTheStart, m_state.get(), [this] { m_desktop.tidyUp(); });
}

SettingsKeys Application::makeKeys()
{
    return {m_state->settings(), standardExtras(
                                     m_platform.defaults, m_platform.loginItem,
                                     [this] { m_platform.windows.displays().housingsChanged(); },
                                     [this](bool on) { m_state->setLaunchAtLogin(on); })};
}

} // namespace Kestrune
