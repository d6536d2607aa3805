#pragma once

#include "Fakes.h"
#include "NotchKit/Platform/Platform.h"

namespace Kestrune::Fakes {

/// Real adapters in place of some of them.
struct RealPorts
{
    Clock *clock = nullptr;
    Displays *displays = nullptr;
    Pointer *pointer = nullptr;
    Pasteboard *pasteboard = nullptr;
    HttpClient *http = nullptr;
    RunningApplications *players = nullptr;
    ScriptExecutor *scripts = nullptr;
    CalendarStore *calendars = nullptr;
};

/// Reads pictures as the reader does, but in this process.
std::shared_ptr<PictureReader> pictures();

/// A stand-in for every port. What makes them all is compiled once, as it takes long.
struct Platform
{
    explicit Platform(MemoryDefaults::Values stored = {}, const QString &folder = QDir::homePath());
    ~Platform();
    Q_DISABLE_COPY_MOVE(Platform)

    /// The ports, which live as long as this object.
    Kestrune::Platform ports(const RealPorts &real = {});

    FakeClock clock;
    MemoryDefaults defaults;
    MemoryDefaults suiteDefaults;
    FakeApplications applications;
    FakeApplications players;
    FakeLoginItem loginItem;
    FakeSessionLock lock;
    SystemSleep sleep;
    NetworkReturn network;
    FakeNotifications notifications;
    FakeSounds sounds;
    FakeWorkspace workspace;
    FakeSharing sharing;
    FakeCaptureQuery captures;
    FakeThumbnails thumbnails;
    FakeHttp http;
    FakeLocation location;
    FakeScripts scripts;
    FakeHost host;
    FakeCamera camera;
    FakeCalendars calendars;
    FakeDisplays displays;
    FakePointer pointer;
    FakeHotKeys hotKeys;
    FakeDrags drags;
    FakePasteboard pasteboard;
    FakeFullScreenWindows fullScreenWindows;
    FakeWindowSystem windows;
    FakePanels panels;
    QString home;
};

} // namespace Kestrune::Fakes
