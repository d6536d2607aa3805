#pragma once

#include "AppMenu.h"
#include "AppState.h"
#include "ControlService.h"
#include "Desktop/Calendars/DesktopCalendars.h"
#include "Desktop/Camera/HelperCamera.h"
#include "Desktop/Captures/FolderCaptureQuery.h"
#include "Desktop/Captures/SharedThumbnails.h"
#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "Desktop/Location/GeoClueLocation.h"
#include "Desktop/Media/MprisApplications.h"
#include "Desktop/Media/MprisExecutor.h"
#include "Desktop/Network/QtHttpClient.h"
#include "Desktop/Session/AutostartLoginItem.h"
#include "Desktop/Session/BusApplications.h"
#include "Desktop/Session/DesktopWorkspace.h"
#include "Desktop/Session/PortalAppearance.h"
#include "Desktop/Sharing/KdeConnectSharing.h"
#include "Desktop/Sound/CanberraSounds.h"
#include "Desktop/System/LinuxStatistics.h"
#include "Desktop/Time/SystemClock.h"
#include "Desktop/Tray/BusStatusItem.h"
#include "Desktop/X11/X11Desktop.h"
#include "Desktop/X11/X11Displays.h"
#include "Desktop/X11/X11DragPasteboard.h"
#include "Desktop/X11/X11HotKeys.h"
#include "Desktop/X11/X11Pasteboard.h"
#include "Desktop/X11/X11Pointer.h"
#include "NotchKit/Platform/Updater.h"
#include "NotchKit/Views/AlertWindow.h"
#include "PanelFactory.h"
#include "SettingsWindow.h"
#include "UpdateWindow.h"

#include <QDBusConnection>
#include <QQmlEngine>

namespace Kestrune {

/// The whole running program: every adapter, put together. The only place that knows them all.
class Application
{
public:
    /// Builds the adapters; nothing is on screen yet.
    explicit Application(const QDBusConnection &bus);

    /// Starts the program proper once it is known which other applications run.
    void start(const LaunchRequest &request);

private:
    void run(const LaunchRequest &request);
    SettingsKeys makeKeys();

    QDBusConnection m_bus;
    SqliteUserDefaults m_defaults;
    SqliteUserDefaults m_suiteDefaults;
    SqliteUserDefaults m_capturePreferences;
    SystemClock m_clock;
    CanberraSounds m_sounds;
    DesktopWorkspace m_workspace;
    KdeConnectSharing m_sharing;
    AutostartLoginItem m_loginItem;
    BusApplications m_applications;
    X11Desktop m_desktop;
    X11Displays m_displays;
    X11Pointer m_pointer;
    X11HotKeys m_hotKeys;
    X11DragPasteboard m_drags;
    X11Pasteboard m_pasteboard;
    FolderCaptureQuery m_captures;
    SharedThumbnails m_thumbnails;
    QtHttpClient m_http;
    std::unique_ptr<HttpClient> m_localServices; ///< In place of the web services, in tests.
    GeoClueLocation m_location;
    MprisApplications m_players;
    MprisExecutor m_scripts;
    LinuxStatistics m_host;
    HelperCamera m_camera;
    DesktopCalendars m_calendars;
    std::unique_ptr<Updater> m_updater;
    PortalAppearance m_appearance;
    QQmlEngine m_engine;
    PanelFactory m_panels;
    AlertWindow m_alert;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<SettingsWindow> m_settingsWindow;
    std::unique_ptr<UpdateWindow> m_updateWindow;
    std::unique_ptr<BusStatusItem> m_statusItem;
    std::unique_ptr<AppMenu> m_menu;
    std::unique_ptr<SettingsKeys> m_keys;
    std::unique_ptr<ControlService> m_control;
};

} // namespace Kestrune
