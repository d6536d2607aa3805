#pragma once

#include <QDir>
#include <QString>

#include <memory>

namespace Kestrune {

class CalendarStore;
class CameraSession;
class Clock;
class FileSharing;
class HostStatistics;
class HttpClient;
class LocationService;
class LoginItem;
class NetworkReturn;
class Notifications;
class PictureReader;
class RunningApplications;
class ScreenCaptureQuery;
class ScriptExecutor;
class SessionLock;
class SoundPlayer;
class SystemSleep;
class Thumbnails;
class UserDefaults;
class WindowSystem;
class Workspace;

/// Every port that the program stands on. Made in one place, with each member named; all of them outlive
/// whoever was given the value.
struct Platform
{
    WindowSystem &windows;
    Clock &clock;
    UserDefaults &defaults;            ///< The standard store.
    UserDefaults &suiteDefaults;       ///< The companion suite's own domain, read only.
    RunningApplications &applications; ///< Knows the companion suite.
    RunningApplications &players;      ///< Knows the media players.
    LoginItem &loginItem;
    SessionLock &lock;
    SystemSleep &sleep;
    NetworkReturn &network;
    Notifications &notifications;
    SoundPlayer &sounds;
    Workspace &workspace;
    FileSharing &sharing;
    ScreenCaptureQuery &captures;
    Thumbnails &thumbnails;
    std::shared_ptr<PictureReader> pictures; ///< Shared with the threads that wait for it.
    HttpClient &http;
    LocationService &location;
    ScriptExecutor &scripts;
    HostStatistics &host;
    CameraSession &camera;
    CalendarStore &calendars;
    QString home = QDir::homePath(); ///< The user's home folder, where other programs keep their files.
    QString claudeConfig = {};       ///< Further folders of Claude Code's, parted by commas.
    QString cache = {};              ///< The folder of what can be had again; empty for nowhere.
};

} // namespace Kestrune
