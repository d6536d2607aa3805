#pragma once

#include "AppMenu.h"
#include "AppState.h"
#include "ControlService.h"
#include "Desktop/Session/PortalAppearance.h"
#include "Desktop/Tray/BusStatusItem.h"
#include "DesktopPlatform.h"
#include "FeedSource.h"
#include "IdleMemory.h"
#include "NotchKit/Shell/AlertWindow.h"
#include "NotchKit/Shell/ViewEngine.h"
#include "NotchKit/Updates/Updater.h"
#include "PanelFactory.h"
#include "SettingsWindow.h"
#include "UpdateWindow.h"

#include <QDBusConnection>

namespace Kestrune {

/// The whole running program: the platform, the application's state and its windows, put together.
class Application
{
public:
    /// Nothing is on screen yet. `windows` and `control`, which serves while the program runs, outlive it.
    Application(const QDBusConnection &bus, const WindowSystemChoice &windows, const FeedSource &feed,
                ControlService &control);
    ~Application();
    Q_DISABLE_COPY_MOVE(Application)

    /// Starts the program proper once it is known which other applications run.
    void start(const LaunchRequest &request);

private:
    void run(const LaunchRequest &request);
    SettingsKeys makeKeys();

    const WindowSystemChoice &m_windows;
    ControlService &m_control;
    QDBusConnection m_bus;
    DesktopPlatform m_desktop;
    const Platform &m_platform;
    std::unique_ptr<Updater> m_updater;
    PortalAppearance m_appearance;
    ViewEngine m_engine;
    PanelFactory m_panels;
    AlertWindow m_alert;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<SettingsWindow> m_settingsWindow;
    std::unique_ptr<UpdateWindow> m_updateWindow;
    std::unique_ptr<BusStatusItem> m_statusItem;
    std::unique_ptr<AppMenu> m_menu;
    std::unique_ptr<SettingsKeys> m_keys;
    std::unique_ptr<IdleMemory> m_memory;
};

} // namespace Kestrune
