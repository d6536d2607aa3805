#pragma once

#include "Desktop/Calendars/DesktopCalendars.h"
#include "Desktop/Camera/HelperCamera.h"
#include "Desktop/Captures/FolderCaptureQuery.h"
#include "Desktop/Captures/SharedThumbnails.h"
#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "Desktop/Location/GeoClueLocation.h"
#include "Desktop/Media/MprisApplications.h"
#include "Desktop/Media/MprisExecutor.h"
#include "Desktop/Network/QtHttpClient.h"
#include "Desktop/Notifications/BusNotifications.h"
#include "Desktop/Pictures/HelperPictures.h"
#include "Desktop/Reachability/BusNetworkReturn.h"
#include "Desktop/Session/AutostartLoginItem.h"
#include "Desktop/Session/BusApplications.h"
#include "Desktop/Session/DesktopSessionLock.h"
#include "Desktop/Session/DesktopWorkspace.h"
#include "Desktop/Session/LogindSleep.h"
#include "Desktop/Session/PortalIdentity.h"
#include "Desktop/Sharing/DesktopSharing.h"
#include "Desktop/Sound/CanberraSounds.h"
#include "Desktop/System/LinuxStatistics.h"
#include "Desktop/Time/SystemClock.h"
#include "NotchKit/Platform/Platform.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "WindowSystems.h"

namespace Kestrune {

/// The adapters of a freedesktop session, put together. The only place that knows them all.
class DesktopPlatform
{
public:
    /// Nothing starts yet. Qt runs on the window system of `windows`.
    DesktopPlatform(const QDBusConnection &bus, const WindowSystemChoice &windows);

    /// The ports; they live as long as this object.
    const Platform &platform() const { return m_platform; }

    /// Calls `ready` once it is known which other applications run.
    void whenReady(std::function<void()> ready) { m_applications.whenReady(std::move(ready)); }

    /// What a start owes the desktop and nobody waits for; it reads a file of the user's.
    void tidyUp() { m_loginItem.repair(); }

private:
    Platform makePlatform();

    PortalIdentity m_identity;
    SqliteUserDefaults m_defaults;
    SqliteUserDefaults m_suiteDefaults;
    SqliteUserDefaults m_capturePreferences;
    SystemClock m_clock;
    CanberraSounds m_sounds;
    DesktopWorkspace m_workspace;
    DesktopSharing m_sharing;
    AutostartLoginItem m_loginItem;
    DesktopSessionLock m_lock;
    LogindSleep m_sleep;
    BusNetworkReturn m_network;
    BusNotifications m_notifications;
    BusApplications m_applications;
    std::unique_ptr<WindowSystem> m_windows;
    FolderCaptureQuery m_captures;
    std::shared_ptr<PictureReader> m_pictures;
    SharedThumbnails m_thumbnails;
    QtHttpClient m_http;
    std::unique_ptr<HttpClient> m_localServices; ///< In place of the web services, in tests.
    GeoClueLocation m_location;
    MprisApplications m_players;
    MprisExecutor m_scripts;
    LinuxStatistics m_host;
    HelperCamera m_camera;
    DesktopCalendars m_calendars;
    Platform m_platform;
};

} // namespace Kestrune
